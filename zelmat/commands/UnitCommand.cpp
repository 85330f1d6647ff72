#include <algorithm>
#include <optional>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/TablePrinter.h"

namespace zelmat {

namespace {

constexpr const char* kEverything = "all";

void ReportUsage(Findings& findings, const char* place, const char* code, std::string text,
                 std::vector<std::string> details = {}) {
    findings.Add({FindingKind::USAGE, {place, 0}, code, std::move(text), std::move(details)});
}

/// The first quantity of a unit's dimension: with the usual names before rarer ones. Null when there is none.
const Quantity* FirstOfDimension(const Unit& unit) {
    const auto all = Quantities();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Quantity& quantity) {
        return quantity.stored.Dimension() == unit.Dimension();
    });
    return found == all.end() ? nullptr : &*found;
}

/// Of a point of a temperature scale, and of 0 K itself not.
bool IsBelowAbsoluteZero(const Measured& temperature) {
    const auto kelvin = temperature.Stored(*FindQuantity("temperature"));
    return kelvin && *kelvin < 0.0;
}

std::vector<std::string> Names() {
    std::vector<std::string> names = {kEverything};
    for (const Quantity& quantity : Quantities()) names.emplace_back(quantity.name);
    return names;
}

/// Converts one number from its unit to another, or lists the units in which a quantity can be given. It
/// knows no material: whether a number is likely is not its business.
class Units final : public Command {
public:
    void Declare(Arguments& line) override {
        const Argument number = line.Add("NUMBER", number_, "A number with its unit: \"210 GPa\"");
        line.Add("UNIT", unit_, "The unit to convert it to: psi").Needs(number);
        line.Add("--list", list_, "List the units of a quantity, or of all").Excludes(number);
    }

    void Work(CommandContext& context) override {
        if (!list_.empty()) {
            ChooseListed(context.findings);
        } else if (unit_.empty()) {
            ReportUsage(context.findings, "zelmat unit", "usage", "a number and a unit are required",
                        {"as in zelmat unit \"210 GPa\" psi"});
        } else {
            Convert(context.findings);
        }
    }

    void Print(std::ostream& out) const override {
        if (converted_) out << Printable(given_->Text()) << " = " << Printable(converted_->Text()) << '\n';
        if (listed_.empty()) return;
        TablePrinter printer({"quantity", "stored in", "units"});
        for (const std::size_t words : {0u, 1u, 2u}) printer.SetLeft(words);
        for (const Quantity* quantity : listed_) {
            printer.AddRow(
                {std::string(quantity->name), quantity->stored.Spelling(), UnitsThatDo(*quantity)});
        }
        printer.Print(out);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"given", ToJson(given_)}, {"converted", ToJson(converted_)}};
        json["quantities"] = nlohmann::ordered_json::array();
        for (const Quantity* quantity : listed_) {
            nlohmann::ordered_json units = nlohmann::ordered_json::array();
            for (const Unit& unit : quantity->units) units.push_back(unit.Spelling());
            json["quantities"].push_back({{"name", quantity->name},
                                          {"stored_in", quantity->stored.Spelling()},
                                          {"units", std::move(units)}});
        }
        return json;
    }

private:
    static nlohmann::ordered_json ToJson(const std::optional<Measured>& measured) {
        if (!measured) return nullptr;
        return {{"value", measured->number}, {"unit", measured->unit.Spelling()}};
    }

    void ChooseListed(Findings& findings) {
        for (const Quantity& quantity : Quantities()) {
            if (list_ == kEverything || list_ == quantity.name) listed_.push_back(&quantity);
        }
        if (!listed_.empty()) return;
        const std::string nearest = NearestName(list_, Names());
        ReportUsage(
            findings, "--list", "unknown-quantity", "there is no quantity " + QuotedText(list_),
            {nearest.empty() ? "zelmat unit --list all names them" : "did you mean " + nearest + "?"});
    }

    void Convert(Findings& findings) {
        const auto given = ReadMeasured(number_);
        const auto unit = Unit::Read(unit_);
        if (!given) ReportUsage(findings, "NUMBER", "wrong-number", given.Error().text);
        if (!unit) ReportUsage(findings, "UNIT", "wrong-unit", unit.Error().text);
        if (!given || !unit) return;
        if (given->unit.Dimension() != unit->Dimension()) {
            const Quantity* quantity = FirstOfDimension(given->unit);
            ReportUsage(findings, "UNIT", "wrong-unit",
                        given->Text() + " cannot be converted to " + QuotedText(unit_),
                        quantity ? std::vector{"units that would do: " + UnitsThatDo(*quantity)}
                                 : std::vector<std::string>());
            return;
        }
        // By itself, a temperature is a point of its scale.
        const bool isPoint = given->unit.IsScale() || unit->IsScale();
        if (isPoint && IsBelowAbsoluteZero(*given)) {
            ReportUsage(findings, "NUMBER", "below-absolute-zero",
                        given->Text() + " lies below absolute zero",
                        {"0 K is -273.15 degC and -459.67 degF"});
            return;
        }
        const auto value = UnitConversion(given->unit, *unit, isPoint)(given->number);
        if (!value) {
            ReportUsage(findings, "NUMBER", "out-of-range",
                        given->Text() + " is beyond what a number in " + unit->Spelling() + " can hold");
            return;
        }
        given_ = *given;
        converted_ = Measured{*value, *unit};
    }

    std::string number_;
    std::string unit_;
    std::string list_;  // a quantity, or kEverything; empty: nothing is to be listed
    std::optional<Measured> given_;
    std::optional<Measured> converted_;
    std::vector<const Quantity*> listed_;
};

}  // namespace

CommandKind UnitCommand() {
    return {
        .name = "unit",
        .brief = "convert a number from one unit to another, list the units of a quantity",
        .text =
            "Convert a number from one unit to another: zelmat unit \"210 GPa\" psi. A temperature by\n"
            "itself converts with its offset, within a compound as a difference. --list stress names the\n"
            "units of a quantity, --list all those of every quantity.",
        .make = &MakeCommand<Units>};
}

}  // namespace zelmat
