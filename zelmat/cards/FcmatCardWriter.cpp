#include "zelmat/cards/FcmatCardWriter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "zelmat/cards/CardJson.h"
#include "zelmat/cards/FcmatProperties.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using nlohmann::ordered_json;

constexpr std::array<std::string_view, 27> kUnits = {
    "Pa",    "kPa",    "MPa",     "GPa",     "psi",    "ksi",     "kg/m^3", "g/cm^3", "t/mm^3",
    "W/m/K", "J/kg/K", "kJ/kg/K", "1/K",     "m/m/K",  "mm/mm/K", "µm/m/K", "K",      "deg",
    "%",     "S/m",    "MS/m",    "mW/mm/K", "mJ/t/K", "m",       "mm",     "N/mm^2", "kg/mm^3"};

/// The form's spelling of units that have another one here.
constexpr std::array<std::array<std::string_view, 2>, 8> kSpellings = {{{"W/(m K)", "W/m/K"},
                                                                        {"mW/(mm K)", "mW/mm/K"},
                                                                        {"J/(kg K)", "J/kg/K"},
                                                                        {"kJ/(kg K)", "kJ/kg/K"},
                                                                        {"mJ/(t K)", "mJ/t/K"},
                                                                        {"kg/m3", "kg/m^3"},
                                                                        {"g/cm3", "g/cm^3"},
                                                                        {"t/mm3", "t/mm^3"}}};

/// Empty when the form cannot name it.
std::string Spelling(const std::string& unit) {
    for (const auto& [ours, theirs] : kSpellings) {
        if (unit == ours) return std::string(theirs);
    }
    return std::find(kUnits.begin(), kUnits.end(), unit) == kUnits.end() ? "" : unit;
}

/// An identifier that is always the same for a name, of the kind that RFC 9562 leaves to its users.
std::string Identifier(const std::string& name) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    std::uint64_t hash = 14695981039346656037u;  // FNV-1a
    for (int at = 0; at < 32; ++at) {
        for (const char c : name + static_cast<char>('a' + at)) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
        }
        if (at == 8 || at == 12 || at == 16 || at == 20) text += '-';
        text += at == 12 ? '8' : at == 16 ? 'a' : kDigits[(hash >> 32) & 15u];
    }
    return text;
}

