#include "zelmat/materials/OgdenMeaning.h"

#include <algorithm>
#include <regex>
#include <string_view>
#include <utility>

#include "zelmat/text/ReplaceAll.h"

namespace zelmat {

namespace {

using mechanics::OgdenConvention;

constexpr auto kStored = OgdenConvention::TWO_MU_BY_ALPHA_SQUARED;

bool IsOgden(const Block& block) {
    return block.kind->name == "hyperelastic" && block.values.Get<std::string>("model") == "OGDEN";
}

/// A formula in one spelling: "(2 \mu_i)/(\alpha_i)**2", with Greek letters or without, is "2mui/alphai^2".
std::string Spelled(std::string text) {
    for (const auto& [spelling, meant] : {std::pair{"\u03bc", "mu"},
                                          {"\u00b5", "mu"},
                                          {"\u03b1", "alpha"},
                                          {"\u00b2", "^2"},
                                          {"**", "^"},
                                          {"}{", "/"}}) {
        ReplaceAll(text, spelling, meant);
    }
    static constexpr std::string_view kMeaningless = " _(){}\\*";
    std::erase_if(text, [](char letter) { return kMeaningless.find(letter) != std::string_view::npos; });
    return text;
}

/// What a text such as "W = sum (mu_i / alpha_i) (l1^alpha_i + ...)" says; its first formula counts. The
/// index is any letter or digit, or none.
std::optional<OgdenConvention> ConventionInText(const std::string& text) {
    static const std::regex formula("mu([a-z0-9]?)/alpha\\1(\\^2)?");
    const std::string spelled = Spelled(text);
    std::smatch found;
    if (!std::regex_search(spelled, found, formula)) return std::nullopt;
    return found[2].matched ? OgdenConvention::TWO_MU_BY_ALPHA_SQUARED : OgdenConvention::MU_BY_ALPHA;
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
