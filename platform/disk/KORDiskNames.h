#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The names in a document's file, each once: of late types and of attributes. They are numbered from 1 on
/// and only ever added.
class KORDiskNames {
public:
    std::uint32_t Of(std::string_view text);  ///< the number of a name; a new one when there is none
    bool Has(std::uint64_t number) const { return number >= 1 && number <= texts_.size(); }
    const std::string& Text(std::uint64_t number) const { return texts_[number - 1]; }
    std::size_t Size() const { return texts_.size(); }

private:
    std::vector<std::string> texts_;
    std::unordered_map<std::string, std::uint32_t> numbers_;
};
