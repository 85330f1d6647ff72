
#include "platform/disk/KORDoctor.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

const char* CodeOf(KORDoctorFinding::Kind kind) {
    switch (kind) {
        case KORDoctorFinding::Kind::Integrity:
            return "integrity";
        case KORDoctorFinding::Kind::Table:
            return "broken-table";
        case KORDoctorFinding::Kind::Feature:
            return "broken-feature";
        case KORDoctorFinding::Kind::Reference:
            return "dangling-reference";
        case KORDoctorFinding::Kind::Unlisted:
            return "unlisted-feature";
        case KORDoctorFinding::Kind::History:
            return "broken-history";
    }
    return "damaged";
}

/// Examines documents row by row and tells what is wrong inside. Repairs nothing.
class Doctor final : public Command {
public:
    void Declare(Arguments& line) override { line.Add("DOC", documents_, "Documents").Required(); }

    void Work(CommandContext& context) override {
        for (const std::string& document : documents_) {
            KORFileError error;
            const auto found = KORDoctor::Examine(document, error);
            counts_.push_back(found ? std::optional(found->size()) : std::nullopt);
            if (!found) context.findings.Add(UnreadableFile(document, error, "broken-document"));
            if (!found) continue;
            for (const KORDoctorFinding& one : *found) {
                context.findings.Add({FindingKind::ERROR,
                                      {document, 0},
                                      CodeOf(one.kind),
                                      one.text,
                                      {"a repair would: " + one.repair}});
            }
        }
    }

    void Print(std::ostream& out) const override {
        for (std::size_t at = 0; at < counts_.size(); ++at) {
            if (!counts_[at]) continue;
            out << Printable(documents_[at]) << ": "
                << (*counts_[at] == 0 ? "sound" : CountText(*counts_[at], "fault")) << '\n';
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"documents", nlohmann::ordered_json::array()}};
        for (std::size_t at = 0; at < counts_.size(); ++at) {
            nlohmann::ordered_json one = {{"document", documents_[at]}, {"faults", nullptr}};
            if (counts_[at]) one["faults"] = *counts_[at];
            json["documents"].push_back(std::move(one));
        }
        return json;
    }

private:
    std::vector<std::string> documents_;
    std::vector<std::optional<std::size_t>> counts_;  // of faults; nothing: could not be examined
};

}  // namespace

CommandKind DoctorCommand() {
    return {.name = "doctor",
            .brief = "examine documents for damage",
            .text =
                "Examine documents: the structure of the file, every row of it, references to what is not\n"
                "there, features that nothing leads to. What is wrong is told, with what a repair would do;\n"
                "nothing is changed.",
            .make = &MakeCommand<Doctor>};
}

}  // namespace zelmat
