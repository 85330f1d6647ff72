#include <algorithm>
#include <filesystem>
#include <iterator>

#include "zelmat/cards/WriteCard.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/files/ReadText.h"

namespace zelmat {

namespace {

/// Brings cards into another form: all into one text, or each into a file of its own in a folder. A card with
/// a mistake, of form or found by the checks, is not written; of several that go into one text then none.
class Convert final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("CARD", paths_, "Material cards of any form, or documents; - is standard input").Required();
        line.Add("--to", form_, "Form to write").Required().OneOf(CardFormNames());
        DeclareCardReading(line, how_);
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        const CardForm& form = *FindCardForm(form_);
        const std::string& output = context.options.output;
        std::error_code none;  // what is no folder is a file, which the writing of it judges
        if (!output.empty() && output != "-" && std::filesystem::is_directory(output, none)) {
            for (const std::string& path : paths_) ConvertIntoFolder(form, path, output, context);
            return;
        }
        std::vector<Material> all;
        bool good = true;
        for (const std::string& path : paths_) {
            auto cards = ReadGoodCards(path, context);
            good = good && cards.has_value();
            if (cards)
                all.insert(all.end(), std::move_iterator(cards->begin()), std::move_iterator(cards->end()));
        }
        if (!good || !IsRoomFor(form, all.size(), context.findings)) return;
        std::string text = form.write(all, context.findings);
        if (output.empty()) {
            made_.text = std::move(text);
        } else {
            Write(output, text, paths_, context.findings);
        }
    }

    void Print(std::ostream& out) const override { made_.Print(out); }

    nlohmann::ordered_json Json() const override { return made_.Json(form_); }

private:
    static bool IsRoomFor(const CardForm& form, std::size_t materials, Findings& findings) {
        if (form.severalInOne || materials == 1) return true;
        findings.Add(
            {FindingKind::USAGE,
             {"zelmat convert", 0},
             "several-materials",
             "a file of the form " + form.name + " holds one material, not " + std::to_string(materials),
             {"give a folder with --output"}});
        return false;
    }

    /// Nothing when one of the card's materials has a mistake, or an error that the user does not overrule.
    std::optional<std::vector<Material>> ReadGoodCards(const std::string& path,
                                                       CommandContext& context) const {
        Findings own;
        auto cards = ReadGivenMaterials(path, context.options, own, how_);
        bool good = !own.HasErrors();
        for (const Material& card : cards) good = gate_.Passes(card, own) && good;
        context.findings.Add(own);
        return good ? std::optional(std::move(cards)) : std::nullopt;
    }

    void ConvertIntoFolder(const CardForm& form, const std::string& path, const std::string& folder,
                           CommandContext& context) {
        if (const auto cards = ReadGoodCards(path, context)) {
            WriteIntoFolder(form, *cards, path, folder, context.findings);
        }
    }

    void WriteIntoFolder(const CardForm& form, const std::vector<Material>& cards, const std::string& path,
                         const std::string& folder, Findings& findings) {
        const std::string name =
            path == "-" ? std::string("card") : std::filesystem::path(path).stem().string();
        if (form.severalInOne || cards.size() == 1) {
            WriteNew(folder + "/" + name + form.extension, form.write(cards, findings), path, findings);
            return;
        }
        for (std::size_t i = 0; i < cards.size(); ++i) {
            const std::string target = folder + "/" + name + "-" + std::to_string(i + 1) + form.extension;
            WriteNew(target, form.write({cards[i]}, findings), path, findings);
        }
    }

    /// Two cards of one name must not end in one file.
    void WriteNew(const std::string& target, const std::string& text, const std::string& input,
                  Findings& findings) {
        const bool isNew = std::none_of(made_.files.begin(), made_.files.end(),
                                        [&](const WrittenFile& file) { return file.path == target; });
        if (isNew) {
            Write(target, text, {input}, findings);
            return;
        }
        findings.Add({FindingKind::ERROR,
                      {ShownPath(input), 0},
                      "same-file",
                      "another card of this name is in " + target + " already",
                      {"not written"}});
    }

    void Write(const std::string& path, const std::string& text, const std::vector<std::string>& inputs,
               Findings& findings) {
        if (auto file = WriteOutputFile(path, text, inputs, findings))
            made_.files.push_back(std::move(*file));
    }

    std::vector<std::string> paths_;
    std::string form_;
    CardReading how_;
    WriteGate gate_;
    WrittenForm made_;
};

}  // namespace

CommandKind ConvertCommand() {
    return {
        .name = "convert",
        .brief = "bring material cards into another form",
        .text =
            "Bring material cards, or the materials of documents, into another form: JSON, CSV or FCMat.\n"
            "The form of a card is told by its content. Numbers and units are carried as they were\n"
            "written; what the new form cannot hold is listed. A card on which the checks find errors is\n"
            "not written without --keep-going.\n"
            "Without --output the text goes to standard output.",
        .output = "File for the converted cards, or a folder for a file each",
        .make = &MakeCommand<Convert>};
}

}  // namespace zelmat
