#pragma once

#include <cassert>
#include <string>
#include <utility>
#include <variant>

namespace zelmat::mechanics {

/// Why a calculation gave no value, as a sentence for the user. Its text carries no number that has a unit:
/// the caller alone knows the unit.
struct Refusal {
    std::string text;
};

/// A value, or the reason why there is none. Never a number that is not one: what cannot be computed is
/// refused.
template <class T>
class Outcome {
public:
    Outcome(T value) : content_(std::in_place_index<0>, std::move(value)) {}
    Outcome(Refusal refusal) : content_(std::in_place_index<1>, std::move(refusal)) {}

    bool Ok() const { return content_.index() == 0; }

    /// Only when there is a value.
    const T& Value() const {
        assert(Ok());
        return *std::get_if<0>(&content_);
    }
    const T& operator*() const { return Value(); }
    const T* operator->() const { return &Value(); }

    /// Only when there is none.
    const std::string& Why() const {
        assert(!Ok());
        return std::get_if<1>(&content_)->text;
    }
    Refusal Refused() const { return Refusal{Why()}; }

private:
    std::variant<T, Refusal> content_;
};

}  // namespace zelmat::mechanics
