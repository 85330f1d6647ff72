#include "zelmat/cards/ReadCard.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "zelmat/cards/CardFormKind.h"
#include "zelmat/cards/CardNames.h"
#include "zelmat/cards/CsvCardReader.h"
#include "zelmat/cards/FcmatCardReader.h"
#include "zelmat/cards/JsonCardReader.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using Tree = std::shared_ptr<const PlacedJson>;

Tree JsonTree(std::string text, const std::string& path, Findings& findings) {
    KORFileError error;
    auto file = KORJsonFile::Parse(std::move(text), path, error);
    if (file) return std::make_shared<const PlacedJson>(std::move(*file));
    findings.Add(UnreadableFile(path, error, "broken-json"));
    return nullptr;
}

/// Of forms other than JSON; the lines of a text that no JSON allows are UTF-8 all the same.
bool IsText(const std::string& text, const std::string& path, Findings& findings) {
    const auto bad = FirstBadByte(text);
    if (!bad) return true;
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(*bad), '\n');
    findings.Add({FindingKind::UNREADABLE,
                  {path, static_cast<int>(line)},
                  "not-utf8",
                  "the text is not UTF-8 from here",
                  {"byte " + std::to_string(*bad + 1)}});
    return false;
}

/// Editors of other systems write it; its byte order mark is no UTF-8.
bool IsUtf16(const std::string& text, const std::string& path, Findings& findings) {
    if (!text.starts_with("\xff\xfe") && !text.starts_with("\xfe\xff")) return false;
    findings.Add(
        {FindingKind::UNREADABLE, {path, 1}, "not-utf8", "the text is UTF-16", {"save it as UTF-8"}});
    return true;
}

Tree TreeOf(CardFormKind form, std::string text, const std::string& path, const CardReading& how,
            Findings& findings) {
    if (IsUtf16(text, path, findings)) return nullptr;
    if (form == CardFormKind::JSON) return JsonTree(std::move(text), path, findings);
    if (!IsText(text, path, findings)) return nullptr;
    switch (form) {
        case CardFormKind::CSV:
            return CsvCardReader(path, how, findings).Read(text);
        case CardFormKind::FCMAT_INI:
            return FcmatCardReader(path, findings).ReadIni(text);
        case CardFormKind::FCMAT_YAML:
            return FcmatCardReader(path, findings).ReadYaml(text);
        case CardFormKind::JSON:
            break;
    }
    return nullptr;
}

}  // namespace

std::shared_ptr<const PlacedJson> ReadCardTree(std::string text, const std::string& name, Findings& findings,
                                               const CardReading& how) {
    const CardFormKind form = CardFormOf(text);
    Tree tree = TreeOf(form, std::move(text), name, how, findings);
    return tree ? UnderHouseNames(std::move(tree), findings) : nullptr;
}

std::vector<Material> ReadCards(const std::string& path, Findings& findings, const CardReading& how) {
    auto text = ReadText(path, findings);
    return text ? ReadCardText(std::move(*text), ShownPath(path), findings, how) : std::vector<Material>();
}

std::vector<Material> ReadCardText(std::string text, const std::string& name, Findings& findings,
                                   const CardReading& how) {
    const CardFormKind form = CardFormOf(text);
    const Tree tree = ReadCardTree(std::move(text), name, findings, how);
    const auto units = form == CardFormKind::CSV ? BareColumns::REFUSED : BareColumns::SI;
    return tree ? JsonCardReader(tree, findings, units).Read() : std::vector<Material>();
}

std::optional<Material> ReadCard(const std::string& path, Findings& findings, const CardReading& how) {
    auto materials = ReadCards(path, findings, how);
    if (findings.HasErrors() || materials.empty()) return std::nullopt;
    if (materials.size() == 1) return std::move(materials.front());
    findings.Add({FindingKind::USAGE,
                  {ShownPath(path), 0},
                  "several-materials",
                  "the card holds " + std::to_string(materials.size()) + " materials",
                  {"expected one",
                   "has: " + WordList(materials, [](const Material& material) { return material.name; })}});
    return std::nullopt;
}

}  // namespace zelmat
