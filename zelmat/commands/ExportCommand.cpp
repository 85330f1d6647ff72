#include <algorithm>
#include <filesystem>
#include <iterator>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/exchange/CarryPage.h"
#include "zelmat/exchange/ExportDeck.h"
#include "zelmat/files/OutputFolder.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

std::vector<std::string> FormNames() {
    std::vector<std::string> names;
    for (const DeckForm& form : DeckForms()) names.push_back(form.name);
    return names;
}

/// Writes the materials of cards and documents, and layups of layup cards, as input of a solver.
class Export final : public Command {
public:
    void Declare(Arguments& line) override {
        const Argument page =
            line.AddFlag("--carries", page_, "Print instead what each solver gets, as Markdown");
        line.Add("CARD|DOC", paths_,
                 "Material cards, documents, layup cards; behind one alone, which of its materials or\n"
                 "layups")
            .Excludes(page);
        line.Add("--to", form_, "Solver").OneOf(FormNames()).Excludes(page);
        line.Add("--model", fit_.model, "Hyperelastic model to carry");
        line.Add("--variant", fit_.variant, "Part of the variant of the hyperelastic fit to carry");
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        if (page_) {
            made_.text = CarryPage();
            return;
        }
        if (paths_.empty() || form_.empty()) {
            findings.Add({FindingKind::USAGE,
                          {"zelmat export", 0},
                          "usage",
                          std::string(paths_.empty() ? "CARD|DOC" : "--to") + " is required",
                          {"see zelmat help export"}});
            return;
        }
        const DeckForm& form = *FindDeckForm(form_);
        const auto units = DeckUnits::Read(context.options.units, findings);
        if (!units || !IsRoomForMany(form, context.options.output, findings)) return;
        DeckContent content{{}, {}, fit_};
        const std::string material = TakeMaterialName();
        for (const std::string& path : paths_) Read(path, material, content, context);
        if (findings.HasErrors()) return;
        if (content.materials.empty() && content.layups.empty()) {
            findings.Add({FindingKind::ERROR,
                          {ShownPath(paths_.front()), 0},
                          "nothing-carried",
                          "there is no material and no layup in it",
                          {"no deck is written"}});
            return;
        }
        std::vector<DeckFile> files = ExportDeck(form, content, *units, findings);
        if (files.empty()) return;
        if (context.options.output.empty()) {
            made_.text = std::move(files.front().text);
            return;
        }
        Write(form, files, context.options.output, findings);
    }

    void Print(std::ostream& out) const override { made_.Print(out); }

    nlohmann::ordered_json Json() const override { return made_.Json(form_); }

private:
    static bool IsRoomForMany(const DeckForm& form, const std::string& output, Findings& findings) {
        if (!form.folder || (!output.empty() && output != "-")) return true;
        findings.Add({FindingKind::USAGE,
                      {"--output", 0},
                      "missing-option",
                      "a deck of " + form.title + " is a folder of files",
                      {"give the folder with --output"}});
        return false;
    }

    /// The last of two words or more names a material where it names no file.
    std::string TakeMaterialName() {
        std::error_code none;
        const bool named =
            paths_.size() == 2 && paths_.back() != "-" && !std::filesystem::exists(paths_.back(), none);
        if (!named) return {};
        std::string name = std::move(paths_.back());
        paths_.pop_back();
        return name;
    }

    void Read(const std::string& path, const std::string& wanted, DeckContent& content,
              CommandContext& context) {
        GivenContent given = ReadGiven(path, context.options, context.findings);
        if (context.findings.HasErrors()) return;
        if (!wanted.empty()) KeepOne(given, wanted, path, context.findings);
        for (Material& material : given.materials) {
            if (gate_.Passes(material, context.findings)) content.materials.push_back(std::move(material));
        }
        for (LayupCard& layup : given.layups) content.layups.push_back(std::move(layup));
    }

    /// The material of that name; else the layup that has all of it for its name, with its plies.
    static void KeepOne(GivenContent& given, const std::string& wanted, const std::string& path,
                        Findings& findings) {
        std::erase_if(given.layups, [&](const LayupCard& layup) { return layup.name != wanted; });
        std::vector<std::string> names;
        for (const Material& material : given.materials) names.push_back(material.name);
        const bool isMaterial = std::find(names.begin(), names.end(), wanted) != names.end();
        if (!given.layups.empty() && !isMaterial) return given.materials.clear();
        given.layups.clear();
        const auto chosen = ChooseMaterial(names, wanted, ShownPath(path), findings);
        if (!chosen) return given.materials.clear();
        std::vector<Material> one;
        one.push_back(std::move(given.materials[*chosen]));
        given.materials = std::move(one);
    }

    void Write(const DeckForm& form, const std::vector<DeckFile>& files, const std::string& output,
               Findings& findings) {
        if (form.folder) {
            if (auto written = WriteOutputFolder(output, files, findings)) made_.files = std::move(*written);
        } else if (auto written = WriteOutputFile(output, files.front().text, paths_, findings)) {
            made_.files.push_back(std::move(*written));
        }
    }

    bool page_ = false;  // print what is carried, write nothing
    std::vector<std::string> paths_;
    std::string form_;
    FitChoice fit_;
    WriteGate gate_;
    WrittenForm made_;
};

}  // namespace

CommandKind ExportCommand() {
    return {
        .name = "export",
        .brief = "write materials and layups as input of a solver",
        .text =
            "Write materials and layups as input of a solver, in SI units or those of --units, which the\n"
            "deck names in a comment. Whatever the solver has no place for, or gets in another form, is a\n"
            "finding and a comment in the deck. Without --output the deck goes to standard output.",
        .output = "File for the deck; a folder where the deck is one",
        .units = true,
        .make = &MakeCommand<Export>};
}

}  // namespace zelmat
