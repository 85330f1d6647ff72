#include <CLI/CLI.hpp>
#include <optional>

#include "platform/analysis/KORUnitsService.h"
#include "platform/document/KORTextDocument.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/UpgradeReport.h"
#include "zelmat/commands/WrittenReport.h"
#include "zelmat/commands/WrongForm.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/materials/HostPlatform.h"

namespace zelmat {

namespace {

constexpr const char* kPressure = "PRESSURE";

bool ReadDocument(KORTextDocument& text, const std::string& path, Findings& findings) {
    KORFileError error;
    if (text.Read(path, error)) return true;
    findings.Add(UnreadableFile(path, error, "broken-document"));
    return false;
}

/// The units of pressure that there are.
std::vector<std::string> PressureUnits() {
    std::vector<std::string> symbols;
    for (const KORUnit& unit : KORFindUnitType(kPressure)->units) symbols.emplace_back(unit.symbol);
    return symbols;
}

/// False, and a finding, when the document names another unit of pressure than the one that is given.
bool TakePressureUnit(KORUnitsService& units, const std::string& given, const std::string& path,
                      Findings& findings) {
    if (given.empty()) return true;
    const KORUnitType& type = *KORFindUnitType(kPressure);
    const std::string named(units.CurrentUnit(type).symbol);
    if (!units.IsChosen(type) || named == given) return units.SetCurrentUnit(kPressure, given);
    findings.Add({FindingKind::ERROR,
                  {path, 0},
                  "other-pressure-unit",
                  "the document names another unit of pressure than --pressure-unit",
                  {named + ", not " + given}});
    return false;
}

/// Nothing, and a finding, when the document cannot be put there.
std::optional<WrittenFile> WriteDocument(const KORTextDocument& text, const std::string& path,
                                         const std::string& input, Findings& findings) {
    KORFileError error;
    const auto written = text.Write(error);
    if (written) return WriteOutputFile(path, *written, {input}, findings);
    findings.Add(
        {FindingKind::UNREADABLE, {path, 0}, "not-written", "cannot be written: " + error.Sentence(), {}});
    return std::nullopt;
}

/// Reads a document's text form, brings the materials of older releases up to the current one, in one step,
/// and prints what changed. The document on disk stays as it is; the upgraded one goes to another file if
/// asked for, unless the run is refused because it would have to guess.
class Upgrade final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("DOCUMENT.json", document_, "Document in its text form")->required();
        line.add_option("--pressure-unit", pressureUnit_,
                        "Unit of the coefficients in a document that names no unit of pressure")
            ->check(CLI::IsMember(PressureUnits()));
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        HostPlatform host(context.options.catalogs);
        KORTextDocument text(host.Document());
        if (!host.OpenCatalog(findings)) return;
        if (!ReadDocument(text, document_, findings)) {
            NameRightCommand(document_, FileForm::DOCUMENT, findings);
            return;
        }
        KORUnitsService& units = host.Document().Platform().Units();
        if (!TakePressureUnit(units, pressureUnit_, document_, findings)) return;
        report_ = UpgradeMaterials(host.Document(), document_, findings);
        ReportUpgrade(*report_, document_, findings);
        const std::string& output = context.options.output;
        const bool wanted = !output.empty() && !report_->run.refused;
        if (wanted) written_ = WriteDocument(text, output, document_, findings);
    }

    void Print(std::ostream& out) const override {
        if (report_) PrintUpgrade(out, *report_);
        if (written_) PrintWritten(out, "written", *written_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"upgrade", nullptr}, {"written", nullptr}};
        if (report_) json["upgrade"] = ToJson(*report_);
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    std::string document_;      // path of the text form
    std::string pressureUnit_;  // of the coefficients in a document that names none: "MPa"; empty: not given
    std::optional<UpgradeReport> report_;
    std::optional<WrittenFile> written_;
};

}  // namespace

CommandKind UpgradeCommand() {
    return {.name = "upgrade",
            .brief = "bring the materials of an older document up to the current release",
            .text =
                "Bring the materials of an older document up to the current release, in one step, and print\n"
                "what changed on which feature, and each coefficient before and after. The document itself "
                "stays\n"
                "as it is. A run that would have to guess at units is refused.",
            .output = "Write the upgraded document to this file",
            .make = &MakeCommand<Upgrade>};
}

}  // namespace zelmat
