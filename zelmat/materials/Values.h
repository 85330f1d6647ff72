#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace zelmat {

/// A flag, a whole number, a number or a text.
using Value = std::variant<bool, int, double, std::string>;

/// The single values of a block, by the names of their settings.
class Values {
public:
    void Set(const std::string& name, Value value) { values_.insert_or_assign(name, std::move(value)); }

    /// Null when there is none of that name.
    const Value* Find(const std::string& name) const {
        const auto found = values_.find(name);
        return found == values_.end() ? nullptr : &found->second;
    }

    /// Nothing when there is none of that name. T is the type that the setting's kind stands for.
    template <class T>
    std::optional<T> Get(const std::string& name) const {
        const Value* value = Find(name);
        return value ? std::optional(std::get<T>(*value)) : std::nullopt;
    }

private:
    std::map<std::string, Value> values_;
};

}  // namespace zelmat
