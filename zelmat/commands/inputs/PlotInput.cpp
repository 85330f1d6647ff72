#include "zelmat/commands/inputs/PlotInput.h"

#include <utility>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

/// How messages call what is chosen from.
const char* Noun(const std::vector<Material>& materials, const std::vector<DocumentLayup>& layups) {
    if (layups.empty()) return "material";
    return materials.empty() ? "layup" : "name";
}

template <class Any>
void KeepOne(std::vector<Any>& all, std::size_t place) {
    std::vector<Any> one;
    if (place < all.size()) one.push_back(std::move(all[place]));
    all = std::move(one);
}

}  // namespace

void PlotInput::Declare(Arguments& line) {
    line.Add("CARD|DOC", path_, "Material card, layup card or document; - is standard input").Required();
    line.Add("MATERIAL|LAYUP", wanted_,
             "Which of its materials or layups: its name, a beginning that no other has, or #number");
    DeclareCardReading(line, how_);
}

PlotContent PlotInput::Read(const CommandContext& context, const Kinds& kinds) const {
    Findings& findings = context.findings;
    if (IsLayupCard(path_)) return OfLayupCard(findings);
    GivenFile given = OpenGiven(path_, context.options, findings);
    if (given.document) return OfDocument(*given.document, kinds, findings);
    return given.text ? OfCard(std::move(*given.text), findings) : PlotContent();
}

PlotContent PlotInput::OfLayupCard(Findings& findings) const {
    PlotContent content;
    if (!wanted_.empty()) {
        findings.Add(
            UsageFinding("LAYUP", "not-of-a-document",
                         QuotedText(path_) + " is a card of one layup: there is nothing to choose from",
                         {"zelmat plot DOC LAYUP"}));
    } else if (auto card = LayupCardReader(findings).Read(path_)) {
        content.layups.push_back(std::move(*card));
    }
    return content;
}

PlotContent PlotInput::OfCard(std::string text, Findings& findings) const {
    PlotContent content;
    content.materials = CardsOfText(std::move(text), path_, findings, how_);
    if (wanted_.empty() || findings.HasErrors()) return content;
    GivenMaterials choice;
    choice.Set(path_, wanted_, how_);
    content.materials = choice.Chosen(std::move(content.materials), findings);
    return content;
}

PlotContent PlotInput::OfDocument(DocumentToRead& document, const Kinds& kinds, Findings& findings) const {
    PlotContent content;
    if (kinds.materials) content.materials = document.Materials(findings);
    std::vector<DocumentLayup> layups;
    if (kinds.layups) layups = LayupsOf(document.Document());
    if (!wanted_.empty()) {
        std::vector<std::string> names;
        for (const Material& material : content.materials) names.push_back(material.name);
        for (const DocumentLayup& layup : layups) names.push_back(layup.name);
        const auto chosen =
            ChooseMaterial(names, wanted_, document.Name(), findings, Noun(content.materials, layups));
        if (!chosen) return {};
        const std::size_t materials = content.materials.size();
        KeepOne(content.materials, *chosen);
        KeepOne(layups, *chosen - materials);
    }
    for (const DocumentLayup& layup : layups) {
        if (auto card = LayupCardOf(document, layup, findings)) content.layups.push_back(std::move(*card));
    }
    return content;
}

}  // namespace zelmat
