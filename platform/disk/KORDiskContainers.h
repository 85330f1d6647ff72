#pragma once

#include <optional>

#include "platform/document/KORMemoryDocument.h"

/// The containers of an open document by the numbers they have in its file: 1 is its own, those of
/// applications follow in their order; 0 is none.
class KORDiskContainers {
public:
    explicit KORDiskContainers(KORMemoryDocument& document);

    std::size_t Count() const { return containers_.size() - 1; }
    KORBaseUnknown* At(std::uint64_t number) const { return containers_[number].Get(); }

    /// The number of what a container slot holds; nothing when it is no container of the document.
    std::optional<std::uint32_t> NumberOf(const KORValue& value) const;

private:
    std::vector<KORBaseUnknown_var> containers_;
};
