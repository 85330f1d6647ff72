#include "zelmat/materials/Differences.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

#include "zelmat/materials/InUnits.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

DifferenceSide SideOf(const ShownValue& shown) {
    struct ToText {
        std::string operator()(bool flag) const { return flag ? "yes" : "no"; }
        std::string operator()(int count) const { return std::to_string(count); }
        std::string operator()(double number) const { return NumberText(number); }
        std::string operator()(const std::string& text) const { return text; }
    };
    return {std::visit(ToText{}, shown.value), shown.unit == "-" ? std::string() : shown.unit};
}

bool SameBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool Same(const Value& a, const Value& b) {
    const double* x = std::get_if<double>(&a);
    const double* y = std::get_if<double>(&b);
    return x && y ? SameBits(*x, *y) : a == b;
}

/// Goes through two materials side by side and collects what differs.
class Comparison {
public:
    explicit Comparison(const UnitChoice& units) : units_(units) {}

    std::vector<Difference> Take() { return std::move(found_); }

    void Heads(const Material& a, const Material& b) {
        Texts("name", a.name, b.name);
        Texts("description", a.description, b.description);
        Texts("class", a.materialClass, b.materialClass);
        Texts("source", WordList(a.sources), WordList(b.sources));
        Texts("notes", WordList(a.notes), WordList(b.notes));
        Flags("illustrative", a.illustrative, b.illustrative);
        Flags("heat_generation", a.heatGeneration.value_or(false), b.heatGeneration.value_or(false));
        Kept("", a.kept, b.kept);
    }

    /// Two lists of blocks, in which a kind stands once.
    void Lists(const std::vector<Block>& a, const std::vector<Block>& b) {
        const auto find = [](const std::vector<Block>& list, const BlockKind& kind) {
            const auto found = std::find_if(list.begin(), list.end(),
                                            [&](const Block& block) { return block.kind == &kind; });
            return found == list.end() ? nullptr : &*found;
        };
        for (const BlockKind& kind : BlockKinds()) Blocks(kind.name, find(a, kind), find(b, kind));
    }

    /// Fits, by their place.
    void Fits(const std::vector<Block>& a, const std::vector<Block>& b) {
        for (std::size_t at = 0; at < std::max(a.size(), b.size()); ++at) {
            const Block* x = at < a.size() ? &a[at] : nullptr;
            const Block* y = at < b.size() ? &b[at] : nullptr;
            const std::string& name = (x ? x : y)->kind->name;
            Blocks(at == 0 ? name : name + "[" + std::to_string(at + 1) + "]", x, y);
        }
    }

private:
    void Add(std::string key, std::size_t row, DifferenceSide before, DifferenceSide after) {
        found_.push_back({std::move(key), row, std::move(before), std::move(after)});
    }

    void Texts(const std::string& key, const std::string& a, const std::string& b) {
        if (a != b) Add(key, 0, {a, {}}, {b, {}});
    }

    void Flags(const std::string& key, bool a, bool b) { Texts(key, a ? "yes" : "no", b ? "yes" : "no"); }

    void Kept(const std::string& of, const std::vector<KeptValue>& a, const std::vector<KeptValue>& b) {
        const auto find = [](const std::vector<KeptValue>& list, const std::string& name) {
            const auto found = std::find_if(list.begin(), list.end(),
                                            [&](const KeptValue& kept) { return kept.name == name; });
            return found == list.end() ? std::string() : found->json;
        };
        for (const KeptValue& kept : a) Texts(of + kept.name, kept.json, find(b, kept.name));
        for (const KeptValue& kept : b) {
            if (find(a, kept.name).empty()) Texts(of + kept.name, "", kept.json);
        }
    }

    void Blocks(const std::string& key, const Block* a, const Block* b) {
        if (!a || !b) {
            if (a || b) Add(key, 0, {a ? "there" : "", {}}, {b ? "there" : "", {}});
            return;
        }
        for (const Setting& setting : a->kind->settings) Settings(key, setting, *a, *b);
        for (const TableKind& table : a->kind->tables) {
            const std::string name = table.name.empty() ? key : key + "." + table.name;
            Tables(name, a->Find(&table), b->Find(&table));
        }
        const bool unread = a->kind->IsUnread();
        Kept(unread ? "" : key + ".", a->kept, b->kept);
    }

    void Settings(const std::string& key, const Setting& setting, const Block& a, const Block& b) {
        const Value* x = a.values.Find(setting.name);
        const Value* y = b.values.Find(setting.name);
        if ((!x && !y) || (x && y && Same(*x, *y))) return;
        DifferenceSide before = x ? SideOf(InUnits(setting, *x, units_)) : DifferenceSide();
        DifferenceSide after = y ? SideOf(InUnits(setting, *y, units_)) : DifferenceSide();
        if (x && y && before.text == after.text) {
            before = SideOf({*x, setting.unit});
            after = SideOf({*y, setting.unit});
        }
        Add(key + "." + setting.name, 0, std::move(before), std::move(after));
    }

    void Tables(const std::string& key, const Table* a, const Table* b) {
        if (!a || !b) {
            if (a || b) Add(key, 0, {a ? "there" : "", {}}, {b ? "there" : "", {}});
            return;
        }
        Texts(key + ".source", a->source, b->source);
        Flags(key + ".temperature_dependent", a->temperatureDependent, b->temperatureDependent);
        Texts(key + ".rows", std::to_string(a->Rows()), std::to_string(b->Rows()));
        const Table shownA = InUnits(*a, units_);
        const Table shownB = InUnits(*b, units_);
        for (std::size_t at = 0; at < a->columns.size(); ++at) {
            const Column& column = a->columns[at];
            const auto other = std::find_if(b->columns.begin(), b->columns.end(), [&](const Column& each) {
                return each.kind.name == column.kind.name;
            });
            if (other == b->columns.end()) {
                Add(key + "." + column.kind.name, 0, {"there", {}}, {});
                continue;
            }
            const auto& shown = shownB.columns[static_cast<std::size_t>(other - b->columns.begin())];
            Columns(key + "." + column.kind.name, {&column, &shownA.columns[at]}, {&*other, &shown});
        }
        for (const Column& column : b->columns) {
            if (!a->Find(column.kind.name)) Add(key + "." + column.kind.name, 0, {}, {"there", {}});
        }
    }

    /// A column as it is stored, and in the units chosen.
    struct Sides {
        const Column* stored;
        const Column* shown;
    };

    void Columns(const std::string& key, const Sides& a, const Sides& b) {
        const auto side = [](const Column& column, std::size_t row) {
            return SideOf({column.values[row], column.kind.unit});
        };
        const std::size_t rows = std::min(a.stored->values.size(), b.stored->values.size());
        for (std::size_t row = 0; row < rows; ++row) {
            if (SameBits(a.stored->values[row], b.stored->values[row])) continue;
            DifferenceSide before = side(*a.shown, row);
            DifferenceSide after = side(*b.shown, row);
            if (before.text == after.text) {
                before = side(*a.stored, row);
                after = side(*b.stored, row);
            }
            Add(key, row + 1, std::move(before), std::move(after));
        }
    }

    const UnitChoice& units_;
    std::vector<Difference> found_;
};

}  // namespace

std::vector<Difference> Differences(const Material& before, const Material& after, const UnitChoice& units) {
    Comparison comparison(units);
    comparison.Heads(before, after);
    comparison.Lists(before.blocks, after.blocks);
    comparison.Fits(before.fits, after.fits);
    comparison.Lists(before.information, after.information);
    return comparison.Take();
}

}  // namespace zelmat
