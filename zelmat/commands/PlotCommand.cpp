#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <set>

#include "zelmat/commands/ChosenUnits.h"
#include "zelmat/commands/GivenMaterials.h"
#include "zelmat/commands/PictureOutput.h"
#include "zelmat/commands/WrittenReport.h"
#include "zelmat/commands/WrongForm.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/pictures/ComparedPictures.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/pictures/MaterialPictures.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr const char* kStack = "stack";
constexpr const char* kLaminate = "laminate";

/// Draws what materials and layups hold. Keeps nothing but the pictures.
class Plot final : public Command {
public:
    void Declare(CLI::App& line) override {
        given_.Declare(line);
        line.add_option(
            "--block", block_,
            "Only what this block of the card holds: elastic, ...; of a layup: stack or laminate");
        line.add_option("--compare", others_,
                        "Draw all materials into one picture for each property, with those of further cards "
                        "and documents")
            ->expected(0, -1)
            ->trigger_on_parse()
            ->each([this](const std::string&) { compares_ = true; });
        line.add_flag("--keep-script", keepScript_,
                      "Keep gnuplot's script, which holds the data, beside the pictures");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto output = PictureOutputOf(context.options.output, findings);
        const auto units = output ? DrawnUnits(context.options, findings) : std::nullopt;
        if (!units) return;
        const PicturesToWrite pictures = IsLayup() ? OfLayup(*units, findings) : OfMaterials(context, *units);
        if (findings.HasErrors()) return;
        if (pictures.drawn.empty() && pictures.ready.empty()) {
            findings.Add({FindingKind::ERROR,
                          {given_.Path(), 0},
                          "nothing-to-draw",
                          block_.empty() ? "there is nothing in it that depends on something else"
                                         : "there is nothing to draw of " + block_,
                          {}});
            return;
        }
        std::vector<std::string> inputs = others_;
        inputs.push_back(given_.Path());
        written_ = WritePictures(pictures, *output, keepScript_, inputs, findings);
    }

    void Print(std::ostream& out) const override {
        for (const WrittenFile& file : written_) PrintWritten(out, "drawn", file);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json drawn = nlohmann::ordered_json::array();
        for (const WrittenFile& file : written_) {
            nlohmann::ordered_json one = nlohmann::ordered_json::object();
            AddWritten(one, "file", file);
            drawn.push_back(std::move(one));
        }
        return {{"drawn", std::move(drawn)}};
    }

private:
    /// Standard input can be read once: what comes from there is taken for materials.
    bool IsLayup() const {
        if (given_.Path() == "-") return false;
        Findings ignored;
        const auto text = ReadText(given_.Path(), ignored);
        return text && FormOfText(*text) == FileForm::LAYUP_CARD;
    }

    PicturesToWrite OfLayup(const UnitChoice& units, Findings& findings) const {
        PicturesToWrite pictures;
        const auto card = LayupCardReader(findings).Read(given_.Path());
        if (!card || !IsOneOf({kStack, kLaminate}, findings)) return pictures;
        if (block_ != kLaminate) {
            pictures.ready.push_back(
                {"layup-stack", LayupDrawing(LayupOf(*card), StackPicture(*card, units))});
        }
        if (block_ != kStack) pictures.drawn = LayupPictures(*card, units, findings);
        return pictures;
    }

    PicturesToWrite OfMaterials(CommandContext& context, const UnitChoice& units) const {
        Findings& findings = context.findings;
        PicturesToWrite pictures;
        std::vector<std::string> blocks;
        for (const BlockKind& kind : BlockKinds()) blocks.push_back(kind.name);
        if (!IsOneOf(blocks, findings)) return pictures;
        std::vector<Material> materials = given_.ReadAll(context);
        for (const std::string& other : others_) {
            auto more = ReadGivenMaterials(other, context.options, findings);
            materials.insert(materials.end(), std::make_move_iterator(more.begin()),
                             std::make_move_iterator(more.end()));
        }
        if (findings.HasErrors()) return pictures;
        if (compares_) {
            pictures.drawn = ComparedPictures(materials, block_, units, findings);
        } else {
            pictures.drawn = OfEach(materials, units, findings);
        }
        return pictures;
    }

    std::vector<Picture> OfEach(const std::vector<Material>& materials, const UnitChoice& units,
                                Findings& findings) const {
        std::vector<Picture> all;
        std::set<std::string> names;
        for (const Material& material : materials) {
            for (Picture& picture :
                 MaterialPictures(material, {.block = block_, .ranking = true}, units, findings)) {
                if (materials.size() > 1) picture.name = PlainName(material.name) + "-" + picture.name;
                const std::string name = picture.name;
                for (int number = 2; !names.insert(picture.name).second; ++number) {
                    picture.name = name + "-" + std::to_string(number);
                }
                all.push_back(std::move(picture));
            }
        }
        return all;
    }

    bool IsOneOf(const std::vector<std::string>& blocks, Findings& findings) const {
        if (block_.empty() || std::find(blocks.begin(), blocks.end(), block_) != blocks.end()) return true;
        findings.Add({FindingKind::USAGE,
                      {"--block", 0},
                      "no-such-block",
                      "there is no block " + block_,
                      {"has: " + WordList(blocks)}});
        return false;
    }

    GivenMaterials given_;
    std::string block_;                // empty: all
    std::vector<std::string> others_;  // to compare with
    bool compares_ = false;
    bool keepScript_ = false;
    std::vector<WrittenFile> written_;
};

}  // namespace

CommandKind PlotCommand() {
    return {
        .name = "plot",
        .brief = "draw the properties of materials and layups",
        .text =
            "Draw what a card or a document holds: properties over temperature, hardening curves, the\n"
            "response of rubber beside its tests with its stability limits, gaskets, several materials\n"
            "in one picture; of a layup card the stack, the stresses of its plies and its stiffness by\n"
            "direction. Needs gnuplot. One file (SVG, PDF or PNG by its ending) holds all pictures below\n"
            "each other, a folder gets an SVG of each.",
        .output = "The picture: FILE.svg, FILE.pdf, FILE.png, or a folder for SVGs",
        .units = true,
        .make = &MakeCommand<Plot>};
}

}  // namespace zelmat
