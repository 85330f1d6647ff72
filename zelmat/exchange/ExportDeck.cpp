#include "zelmat/exchange/ExportDeck.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "zelmat/properties/LaminateProperty.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Blocks that say how stress or heat follows from strain or temperature: a solver takes one of them for a
/// material. The first that a material has displaces those behind it.
const std::vector<std::vector<std::string>>& RivalLaws() {
    static const std::vector<std::vector<std::string>> rivals = {
        {"user_material MECHANICAL", "hyperelastic", "elastic"},
        {"user_material MECHANICAL", "hyperelastic", "plastic"},
        {"user_material THERMAL", "conductivity"}};
    return rivals;
}

/// Blocks that are on; of alternative fits the one that is wanted.
std::vector<const Block*> SwitchedOn(const Material& material, const FitChoice& fit, DeckNotes& notes,
                                     Findings& findings) {
    std::vector<const Block*> blocks;
    for (const Block& block : material.blocks) {
        if (block.enabled) blocks.push_back(&block);
    }
    const Block* chosen = ChooseFit(material, fit, findings);
    if (chosen) blocks.push_back(chosen);
    if (chosen && material.fits.size() > 1) {
        notes.Changed("of " + CountText(material.fits.size(), "hyperelastic fit") + " the deck holds " +
                      FitName(*chosen));
    }
    if (material.heatGeneration.value_or(false)) {
        notes.Lost("heat_generation: that the material generates heat; no deck of this program says so");
    }
    return blocks;
}

/// The block as the writer gets it. What brings it into the stored meaning is told by the deck, too.
std::optional<Block> Taken(const DeckForm& form, const Material& material, const Block& block,
                           DeckNotes& notes, Findings& findings) {
    const std::string behavior = BehaviorOf(block);
    const CarryRule* rule = FindRule(form.rules, behavior);
    if (!rule || rule->carry == Carry::LOST) {
        notes.LostBehavior(behavior, rule ? rule->remark : form.title + " has nothing like it");
        return std::nullopt;
    }
    Findings own;
    auto used = UsedBlock(material, block, own);
    for (const Finding& finding : own.All()) {
        if (finding.kind == FindingKind::NOTE) {
            notes.Changed(finding.text);
        } else {
            findings.Add(finding);
        }
    }
    return used;
}

bool IsLawOfStress(const Block& block) {
    return block.kind->name == "elastic" || block.kind->name == "hyperelastic" ||
           BehaviorOf(block) == "user_material MECHANICAL";
}

void TellInformation(const Material& material, bool plyCarried, DeckNotes& notes) {
    for (const Block& block : material.information) {
        const bool holdsPly = plyCarried && block.kind->name == "other_properties";
        notes.Changed(holdsPly ? "of " + block.kind->name + " the deck holds the ply constants alone"
                               : block.kind->name + " is for information and not in the deck");
    }
}

void DropRivals(std::vector<Block>& blocks, DeckNotes& notes) {
    const auto find = [&](const std::string& law) {
        return std::find_if(blocks.begin(), blocks.end(), [&](const Block& block) {
            return block.kind->name == law || BehaviorOf(block) == law;
        });
    };
    for (const auto& rivals : RivalLaws()) {
        std::string first;
        for (const std::string& law : rivals) {
            const auto found = find(law);
            if (found == blocks.end()) continue;
            if (!first.empty()) {
                notes.Lost(law + ": a material of the deck has one law of its kind, and that is " + first);
                blocks.erase(found);
            } else {
                first = law;
            }
        }
    }
}

std::vector<Block> CarriedBlocks(const DeckForm& form, const Material& material, const FitChoice& fit,
                                 DeckNotes& notes, Findings& findings) {
    std::vector<Block> blocks;
    for (const Block* block : SwitchedOn(material, fit, notes, findings)) {
        if (auto taken = Taken(form, material, *block, notes, findings)) blocks.push_back(std::move(*taken));
    }
    DropRivals(blocks, notes);
    return blocks;
}

std::optional<PlyMaterial> CarriedPly(const DeckForm& form, const Material& material,
                                      const std::vector<Block>& blocks, DeckNotes& notes) {
    PlyMaterial ply{material.name, PlyConstantsOf(material), {}};
    const CarryRule& rule = *FindRule(form.rules, kPlyConstants);
    const auto law = std::find_if(blocks.begin(), blocks.end(), &IsLawOfStress);
    bool carried = false;
    if (!ply.Constant("E1")) {
        // It has none.
    } else if (rule.carry == Carry::LOST) {
        notes.LostBehavior(kPlyConstants, rule.remark);
    } else if (law != blocks.end()) {
        notes.LostBehavior(kPlyConstants,
                           "a material of the deck has one law of its kind, and that is " + law->kind->name);
    } else {
        carried = true;
    }
    TellInformation(material, carried, notes);
    return carried ? std::optional(std::move(ply)) : std::nullopt;
}

