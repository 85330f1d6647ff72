#include "zelmat/exchange/calculix/DeckPlies.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::optional<std::vector<double>> EngineeringConstants(const std::vector<double>& stiffness) {
    const auto& d = stiffness;
    const double d11 = d[0], d12 = d[1], d22 = d[2], d13 = d[3], d23 = d[4], d33 = d[5];
    // Cofactors: divided by the determinant they are the compliance.
    const double s11 = d22 * d33 - d23 * d23, s22 = d11 * d33 - d13 * d13, s33 = d11 * d22 - d12 * d12;
    const double s12 = d13 * d23 - d12 * d33, s13 = d12 * d23 - d13 * d22, s23 = d12 * d13 - d23 * d11;
    const double determinant = d11 * s11 + d12 * s12 + d13 * s13;
    const auto positive = {d11, s11, s22, s33, determinant, d[6], d[7], d[8]};
    if (!std::all_of(positive.begin(), positive.end(), [](double number) { return number > 0.0; }))
        return std::nullopt;
    std::vector<double> constants = {determinant / s11,
                                     determinant / s22,
                                     determinant / s33,
                                     -s12 / s11,
                                     -s13 / s11,
                                     -s23 / s22,
                                     d[6],
                                     d[7],
                                     d[8]};
    for (double& constant : constants) constant = RoundedTo(constant, 12);
    return constants;
}

bool KeepPlyConstant(Material& material, const std::string& name, double number, const std::string& unit,
                     int line) {
    using Json = nlohmann::ordered_json;
    if (material.information.empty()) {
        Block block{.kind = FindBlockKind("other_properties")};
        block.kept.push_back({block.kind->name, "{}"});
        block.origin = Origin([line](std::size_t) { return line; });
        material.information.push_back(std::move(block));
    }
    KeptValue& kept = material.information.front().kept.front();
    Json json = Json::parse(kept.json);
    const bool isNew = !json.contains(name);
    json[name] = unit == "-" ? Json(number) : Json(WithUnit(number, unit));
    kept.json = json.dump();
    return isNew;
}

}  // namespace zelmat
