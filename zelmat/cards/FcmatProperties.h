#pragma once

#include <span>
#include <string_view>

namespace zelmat {

/// What an FCMat card calls a property, and where it goes. Facts of that form, as its cards show them.
struct FcmatProperty {
    std::string_view name;      ///< "YoungsModulus"
    std::string_view model;     ///< the model that newest cards have it in
    std::string_view flatUnit;  ///< of a bare number in the oldest form; empty: a bare number has no unit
    std::string_view block;     ///< of a material; empty: kept among the other properties
    std::string_view member;    ///< the block's column or setting
};

/// A model of the newest form.
struct FcmatModel {
    std::string_view name;
    std::string_view uuid;
};

std::span<const FcmatProperty> FcmatProperties();
const FcmatProperty* FindFcmatProperty(std::string_view name);  ///< null for an unknown one

std::span<const FcmatModel> FcmatModels();
const FcmatModel* FindFcmatModelById(std::string_view uuid);  ///< null for an unknown one

}  // namespace zelmat
