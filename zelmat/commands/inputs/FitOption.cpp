#include "zelmat/commands/inputs/FitOption.h"

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

void FitOption::Declare(Arguments& line) {
    line.Add("--model", choice_.model, "Hyperelastic fit of this model: OGDEN, ...");
    line.Add("--variant", choice_.variant, "Hyperelastic fit with this text in its variant");
}

std::optional<Block> FitOption::Choose(const Material& material, Findings& findings) const {
    if (!IsMade()) {
        const auto fits = FitsOf(material);
        if (fits.size() > 1) {
            findings.Add({FindingKind::NOTE,
                          {material.file, fits.front()->origin.Line()},
                          "first-fit",
                          "of " + CountText(fits.size(), "hyperelastic fit") + " the first is taken",
                          {FitName(*fits.front()), "--model and --variant choose another"}});
        }
        return UsedBlock(material, "hyperelastic", findings);
    }
    const Block* fit = ChooseFit(material, choice_, findings);
    return fit ? UsedBlock(material, *fit, findings) : std::nullopt;
}

}  // namespace zelmat
