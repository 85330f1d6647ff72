#include "zelmat/cards/CsvCardReader.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "zelmat/cards/CsvLine.h"
#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TableByColumns.h"
#include "zelmat/cards/TextLines.h"
#include "zelmat/materials/Values.h"
#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr std::string_view kWhole = "material";
const std::vector<std::string> kTextLists = {"source", "notes"};
const std::vector<std::string> kTexts = {"name", "description", "class"};

bool Contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// "key" of "key = value", outside quotes and brackets; nothing when the line is none.
std::optional<std::string_view> KeyOf(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const std::string_view key = WithoutBlanksAround(line.substr(0, equals));
    if (key.empty() || key.find_first_of("\"[];,\t") != std::string_view::npos) return std::nullopt;
    return key;
}

/// A JSON value, or the text itself when it is none.
nlohmann::json Literal(const std::string& text) {
    KORFileError error;
    const auto parsed = KORJsonFile::Parse(text, "value", error);
    return parsed ? parsed->Root() : nlohmann::json(text);
}

}  // namespace

CsvCardReader::CsvCardReader(std::string name, const CardReading& how, Findings& findings)
    : name_(std::move(name)), how_(how), findings_(findings) {}

std::shared_ptr<const PlacedJson> CsvCardReader::Read(std::string_view text) {
    for (TextLines lines(text); lines.Next();) {
        line_ = lines.Number();
        ReadLine(lines.Line());
    }
    return good_ ? Tree() : nullptr;
}

void CsvCardReader::ReadLine(std::string_view line) {
    const std::string_view bare = WithoutBlanksAround(line);
    if (bare.empty() || bare.front() == '#') return;
    if (line_ == 1 && bare.starts_with("sep="))
        return;  // spreadsheets write it; the header tells the separator
    if (bare.find('\0') != std::string_view::npos) return Report("no-text", "the line holds a NUL byte");
    const auto key = KeyOf(bare);
    if (lost_ && key) return;
    if (key) return ReadValue(*key, bare.substr(bare.find('=') + 1));
    const std::string_view cells = WithoutBlanksAround(WithoutComment(bare));
    // A section, not a quoted or bracketed header: "[elastic]".
    if (cells.front() == '[' && cells.find(']') == cells.size() - 1) {
        return OpenSection(cells.substr(1, cells.size() - 2));
    }
    if (lost_) return;
    if (rows_) return ReadRow(WithoutComment(line));
    separator_ = CsvSeparator(cells);
    if (how_.decimalComma && separator_ == ',' && cells.find(',') != std::string_view::npos) {
        return Report("wrong-separator", "commas cannot set columns apart and be decimal signs as well",
                      {"expected ; or a tab between columns"});
    }
    if (auto headers = CsvCells(WithoutComment(line), separator_))
        return OpenTable(WithoutEmptyOnes(std::move(*headers)));
    Report("open-quote", "a double quote is not closed");
}

void CsvCardReader::OpenSection(std::string_view name) {
    name = WithoutBlanksAround(name);
    rows_ = nullptr;
    lost_ = false;
    if (name == kWhole) {
        block_.clear();
        table_.clear();
        kind_ = nullptr;
        if (materials_.empty() || !Material().empty()) OpenMaterial();
        return;
    }
    Json& material = Material();
    const std::size_t dot = name.find('.');
    block_ = BlockName(name.substr(0, dot));
    table_ = dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
    kind_ = FindBlockKind(block_);
    if (block_.empty() || (table_.empty() && dot != std::string_view::npos)) {
        lost_ = true;
        return Report("unknown-section", "the section " + QuotedText(name) + " has no name");
    }
    const bool alternatives = kind_ && kind_->alternatives;
    const Json& there = material[block_];
    const bool fits = there.is_null() || (alternatives ? there.is_array() : there.is_object());
    const bool again = fits && !alternatives && (table_.empty() ? !there.is_null() : there.contains(table_));
    if (!fits || again) {
        lost_ = true;
        return Report("repeated-section", "the section " + QuotedText(name) + " is there twice");
    }
    if (alternatives && (table_.empty() || there.is_null())) material[block_].push_back(Json::object());
    if (!kind_ || !kind_->FindTable(table_) || !kind_->FindTable(table_)->list) (void)Section();
    Note(Path());
}

