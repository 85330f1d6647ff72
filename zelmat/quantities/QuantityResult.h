#pragma once

#include <string>
#include <utility>
#include <variant>

namespace zelmat {

/// Why a text is no number, no unit, or not the unit of a quantity: one sentence without a place, which
/// whoever read the text adds. What it quotes is safe to print.
struct QuantityError {
    std::string text;
};

/// What reading a text gave: a T, or the reason why there is none.
template <class T>
class QuantityResult {
public:
    QuantityResult(T value) : content_(std::move(value)) {}
    QuantityResult(QuantityError error) : content_(std::move(error)) {}

    explicit operator bool() const { return std::holds_alternative<T>(content_); }

    /// Only when there is one.
    const T& operator*() const { return std::get<T>(content_); }
    const T* operator->() const { return &std::get<T>(content_); }

    /// Only when there is none.
    const QuantityError& Error() const { return std::get<QuantityError>(content_); }

private:
    std::variant<T, QuantityError> content_;
};

}  // namespace zelmat
