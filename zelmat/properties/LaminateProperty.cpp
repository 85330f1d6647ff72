#include "zelmat/properties/LaminateProperty.h"

#include <algorithm>
#include <optional>

#include "zelmat/mechanics/elastic/IsotropicElasticity.h"
#include "zelmat/mechanics/elastic/OrthotropicPly.h"
#include "zelmat/properties/PlyOfMaterial.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::ElasticConstant;
using mechanics::OrthotropicPly;
using mechanics::Outcome;
using mechanics::PlyStrength;
using mechanics::Refusal;

std::optional<double> Find(const NamedConstants& constants, const char* name) {
    const auto found = std::find_if(constants.begin(), constants.end(),
                                    [&](const auto& constant) { return constant.first == name; });
    return found == constants.end() ? std::nullopt : std::optional(found->second);
}

/// Those of the names that there are not.
std::string Missing(const NamedConstants& constants, const std::vector<const char*>& names) {
    std::vector<std::string> missing;
    for (const char* name : names) {
        if (!Find(constants, name)) missing.emplace_back(name);
    }
    return WordList(missing);
}

Outcome<OrthotropicPly> ElasticityOf(const NamedConstants& constants) {
    const auto young = Find(constants, "E"), ratio = Find(constants, "nu");
    if (young && ratio && !Find(constants, "E1")) {
        const auto isotropic = mechanics::IsotropicFrom({ElasticConstant::YOUNGS_MODULUS, *young},
                                                        {ElasticConstant::POISSONS_RATIO, *ratio});
        if (!isotropic.Ok()) return isotropic.Refused();
        return mechanics::IsotropicPly(*isotropic);
    }
    const std::string missing = Missing(constants, {"E1", "E2", "nu12", "G12"});
    if (!missing.empty()) return Refusal{"it has no " + missing + " (or E and nu of an isotropic one)"};
    return OrthotropicPly{.e1 = *Find(constants, "E1"),
                          .e2 = *Find(constants, "E2"),
                          .nu12 = *Find(constants, "nu12"),
                          .g12 = *Find(constants, "G12")};
}

Outcome<std::optional<PlyStrength>> StrengthOf(const NamedConstants& constants) {
    const std::vector<const char*> names = {"Xt", "Xc", "Yt", "Yc", "S"};
    const bool any =
        std::any_of(names.begin(), names.end(), [&](const char* name) { return Find(constants, name); });
    if (!any) return std::optional<PlyStrength>();
    const std::string missing = Missing(constants, names);
    if (!missing.empty()) return Refusal{"of its strengths " + missing + " is missing"};
    return std::optional(PlyStrength{.xt = *Find(constants, "Xt"),
                                     .xc = *Find(constants, "Xc"),
                                     .yt = *Find(constants, "Yt"),
                                     .yc = *Find(constants, "Yc"),
                                     .s = *Find(constants, "S"),
                                     .f12 = {}});
}

/// Of an isotropic ply one coefficient is enough; of another half of the two says nothing.
Outcome<std::optional<mechanics::PlyExpansion>> PlyExpansionOf(const NamedConstants& constants) {
    const auto both = Find(constants, "alpha"), along = Find(constants, "alpha1"),
               across = Find(constants, "alpha2");
    if (!both && !along && !across) return std::optional<mechanics::PlyExpansion>();
    if (!both && !(along && across)) {
        return Refusal{"of its thermal expansion " + Missing(constants, {"alpha1", "alpha2"}) +
                       " is missing"};
    }
    return std::optional(
        mechanics::PlyExpansion{.alpha1 = along ? *along : *both, .alpha2 = across ? *across : *both});
}

}  // namespace

Outcome<mechanics::PlyMaterial> PlyMaterialOf(const NamedConstants& constants) {
    const auto elastic = ElasticityOf(constants);
    if (!elastic.Ok()) return elastic.Refused();
    if (const auto fault = mechanics::UnstablePly(*elastic)) return *fault;
    const auto strength = StrengthOf(constants);
    if (!strength.Ok()) return strength.Refused();
    const auto expansion = PlyExpansionOf(constants);
    if (!expansion.Ok()) return expansion.Refused();
    return mechanics::PlyMaterial{.elastic = *elastic,
                                  .expansion = *expansion,
                                  .density = Find(constants, "density"),
                                  .strength = *strength};
}

NamedConstants PlyConstantsOf(const Material& material) {
    return PlyOfMaterial(material).constants;
}

Outcome<mechanics::Laminate> LaminateOf(const LayupCard& layup) {
    mechanics::Laminate laminate;
    std::vector<const PlyMaterial*> used;  // in the order of the laminate's materials
    for (std::size_t at = 0; at < layup.layers.size(); ++at) {
        const CardLayer& layer = layup.layers[at];
        const auto given = std::find_if(layup.materials.begin(), layup.materials.end(),
                                        [&](const PlyMaterial& each) { return each.name == layer.material; });
        if (given == layup.materials.end()) {
            return Refusal{"layer " + std::to_string(at + 1) + " has no material"};
        }
        const auto known = std::find(used.begin(), used.end(), &*given);
        const auto index = static_cast<std::size_t>(known - used.begin());
        if (known == used.end()) {
            const auto ply = PlyMaterialOf(given->constants);
            if (!ply.Ok()) {
                const std::string why = given->lacking.empty() ? "" : "; " + WordList(given->lacking);
                return Refusal{"ply material " + QuotedText(given->name) + ": " + ply.Why() + why};
            }
            laminate.materials.push_back(*ply);
            used.push_back(&*given);
        }
        laminate.layers.push_back({.material = index, .thickness = layer.thickness, .angle = layer.angle});
    }
    if (const auto fault = mechanics::LaminateFault(laminate)) return *fault;
    return laminate;
}

}  // namespace zelmat
