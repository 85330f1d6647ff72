#include "zelmat/materials/CardExtras.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "interfaces/KORIMaterialFeature.h"
#include "zelmat/materials/ExtraBlock.h"
#include "zelmat/materials/ExtraText.h"
#include "zelmat/materials/FeatureValues.h"
#include "zelmat/materials/MergedBlock.h"
#include "zelmat/materials/StoredMeaning.h"

namespace zelmat {

namespace {

constexpr const char* kHung = "ZelmatCard";
constexpr const char* kType = "ZelmatCardLT";

KORISpecObject_var HungOn(KORISpecObject* material) {
    const auto feature = KORIMaterialFeature_var::Of(material);
    return feature ? KORISpecObject_var::Adopt(feature->GetApplicativeFeature(kHung)) : nullptr;
}

const Block* HeldOf(const Material& held, const Block& given) {
    return held.Find(given.kind->name);
}

/// Of a block in another meaning than the stored one nothing can be told from what is stored.
ExtraBlock OfBehavior(const Block& given, const Material& held, ExtraUse use) {
    if (!IsInStoredMeaning(given)) return {.use = use, .whole = true, .block = given, .notGiven = {}};
    const Block* stored = HeldOf(held, given);
    return {
        .use = use, .whole = false, .block = given, .notGiven = stored ? NotGiven(given, *stored) : Values()};
}

std::vector<ExtraBlock> ExtrasOf(const Material& card, const Block* stored, const Material& held) {
    std::vector<ExtraBlock> extras;
    for (const Block& block : card.blocks) extras.push_back(OfBehavior(block, held, ExtraUse::BEHAVIOR));
    for (const Block& fit : card.fits) {
        extras.push_back(&fit == stored
                             ? OfBehavior(fit, held, ExtraUse::STORED_FIT)
                             : ExtraBlock{.use = ExtraUse::FIT, .whole = true, .block = fit, .notGiven = {}});
    }
    for (const Block& block : card.information) {
        extras.push_back({.use = ExtraUse::INFORMATION, .whole = true, .block = block, .notGiven = {}});
    }
    return extras;
}

void WriteHead(const FeatureValues& feature, const Material& card) {
    feature.SetText("Description", card.description);
    feature.SetText("Class", card.materialClass);
    feature.SetText("Sources", TextOfTexts(card.sources));
    feature.SetText("Notes", TextOfTexts(card.notes));
    feature.SetFlag("Illustrative", card.illustrative);
    feature.SetFlag("HeatGenerationGiven", card.heatGeneration.has_value());
    feature.SetText("Kept", TextOfKept(card.kept));
}

void ReadHead(const FeatureValues& feature, Material& read) {
    read.description = feature.Text("Description");
    read.materialClass = feature.Text("Class");
    read.sources = TextsOfText(feature.Text("Sources"));
    read.notes = TextsOfText(feature.Text("Notes"));
    read.illustrative = feature.Flag("Illustrative");
    const bool said = feature.Flag("HeatGenerationGiven") || read.heatGeneration.value_or(false);
    if (!said) read.heatGeneration = std::nullopt;
    read.kept = KeptOfText(feature.Text("Kept"));
}

/// A block of a card that hangs on a material already.
struct HungBlock {
    KORISpecObject_var feature;
    std::optional<ExtraBlock> extra;  ///< nothing: some other program made it
};

std::vector<HungBlock> BlocksOf(const FeatureValues& feature) {
    std::vector<HungBlock> hung;
    for (auto& block : feature.Features("Blocks")) {
        auto extra = ReadExtraBlock(block.Get());
        hung.push_back({std::move(block), std::move(extra)});
    }
    return hung;
}

/// Whether a block stays though the card has no such: its behavior is, or was until now, switched off; or
/// some other program made it.
bool Stays(const HungBlock& hung, const Material& card) {
    const auto& extra = hung.extra;
    if (!extra) return true;
    if (extra->use == ExtraUse::INFORMATION) return false;
    return extra->use == ExtraUse::BEHAVIOR ? !card.Find(extra->block.kind->name) : card.fits.empty();
}

/// Takes the first feature that holds such a block of the card out of `hung`; null when there is none.
KORISpecObject_var TakeSuch(const ExtraBlock& wanted, std::vector<HungBlock>& hung) {
    const auto found = std::find_if(hung.begin(), hung.end(), [&](const HungBlock& each) {
        return each.extra && each.extra->use == wanted.use && each.extra->block.kind == wanted.block.kind;
    });
    if (found == hung.end()) return nullptr;
    KORISpecObject_var feature = found->feature;
    hung.erase(found);
    return feature;
}

/// The feature that hangs on a material for its card, a new one if there is none; null when it cannot be
/// made.
KORISpecObject_var FeatureFor(KORMemoryDocument& document, KORISpecObject* material) {
    const auto hangsOn = KORIMaterialFeature_var::Of(material);
    if (!hangsOn) return nullptr;
    if (auto before = HungOn(material)) return before;
    KORISpecObject_var feature(document.NewPlatformFeature(kType, kType));
    const bool hung = feature && SUCCEEDED(hangsOn->SetApplicativeFeature(kHung, feature.Get()));
    return hung ? feature : KORISpecObject_var();
}

/// With the elastic block first: what a hardening curve means depends on it.
void MergeBehaviors(const std::vector<ExtraBlock>& extras, Material& read) {
    for (Block& block : read.blocks) {
        const auto found = std::find_if(extras.begin(), extras.end(), [&](const ExtraBlock& extra) {
            return extra.use == ExtraUse::BEHAVIOR && extra.block.kind == block.kind;
        });
        if (found != extras.end()) block = Merged(block, *found, read);
    }
}

/// Fits that the document does not use are no card's without one that it does.
void MergeFits(std::vector<ExtraBlock>& extras, Material& read) {
    if (read.fits.empty()) return;
    for (ExtraBlock& extra : extras) {
        if (extra.use == ExtraUse::STORED_FIT) read.fits.front() = Merged(read.fits.front(), extra, read);
        if (extra.use == ExtraUse::FIT) read.fits.push_back(std::move(extra.block));
    }
}

}  // namespace

bool WriteCardExtras(KORMemoryDocument& document, KORISpecObject* material, const Material& card,
                     const Block* stored, const Material& held) {
    const KORISpecObject_var feature = FeatureFor(document, material);
    if (!feature) return false;
    const FeatureValues values(feature.Get());
    WriteHead(values, card);
    std::vector<HungBlock> others = BlocksOf(values);
    std::vector<KORISpecObject_var> blocks;
    for (const HungBlock& hung : others) {
        if (Stays(hung, card)) blocks.push_back(hung.feature);
    }
    std::erase_if(others, [&](const HungBlock& hung) { return Stays(hung, card); });
    for (const ExtraBlock& extra : ExtrasOf(card, stored, held)) {
        if (SaysNothing(extra)) continue;
        blocks.push_back(WriteExtraBlock(document, extra, TakeSuch(extra, others)));
        if (!blocks.back()) return false;
    }
    for (const HungBlock& hung : others) RemoveExtraBlock(document, hung.feature.Get());
    values.SetFeatures("Blocks", blocks);
    return true;
}

void AddCardExtras(KORISpecObject* material, Material& read) {
    const auto feature = HungOn(material);
    if (!feature) return;
    const FeatureValues values(feature.Get());
    ReadHead(values, read);
    std::vector<ExtraBlock> extras;
    for (const auto& hung : values.Features("Blocks")) {
        if (auto extra = ReadExtraBlock(hung.Get())) extras.push_back(std::move(*extra));
    }
    MergeBehaviors(extras, read);
    MergeFits(extras, read);
    for (ExtraBlock& extra : extras) {
        if (extra.use == ExtraUse::INFORMATION) read.information.push_back(std::move(extra.block));
    }
}

}  // namespace zelmat
