#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ShownQuantity.h"

namespace zelmat {

/// Numbers of one quantity, in the unit that was chosen for it, as commands print them: all digits.
class Shown : public ShownQuantity {
public:
    using ShownQuantity::ShownQuantity;

    std::string Text(double stored) const { return WithUnit((*this)(stored), Unit()); }
    nlohmann::ordered_json Json(double stored) const {
        return {{"value", (*this)(stored)}, {"unit", Unit()}};
    }
};

}  // namespace zelmat
