#include <algorithm>

#include "zelmat/cards/CardEdit.h"
#include "zelmat/cards/CardJson.h"
#include "zelmat/commands/MaterialChange.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/materials/CardExtras.h"
#include "zelmat/materials/MaterialWriter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A card of one block, to tell whether two are the same.
std::string TextOf(const Block* block) {
    Material one;
    if (block) one.blocks.push_back(*block);
    return JsonCardText({one});
}

const Block* StoredFit(const Material& material) {
    return material.fits.empty() ? nullptr : &material.fits.front();
}

/// The blocks of a material by now that behaviors have to be given anew.
std::vector<const Block*> ChangedBlocks(const Material& before, const Material& now) {
    std::vector<const Block*> changed;
    for (const Block& block : now.blocks) {
        if (TextOf(&block) != TextOf(before.Find(block.kind->name))) changed.push_back(&block);
    }
    const Block* fit = StoredFit(now);
    if (fit && TextOf(fit) != TextOf(StoredFit(before))) changed.push_back(fit);
    return changed;
}

/// Changes values of one material of a document. All of them or, with a mistake in one, none.
class SetValues final : public MaterialChange {
public:
    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = MaterialChange::Json();
        json["material"] = nullptr;
        if (!Changed().empty()) json["material"] = Changed();
        return json;
    }

protected:
    void DeclareFurther(Arguments& line) override {
        line.Add("KEY=VALUE", changes_, "density=\"7.85 g/cm^3\", plastic=curve.csv, ...").Required();
        DeclareCardReading(line, how_);
        gate_.Declare(line);
    }

    std::string StepName(const DocumentMaterial& material) const override {
        return "Set " + Keys() + " of " + material.name;
    }

    bool Change(KORMemoryDocument& document, const DocumentMaterial& material, Findings& findings) override {
        Findings own;
        const Material before = ReadDocumentMaterial(material, Path(), own);
        CardEdit edit(before, Path(), how_);
        for (const std::string& change : changes_) edit.Set(change, own);
        const auto now = own.HasErrors() ? std::nullopt : edit.Read(own);
        findings.Add(own);
        if (!now) return false;
        if (edit.Switched().empty() && JsonCardText({before}) == JsonCardText({*now})) return true;
        if (!gate_.PassesChange(before, *now, findings)) return false;
        for (const std::string& table : edit.TablesOfOldSource()) {
            findings.Add({FindingKind::NOTE,
                          {Path(), 0},
                          "old-source",
                          "the source of " + table + " stays and told of the old numbers",
                          {table + ".source=... names another, " + table + ".source= takes it away"}});
        }
        Findings answers;
        const bool written = Write(document, material, edit, before, *now, answers);
        findings.Add(answers);
        return written && !answers.HasErrors();
    }

private:
    std::string Keys() const {
        return WordList(changes_,
                        [](const std::string& change) { return change.substr(0, change.find('=')); });
    }

    bool Write(KORMemoryDocument& document, const DocumentMaterial& material, const CardEdit& edit,
               const Material& before, const Material& now, Findings& findings) const {
        KORISpecObject* const feature = material.feature.Get();
        WriteBlocks(feature, now, ChangedBlocks(before, now), findings);
        Findings switching;
        for (const auto& [kind, on] : edit.Switched()) {
            const Block block{.kind = kind, .enabled = on};
            WriteBlocks(feature, now, {&block}, switching);
        }
        const Material held = ReadHeldMaterial(material, Path(), findings);
        const bool hasAll =
            std::all_of(edit.Switched().begin(), edit.Switched().end(),
                        [&](const auto& each) { return !each.second || HasData(held, *each.first); });
        if (hasAll) findings.Add(switching);  // what a behavior without data says of itself tells nobody more
        for (const auto& [kind, on] : edit.Switched()) {
            if (on && !HasData(held, *kind)) {
                findings.Add({FindingKind::ERROR,
                              {Path(), 0},
                              "no-data",
                              kind->name + " of " + material.name + " has no data to be switched on",
                              {"give it some: zelmat set with a number or a table"}});
            }
        }
        if (findings.HasErrors()) return false;
        // Analysis data that hang on no material of the platform have no place for more.
        static_cast<void>(WriteCardExtras(document, feature, now, StoredFit(now), held));
        return true;
    }

    static bool HasData(const Material& held, const BlockKind& kind) {
        const Block* block = held.Find(kind.name);
        return block && block->enabled &&
               std::any_of(block->tables.begin(), block->tables.end(),
                           [](const Table& table) { return table.Rows() > 0; });
    }

    std::vector<std::string> changes_;
    CardReading how_;
    WriteGate gate_;
};

}  // namespace

CommandKind SetCommand() {
    return {.name = "set",
            .brief = "change values of a material of a document",
            .text =
                "Change values of a material of a document, in one step that undo takes back. A value is\n"
                "named as on a card: density=\"7.85 g/cm^3\", elastic.youngs_modulus=205GPa, E=205GPa,\n"
                "thermal_expansion.reference_temperature=20degC, plastic=curve.csv (a whole table from a\n"
                "file with a header line), thermal_expansion.enabled=off, class=metal, heat_generation=on,\n"
                "density.source=\"own test\", other_properties.E1=\"181 GPa\". A number has its unit with "
                "it. One number for a table of\n"
                "several rows is refused. The result is checked; with an error that was not there before,\n"
                "or a value that is refused, nothing changes.",
            .make = &MakeCommand<SetValues>};
}

}  // namespace zelmat