class DeckExport {
public:
    DeckExport(const DeckForm& form, const DeckContent& content, const DeckUnits& units, Findings& findings)
        : form_(form), units_(units), findings_(findings) {
        taken_.insert(form.reserved.begin(), form.reserved.end());
        for (const LayupCard& layup : content.layups) {
            for (const PlyMaterial& ply : layup.materials) plies_.insert(ply.name);
        }
    }

    void Add(const Material& material, const FitChoice& fit) {
        DeckNotes notes;
        const DeckMaterial deck = MakeDeckMaterial(form_, material, fit, taken_, ++number_, notes, findings_);
        TellOutside(deck, notes);
        std::vector<DeckFile> files;
        if (!deck.blocks.empty() || deck.ply) files = form_.write(deck, units_, notes);
        TellConversions(form_, deck, notes);
        notes.Report({material.file, 0}, material.name, findings_);
        if (!files.empty()) {
            if (IsStiff(deck, notes)) stiff_.push_back({material.name, deck.name, PlyConstantsOf(material)});
            Append(std::move(files), Heading(material, deck, notes));
        } else if (form_.writeLayup && plies_.count(material.name) > 0) {
            findings_.Add({FindingKind::NOTE,
                           {material.file, 0},
                           "changed-in-deck",
                           QuotedText(material.name) + " stands in the deck as a ply of its layup alone",
                           {}});
        } else {
            NothingCarried(material.file, material.name);
        }
    }

    void Add(const LayupCard& layup) {
        DeckNotes notes;
        const CarryRule& rule = *FindRule(form_.rules, "layup");
        std::vector<DeckFile> files;
        if (form_.writeLayup) {
            files = form_.writeLayup(Named(layup), units_, notes);
            if (!rule.remark.empty()) notes.Changed("layup: " + rule.remark);
        } else {
            notes.Lost("layup: " + rule.remark);
        }
        notes.Report({layup.file, 0}, layup.name, findings_);
        if (files.empty()) return NothingCarried(layup.file, layup.name);
        std::vector<std::string> lines = {"Layup: " + layup.name, layup.description};
        for (const std::string& source : layup.sources) lines.push_back("source: " + source);
        for (const PlyMaterial& ply : layup.materials) {
            if (!ply.source.empty()) lines.push_back("source of " + ply.name + ": " + ply.source);
        }
        Append(std::move(files), Comments(std::move(lines), notes));
    }

    std::vector<DeckFile> Files() {
        if (findings_.HasErrors()) return {};
        if (!form_.folder && !files_.empty()) {
            files_.front().text.insert(0, form_.before ? form_.before(units_) : "");
            if (form_.after) files_.front().text += form_.after();
        }
        return std::move(files_);
    }

private:
    /// A material of the deck that has a stiffness in it.
    struct StiffMaterial {
        std::string name;
        std::string nameInDeck;
        NamedConstants constants;
    };

    static bool IsStiff(const DeckMaterial& deck, const DeckNotes& notes) {
        return (deck.ply && !notes.HasLost(kPlyConstants)) ||
               (deck.Find("elastic") && !notes.HasLost("elastic"));
    }

    void TellOutside(const DeckMaterial& deck, DeckNotes& notes) {
        const bool any = std::any_of(deck.blocks.begin(), deck.blocks.end(), [](const Block& block) {
            return !block.tables.empty() && block.tables.front().temperatureDependent;
        });
        if (any) {
            notes.Changed("outside a table's temperatures " + form_.title + " takes " +
                          std::string(form_.outside) + ", without a word");
        }
    }

    DeckLayup Named(const LayupCard& layup) {
        DeckLayup deck{layup, DeckName(layup.name, form_.names, taken_), {}, {}};
        for (const PlyMaterial& ply : layup.materials) {
            deck.plies.push_back({DeckName(ply.name, form_.names, taken_), MaterialOf(ply)});
        }
        for (const CardLayer& layer : layup.layers) {
            deck.angleNames.push_back("OR" + std::to_string(AngleNumber(layer.angle)));
        }
        return deck;
    }

    /// The deck's material of that name with the same constants.
    std::optional<std::string> MaterialOf(const PlyMaterial& ply) const {
        const auto found = std::find_if(stiff_.begin(), stiff_.end(), [&](const StiffMaterial& one) {
            return one.name == ply.name && one.constants == ply.constants;
        });
        return found == stiff_.end() ? std::nullopt : std::optional(found->nameInDeck);
    }

