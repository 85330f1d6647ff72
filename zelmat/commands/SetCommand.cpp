#include <CLI/CLI.hpp>
#include <algorithm>

#include "zelmat/cards/CardEdit.h"
#include "zelmat/cards/CardJson.h"
#include "zelmat/commands/CardInput.h"
#include "zelmat/commands/ChangeReport.h"
#include "zelmat/commands/Command.h"
#include "zelmat/commands/WriteGate.h"
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
class Set final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("DOC", document_, "Document")->required();
        line.add_option("MATERIAL", wanted_, "Its name, a beginning that no other has, or #number")
            ->required();
        line.add_option("KEY=VALUE", changes_, "density=\"7.85 g/cm^3\", plastic=curve.csv, ...")->required();
        DeclareCardReading(line, how_);
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
        if (!document) return;
        const auto material = ChosenMaterial(document->Document(), wanted_, document_, findings);
        if (!material) return;
        KORStep step(document->Document(), "Set " + Keys() + " of " + material->name);
        if (!Change(document->Document(), *material, findings)) return;
        step.Commit();
        change_ = SaveChange(*document, context);
        material_ = material->name;
    }

    void Print(std::ostream& out) const override {
        if (change_) PrintChange(out, *change_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json;
        AddChange(json, change_);
        json["material"] = nullptr;
        if (change_) json["material"] = material_;
        return json;
    }

private:
    std::string Keys() const {
        return WordList(changes_,
                        [](const std::string& change) { return change.substr(0, change.find('=')); });
    }

    bool Change(KORMemoryDocument& document, const DocumentMaterial& material, Findings& findings) {
        Findings own;
        const Material before = ReadDocumentMaterial(material, document_, own);
        CardEdit edit(before, document_, how_);
        for (const std::string& change : changes_) edit.Set(change, own);
        const auto now = own.HasErrors() ? std::nullopt : edit.Read(own);
        findings.Add(own);
        if (!now) return false;
        if (edit.Switched().empty() && JsonCardText({before}) == JsonCardText({*now})) return true;
        if (!gate_.PassesChange(before, *now, findings)) return false;
        Findings answers;
        const bool written = Write(document, material, edit, before, *now, answers);
        findings.Add(answers);
        return written && !answers.HasErrors();
    }

    bool Write(KORMemoryDocument& document, const DocumentMaterial& material, const CardEdit& edit,
               const Material& before, const Material& now, Findings& findings) const {
        KORISpecObject* const feature = material.feature.Get();
        WriteBlocks(feature, now, ChangedBlocks(before, now), findings);
        for (const auto& [kind, on] : edit.Switched()) {
            const Block block{.kind = kind, .enabled = on};
            WriteBlocks(feature, now, {&block}, findings);
        }
        const Material held = ReadHeldMaterial(material, document_, findings);
        for (const auto& [kind, on] : edit.Switched()) {
            if (on && !HasData(held, *kind)) {
                findings.Add({FindingKind::ERROR,
                              {document_, 0},
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

    std::string document_;
    std::string wanted_;
    std::vector<std::string> changes_;
    CardReading how_;
    WriteGate gate_;
    std::string material_;
    std::optional<SavedChange> change_;
};

}  // namespace

CommandKind SetCommand() {
    return {
        .name = "set",
        .brief = "change values of a material of a document",
        .text =
            "Change values of a material of a document, in one step that undo takes back. A value is\n"
            "named as on a card: density=\"7.85 g/cm^3\", elastic.youngs_modulus=205GPa,\n"
            "thermal_expansion.reference_temperature=20degC, plastic=curve.csv (a whole table from a\n"
            "file with a header line), thermal_expansion.enabled=off, class=metal, heat_generation=on. A\n"
            "number has its unit with it. One number for a table of several rows is refused. The result\n"
            "is checked; with an error that was not there before, or a value that is refused, nothing\n"
            "changes.",
        .make = &MakeCommand<Set>};
}

}  // namespace zelmat
