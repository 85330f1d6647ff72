#include "zelmat/materials/ExtraBlock.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "zelmat/materials/ExtraText.h"
#include "zelmat/materials/FeatureValues.h"
#include "zelmat/materials/WrittenNumbers.h"

namespace zelmat {

namespace {

constexpr const char* kBlockType = "ZelmatBlockLT";
constexpr const char* kTableType = "ZelmatTableLT";
constexpr const char* kColumnType = "ZelmatColumnLT";

constexpr std::array<std::pair<ExtraUse, std::string_view>, 4> kUses = {{
    {ExtraUse::BEHAVIOR, "behavior"},
    {ExtraUse::STORED_FIT, "stored fit"},
    {ExtraUse::FIT, "fit"},
    {ExtraUse::INFORMATION, "information"},
}};

std::string_view WordOf(ExtraUse use) {
    return std::find_if(kUses.begin(), kUses.end(), [&](const auto& pair) { return pair.first == use; })
        ->second;
}

std::optional<ExtraUse> UseOf(std::string_view word) {
    const auto found =
        std::find_if(kUses.begin(), kUses.end(), [&](const auto& pair) { return pair.second == word; });
    return found == kUses.end() ? std::nullopt : std::optional(found->first);
}

/// Whether the extra holds a value of the card, beside what the module's data hold.
bool Holds(const ExtraBlock& extra, const Setting& setting) {
    if (!extra.block.values.Find(setting.name)) return false;
    return extra.whole || !setting.stored || extra.block.written.contains(setting.name);
}

std::vector<std::string> HeldNames(const ExtraBlock& extra) {
    std::vector<std::string> names;
    for (const Setting& setting : extra.block.kind->settings) {
        if (Holds(extra, setting)) names.push_back(setting.name);
    }
    return names;
}

std::vector<std::string> AllNames(const BlockKind& kind) {
    std::vector<std::string> names;
    for (const Setting& setting : kind.settings) names.push_back(setting.name);
    return names;
}

bool SaysNothing(const Table& table) {
    return table.source.empty() &&
           std::none_of(table.columns.begin(), table.columns.end(),
                        [](const Column& column) { return column.written.has_value(); });
}

KORISpecObject_var Made(KORMemoryDocument& document, const KORISpecObject_var& known, const char* type) {
    return known ? known : KORISpecObject_var(document.NewPlatformFeature(type, type));
}

/// Lists a feature for each of `items`, those that are listed already as far as they go; what is left of
/// these goes out of the document with `remove`. `write` puts an item into one, or into a new one. False when
/// it cannot.
template <class Item, class Write, class Remove>
bool WriteList(const FeatureValues& owner, const char* name, const std::vector<const Item*>& items,
               Write write, Remove remove) {
    const auto before = owner.Features(name);
    std::vector<KORISpecObject_var> now;
    for (const Item* item : items) {
        now.push_back(write(*item, now.size() < before.size() ? before[now.size()] : nullptr));
        if (!now.back()) return false;
    }
    for (std::size_t at = now.size(); at < before.size(); ++at) remove(before[at].Get());
    owner.SetFeatures(name, now);
    return true;
}

void RemoveColumn(KORMemoryDocument& document, KORISpecObject* column) {
    static_cast<void>(document.Remove(column));
}

void RemoveTable(KORMemoryDocument& document, KORISpecObject* table) {
    for (const auto& column : FeatureValues(table).Features("Columns")) RemoveColumn(document, column.Get());
    static_cast<void>(document.Remove(table));
}

KORISpecObject_var WriteColumn(KORMemoryDocument& document, const Column& column, bool whole,
                               const KORISpecObject_var& known) {
    KORISpecObject_var feature = Made(document, known, kColumnType);
    if (!feature) return nullptr;
    const FeatureValues values(feature.Get());
    values.SetText("Name", column.kind.name);
    values.SetText("Unit", column.written ? column.written->unit : "");
    const bool converted = column.written && !column.written->numbers.empty();
    if (converted || whole) {
        values.SetNumbers("Numbers", converted ? column.written->numbers : column.values);
    } else if (values.Numbers("Numbers")) {
        values.Empty("Numbers");
    }
    return feature;
}

KORISpecObject_var WriteTable(KORMemoryDocument& document, const Table& table, bool whole,
                              const KORISpecObject_var& known) {
    KORISpecObject_var feature = Made(document, known, kTableType);
    if (!feature) return nullptr;
    const FeatureValues values(feature.Get());
    values.SetText("Name", table.kind->name);
    values.SetText("Source", table.source);
    values.SetFlag("TemperatureDependent", table.temperatureDependent);
    std::vector<const Column*> columns;
    for (const Column& column : table.columns) {
        if (whole || column.written) columns.push_back(&column);
    }
    const auto write = [&](const Column& column, const KORISpecObject_var& into) {
        return WriteColumn(document, column, whole, into);
    };
    const auto remove = [&](KORISpecObject* column) { RemoveColumn(document, column); };
    return WriteList(values, "Columns", columns, write, remove) ? feature : KORISpecObject_var();
}

/// Of a whole block: the numbers as written become those that are stored.
bool TakeColumn(const FeatureValues& feature, Column& column) {
    auto numbers = feature.Numbers("Numbers").value_or(std::vector<double>());
    const std::string unit = feature.Text("Unit");
    if (unit.empty()) {
        column.values = std::move(numbers);
        return true;
    }
    auto stored = StoredNumbers(column.kind, {unit, numbers}, {});
    if (!stored) return false;
    const bool same = *stored == numbers;
    column.values = std::move(*stored);
    column.written = WrittenNumbers{unit, same ? std::vector<double>() : std::move(numbers)};
    return true;
}

/// All columns of the form, in its order; nothing when one is missing or of another length.
std::optional<Table> ReadWholeTable(const FeatureValues& feature, Table table, const Values& values) {
    const auto form = table.kind->form(values);
    if (!form) return std::nullopt;
    const auto given = feature.Features("Columns");
    for (const ColumnKind& kind : form->ColumnsOf(table.temperatureDependent)) {
        const auto found = std::find_if(given.begin(), given.end(), [&](const KORISpecObject_var& column) {
            return FeatureValues(column.Get()).Text("Name") == kind.name;
        });
        Column column{.kind = kind};
        if (found == given.end() || !TakeColumn(FeatureValues(found->Get()), column)) return std::nullopt;
        if (!table.columns.empty() && column.values.size() != table.Rows()) return std::nullopt;
        table.columns.push_back(std::move(column));
    }
    return table;
}

/// Those columns alone that were written in another unit.
Table ReadWrittenColumns(const FeatureValues& feature, Table table) {
    for (const KORISpecObject_var& each : feature.Features("Columns")) {
        const FeatureValues values(each.Get());
        Column column{.kind = {.name = values.Text("Name"), .title = {}, .unit = {}}};
        column.written =
            WrittenNumbers{values.Text("Unit"), values.Numbers("Numbers").value_or(std::vector<double>())};
        table.columns.push_back(std::move(column));
    }
    return table;
}

std::optional<Table> ReadTable(const FeatureValues& feature, const ExtraBlock& extra) {
    const TableKind* kind = extra.block.kind->FindTable(feature.Text("Name"));
    if (!kind) return std::nullopt;
    Table table{.kind = kind,
                .temperatureDependent = feature.Flag("TemperatureDependent"),
                .source = feature.Text("Source")};
    return extra.whole ? ReadWholeTable(feature, std::move(table), extra.block.values)
                       : std::optional(ReadWrittenColumns(feature, std::move(table)));
}

}  // namespace

Values NotGiven(const Block& given, const Block& held) {
    Values values;
    for (const Setting& setting : given.kind->settings) {
        const Value* value = held.values.Find(setting.name);
        if (value && !given.values.Find(setting.name)) values.Set(setting.name, *value);
    }
    return values;
}

bool SaysNothing(const ExtraBlock& extra) {
    const Block& block = extra.block;
    return !extra.whole && HeldNames(extra).empty() && block.kept.empty() &&
           TextOfValues(extra.notGiven, {}, AllNames(*block.kind)).empty() &&
           std::all_of(block.tables.begin(), block.tables.end(),
                       [](const Table& table) { return SaysNothing(table); });
}

KORISpecObject_var WriteExtraBlock(KORMemoryDocument& document, const ExtraBlock& extra,
                                   const KORISpecObject_var& known) {
    KORISpecObject_var feature = Made(document, known, kBlockType);
    if (!feature) return nullptr;
    const Block& block = extra.block;
    const FeatureValues values(feature.Get());
    values.SetText("Kind", block.kind->name);
    values.SetText("Use", WordOf(extra.use));
    values.SetFlag("Whole", extra.whole);
    values.SetText("Values", TextOfValues(block.values, block.written, HeldNames(extra)));
    values.SetText("NotGiven", TextOfValues(extra.notGiven, {}, AllNames(*block.kind)));
    values.SetText("Kept", TextOfKept(block.kept));
    std::vector<const Table*> tables;
    for (const Table& table : block.tables) {
        if (extra.whole || !SaysNothing(table)) tables.push_back(&table);
    }
    const auto write = [&](const Table& table, const KORISpecObject_var& into) {
        return WriteTable(document, table, extra.whole, into);
    };
    const auto remove = [&](KORISpecObject* table) { RemoveTable(document, table); };
    return WriteList(values, "Tables", tables, write, remove) ? feature : KORISpecObject_var();
}

std::optional<ExtraBlock> ReadExtraBlock(KORISpecObject* feature) {
    const FeatureValues values(feature);
    const BlockKind* kind = FindBlockKind(values.Text("Kind"));
    const auto use = UseOf(values.Text("Use"));
    if (!kind || !use) return std::nullopt;
    ExtraBlock extra{.use = *use, .whole = values.Flag("Whole"), .block = {.kind = kind}, .notGiven = {}};
    Block& block = extra.block;
    std::map<std::string, WrittenNumber> none;
    ValuesOfText(values.Text("Values"), *kind, block.values, block.written);
    ValuesOfText(values.Text("NotGiven"), *kind, extra.notGiven, none);
    block.kept = KeptOfText(values.Text("Kept"));
    for (const KORISpecObject_var& each : values.Features("Tables")) {
        auto table = ReadTable(FeatureValues(each.Get()), extra);
        if (!table) return std::nullopt;
        block.tables.push_back(std::move(*table));
    }
    return extra;
}

void RemoveExtraBlock(KORMemoryDocument& document, KORISpecObject* feature) {
    for (const auto& table : FeatureValues(feature).Features("Tables")) RemoveTable(document, table.Get());
    static_cast<void>(document.Remove(feature));
}

}  // namespace zelmat