    int AngleNumber(double angle) {
        const auto found = std::find(angles_.begin(), angles_.end(), angle);
        if (found == angles_.end()) angles_.push_back(angle);
        return static_cast<int>(std::find(angles_.begin(), angles_.end(), angle) - angles_.begin()) + 1;
    }

    std::string Heading(const Material& material, const DeckMaterial& deck, const DeckNotes& notes) const {
        std::vector<std::string> lines = {"Material: " + material.name, material.description};
        if (!material.materialClass.empty()) lines.push_back("class: " + material.materialClass);
        if (material.illustrative) lines.emplace_back("ILLUSTRATIVE: the values are made up");
        for (const std::string& source : material.sources) lines.push_back("source: " + source);
        for (const Block& block : deck.blocks) {
            for (const Table& table : block.tables) {
                if (!table.source.empty()) {
                    lines.push_back("source of " + block.kind->name + ": " + table.source);
                }
            }
        }
        return Comments(std::move(lines), notes);
    }

    std::string Comments(std::vector<std::string> lines, const DeckNotes& notes) const {
        lines.push_back("units: " + units_.Text());
        lines.push_back("absolute zero of these temperatures: " +
                        WithUnit(units_.AbsoluteZero(), units_.For("temperature").Spelling()));
        for (const DeckNotes::Note& note : notes.All()) lines.push_back(note.code + ": " + note.text);
        std::string comments;
        for (const std::string& line : lines) {
            if (!line.empty()) comments += CommentLines(form_.comment, line);
        }
        return comments;
    }

    void Append(std::vector<DeckFile> files, const std::string& heading) {
        for (DeckFile& file : files) {
            file.text.insert(0, heading);
            if (form_.folder || files_.empty()) {
                files_.push_back(std::move(file));
            } else {
                files_.front().text += file.text;
            }
        }
    }

    void NothingCarried(const std::string& file, const std::string& name) {
        findings_.Add({FindingKind::ERROR,
                       {file, 0},
                       "nothing-carried",
                       "a deck of " + form_.title + " can hold nothing of " + QuotedText(name),
                       {"no deck is written"}});
    }

    const DeckForm& form_;
    const DeckUnits& units_;
    Findings& findings_;
    std::set<std::string> taken_;  // names in the deck, in capital letters
    std::set<std::string> plies_;  // names of the ply materials of all layups
    std::vector<StiffMaterial> stiff_;
    std::vector<double> angles_;  // of layers, in the order of their names
    int number_ = 0;
    std::vector<DeckFile> files_;
};

}  // namespace

DeckMaterial MakeDeckMaterial(const DeckForm& form, const Material& material, const FitChoice& fit,
                              std::set<std::string>& taken, int number, DeckNotes& notes,
                              Findings& findings) {
    DeckMaterial deck{material, DeckName(material.name, form.names, taken), number,
                      CarriedBlocks(form, material, fit, notes, findings)};
    deck.ply = CarriedPly(form, material, deck.blocks, notes);
    return deck;
}

void TellConversions(const DeckForm& form, const DeckMaterial& deck, DeckNotes& notes) {
    for (const Block& block : deck.blocks) {
        const CarryRule& rule = *FindRule(form.rules, BehaviorOf(block));
        if (rule.carry != Carry::CONVERTED || notes.HasLost(rule.behavior)) continue;
        notes.Changed(rule.behavior + " is written as " + rule.as + ": " + rule.remark);
    }
}

void TellInconsistentUnits(const DeckUnits& units, Findings& findings) {
    const auto inconsistent = units.Inconsistent();
    if (inconsistent.empty()) return;
    findings.Add({FindingKind::WARNING,
                  {"--units", 0},
                  "inconsistent-units",
                  "a solver knows no units, and these do not go with " + units.For("stress").Spelling() +
                      " and " + units.For("length").Spelling() + ": " + WordList(inconsistent),
                  {"si, mm-t-s and mm-kg-ms are consistent"}});
}

std::vector<DeckFile> ExportDeck(const DeckForm& form, const DeckContent& content, const DeckUnits& units,
                                 Findings& findings) {
    TellInconsistentUnits(units, findings);
    DeckExport deck(form, content, units, findings);
    for (const Material& material : content.materials) deck.Add(material, content.fit);
    for (const LayupCard& layup : content.layups) deck.Add(layup);
    return deck.Files();
}

}  // namespace zelmat
