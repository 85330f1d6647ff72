#include "zelmat/cards/MaterialCardReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "zelmat/cards/CardBlockReader.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 7> kUnits = {{
    {"stress", "Pa"},
    {"length", "m"},
    {"temperature", "K"},
    {"density", "kg/m3"},
    {"thermal_expansion", "1/K"},
    {"conductivity", "W/(m K)"},
    {"specific_heat", "J/(kg K)"},
}};

constexpr std::array<const char*, 5> kHeadKeys = {"name", "description", "source", "units", "illustrative"};

}  // namespace

std::optional<MaterialCard> MaterialCardReader::Read(const std::string& path) {
    KORJsonError error;
    const auto file = KORJsonFile::Read(path, error);
    if (!file) {
        findings_.Add(UnreadableFile(path, error, "broken-json"));
        return std::nullopt;
    }

    Findings mistakes;
    MaterialCard card;
    card.file = path;
    const JsonNode root(*file, mistakes);
    if (root.ExpectObject()) {
        ReadHead(root, card);
        ReadBlocks(root, card);
        ReportUnknownBlocks(root);
    }
    for (const Finding& mistake : mistakes.ByLine()) findings_.Add(mistake);
    if (mistakes.HasErrors()) return std::nullopt;
    return card;
}

void MaterialCardReader::ReadHead(const JsonNode& root, MaterialCard& card) const {
    if (const auto name = root.Required("name")) card.name = name->Text().value_or("");
    if (root.Has("description")) card.description = root.At("description").Text().value_or("");
    if (root.Has("illustrative")) card.illustrative = root.At("illustrative").Flag().value_or(false);
    if (root.Has("source"))
        card.sources = root.At("source").OneOrMoreTexts().value_or(std::vector<std::string>());
    if (root.Has("units")) ReadUnits(root.At("units"));
}

void MaterialCardReader::ReadUnits(const JsonNode& units) const {
    if (!units.ExpectObject()) return;
    for (const std::string& quantity : units.Keys()) {
        const JsonNode node = units.At(quantity);
        const auto known = std::find_if(kUnits.begin(), kUnits.end(),
                                        [&](const auto& unit) { return unit.first == quantity; });
        if (known == kUnits.end()) {
            node.Report("unknown-unit", "there is no quantity \"" + quantity + "\"",
                        {"known: " + WordList(kUnits, [](const auto& unit) { return unit.first; })});
            continue;
        }
        const auto given = node.Text();
        if (given && *given != known->second) {
            node.Report("wrong-unit", quantity + " is given in \"" + *given + "\"",
                        {std::string("expected ") + known->second, "convert the values"});
        }
    }
}

void MaterialCardReader::ReadBlocks(const JsonNode& root, MaterialCard& card) const {
    for (const CardBlock& block : CardBlocks()) {
        if (!root.Has(block.name)) continue;
        const JsonNode node = root.At(block.name);
        if (block.alternatives) {
            ReadAlternatives(node, block, card);
            continue;
        }
        auto data = block.IsUnread() ? CardData{.block = &block} : CardBlockReader(node, block).Read();
        if (!data) continue;
        auto& list = block.use == CardUse::BEHAVIOR ? card.data : card.information;
        list.push_back(std::move(*data));
    }
}

void MaterialCardReader::ReadAlternatives(const JsonNode& node, const CardBlock& block,
                                          MaterialCard& card) const {
    if (!node.ExpectList()) return;
    if (node.Size() == 0) {
        node.Report("empty-list", block.name + " is an empty list", {"leave it out if it is not defined"});
    }
    for (std::size_t i = 0; i < node.Size(); ++i) {
        auto data = CardBlockReader(node.At(i), block).Read();
        if (data) card.fits.push_back(std::move(*data));
    }
}

void MaterialCardReader::ReportUnknownBlocks(const JsonNode& root) const {
    for (const std::string& key : root.Keys()) {
        if (std::find(kHeadKeys.begin(), kHeadKeys.end(), key) != kHeadKeys.end() || FindCardBlock(key))
            continue;
        root.At(key).Report(
            "unknown-block", "there is no block \"" + key + "\"",
            {"known: " + WordList(CardBlocks(), [](const CardBlock& block) { return block.name; })});
    }
}

}  // namespace zelmat
