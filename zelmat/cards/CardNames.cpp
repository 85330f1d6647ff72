#include "zelmat/cards/CardNames.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/cards/PropertyNames.h"
#include "zelmat/cards/TableByColumns.h"
#include "zelmat/materials/BlockKind.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

using Json = nlohmann::json;
using Pointer = Json::json_pointer;

/// A number, or a text that begins with one: "210 GPa".
bool IsSingleValue(const Json& value) {
    return value.is_number() || (value.is_string() && ReadLeadingNumber(value.get_ref<const std::string&>()));
}

/// Puts the values of a card in their places and remembers where they stood.
class Renamer {
public:
    Renamer(std::shared_ptr<const PlacedJson> card, Findings& findings)
        : card_(std::move(card)), findings_(findings) {}

    std::shared_ptr<const PlacedJson> Renamed() {
        if (card_->Root().is_array()) {
            for (std::size_t i = 0; i < card_->Root().size(); ++i) LookAtMaterial(Pointer() / i);
        } else {
            LookAtMaterial(Pointer());
        }
        if (!good_) return nullptr;
        if (moves_.empty()) return card_;
        return std::make_shared<const PlacedJson>(card_, std::move(root_), std::move(moves_));
    }

private:
    const Json& Given(const Pointer& at) const { return card_->Root().at(at); }

    /// The tree that is changed; a copy from the first change on.
    Json& Changed(const Pointer& at) {
        if (root_.is_null()) root_ = card_->Root();
        return root_[at];
    }

    void LookAtMaterial(const Pointer& at) {
        if (!Given(at).is_object()) return;
        for (const auto& [key, value] : Given(at).items()) {
            if (FindBlockKind(key)) {
                LookAtBlock(at / key, at / key, *FindBlockKind(key));
                continue;
            }
            const std::string property = PropertyName(key);
            const BlockKind* ofColumn = IsSingleValue(value) ? BlockOfProperty(property) : nullptr;
            if (ofColumn) {
                AddSingleValue(at / key, at / ofColumn->name, property, false);
            } else if (value.is_structured()) {
                if (const BlockKind* named = FindBlockKind(BlockName(key))) MoveBlock(at, key, *named);
            }
        }
    }

    void MoveBlock(const Pointer& at, const std::string& key, const BlockKind& kind) {
        if (Changed(at).contains(kind.name)) return ReportTwice(at / key, kind.name);
        Json value = std::move(Changed(at)[key]);
        Changed(at).erase(key);
        Changed(at)[kind.name] = std::move(value);
        moves_[(at / kind.name).to_string()] = (at / key).to_string();
        LookAtBlock(at / key, at / kind.name, kind);
    }

    /// `from`: where the block stands on the card; `to`: in the tree that is made.
    void LookAtBlock(const Pointer& from, const Pointer& to, const BlockKind& kind) {
        const Json& block = Given(from);
        if (kind.alternatives && block.is_array()) {
            for (std::size_t i = 0; i < block.size(); ++i) LookAtKeys(from / i, to / i, kind);
        } else if (IsSingleValue(block)) {
            if (BlockOfProperty(kind.name) == &kind) AddSingleValue(from, to, kind.name, false);
        } else {
            LookAtKeys(from, to, kind);
        }
    }

    void LookAtKeys(const Pointer& from, const Pointer& to, const BlockKind& kind) {
        const Json& block = Given(from);
        if (!block.is_object() || kind.IsUnread()) return;
        const bool table = block.contains("columns") || block.contains("rows");
        for (const auto& [key, value] : block.items()) {
            if (value.is_structured() || key == "temperature_dependent" || key == "source") continue;
            const std::string property = PropertyName(key);
            const bool setting = IsSetting(kind, key) || IsSetting(kind, property);
            if (setting && property != key && !IsSetting(kind, key)) {
                MoveSetting(from, to, key, property);
            } else if (!setting && !table && IsSingleValue(value) &&
                       (HasColumn(kind, key) || HasColumn(kind, property))) {
                AddSingleValue(from / key, to, HasColumn(kind, key) ? key : property, true);
            }
        }
    }

    void MoveSetting(const Pointer& from, const Pointer& to, const std::string& key,
                     const std::string& setting) {
        Json& block = Changed(to);
        if (block.contains(setting)) return ReportTwice(from / key, setting);
        Json value = std::move(block[key]);
        block.erase(key);
        block[setting] = std::move(value);
        moves_[(to / setting).to_string()] = (from / key).to_string();
    }

    /// Makes the value a column of the table of one row at `to`, inside which it stands or not.
    void AddSingleValue(const Pointer& from, const Pointer& to, const std::string& column, bool inside) {
        const Json value = Given(from);
        if (from != to) Changed(inside ? to : to.parent_pointer()).erase(from.back());
        Json& table = Changed(to);
        const bool made = moves_.contains((to / "rows").to_string());
        if (table.is_object() && !inside && !made) return ReportTwice(from, to.back());
        if (!table.is_object()) table = Json::object();
        if (!table.contains("temperature_dependent")) table["temperature_dependent"] = false;
        const auto parsed = value.is_string()
                                ? ReadLeadingNumber(value.get_ref<const std::string&>())
                                : QuantityResult<NumberAndRest>(NumberAndRest{value.get<double>(), {}});
        const std::string unit(WithoutBlanksAround(parsed->rest));
        Json& columns = table["columns"];
        for (const Json& other : columns) {
            if (ReadColumnHeader(other.get_ref<const std::string&>()).name == column)
                return ReportTwice(from, column);
        }
        columns.push_back(unit.empty() || unit == "-" ? column : column + " [" + unit + "]");
        if (!table.contains("rows")) table["rows"] = Json::array({Json::array()});
        Json& row = table["rows"].front();
        row.push_back(parsed->number);
        const std::string origin = from.to_string();
        if (!inside) moves_.emplace(to.to_string(), origin);
        moves_.emplace((to / "rows").to_string(), origin);
        moves_[(to / "columns" / (columns.size() - 1)).to_string()] = origin;
        moves_[(to / "rows" / std::size_t{0} / (row.size() - 1)).to_string()] = origin;
    }

    static bool IsSetting(const BlockKind& kind, const std::string& name) {
        return std::any_of(kind.settings.begin(), kind.settings.end(),
                           [&](const Setting& setting) { return setting.name == name; });
    }

    void ReportTwice(const Pointer& at, const std::string& name) {
        good_ = false;
        findings_.Add({FindingKind::ERROR,
                       {card_->Name(), card_->Line(at)},
                       "repeated-key",
                       QuotedText(at.back()) + " means " + name + ", which is there already",
                       {"give it once"}});
    }

    std::shared_ptr<const PlacedJson> card_;
    Findings& findings_;
    Json root_;
    PlacedJson::Moves moves_;
    bool good_ = true;
};

}  // namespace

std::shared_ptr<const PlacedJson> UnderHouseNames(std::shared_ptr<const PlacedJson> card,
                                                  Findings& findings) {
    return Renamer(std::move(card), findings).Renamed();
}

}  // namespace zelmat
