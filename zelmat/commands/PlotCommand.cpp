#include <algorithm>
#include <iterator>

#include "zelmat/commands/PictureOutput.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/ChosenUnits.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/PlotInput.h"
#include "zelmat/pictures/ComparedPictures.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/pictures/MaterialPictures.h"
#include "zelmat/pictures/PictureNames.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr const char* kStack = "stack";
constexpr const char* kLaminate = "laminate";

/// Draws what materials and layups hold. Keeps nothing but the pictures.
class Plot final : public Command {
public:
    void Declare(Arguments& line) override {
        given_.Declare(line);
        line.Add("--block", block_,
                 "Only what this block of the card holds: elastic, ...; of a layup: stack or laminate");
        line.Add("--compare", others_,
                 "Draw all materials into one picture for each property, with those of further cards "
                 "and documents")
            .NoneOrMore(compares_);
        line.AddFlag("--keep-script", keepScript_,
                     "Keep gnuplot's script, which holds the data, beside the pictures");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto output = PictureOutputOf(context.options.output, findings);
        const auto units = output ? DrawnUnits(context.options, findings) : std::nullopt;
        if (!units) return;
        const PicturesToWrite pictures = Draw(context, *units);
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
        for (const WrittenFile& file : written_) PrintWrittenLine(out, "drawn", file);
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
    /// The blocks of materials, and those that pictures of layups count as.
    bool IsABlock(Findings& findings) const {
        std::vector<std::string> blocks;
        for (const BlockKind& kind : BlockKinds()) blocks.push_back(kind.name);
        blocks.insert(blocks.end(), {kStack, kLaminate});
        if (block_.empty() || std::find(blocks.begin(), blocks.end(), block_) != blocks.end()) return true;
        findings.Add({FindingKind::USAGE,
                      {"--block", 0},
                      "no-such-block",
                      "there is no block " + block_,
                      {"has: " + WordList(blocks)}});
        return false;
    }
    bool IsOfLayups() const { return block_ == kStack || block_ == kLaminate; }

    PicturesToWrite Draw(CommandContext& context, const UnitChoice& units) const {
        Findings& findings = context.findings;
        PicturesToWrite pictures;
        if (!IsABlock(findings)) return pictures;
        PlotContent content = given_.Read(
            context, {.materials = !IsOfLayups(), .layups = !compares_ && (block_.empty() || IsOfLayups())});
        if (!compares_) return OfEach(content, units, findings);
        for (const std::string& other : others_) {
            auto more = ReadGivenMaterials(other, context.options, findings);
            content.materials.insert(content.materials.end(), std::make_move_iterator(more.begin()),
                                     std::make_move_iterator(more.end()));
        }
        if (findings.HasErrors()) return pictures;
        pictures.drawn = ComparedPictures(content.materials, block_, units, findings);
        return pictures;
    }

    /// Of several materials and layups with their names in front.
    PicturesToWrite OfEach(const PlotContent& content, const UnitChoice& units, Findings& findings) const {
        PicturesToWrite pictures;
        PictureNames names;
        const bool several = content.materials.size() + content.layups.size() > 1;
        const auto nameOf = [&](const std::string& whose, const std::string& name) {
            return names.Take(several ? PlainName(whose) + "-" + name : name);
        };
        const auto add = [&](const std::string& whose, std::vector<Picture> drawn) {
            for (Picture& picture : drawn) {
                picture.name = nameOf(whose, picture.name);
                pictures.drawn.push_back(std::move(picture));
            }
        };
        for (const Material& material : content.materials) {
            add(material.name,
                MaterialPictures(material, {.block = block_, .ranking = true}, units, findings));
        }
        for (const LayupCard& card : content.layups) {
            if (block_ != kLaminate) {
                pictures.ready.push_back({nameOf(card.name, "layup-stack"),
                                          LayupDrawing(LayupOf(card), StackPicture(card, units))});
            }
            if (block_ != kStack) add(card.name, LayupPictures(card, units, findings));
        }
        return pictures;
    }

    PlotInput given_;
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
            "in one picture; of a layup the stack, the stresses of its plies and its stiffness by\n"
            "direction. Needs gnuplot. One file (SVG, PDF or PNG by its ending) holds all pictures below\n"
            "each other, a folder gets an SVG of each.",
        .output = "The picture: FILE.svg, FILE.pdf, FILE.png, or a folder for SVGs",
        .units = true,
        .make = &MakeCommand<Plot>};
}

}  // namespace zelmat
