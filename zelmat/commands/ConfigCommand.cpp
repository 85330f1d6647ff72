#include <set>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/settings/ConfigurationFile.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/TablePrinter.h"

namespace zelmat {

namespace {

/// Shows the user's configuration, and changes it when it is given settings: all of them or none.
class Config final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("NAME=VALUE", changes_, "Settings to change: units=us; without a value: to unset");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        auto settings = file_.Read(findings);
        if (!settings) return;
        for (const std::string& change : changes_) Change(*settings, change, findings);
        if (findings.HasErrors()) return;
        if (!changes_.empty() && !file_.Write(*settings, findings)) return;
        settings_ = *settings;
    }

    void Print(std::ostream& out) const override {
        if (!settings_) return;
        out << "configuration: " << (file_.Path().empty() ? "none" : Printable(file_.Path()))
            << (file_.Exists() ? "" : " (not there)") << '\n';
        for (const UserSetting& kind : UserSettings()) {
            const std::string& value = (*settings_).*kind.value;
            out << kind.name << ": " << (value.empty() ? "not set" : Printable(value)) << '\n';
        }
        out << "\nText shows\n";
        TablePrinter printer({"quantity", "in"});
        for (const std::size_t words : {0u, 1u}) printer.SetLeft(words);
        const UnitChoice units = settings_->TextUnits();
        for (const Quantity& quantity : Quantities()) {
            printer.AddRow({std::string(quantity.name), units.For(quantity).Spelling()});
        }
        printer.Print(out);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"configuration", file_.Path()},
                                       {"settings", nlohmann::ordered_json::object()},
                                       {"text_units", nlohmann::ordered_json::object()}};
        if (!settings_) return json;
        for (const UserSetting& kind : UserSettings()) {
            const std::string& value = (*settings_).*kind.value;
            if (!value.empty()) json["settings"][kind.name] = value;
        }
        const UnitChoice units = settings_->TextUnits();
        for (const Quantity& quantity : Quantities()) {
            json["text_units"][std::string(quantity.name)] = units.For(quantity).Spelling();
        }
        return json;
    }

private:
    void Change(Settings& settings, const std::string& change, Findings& findings) {
        const std::size_t equals = change.find('=');
        const auto refuse = [&](const char* code, std::string text) {
            findings.Add({FindingKind::USAGE, {"zelmat config", 0}, code, std::move(text), {}});
        };
        if (equals == std::string::npos) {
            refuse("usage", QuotedText(change) + " is no setting with a value, as in units=us");
            return;
        }
        if (!names_.insert(change.substr(0, equals)).second) {
            refuse("given-twice", QuotedText(change.substr(0, equals)) + " is given twice");
            return;
        }
        const auto set = Set(settings, change.substr(0, equals), change.substr(equals + 1));
        if (!set) refuse("wrong-setting", set.Error().text);
    }

    std::vector<std::string> changes_;
    std::set<std::string> names_;  // of those that were made
    ConfigurationFile file_;
    std::optional<Settings> settings_;
};

}  // namespace

CommandKind ConfigCommand() {
    return {.name = "config",
            .brief = "show or change your settings",
            .text =
                "Show your settings, or change them: zelmat config units=us; units= takes a setting away.\n"
                "units takes what the option --units of other commands takes, and counts for text only:\n"
                "--json and --csv are SI whatever is set. history-steps and history-bytes (64MB) bound the\n"
                "history of every document that you change from then on, its oldest steps going first;\n"
                "where they are not set, a document keeps what it was told to last, 1000 steps and 64 MB to\n"
                "begin with.",
            .make = &MakeCommand<Config>};
}

}  // namespace zelmat
