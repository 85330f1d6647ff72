#include "zelmat/commands/reports/KeptReport.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kMostLines = 50;  // of one part

std::string ValueText(const Json& value) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number_float()) return NumberText(value.get<double>());
    return value.dump();
}

bool IsPlainList(const Json& value) {
    for (const Json& entry : value) {
        if (entry.is_structured()) return false;
    }
    return true;
}

/// Groups are taken apart ("ply.E1"), lists of plain values stand in one line. The recursion is as deep as
/// the card, whose readers bound that.
void AddLines(const std::string& name, const Json& value, std::vector<KeptLine>& lines) {
    if (name.empty() && value.empty()) return;
    if (value.is_object() && !value.empty()) {
        for (const auto& [key, inner] : value.items()) {
            AddLines(name.empty() ? key : name + "." + key, inner, lines);
        }
        return;
    }
    if (!value.is_array() || !IsPlainList(value)) {
        lines.push_back({name, ValueText(value)});
        return;
    }
    std::string text;
    for (const Json& entry : value) text += (text.empty() ? "" : ", ") + ValueText(entry);
    lines.push_back({name, text});
}

void PrintPart(std::ostream& out, const KeptPart& part) {
    const std::vector<KeptLine>& lines = part.lines;
    out << '\n' << part.title << '\n';
    for (std::size_t i = 0; i < lines.size() && i < kMostLines; ++i) {
        out << "  " << Printable(lines[i].name) << (lines[i].name.empty() ? "" : ": ")
            << Printable(lines[i].value) << '\n';
    }
    if (lines.size() > kMostLines) {
        out << "  and " << lines.size() - kMostLines << " more, all of them with --json\n";
    }
}

void AddKept(const std::string& group, const std::vector<KeptValue>& kept, std::vector<KeptLine>& lines) {
    for (const KeptValue& value : kept) AddLines(group + value.name, Json::parse(value.json), lines);
}

}  // namespace

std::vector<KeptPart> KeptParts(const Material& material) {
    std::vector<KeptPart> parts;
    for (const Block& block : material.information) {
        parts.push_back({block.kind->title + ", for information", {}});
        if (block.kind->IsUnread()) {
            AddLines("", Json::parse(block.kept.front().json), parts.back().lines);
        } else {
            AddKept("", block.kept, parts.back().lines);
        }
    }
    parts.push_back({"Kept as it is, used by no behavior", {}});
    for (const auto* blocks : {&material.blocks, &material.fits}) {
        for (const Block& block : *blocks) AddKept(block.kind->name + ".", block.kept, parts.back().lines);
    }
    AddKept("", material.kept, parts.back().lines);
    std::erase_if(parts, [](const KeptPart& part) { return part.lines.empty(); });
    return parts;
}

void PrintKept(std::ostream& out, const Material& material) {
    for (const KeptPart& part : KeptParts(material)) PrintPart(out, part);
}

}  // namespace zelmat