/// YAML reads what JSON writes.
std::string Quoted(const ordered_json& text) {
    return text.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

class Writer {
public:
    Writer(const Material& material, Findings& findings) : material_(material), findings_(findings) {}

    ordered_json Card() {
        AddGeneral();
        AddBlocks();
        AddOthers();
        for (const auto& [part, content] : own_.items()) {
            if (part != "General" && part != "Models") card_[part] = content;
        }
        // Models in the order of the form, then those that only the card knows.
        ordered_json models = ordered_json::object();
        for (const FcmatModel& model : FcmatModels()) {
            const std::string name(model.name);
            if (!models_.contains(name)) continue;
            models[name]["UUID"] = model.uuid;
            models[name].update(models_[name]);
        }
        const ordered_json others = OwnMap("Models");
        for (const auto& [name, model] : others.items()) {
            models[models.contains(name) ? name + " (of the card)" : name] = model;
        }
        if (!models.empty()) card_["Models"] = models;
        return card_;
    }

private:
    /// A part of what the card keeps of this form; empty, and told, where the card has something else there.
    ordered_json OwnMap(const std::string& part) {
        ordered_json map = own_.value(part, ordered_json::object());
        if (map.is_object()) return map;
        NotHeld("fcmat." + part, 0, {"a map is due"});
        return ordered_json::object();
    }

    void AddGeneral() {
        for (const Block& block : material_.information) {
            if (block.kind->name == "fcmat") own_ = ordered_json::parse(block.kept.front().json);
        }
        if (!own_.is_object() && !own_.is_null()) NotHeld("fcmat", 0, {"a map of parts is due"});
        if (!own_.is_object()) own_ = ordered_json::object();
        ordered_json general = OwnMap("General");
        if (!general.contains("UUID")) general["UUID"] = Identifier(material_.name);
        general["Name"] = material_.name;
        if (!material_.description.empty()) general["Description"] = material_.description;
        if (!material_.sources.empty()) general["ReferenceSource"] = material_.sources.front();
        if (material_.sources.size() > 1) NotHeld("more than one source");
        if (!material_.notes.empty()) NotHeld("notes");
        if (material_.illustrative) NotHeld("illustrative");
        if (material_.heatGeneration) NotHeld("heat_generation");
        card_["General"] = general;
    }

    void AddBlocks() {
        for (const Block& block : material_.blocks) AddBlock(block);
        for (const Block& fit : material_.fits) NotHeld(fit.kind->name, fit.origin.Line());
        for (const KeptValue& kept : material_.kept) NotHeld(kept.name);
    }

    void AddBlock(const Block& block) {
        const bool known =
            std::any_of(FcmatProperties().begin(), FcmatProperties().end(),
                        [&](const FcmatProperty& property) { return property.block == block.kind->name; });
        const Table* table = block.Find("");
        if (!known || !table) return NotHeld(block.kind->name, block.origin.Line());
        if (table->Rows() != 1 || table->temperatureDependent) {
            return NotHeld(block.kind->name, block.origin.Line(), {"the form holds one number, not a table"});
        }
        for (const Column& column : table->columns) {
            const std::string unit = column.written ? column.written->unit : column.kind.unit;
            AddNumber(block, column.kind.name, WrittenValues(column).front(), unit, column.values.front(),
                      column.kind.unit);
        }
        for (const Setting& setting : block.kind->settings) AddSetting(block, setting);
        for (const KeptValue& kept : block.kept) NotHeld(block.kind->name + "." + kept.name);
        if (!table->source.empty()) NotHeld(block.kind->name + ".source", block.origin.Line());
    }

    void AddSetting(const Block& block, const Setting& setting) {
        const Value* value = block.values.Find(setting.name);
        if (!value) return;
        if (!FindPlace(block, setting.name)) return NotHeld(block.kind->name + "." + setting.name);
        const double stored = std::get<double>(*value);
        const auto written = block.written.find(setting.name);
        const WrittenNumber number =
            written == block.written.end() ? WrittenNumber{stored, setting.unit} : written->second;
        AddNumber(block, setting.name, number.number, number.unit, stored, setting.unit);
    }

    static const FcmatProperty* FindPlace(const Block& block, const std::string& member) {
        const auto all = FcmatProperties();
        const auto found = std::find_if(all.begin(), all.end(), [&](const FcmatProperty& property) {
            return property.block == block.kind->name && property.member == member;
        });
        return found == all.end() ? nullptr : &*found;
    }

    void AddNumber(const Block& block, const std::string& member, double number, const std::string& unit,
                   double stored, const std::string& storedUnit) {
        const FcmatProperty* property = FindPlace(block, member);
        if (!property) return NotHeld(block.kind->name + "." + member, block.origin.Line());
        std::string text = NumberText(number);
        if (unit != "-") {
            const std::string spelling = Spelling(unit);
            if (spelling.empty()) {
                findings_.Add({FindingKind::WARNING,
                               {material_.file, block.origin.Line()},
                               "unit-not-held",
                               "the form fcmat cannot name the unit " + unit,
                               {block.kind->name + "." + member, "written in " + Spelling(storedUnit)}});
            }
            text = spelling.empty() ? NumberText(stored) + " " + Spelling(storedUnit) : text + " " + spelling;
        }
        models_[std::string(property->model)][std::string(property->name)] = text;
    }

    void AddOthers() {
        for (const Block& block : material_.information) {
            const std::string& name = block.kind->name;
            if (name == "fcmat") continue;
            const ordered_json others =
                name == "other_properties" ? ordered_json::parse(block.kept.front().json) : ordered_json();
            if (!others.is_object()) {
                NotHeld(name, block.origin.Line());
                continue;
            }
            for (const auto& [key, value] : others.items()) {
                const FcmatProperty* property = FindFcmatProperty(key);
                if (property && value.is_string()) {
                    models_[std::string(property->model)][key] = value;
                } else {
                    NotHeld(name + "." + key, block.origin.Line());
                }
            }
        }
        if (!material_.materialClass.empty() && !models_["Father"].contains("Father")) NotHeld("class");
        if (models_["Father"].empty()) models_.erase("Father");
    }

    void NotHeld(const std::string& what, int line = 0, std::vector<std::string> details = {}) {
        findings_.Add({FindingKind::WARNING,
                       {material_.file, line},
                       "not-held",
                       "the form fcmat has no place for " + what,
                       std::move(details)});
    }

    const Material& material_;
    Findings& findings_;
    ordered_json card_ = ordered_json::object();
    ordered_json own_ = ordered_json::object();     // what only this form has
    ordered_json models_ = ordered_json::object();  // properties by the names of models
};

void Append(std::string& text, const ordered_json& map, std::size_t depth) {
    for (const auto& [key, value] : map.items()) {
        const bool plain = key.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ") ==
                           std::string::npos;
        text += std::string(2 * depth, ' ') + (plain && key != "null" ? key : Quoted(key)) + ":";
        if (value.is_object() && !value.empty()) {
            text += '\n';
            Append(text, value, depth + 1);
        } else {
            text += " " + Quoted(value) + "\n";
        }
    }
}

}  // namespace

std::string FcmatCardText(const Material& material, Findings& findings) {
    std::string text = "---\n";
    Append(text, Writer(material, findings).Card(), 0);
    return text;
}

}  // namespace zelmat
