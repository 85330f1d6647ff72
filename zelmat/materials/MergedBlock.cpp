#include "zelmat/materials/MergedBlock.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

#include "zelmat/materials/StoredMeaning.h"
#include "zelmat/materials/WrittenNumbers.h"

namespace zelmat {

namespace {

/// NaN is itself; 0.0 is not -0.0.
bool SameBits(const std::vector<double>& a, const std::vector<double>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
        return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
    });
}

bool SameTable(const Table& a, const Table& b) {
    return a.kind == b.kind && a.temperatureDependent == b.temperatureDependent &&
           std::equal(a.columns.begin(), a.columns.end(), b.columns.begin(), b.columns.end(),
                      [](const Column& x, const Column& y) {
                          return x.kind.name == y.kind.name && SameBits(x.values, y.values);
                      });
}

/// Whether a document holds the block, which is in the stored meaning.
bool IsHeld(const Block& block, const Block& held) {
    for (const Setting& setting : block.kind->settings) {
        const Value* value = setting.stored ? block.values.Find(setting.name) : nullptr;
        const Value* other = held.values.Find(setting.name);
        if (value && (!other || *value != *other)) return false;
    }
    return std::equal(block.tables.begin(), block.tables.end(), held.tables.begin(), held.tables.end(),
                      SameTable);
}

/// Those with which a block says in which meaning it comes.
bool TellsMeaning(const Setting& setting) {
    return setting.name == "stress" || setting.name == "strain" || setting.name == "ogden_convention";
}

void TakeValues(const ExtraBlock& extra, const Block& held, Block& merged) {
    Values values;
    for (const Setting& setting : held.kind->settings) {
        const Value* own = held.values.Find(setting.name);
        const Value* given = extra.block.values.Find(setting.name);
        const Value* notGiven = extra.notGiven.Find(setting.name);
        if (!setting.stored) {
            const bool still = given && !(extra.whole && TellsMeaning(setting));
            if (still) values.Set(setting.name, *given);
        } else if (own && !(notGiven && *notGiven == *own)) {
            values.Set(setting.name, *own);
        }
        const auto written = extra.block.written.find(setting.name);
        const Value* now = values.Find(setting.name);
        if (written != extra.block.written.end() && now && given && *now == *given) {
            merged.written.insert(*written);
        }
    }
    merged.values = std::move(values);
}

void TakeColumns(const Table& given, Table& table) {
    table.source = given.source;
    for (Column& column : table.columns) {
        const Column* as = given.Find(column.kind.name);
        if (!as || !as->written) continue;
        const auto stored = StoredNumbers(column.kind, *as->written, column.values);
        if (stored && SameBits(*stored, column.values)) column.written = as->written;
    }
}

}  // namespace

Block Merged(const Block& held, const ExtraBlock& extra, const Material& material) {
    if (extra.whole) {
        Findings told;  // and told before, when it was stored
        const auto stored = ToStoredMeaning(extra.block, material, told);
        if (stored && IsHeld(*stored, held)) return extra.block;
    }
    Block merged = held;
    TakeValues(extra, held, merged);
    for (Table& table : merged.tables) {
        if (const Table* given = extra.block.Find(table.kind)) TakeColumns(*given, table);
    }
    merged.kept = extra.block.kept;
    return merged;
}

}  // namespace zelmat
