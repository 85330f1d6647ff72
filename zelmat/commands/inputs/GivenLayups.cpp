#include "zelmat/commands/inputs/GivenLayups.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/documents/MaterialUses.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/layups/WholeLayup.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::vector<std::string> NamesOf(const std::vector<DocumentLayup>& layups) {
    std::vector<std::string> names;
    for (const DocumentLayup& layup : layups) names.push_back(layup.name);
    return names;
}

/// The text of a file that can be looked at without harm.
std::optional<std::string> TextOf(const std::string& path) {
    Findings ignored;
    return path == "-" ? std::nullopt : ReadText(path, ignored);
}

/// A layer names its material; two of one name cannot be told apart.
std::optional<PlyMaterial> PlyOf(DocumentToRead& document, const std::string& name, const PlyTemperature& at,
                                 Findings& findings) {
    const auto materials = MaterialsOf(document.Document());
    const auto named = [&](const DocumentMaterial& each) { return each.name == name; };
    const auto found = std::find_if(materials.begin(), materials.end(), named);
    if (std::count_if(materials.begin(), materials.end(), named) > 1) {
        findings.Add({FindingKind::ERROR,
                      {document.Name(), 0},
                      "several-materials",
                      "the document has several materials " + QuotedText(name) +
                          ": it cannot be told which one a layer is of",
                      {"zelmat rename gives one of them another name"}});
        return std::nullopt;
    }
    if (found == materials.end()) return PlyMaterial{name, {}, {}};
    return PlyOfMaterial(ReadDocumentMaterial(*found, document.Name(), findings), at);
}

}  // namespace

std::optional<DocumentLayup> ChosenLayup(KORMemoryDocument& document, const std::string& wanted,
                                         const std::string& file, Findings& findings) {
    auto layups = LayupsOf(document);
    const auto names = NamesOf(layups);
    if (!wanted.empty()) {
        const auto chosen = ChooseMaterial(names, wanted, file, findings, "layup");
        return chosen ? std::optional(std::move(layups[*chosen])) : std::nullopt;
    }
    if (layups.size() == 1) return std::move(layups.front());
    const bool none = layups.empty();
    findings.Add({FindingKind::USAGE,
                  {file, 0},
                  none ? "no-layups" : "several-layups",
                  none ? "there are no layups in it" : "it holds " + CountText(layups.size(), "layup"),
                  none ? std::vector<std::string>{"zelmat layup DOC add makes one"}
                       : std::vector<std::string>{"name one of them", "has: " + WordList(names)}});
    return std::nullopt;
}

std::optional<LayupCard> LayupCardOf(DocumentToRead& document, const DocumentLayup& layup, Findings& findings,
                                     const PlyTemperature& at) {
    auto whole = ReadWholeLayup(document.Document(), layup, document.Name(), findings);
    if (!whole) return std::nullopt;
    LayupCard card = std::move(whole->card);
    card.file = document.Name();
    for (const CardLayer& layer : card.layers) {
        if (!layer.material) continue;
        auto known = std::find_if(card.materials.begin(), card.materials.end(),
                                  [&](const PlyMaterial& each) { return each.name == *layer.material; });
        if (known != card.materials.end() && !known->constants.empty()) continue;
        auto ply = PlyOf(document, *layer.material, at, findings);
        if (!ply) return std::nullopt;
        if (known == card.materials.end())
            known = card.materials.insert(known, PlyMaterial{*layer.material, {}, {}});
        *known = std::move(*ply);
    }
    return card;
}

std::vector<LayupCard> LayupCardsOf(DocumentToRead& document, Findings& findings) {
    std::vector<LayupCard> cards;
    for (const DocumentLayup& layup : LayupsOf(document.Document())) {
        if (auto card = LayupCardOf(document, layup, findings)) cards.push_back(std::move(*card));
    }
    return cards;
}

void ReportRemovedMaterials(const DocumentLayup& layup, const std::string& file, Findings& findings) {
    for (const std::string& name : RemovedMaterialsOf(layup.feature)) {
        findings.Add({FindingKind::WARNING,
                      {file, 0},
                      "removed-material",
                      "layers of " + QuotedText(layup.name) + " are of " + QuotedText(name) +
                          ", which was removed from the document",
                      {"undo brings it back; layup " + file + " set gives the layup other layers"}});
    }
}

GivenContent ReadGiven(const std::string& path, const CommonOptions& options, Findings& findings) {
    GivenContent content;
    if (IsLayupCard(path)) {
        if (auto card = LayupCardReader(findings).Read(path)) content.layups.push_back(std::move(*card));
        return content;
    }
    GivenFile given = OpenGiven(path, options, findings);
    if (given.document) {
        content = ContentOf(*given.document, findings);
    } else if (given.text) {
        content.materials = CardsOfText(std::move(*given.text), path, findings);
    }
    return content;
}

GivenContent ContentOf(DocumentToRead& document, Findings& findings) {
    return {document.Materials(findings), LayupCardsOf(document, findings)};
}

bool IsLayupCard(const std::string& path) {
    if (IsDocumentFile(path)) return false;
    const auto text = TextOf(path);
    return text && FormOfText(*text) == FileForm::LAYUP_CARD;
}

bool IsNotation(const std::string& argument) {
    const bool letters = std::any_of(argument.begin(), argument.end(),
                                     [](unsigned char character) { return std::isalpha(character) != 0; });
    std::error_code none;
    return argument != "-" && (argument.starts_with('[') || !letters) &&
           !std::filesystem::exists(argument, none);
}

}  // namespace zelmat
