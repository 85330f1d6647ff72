#include "zelmat/commands/frame/Result.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "zelmat/text/Printable.h"

namespace zelmat {

void Result::Say(std::string name, std::string title, std::string text) {
    values_.push_back({std::move(name), std::move(title), std::move(text), {}, {}, true});
}

void Result::Add(std::string name, std::string title, const char* quantity, MaybeNumber stored) {
    const Shown shown = Of(quantity);
    MaybeNumber number = stored ? MaybeNumber(shown(*stored)) : std::nullopt;
    if (number && !std::isfinite(*number)) number.reset();
    if (number && *number == 0.0) number = 0.0;  // without a sign
    values_.push_back({std::move(name), std::move(title), {}, number, shown.Unit(), false});
}

void Result::Note(std::string text) {
    if (std::find(notes_.begin(), notes_.end(), text) == notes_.end()) notes_.push_back(std::move(text));
}

void Result::Note(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) Note(text);
}

std::string Result::Text(const Value& value) const {
    return value.said ? Printable(value.text) : WithUnit(Rounded(*value.number), value.unit);
}

void Result::Print(std::ostream& out) const {
    for (const Value& value : values_) {
        if (value.said || value.number) out << value.title << ": " << Text(value) << '\n';
    }
    for (const std::string& note : notes_) out << "note: " << Printable(note) << '\n';
    const char* gap = values_.empty() && notes_.empty() ? "" : "\n";
    for (const ResultTable& table : tables_) {
        out << std::exchange(gap, "\n");
        table.Print(out);
    }
}

ResultTable Result::ValueTable() const {
    std::vector<std::string> names, texts, units;
    for (const Value& value : values_) {
        names.push_back(value.name);
        texts.push_back(value.said ? value.text : value.number ? NumberText(*value.number) : "");
        units.push_back(value.unit);
    }
    ResultTable table("values", "");
    table.AddWords("name", "name", std::move(names));
    table.AddWords("value", "value", std::move(texts));
    table.AddWords("unit", "unit", std::move(units));
    return table;
}

void Result::PrintCsv(std::ostream& out) const {
    ValueTable().PrintCsv(out);
    for (const std::string& note : notes_) out << "# note: " << Printable(note) << '\n';
    for (const ResultTable& table : tables_) {
        out << '\n';
        table.PrintCsv(out);
    }
}

nlohmann::ordered_json Result::Json() const {
    using Json = nlohmann::ordered_json;
    Json json = Json::object();
    for (const Value& value : values_) {
        if (value.said) {
            json[value.name] = value.text;
        } else {
            json[value.name] = {{"value", value.number ? Json(*value.number) : Json()}, {"unit", value.unit}};
        }
    }
    json["tables"] = Json::array();
    for (const ResultTable& table : tables_) json["tables"].push_back(table.Json());
    json["notes"] = notes_;
    return json;
}

}  // namespace zelmat