void CsvCardReader::OpenMaterial() {
    materials_.push_back(Json::object());
    Note(Path());
}

/// Spreadsheets write separators up to their last used column; columns without a name are none.
std::vector<std::string> CsvCardReader::WithoutEmptyOnes(std::vector<std::string> headers) {
    emptyColumns_ = false;
    while (headers.size() > 1 && headers.back().empty()) {
        headers.pop_back();
        emptyColumns_ = true;
    }
    return headers;
}

void CsvCardReader::OpenTable(const std::vector<std::string>& headers) {
    if (block_.empty()) {
        std::vector<std::string> names;
        for (const std::string& header : headers) names.push_back(ReadColumnHeader(header).name);
        FindSection(names);
        if (lost_) return;
    }
    columns_ = headers.size();
    const TableKind* table = kind_ ? kind_->FindTable(table_) : nullptr;
    list_ = table && table->list;
    if (list_) {
        rows_ = &(Material()[block_][table_] = Json::array());
        linesOfRows_ = &rowLines_[Path()];
        return;
    }
    Json& section = Section();
    if (table && table->flagged && !section.contains("temperature_dependent")) {
        const bool tells = std::any_of(headers.begin(), headers.end(), [](const std::string& header) {
            return PropertyName(ReadColumnHeader(header).name) == "temperature";
        });
        section["temperature_dependent"] = tells;
    }
    section["columns"] = headers;
    Note(Path() + "/columns");
    rows_ = &(section["rows"] = Json::array());
    linesOfRows_ = &rowLines_[Path() + "/rows"];
    Note(Path() + "/rows");
}

/// A table outside a section: its columns tell the block. Values before it are the card's or the block's.
void CsvCardReader::FindSection(const std::vector<std::string>& names) {
    const auto found = FindTableByColumns(names);
    if (!found) {
        lost_ = true;
        std::set<std::string> meant;
        for (const std::string& name : names) {
            if (meant.insert(PropertyName(name)).second) continue;
            return Report("repeated-column", "the column " + QuotedText(name) + " is there twice");
        }
        constexpr std::size_t kMostShown = 10;
        std::string shown;
        for (std::size_t i = 0; i < names.size() && i < kMostShown; ++i)
            shown += (i ? ", " : "") + QuotedText(names[i]);
        if (names.size() > kMostShown) shown += ", ...";
        return Report("unknown-table", "no table has just the columns " + shown,
                      {"give the table a section, such as [elastic]"});
    }
    kind_ = found->block;
    block_ = kind_->name;
    table_ = found->table->name;
    Json& material = Material();
    if (material.contains(block_)) {
        lost_ = true;
        return Report("repeated-section", "there is a second table of " + block_);
    }
    Json& section = Section();
    for (const Setting& setting : kind_->settings) {
        if (!material.contains(setting.name)) continue;
        section[setting.name] = material[setting.name];
        material.erase(setting.name);
    }
    for (const char* key : {"temperature_dependent"}) {
        if (!material.contains(key)) continue;
        section[key] = material[key];
        material.erase(key);
    }
    Note(Path());
}

void CsvCardReader::ReadValue(std::string_view key, std::string_view text) {
    text = WithoutBlanksAround(text);
    if (text.starts_with('"') && text.find('"', 1) == std::string_view::npos) {
        return Report("open-quote", "a double quote is not closed",
                      {"a text in double quotes is as in JSON, all on one line"});
    }
    std::string name(key);
    if (block_.empty() && materials_.empty()) OpenMaterial();
    Json& section = block_.empty() ? Material() : Section();
    const Json value = ValueOf(name, std::string(text));
    if (block_.empty() && Contains(kTextLists, name)) {
        if (!section.contains(name)) section[name] = Json::array();
        section[name].push_back(value);
        return Note(Path() + "/" + name);
    }
    const std::size_t dot = name.find('.');
    const bool grouped = dot != std::string::npos && FindSetting(name);
    Json& holder = grouped ? section[name.substr(0, dot)] : section;
    const std::string last = grouped ? name.substr(dot + 1) : name;
    if ((!holder.is_null() && !holder.is_object()) || holder.contains(last)) {
        return Report("repeated-key", "the key " + QuotedText(name) + " is there twice");
    }
    holder[last] = value;
    Note(Path() + "/" + (grouped ? name.substr(0, dot) + "/" + last : name));
}

