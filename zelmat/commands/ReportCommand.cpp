#include <array>
#include <cstdio>

#include "zelmat/commands/PagePrinting.h"
#include "zelmat/commands/ReportChanges.h"
#include "zelmat/commands/ReportGathering.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/ChosenUnits.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/report/ReportPage.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

/// "1.4 MB"
std::string SizeText(std::size_t bytes) {
    constexpr double kMega = 1e6, kKilo = 1e3;
    const bool large = static_cast<double>(bytes) >= kMega;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), large ? "%.1f MB" : "%.0f kB",
                  static_cast<double>(bytes) / (large ? kMega : kKilo));
    return text.data();
}

/// Makes one page of data sheets of everything that it is given.
class Report final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("CARD|DOC", paths_, "Material cards, layup cards, documents").Required();
        line.Add("--title", title_, "Of the page; else what it is given");
        line.Add("--since", since_, "Also list what has changed in the document since its step N")
            .NamedInHelp("N");
        line.Add("--pdf", pdf_, "The same as a PDF on A4, through chromium");
    }

    bool TakesStandardOutput() const override { return pdf_ == "-"; }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const std::string& output = context.options.output;
        if (output.empty() && pdf_.empty()) {
            findings.Add({FindingKind::USAGE,
                          {"--output", 0},
                          "missing-option",
                          "it is not said where the report goes",
                          {"--output FILE.html, --pdf FILE.pdf"}});
            return;
        }
        const auto units = DrawnUnits(context.options, findings);
        if (!units) return;
        if (since_ && (paths_.size() > 1 || !IsDocumentFile(paths_.front()))) {
            findings.Add({FindingKind::USAGE,
                          {"--since", 0},
                          "not-a-document",
                          "changes are told of one document that keeps its steps",
                          {"zelmat report DOC --since N"}});
            return;
        }
        ReportContent content;
        Progress progress(context.notes);
        ReportGathering gathering(context, *units, content);
        if (since_) {
            if (!AddWithChanges(context, *units, content, gathering)) return;
        } else {
            for (std::size_t i = 0; i < paths_.size(); ++i) {
                gathering.Add(paths_[i]);
                progress.Tell("read", i + 1, paths_.size(), "files");
            }
        }
        if (content.materials.empty() && content.layups.empty() && content.changes.empty()) {
            if (!findings.HasErrors()) {
                findings.Add({FindingKind::ERROR,
                              {paths_.front(), 0},
                              "no-materials",
                              "there is nothing to report",
                              {}});
            }
            return;
        }
        content.title = Title(content);
        if (!gathering.Draw(progress)) return;
        Write(ReportPage(content, *units), output, progress, findings);
        materials_ = content.materials.size();
        layups_ = content.layups.size();
        pictures_ = gathering.Pictures();
    }

    void Print(std::ostream& out) const override {
        if (page_) {
            PrintWritten(out, "written", *page_);
            out << CountText(materials_, "material") << ", " << CountText(layups_, "layup") << ", "
                << CountText(pictures_, "picture") << ", " << SizeText(bytes_) << '\n';
        }
        if (printed_) PrintWritten(out, "printed", *printed_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"report", nullptr}, {"pdf", nullptr}};
        if (page_) {
            json["report"] = {
                {"materials", materials_}, {"layups", layups_}, {"pictures", pictures_}, {"bytes", bytes_}};
            AddWritten(json["report"], "file", *page_);
        }
        if (printed_) {
            json["pdf"] = nlohmann::ordered_json::object();
            AddWritten(json["pdf"], "file", *printed_);
        }
        return json;
    }

private:
    /// The document with its changes, read once.
    bool AddWithChanges(CommandContext& context, const UnitChoice& units, ReportContent& content,
                        ReportGathering& gathering) const {
        Findings& findings = context.findings;
        const auto document =
            DocumentToRead::OpenWithSteps(paths_.front(), context.options.catalogs, findings);
        if (!document) return false;
        GivenContent now = ContentOf(*document, findings);
        if (!AddChangesSince(*since_, *document, now.materials, units, content, findings)) return false;
        gathering.Add(std::move(now));
        return true;
    }

    std::string Title(const ReportContent& content) const {
        if (!title_.empty()) return title_;
        if (content.materials.size() + content.layups.size() != 1) return "Material data sheets";
        return content.materials.empty() ? content.layups.front().card.name
                                         : content.materials.front().given.name;
    }

    void Write(const std::string& page, const std::string& output, Progress& progress, Findings& findings) {
        bytes_ = page.size();
        if (!output.empty()) {
            page_ = WriteOutputFile(output, page, paths_, findings);
            if (!page_) return;
        }
        if (pdf_.empty()) return;
        if (const auto pdf = PrintedPage(page, progress, findings))
            printed_ = WriteOutputFile(pdf_, *pdf, paths_, findings);
    }

    std::vector<std::string> paths_;
    std::string title_;  // empty: not said
    std::string pdf_;    // empty: none
    std::optional<std::uint32_t> since_;
    std::size_t materials_ = 0, layups_ = 0, pictures_ = 0, bytes_ = 0;
    std::optional<WrittenFile> page_, printed_;
};

}  // namespace

CommandKind ReportCommand() {
    return {
        .name = "report",
        .brief = "make one page of data sheets of materials and layups",
        .text =
            "Make one HTML page that needs nothing besides: contents, and for every material and layup\n"
            "a data sheet with identity, sources, tables, pictures, derived values and findings. It\n"
            "prints on A4. Of a document --since N also lists what has changed in it since its step N "
            "(zelmat\n"
            "log), value for value. A material with errors has its sheet, too; the command ends with 1 then.",
        .output = "The page: FILE.html",
        .units = true,
        .make = &MakeCommand<Report>};
}

}  // namespace zelmat
