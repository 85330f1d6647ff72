#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "zelmat/quantities/Unit.h"
#include "zelmat/quantities/UnitWords.h"

namespace zelmat {

/// Reads the text of one unit, from left to right in one pass:
///
///     unit    = ["/"] product
///     product = factor { ["*" | "." | "-"] factor | "/" factor }     no product after a "/"
///     factor  = (word | number | "(" unit ")") [["^" | "**"] integer]
///     number  = "1" | "1e" integer | "10^" integer
class UnitReader {
public:
    /// `text` is what stands there, for messages and for the spelling that the unit keeps.
    explicit UnitReader(std::string_view text) : written_(text) {}

    QuantityResult<Unit> Read();

private:
    /// A part of the unit, with what is known of it.
    struct Part {
        UnitWord meaning;
        std::size_t factors = 1;   ///< how many words and numbers it is made of
        bool power = false;        ///< raised to a power
        bool scaleWithin = false;  ///< one of its words is a scale with its own zero
    };

    std::optional<Part> ReadProduct(int depth);
    std::optional<Part> ReadFactor(int depth);
    std::optional<Part> ReadWord();
    std::optional<Part> ReadNumber();
    bool ReadPower(Part& part);
    bool ReadInteger(int& integer);
    bool TakeOperator();
    bool Multiply(Part& product, const Part& factor, bool divides);

    void SkipBlanks();
    bool AtEnd() const { return at_ == plain_.size(); }
    char Here() const { return AtEnd() ? '\0' : plain_[at_]; }
    char After(std::size_t ahead) const { return at_ + ahead < plain_.size() ? plain_[at_ + ahead] : '\0'; }

    /// Keeps the first reason; answers nothing, whatever was asked for.
    std::nullopt_t Refuse(const std::string& reason);
    std::nullopt_t RefuseProductAfterQuotient();

    std::string_view written_;
    std::string plain_;
    std::size_t at_ = 0;
    std::string reason_;
};

}  // namespace zelmat
