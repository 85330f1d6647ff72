#include <filesystem>

#include "platform/disk/KORDiskCopy.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// Writes a document anew without the room that removed features left in it.
class Compact final : public Command {
public:
    void Declare(Arguments& line) override { line.Add("DOC", document_, "Document").Required(); }

    void Work(CommandContext& context) override {
        before_ = SizeOf(document_);
        KORFileError error;
        if (KORDiskCopy::Compact(document_, error)) {
            after_ = SizeOf(document_);
            return;
        }
        context.findings.Add(UnreadableFile(document_, error, "broken-document"));
    }

    void Print(std::ostream& out) const override {
        if (after_) out << Printable(document_) << ": " << before_ << " -> " << *after_ << " byte\n";
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"document", document_}, {"before", nullptr}, {"after", nullptr}};
        if (!after_) return json;
        json["before"] = {{"value", before_}, {"unit", "byte"}};
        json["after"] = {{"value", *after_}, {"unit", "byte"}};
        return json;
    }

private:
    static std::uintmax_t SizeOf(const std::string& path) {
        std::error_code none;
        const auto size = std::filesystem::file_size(path, none);
        return none ? 0 : size;
    }

    std::string document_;
    std::uintmax_t before_ = 0;
    std::optional<std::uintmax_t> after_;
};

}  // namespace

CommandKind CompactCommand() {
    return {.name = "compact",
            .brief = "write a document anew without unused room",
            .text =
                "Write a document anew, beside it and then in its place, without the room that removed\n"
                "materials and forgotten steps left in it. The history stays.",
            .make = &MakeCommand<Compact>};
}

}  // namespace zelmat
