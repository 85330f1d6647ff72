#include "zelmat/cards/FcmatCardReader.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "zelmat/cards/CardUnits.h"
#include "zelmat/cards/FcmatProperties.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TextLines.h"
#include "zelmat/cards/YamlTree.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/materials/Values.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr const char* kOther = "other_properties";
constexpr const char* kOwn = "fcmat";

struct FatherClass {
    std::string_view father;
    std::string_view materialClass;
};

constexpr std::array<FatherClass, 5> kFathers = {{{"Metal", "metal"},
                                                  {"Thermoplast", "polymer"},
                                                  {"Elastomer", "elastomer"},
                                                  {"Ceramic", "ceramic"},
                                                  {"Composite", "composite"}}};

/// The unit of a block's column or setting in documents.
std::string StoredUnit(const FcmatProperty& property) {
    const BlockKind& block = *FindBlockKind(std::string(property.block));
    for (const Setting& setting : block.settings) {
        if (setting.name == property.member) return setting.unit;
    }
    const auto form = block.tables.front().form(Values());
    for (const ColumnKind& column : form->columns) {
        if (column.name == property.member) return column.unit;
    }
    return {};
}

bool IsSetting(const FcmatProperty& property) {
    return property.member == "reference_temperature";
}

/// Old keys have one name.
std::string CurrentName(const std::string& key) {
    return key == "ModulusOfShare" ? "ShearModulus" : key == "YoungModulus" ? "YoungsModulus" : key;
}

}  // namespace

std::shared_ptr<const PlacedJson> FcmatCardReader::ReadIni(std::string_view text) {
    std::string section;
    for (TextLines lines(text); lines.Next();) {
        const std::string_view line = WithoutBlanksAround(lines.Line());
        if (line.empty() || line.front() == ';' || line.front() == '#') continue;
        if (line.front() == '[' && line.back() == ']') {
            section = line.substr(1, line.size() - 2);
            if (section == "FCMat") flat_ = true;
            continue;
        }
        const std::size_t equals = line.find('=');
        const std::string key(WithoutBlanksAround(line.substr(0, equals)));
        if (equals == std::string_view::npos || key.empty() || section.empty()) {
            Report(FindingKind::ERROR, "broken-line", "the line is no 'key = value' of a section",
                   lines.Number());
            continue;
        }
        const std::string value(WithoutBlanksAround(line.substr(equals + 1)));
        if (value.empty()) continue;  // templates name every key
        if (flat_ || section == "General") {
            ReadGeneral(key, value, lines.Number());
        } else {
            ReadProperty(CurrentName(key), value, lines.Number());
        }
    }
    return good_ ? Tree() : nullptr;
}

std::shared_ptr<const PlacedJson> FcmatCardReader::ReadYaml(const std::string& text) {
    const auto yaml = ReadYamlTree(text, name_, findings_);
    if (!yaml) return nullptr;
    const Json& root = yaml->Root();
    if (!root.is_object()) {
        Report(FindingKind::ERROR, "wrong-type", "the card is no map of keys", 1);
        return nullptr;
    }
    for (const auto& [part, content] : root.items()) {
        for (const auto& [key, value] : content.items()) {
            const auto place = Json::json_pointer() / part / key;
            if (part == "General" && content.is_object()) {
                ReadGeneral(key, value, yaml->Line(place));
            } else if (part == "Models" && value.is_object()) {
                ReadModel(*yaml, key, value);
            } else if (content.is_object()) {
                card_[kOwn][part][key] = value;
            }
        }
        if (!content.is_object()) card_[kOwn][part] = content;
    }
    return good_ ? Tree() : nullptr;
}

void FcmatCardReader::ReadGeneral(const std::string& key, const Json& value, int line) {
    const bool text = value.is_string();
    const auto put = [&](const char* name) {
        if (card_.contains(name)) {
            return Report(FindingKind::ERROR, "repeated-key",
                          "the key " + QuotedText(key) + " is there twice", line);
        }
        card_[name] = value;
        lines_.emplace(std::string("/") + name, line);
    };
    if (text && key == "Name") return put("name");
    if (text && key == "Description") {
        put("description");
        // A text block of YAML ends with a line end that nobody means.
        auto& description = card_["description"].get_ref<std::string&>();
        while (description.ends_with('\n')) description.pop_back();
        return;
    }
    if (text && key == "ReferenceSource") return put("source");
    const std::string current = CurrentName(key);
    const bool number = flat_ && text && ReadLeadingNumber(value.get_ref<const std::string&>());
    if (text && (number || FindFcmatProperty(current))) {
        return ReadProperty(current, value.get<std::string>(), line);
    }
    card_[kOwn]["General"][key] = value;
}

void FcmatCardReader::ReadModel(const PlacedJson& yaml, const std::string& name, const Json& model) {
    const Json id = model.value("UUID", Json());
    const bool known = id.is_string() && FindFcmatModelById(id.get_ref<const std::string&>());
    for (const auto& [key, value] : model.items()) {
        if (known && key == "UUID") continue;
        const bool used = value.is_string() && (known || FindFcmatProperty(key));
        if (used && key != "UUID") {
            ReadProperty(CurrentName(key), value.get<std::string>(),
                         yaml.Line(Json::json_pointer() / "Models" / name / key));
        } else {
            card_[kOwn]["Models"][name][key] = value;
        }
    }
}

