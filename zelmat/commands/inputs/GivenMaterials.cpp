#include "zelmat/commands/inputs/GivenMaterials.h"

#include <algorithm>
#include <utility>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A layup card reads as a material card of unknown blocks.
bool IsDoubtful(const std::vector<Material>& cards) {
    return cards.empty() ||
           std::any_of(cards.begin(), cards.end(), [](const Material& card) { return !card.kept.empty(); });
}

/// By its name a document, by its content nothing at all: empty, or without its beginning.
bool IsBrokenDocument(const std::string& path, const std::string& text) {
    return IsDocumentName(path) && !FormOfText(text);
}

std::vector<std::string> NamesOf(const std::vector<Material>& materials) {
    std::vector<std::string> names;
    for (const Material& material : materials) names.push_back(material.name);
    return names;
}

}  // namespace

GivenFile OpenGiven(const std::string& path, const CommonOptions& options, Findings& findings) {
    if (IsDocumentFile(path)) {
        return {DocumentToRead::Open(path, options.catalogs, findings), std::nullopt};
    }
    auto text = ReadText(path, findings);
    if (!text) return {};
    if (IsTextDocument(*text))
        return {DocumentToRead::OpenText(*text, ShownPath(path), options.catalogs, findings), std::nullopt};
    if (!IsBrokenDocument(path, *text)) return {nullptr, std::move(text)};
    return {DocumentToRead::Open(path, options.catalogs, findings), std::nullopt};
}

std::vector<Material> CardsOfText(std::string text, const std::string& path, Findings& findings,
                                  const CardReading& how) {
    auto cards = ReadCardText(std::move(text), ShownPath(path), findings, how);
    if (IsDoubtful(cards) && NameRightCommand(path, FileForm::MATERIAL_CARD, findings)) return {};
    return cards;
}

std::vector<Material> ReadGivenMaterials(const std::string& path, const CommonOptions& options,
                                         Findings& findings, const CardReading& how) {
    return MaterialsIn(OpenGiven(path, options, findings), path, findings, how);
}

std::vector<Material> MaterialsIn(GivenFile given, const std::string& path, Findings& findings,
                                  const CardReading& how) {
    if (given.document) return given.document->Materials(findings);
    return given.text ? CardsOfText(std::move(*given.text), path, findings, how) : std::vector<Material>();
}

void GivenMaterials::Declare(Arguments& line) {
    line.Add("CARD|DOC", path_, "Material card or document; - is standard input").Required();
    line.Add("MATERIAL", material_,
             "Which of its materials: its name, a beginning that no other has, or #number");
    DeclareCardReading(line, how_);
}

std::vector<Material> GivenMaterials::Chosen(std::vector<Material> materials, Findings& findings) const {
    const auto chosen = ChooseMaterial(NamesOf(materials), material_, ShownPath(path_), findings);
    std::vector<Material> one;
    if (chosen) one.push_back(std::move(materials[*chosen]));
    return one;
}

std::vector<Material> GivenMaterials::ReadAll(CommandContext& context) const {
    auto materials = ReadGivenMaterials(path_, context.options, context.findings, how_);
    if (material_.empty() || context.findings.HasErrors()) return materials;
    return Chosen(std::move(materials), context.findings);
}

std::optional<Material> GivenMaterials::ReadOne(CommandContext& context) const {
    auto materials = ReadGivenMaterials(path_, context.options, context.findings, how_);
    return context.findings.HasErrors() ? std::nullopt : OneOf(std::move(materials), context.findings);
}

std::optional<Material> GivenMaterials::OneOf(std::vector<Material> materials, Findings& findings) const {
    if (!material_.empty()) {
        materials = Chosen(std::move(materials), findings);
        if (materials.empty()) return std::nullopt;
    }
    if (materials.size() == 1) return std::move(materials.front());
    std::vector<std::string> details = {"name one of them"};
    if (!materials.empty()) details.push_back("has: " + WordList(NamesOf(materials)));
    findings.Add({FindingKind::USAGE,
                  {ShownPath(path_), 0},
                  materials.empty() ? "no-materials" : "several-materials",
                  materials.empty() ? "there are no materials in it"
                                    : "it holds " + CountText(materials.size(), "material"),
                  materials.empty() ? std::vector<std::string>() : std::move(details)});
    return std::nullopt;
}

}  // namespace zelmat
