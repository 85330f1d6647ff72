#include "zelmat/materials/OgdenMeaning.h"

#include <algorithm>

namespace zelmat {

namespace {

using mechanics::OgdenConvention;

constexpr auto kStored = OgdenConvention::TWO_MU_BY_ALPHA_SQUARED;

bool IsOgden(const Block& block) {
    return block.kind->name == "hyperelastic" && block.values.Get<std::string>("model") == "OGDEN";
}

/// What a text such as "W = sum (mu_i / alpha_i) (l1^alpha_i + ...)" says; its first formula counts.
std::optional<OgdenConvention> ConventionInText(std::string text) {
    const std::string division = "mu_i/alpha_i";
    std::erase(text, ' ');
    const auto at = text.find(division);
    if (at == std::string::npos) return std::nullopt;
    const bool squared = text.compare(at + division.size(), 2, "^2") == 0;
    return squared ? OgdenConvention::TWO_MU_BY_ALPHA_SQUARED : OgdenConvention::MU_BY_ALPHA;
}

/// mu_1, alpha_1, mu_2, ... of a row.
void ConvertRow(Table& table, std::size_t row, OgdenConvention from) {
    for (std::size_t at = 0; at + 1 < table.columns.size(); at += 2) {
        Column& mu = table.columns[at];
        if (!mu.kind.name.starts_with("mu_")) break;
        mu.values[row] =
            mechanics::ConvertOgden({mu.values[row], table.columns[at + 1].values[row]}, from, kStored)
                .front();
    }
}

}  // namespace

OgdenConvention OgdenConventionOfFit(const Block& fit) {
    if (const auto said = fit.values.Get<std::string>("ogden_convention")) {
        return mechanics::OgdenConventionOf(*said).value_or(kStored);
    }
    const auto text = fit.values.Get<std::string>("potential");
    return text ? ConventionInText(*text).value_or(kStored) : kStored;
}

bool IsOtherOgden(const Block& block) {
    return IsOgden(block) && OgdenConventionOfFit(block) != kStored;
}

Block ToStoredOgden(const Block& fit, const Material& material, Findings& findings) {
    Block stored = fit;
    const OgdenConvention from = OgdenConventionOfFit(fit);
    for (Table& table : stored.tables) {
        for (std::size_t row = 0; row < table.Rows(); ++row) ConvertRow(table, row, from);
    }
    const bool said = fit.values.Get<std::string>("ogden_convention").has_value();
    findings.Add({FindingKind::NOTE,
                  {material.file, fit.origin.Line()},
                  "ogden-converted",
                  "the coefficients of OGDEN were converted from mu/alpha to 2mu/alpha^2",
                  {said ? "by its ogden_convention" : "by the formula in its potential",
                   "mu times alpha/2 is stored"}});
    return stored;
}

}  // namespace zelmat
