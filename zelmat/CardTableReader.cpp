#include "zelmat/CardTableReader.h"

#include <algorithm>

#include "zelmat/WordList.h"

namespace zelmat {

namespace {

bool Contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::vector<std::string> Names(const std::vector<CardColumn>& columns) {
    std::vector<std::string> names;
    for (const CardColumn& column : columns) names.push_back(column.name);
    return names;
}

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

}  // namespace

std::optional<CardTable> CardTableReader::Read() {
    if (!node_.ExpectObject()) return std::nullopt;
    CardTable table;
    table.block = &block_;

    bool good = ReportUnknownKeys();
    const auto flagNode = node_.Required("temperature_dependent");
    const auto flag = flagNode ? flagNode->Flag() : std::nullopt;
    table.temperatureDependent = flag.value_or(false);
    table.form = ReadForm();
    const auto columnsNode = node_.Required("columns");
    const auto columns = columnsNode ? columnsNode->Texts() : std::nullopt;

    std::optional<std::vector<std::size_t>> order;
    if (flag && table.form && columns) order = ReadOrder(*table.form, table.temperatureDependent, *columns);
    const auto rows = columns ? ReadRows(*columns) : std::nullopt;

    if (block_.referenceTemperature) {
        const auto reference = node_.Required("reference_temperature");
        table.referenceTemperature = reference ? reference->Number() : std::nullopt;
        if (!table.referenceTemperature) good = false;
    }
    if (node_.Has("source")) {
        const auto source = node_.At("source").Text();
        if (!source) good = false;
        table.source = source.value_or("");
    }
    if (!good || !order || !rows) return std::nullopt;

    table.line = node_.At("rows").Line();
    for (const auto& row : *rows) {
        auto& values = table.rows.emplace_back();
        for (const std::size_t position : *order) values.push_back(row[position]);
    }
    return table;
}

bool CardTableReader::ReportUnknownKeys() const {
    std::vector<std::string> known = {"temperature_dependent", "columns", "rows", "source"};
    if (block_.forms.size() > 1) known.push_back("hardening");
    if (block_.referenceTemperature) known.insert(known.end(), {"reference_temperature", "kind"});

    bool good = true;
    for (const std::string& key : node_.Keys()) {
        if (Contains(known, key)) continue;
        node_.At(key).Report("unknown-key", block_.name + " has no key " + Quoted(key),
                             {"known: " + WordList(known)});
        good = false;
    }
    return good;
}

const CardTableForm* CardTableReader::ReadForm() const {
    if (block_.forms.size() == 1) return &block_.forms.front();
    const auto node = node_.Required("hardening");
    const auto hardening = node ? node->Text() : std::nullopt;
    if (!hardening) return nullptr;
    for (const CardTableForm& form : block_.forms) {
        if (form.hardening == *hardening) return &form;
    }
    node->Report("unknown-hardening", "there is no hardening " + Quoted(*hardening),
                 {"expected one of: " +
                  WordList(block_.forms, [](const CardTableForm& form) { return form.hardening; })});
    return nullptr;
}

std::optional<std::vector<std::size_t>> CardTableReader::ReadOrder(
    const CardTableForm& form, bool temperatureDependent, const std::vector<std::string>& given) const {
    const std::vector<CardColumn> wanted = form.ColumnsOf(temperatureDependent);
    const std::string expected = "expected " + WordList(Names(wanted));
    bool good = true;
    for (std::size_t i = 0; i < given.size(); ++i) {
        const CardNode node = node_.At("columns").At(i);
        const std::string& name = given[i];
        if (std::find(given.begin(), given.end(), name) - given.begin() != static_cast<std::ptrdiff_t>(i)) {
            node.Report("repeated-column", block_.name + " has the column " + Quoted(name) + " twice");
        } else if (Contains(Names(wanted), name)) {
            continue;
        } else if (name == TemperatureColumn().name) {
            node.Report(
                "temperature-column",
                form.temperature == TemperatureRule::NEVER
                    ? block_.name + " with " + form.hardening + " hardening takes no temperature column"
                    : block_.name + " is not temperature dependent but has a temperature column",
                {expected});
        } else {
            node.Report("unknown-column", block_.name + " has no column " + Quoted(name), {expected});
        }
        good = false;
    }
    // A misspelt column is missing under its right name too: that would be telling the same mistake twice.
    if (!good || !ReportMissing(form, wanted, given)) return std::nullopt;

    std::vector<std::size_t> order;
    for (const CardColumn& column : wanted) {
        order.push_back(
            static_cast<std::size_t>(std::find(given.begin(), given.end(), column.name) - given.begin()));
    }
    return order;
}

bool CardTableReader::ReportMissing(const CardTableForm& form, const std::vector<CardColumn>& wanted,
                                    const std::vector<std::string>& given) const {
    bool good = true;
    for (const CardColumn& column : wanted) {
        if (Contains(given, column.name)) continue;
        const CardNode columns = node_.At("columns");
        const std::string expected = "expected " + WordList(Names(wanted));
        if (column.name != TemperatureColumn().name) {
            columns.Report("missing-column", block_.name + " lacks the column " + Quoted(column.name),
                           {expected});
        } else if (form.temperature == TemperatureRule::ALWAYS) {
            columns.Report("temperature-column",
                           block_.name + " with " + form.hardening + " hardening needs a temperature column",
                           {expected});
        } else {
            columns.Report("temperature-column",
                           block_.name + " is temperature dependent but has no temperature column",
                           {expected});
        }
        good = false;
    }
    return good;
}

std::optional<CardTableReader::Rows> CardTableReader::ReadRows(
    const std::vector<std::string>& columns) const {
    const auto node = node_.Required("rows");
    if (!node || !node->ExpectList()) return std::nullopt;
    if (node->Size() == 0) {
        node->Report("empty-rows", block_.name + " has no rows",
                     {"leave the block out if it is not defined"});
        return std::nullopt;
    }
    Rows rows;
    bool good = true;
    for (std::size_t i = 0; i < node->Size(); ++i) {
        auto row = ReadRow(node->At(i), i + 1, columns);
        if (row) {
            rows.push_back(std::move(*row));
        } else {
            good = false;
        }
    }
    return good ? std::optional(std::move(rows)) : std::nullopt;
}

std::optional<std::vector<double>> CardTableReader::ReadRow(const CardNode& row, std::size_t number,
                                                            const std::vector<std::string>& columns) const {
    if (!row.ExpectList()) return std::nullopt;
    if (row.Size() != columns.size()) {
        row.Report("ragged-row",
                   "row " + std::to_string(number) + " of " + block_.name + " has " +
                       std::to_string(row.Size()) + (row.Size() == 1 ? " value" : " values"),
                   {"expected " + std::to_string(columns.size()) + ": " + WordList(columns)});
        return std::nullopt;
    }
    std::vector<double> values;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto value = row.At(i).Number();
        if (value) values.push_back(*value);
    }
    return values.size() == columns.size() ? std::optional(std::move(values)) : std::nullopt;
}

}  // namespace zelmat
