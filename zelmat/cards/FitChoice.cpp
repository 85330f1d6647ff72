#include "zelmat/cards/FitChoice.h"

#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

bool Matches(const Block& fit, const FitChoice& choice) {
    if (!choice.model.empty() && *fit.values.Get<std::string>("model") != choice.model) return false;
    const std::string variant = fit.values.Get<std::string>("variant").value_or("");
    return variant.find(choice.variant) != std::string::npos;
}

std::string Wanted(const FitChoice& choice) {
    if (choice.variant.empty()) return choice.model;
    const std::string variant = "variant " + Quoted(choice.variant);
    return choice.model.empty() ? variant : choice.model + " of " + variant;
}

}  // namespace

const Block* ChooseFit(const Material& material, const FitChoice& choice, Findings& findings) {
    for (const Block& fit : material.fits) {
        if (Matches(fit, choice)) return &fit;
    }
    if (!choice.IsMade()) return nullptr;
    const int line = material.fits.empty() ? 0 : material.fits.front().origin.Line();
    findings.Add(
        {FindingKind::USAGE,
         {material.file, line},
         "no-such-model",
         material.name + " has no hyperelastic fit " + Wanted(choice),
         {material.fits.empty() ? "the card has none" : "has: " + WordList(material.fits, FitName)}});
    return nullptr;
}

std::string FitName(const Block& fit) {
    const auto variant = fit.values.Get<std::string>("variant");
    const std::string model = *fit.values.Get<std::string>("model");
    return variant ? model + " (" + *variant + ")" : model;
}

}  // namespace zelmat