void CsvCardReader::ReadRow(std::string_view line) {
    auto cells = CsvCells(line, separator_);
    if (!cells) return Report("open-quote", "a double quote is not closed");
    if (std::all_of(cells->begin(), cells->end(), [](const std::string& cell) { return cell.empty(); }))
        return;
    while (emptyColumns_ && cells->size() > columns_ && cells->back().empty()) cells->pop_back();
    if (cells->size() != columns_) {
        return Report("ragged-row", "the row has " + std::to_string(cells->size()) + " values",
                      {"expected " + std::to_string(columns_), "as the header has"});
    }
    Json row = Json::array();
    for (std::string& cell : *cells) {
        const auto number = ReadCell(std::move(cell));
        if (!number) return;
        row.push_back(*number);
    }
    linesOfRows_->push_back(line_);
    rows_->push_back(list_ ? row.front() : std::move(row));
}

std::optional<double> CsvCardReader::ReadCell(std::string cell) {
    if (how_.decimalComma) {
        if (cell.find('.') != std::string::npos) {
            Report("not-a-number", QuotedText(cell) + " has a point", {"expected decimal commas"});
            return std::nullopt;
        }
        std::replace(cell.begin(), cell.end(), ',', '.');
    }
    const auto number = ReadNumber(cell);
    if (number) return *number;
    const bool comma = cell.find(',') != std::string::npos;
    Report("not-a-number", number.Error().text,
           comma ? std::vector<std::string>{"--decimal-comma reads decimal commas"}
                 : std::vector<std::string>());
    return std::nullopt;
}

/// Texts stay texts, whatever they look like; a flag, a number or a list is what it is in JSON.
nlohmann::json CsvCardReader::ValueOf(const std::string& key, const std::string& text) const {
    const bool quoted = text.starts_with('"');
    if (quoted) return Literal(text);
    const Setting* setting = FindSetting(key);
    const bool ofTable = key == "source";
    const bool isText = block_.empty() ? Contains(kTexts, key) || Contains(kTextLists, key)
                                       : ofTable || (setting && setting->kind == SettingKind::TEXT);
    return isText ? Json(text) : Literal(text);
}

const Setting* CsvCardReader::FindSetting(const std::string& key) const {
    if (!kind_) return nullptr;
    const auto found = std::find_if(kind_->settings.begin(), kind_->settings.end(),
                                    [&](const Setting& setting) { return setting.name == key; });
    return found == kind_->settings.end() ? nullptr : &*found;
}

nlohmann::json& CsvCardReader::Material() {
    if (materials_.empty()) OpenMaterial();
    return materials_.back();
}

nlohmann::json& CsvCardReader::Section() {
    Json& block = Material()[block_];
    Json& holder = kind_ && kind_->alternatives && block.is_array() ? block.back() : block;
    if (holder.is_null()) holder = Json::object();
    if (table_.empty()) return holder;
    Json& table = holder[table_];
    if (table.is_null()) table = Json::object();
    return table;
}

std::string CsvCardReader::Path() const {
    std::string path = "/" + std::to_string(materials_.empty() ? 0 : materials_.size() - 1);
    if (block_.empty()) return path;
    path += "/" + block_;
    if (kind_ && kind_->alternatives) {
        path += "/" + std::to_string(materials_.back().at(block_).size() - 1);
    }
    return table_.empty() ? path : path + "/" + table_;
}

void CsvCardReader::Note(const std::string& pointer) {
    lines_.emplace(pointer, line_);
}

void CsvCardReader::Report(const char* code, std::string text, std::vector<std::string> details) {
    good_ = false;
    findings_.Add({FindingKind::ERROR, {name_, line_}, code, std::move(text), std::move(details)});
}

/// A card without a name has its file's.
std::shared_ptr<const PlacedJson> CsvCardReader::Tree() {
    for (Json& material : materials_) {
        if (!material.contains("name")) material["name"] = std::filesystem::path(name_).stem().string();
    }
    return std::make_shared<const PlacedJson>(name_, std::move(materials_), std::move(lines_),
                                              std::move(rowLines_));
}

}  // namespace zelmat