void FcmatCardReader::ReadProperty(const std::string& name, const std::string& text, int line) {
    const FcmatProperty* property = FindFcmatProperty(name);
    const bool measured = property && !property->block.empty();
    if (!measured || !ReadMeasuredProperty(*property, text, line)) {
        KeepProperty(name, WithFlatUnit(name, text), line);
    }
    if (name != "Father") return;
    const auto* const known = std::find_if(kFathers.begin(), kFathers.end(),
                                           [&](const FatherClass& one) { return one.father == text; });
    if (known != kFathers.end()) card_["class"] = known->materialClass;
}

bool FcmatCardReader::ReadMeasuredProperty(const FcmatProperty& property, const std::string& text, int line) {
    const std::string name(property.name);
    const Quantity& quantity = *QuantityOf(std::string(property.member), StoredUnit(property));
    const auto number = ReadLeadingNumber(text);
    if (!number) {
        Report(FindingKind::WARNING, "not-a-number", name + ": " + number.Error().text, line,
               {"kept, and no behavior uses it"});
        return false;
    }
    std::string unit(WithoutBlanksAround(number->rest));
    const bool pure = quantity.stored.Spelling() == "-";
    if (unit.empty()) unit = pure ? "-" : flat_ ? std::string(property.flatUnit) : "";
    if (unit.empty()) {
        Report(FindingKind::WARNING, "no-unit", name + ": " + QuotedText(text) + " has no unit", line,
               {"expected " + UnitsThatDo(quantity), "kept, and no behavior uses it"});
        return false;
    }
    if (const auto read = ReadUnit(unit, quantity); !read) {
        Report(FindingKind::ERROR, "wrong-unit", name + ": " + read.Error().text, line);
        return true;
    }
    AddNumber(property, number->number, unit, line);
    return true;
}

void FcmatCardReader::AddNumber(const FcmatProperty& property, double number, const std::string& unit,
                                int line) {
    const std::string block(property.block);
    const std::string member(property.member);
    Json& json = card_[block];
    if (IsSetting(property)) {
        json[member] = NumberText(number) + " " + unit;
        lines_.emplace("/" + block + "/" + member, line);
        return;
    }
    json["temperature_dependent"] = false;
    const std::string header = unit == "-" ? member : member + " [" + unit + "]";
    for (const Json& other : json.value("columns", Json::array())) {
        if (ReadColumnHeader(other.get<std::string>()).name != member) continue;
        return Report(FindingKind::ERROR, "repeated-key",
                      "the property " + std::string(property.name) + " is there twice", line);
    }
    json["columns"].push_back(header);
    if (!json.contains("rows")) json["rows"].push_back(Json::array());
    json["rows"].front().push_back(number);
    lines_.emplace("/" + block, line);
    lines_.emplace("/" + block + "/columns/" + std::to_string(json["columns"].size() - 1), line);
}

void FcmatCardReader::KeepProperty(const std::string& name, const std::string& text, int line) {
    if (card_.contains(kOther) && card_[kOther].contains(name)) {
        return Report(FindingKind::ERROR, "repeated-key",
                      "the property " + QuotedText(name) + " is there twice", line);
    }
    card_[kOther][name] = text;
}

/// The oldest form leaves out its own units; what is kept says them.
std::string FcmatCardReader::WithFlatUnit(const std::string& name, const std::string& text) const {
    const FcmatProperty* property = FindFcmatProperty(name);
    if (!flat_ || !property || property->flatUnit.empty() || property->flatUnit == "-") return text;
    const auto number = ReadNumber(text);
    return number ? text + " " + std::string(property->flatUnit) : text;
}

/// A table of elastic constants takes both; and an expansion its coefficient.
void FcmatCardReader::KeepHalfOfElastic() {
    for (const FcmatProperty& property : FcmatProperties()) {
        const std::string block(property.block);
        if (block.empty() || !card_.contains(block)) continue;
        const std::size_t wanted = block == "elastic" ? 2 : 1;
        const Json columns = card_[block].value("columns", Json::array());
        if (columns.size() == wanted) continue;
        Json text;
        if (IsSetting(property)) {
            text = card_[block].value(std::string(property.member), Json());
        } else if (columns.size() == 1) {
            const ColumnHeader header = ReadColumnHeader(columns.front().get<std::string>());
            if (header.name != property.member) continue;
            const std::string number = NumberText(card_[block]["rows"].front().front().get<double>());
            text = header.hasUnit ? number + " " + header.unit : number;
        }
        if (!text.is_string()) continue;
        Report(FindingKind::WARNING, "incomplete", std::string(property.name) + " alone makes no " + block,
               lines_.contains("/" + block) ? lines_.at("/" + block) : 0, {"kept, and no behavior uses it"});
        KeepProperty(std::string(property.name), text.get<std::string>(), 0);
        card_.erase(block);
    }
}

void FcmatCardReader::Report(FindingKind kind, const char* code, std::string text, int line,
                             std::vector<std::string> details) {
    if (kind != FindingKind::WARNING) good_ = false;
    findings_.Add({kind, {name_, line}, code, std::move(text), std::move(details)});
}

/// A card without a name has its file's.
std::shared_ptr<const PlacedJson> FcmatCardReader::Tree() {
    KeepHalfOfElastic();
    if (!card_.contains("name")) card_["name"] = std::filesystem::path(name_).stem().string();
    return std::make_shared<const PlacedJson>(name_, std::move(card_), std::move(lines_));
}

}  // namespace zelmat
