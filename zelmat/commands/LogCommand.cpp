
#include "platform/disk/KORDiskDocument.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/materials/HostPlatform.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"

namespace zelmat {

namespace {

/// The steps that a document keeps. Reads the file and looks at nothing else of it.
class Log final : public Command {
public:
    void Declare(Arguments& line) override { line.Add("DOC", document_, "Document").Required(); }

    void Work(CommandContext& context) override {
        if (IsTextDocumentFile(document_)) {
            context.findings.Add(
                {FindingKind::USAGE,
                 {document_, 0},
                 "text-document",
                 "a document in its text form keeps no steps",
                 {"zelmat upgrade " + document_ + " --output NEW.zeldoc makes one that does"}});
            return;
        }
        HostPlatform host(context.options.catalogs);
        if (!host.OpenCatalog(context.findings)) return;
        KORFileError error;
        const auto file = KORDiskDocument::OpenToRead(host.Platform(), document_, error);
        if (!file) {
            context.findings.Add(UnreadableFile(document_, error, "broken-document"));
            return;
        }
        steps_ = file->Steps();
        read_ = true;
    }

    void Print(std::ostream& out) const override {
        if (!read_) return;
        if (steps_.empty()) {
            out << "no steps are kept\n";
            return;
        }
        TablePrinter printer({"step", "time", "user", "what", "", "command"});
        for (const std::size_t words : {1u, 2u, 3u, 4u, 5u}) printer.SetLeft(words);
        for (const KORHistoryStep& step : steps_) {
            printer.AddRow({std::to_string(step.number), step.time, step.user, step.name,
                            step.done ? "" : "undone", step.command});
        }
        printer.Print(out);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"document", document_}, {"steps", nlohmann::ordered_json::array()}};
        for (const KORHistoryStep& step : steps_) {
            json["steps"].push_back({{"number", step.number},
                                     {"name", step.name},
                                     {"time", step.time},
                                     {"user", step.user},
                                     {"command", step.command},
                                     {"size", {{"value", step.bytes}, {"unit", "byte"}}},
                                     {"done", step.done}});
        }
        return json;
    }

private:
    std::string document_;
    std::vector<KORHistoryStep> steps_;
    bool read_ = false;
};

}  // namespace

CommandKind LogCommand() {
    return {.name = "log",
            .brief = "list the steps that a document keeps: when, who, what",
            .text =
                "List the steps that a document keeps, the oldest first: number, time (UTC), user, what was\n"
                "done and with which command. Those that undo took back are the last and say so. diff takes\n"
                "the numbers: zelmat diff DOC#3 DOC#7.",
            .make = &MakeCommand<Log>};
}

}  // namespace zelmat
