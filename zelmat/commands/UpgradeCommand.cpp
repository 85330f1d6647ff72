#include <optional>

#include "platform/analysis/KORUnitsService.h"
#include "platform/document/KORTextDocument.h"
#include "zelmat/commands/UpgradeProcesses.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/commands/reports/HistoryOrigin.h"
#include "zelmat/commands/reports/UpgradeReport.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/materials/HostPlatform.h"
#include "zelmat/text/Printable.h"

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

/// Brings the materials of an older document up to the current release, in one step, and prints what changed.
/// A document in a file keeps the step. One in its text form stays as it is; the upgraded one goes to another
/// file if asked for. A run that would have to guess is refused. Of several documents each is a process of
/// its own.
class Upgrade final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DOC", documents_, "Documents, or one in its text form").Required();
        line.AddFlag("--dry-run", dryRun_, "Tell what would change and save nothing");
        line.Add("--pressure-unit", pressureUnit_,
                 "Unit of the coefficients in a document that names no unit of pressure")
            .OneOf(PressureUnits());
    }

    void Work(CommandContext& context) override {
        document_ = documents_.front();
        if (documents_.size() > 1) {
            UpgradeMany(context);
        } else if (IsDocumentFile(document_)) {
            UpgradeFile(context);
        } else {
            UpgradeText(context);
        }
    }

    void Print(std::ostream& out) const override {
        if (report_) PrintUpgrade(out, *report_);
        for (const UpgradedDocument& document : many_) {
            out << Printable(document.path) << ": " << document.result << '\n';
        }
        if (written_) PrintWritten(out, "written", *written_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"upgrade", nullptr}, {"written", nullptr}};
        if (report_) json["upgrade"] = ToJson(*report_);
        for (const UpgradedDocument& document : many_) {
            json["documents"].push_back({{"document", document.path}, {"result", document.result}});
        }
        if (written_) AddWritten(json, "written", *written_);
        return json;
    }

private:
    void UpgradeMany(CommandContext& context) {
        if (!context.options.output.empty()) {
            context.findings.Add({FindingKind::USAGE,
                                  {"zelmat upgrade", 0},
                                  "usage",
                                  "--output takes one document, not " + std::to_string(documents_.size()),
                                  {}});
            return;
        }
        std::vector<std::string> further = {"--catalogs", context.options.catalogs};
        if (dryRun_) further.emplace_back("--dry-run");
        if (!pressureUnit_.empty()) further.insert(further.end(), {"--pressure-unit", pressureUnit_});
        many_ = UpgradeDocuments(documents_, further, context);
    }

    void UpgradeFile(CommandContext& context) {
        if (!context.options.output.empty()) {
            context.findings.Add({FindingKind::USAGE,
                                  {document_, 0},
                                  "usage",
                                  "a document is upgraded in place; copy it first to keep the older one",
                                  {}});
            return;
        }
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, context.findings);
        if (!document) return;
        report_ = document->Upgrade();
        const bool changed = !report_->run.upgraded.empty();
        if (dryRun_ || !changed) return;
        if (document->Save(OriginOf(context), context.findings)) written_ = WrittenFile{document_, {}};
    }

    void UpgradeText(CommandContext& context) {
        Findings& findings = context.findings;
        const std::string& output = context.options.output;
        const bool file = IsDocumentName(output) && !dryRun_;
        // Made first: with a file in the way nothing is to be done.
        const auto made =
            file ? DocumentToChange::Create(output, context.options.catalogs, findings) : nullptr;
        if (file && !made) return;
        std::optional<HostPlatform> host;
        if (!made) host.emplace(context.options.catalogs);
        if (host && !host->OpenCatalog(findings)) return;
        KORMemoryDocument& document = made ? made->Document() : host->Document();
        KORTextDocument text(document);
        if (!ReadDocument(text, document_, findings)) {
            NameRightCommand(document_, FileForm::DOCUMENT, findings);
            return;
        }
        if (!TakePressureUnit(document.Platform().Units(), pressureUnit_, document_, findings)) return;
        {
            std::optional<KeptPressureUnit> kept;
            if (made) kept.emplace(document);
            report_ = UpgradeMaterials(document, document_, findings);
        }
        ReportUpgrade(*report_, document_, findings);
        if (output.empty() || report_->run.refused || dryRun_) return;
        if (!made) {
            written_ = WriteDocument(text, output, document_, findings);
        } else if (made->Save(OriginOf(context), findings)) {
            written_ = WrittenFile{output, {}};
        }
    }

    std::vector<std::string> documents_;
    bool dryRun_ = false;
    std::vector<UpgradedDocument> many_;
    std::string document_;      // path
    std::string pressureUnit_;  // of the coefficients in a document that names none: "MPa"; empty: not given
    std::optional<UpgradeReport> report_;
    std::optional<WrittenFile> written_;
};

}  // namespace

CommandKind UpgradeCommand() {
    return {
        .name = "upgrade",
        .brief = "bring the materials of an older document up to the current release",
        .text =
            "Bring the materials of older documents up to the current release, in one step each, and print\n"
            "what changed on which feature, and each coefficient before and after. A document in a file\n"
            "keeps the step, which undo takes back; of several documents each is a process of its own and\n"
            "has one line. A document in its text form stays as it is; --output writes the upgraded one,\n"
            "as a document in a file where the name ends in .zeldoc. --dry-run saves nothing. A run that\n"
            "would have to guess at units is refused.",
        .output = "Write the upgraded document to this file",
        .make = &MakeCommand<Upgrade>};
}

}  // namespace zelmat
