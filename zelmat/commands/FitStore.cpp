#include "zelmat/commands/FitStore.h"

#include <algorithm>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/reports/ChangeReport.h"
#include "zelmat/commands/reports/FittedBlock.h"
#include "zelmat/materials/CardExtras.h"
#include "zelmat/materials/MaterialWriter.h"

namespace zelmat {

namespace {

/// The greatest order that a material holds.
int GreatestOrder() {
    for (const Setting& setting : FindBlockKind("hyperelastic")->settings) {
        if (setting.name == "order") return setting.most;
    }
    return 0;
}

}  // namespace

void FitStore::Declare(Arguments& line) {
    line.AddFlag("--store", wanted_, "Store the fit in the material of the document, as one step");
    gate_.Declare(line);
}

std::optional<Material> FitStore::Open(const std::string& path, const std::string& material,
                                       CommandContext& context) {
    if (material.empty()) {
        context.findings.Add(UsageFinding("--store", "missing-material",
                                          "the material to store it in is missing",
                                          {"zelmat fit DOC MATERIAL --model YEOH --store"}));
        return std::nullopt;
    }
    document_ = DocumentToChange::Open(path, context.options.catalogs, context.findings);
    if (!document_) return std::nullopt;
    target_ = ChosenMaterial(document_->Document(), material, path, context.findings);
    if (!target_) return std::nullopt;
    step_.emplace(document_->Document(), "Store a fit in " + target_->name);
    before_ = ReadDocumentMaterial(*target_, path, context.findings);
    return before_;
}

bool FitStore::Store(const mechanics::HyperelasticFit& fit, CommandContext& context, Result& result) {
    if (fit.order > GreatestOrder()) {
        context.findings.Add(UsageFinding("--order", "out-of-range",
                                          "a material holds no order " + std::to_string(fit.order),
                                          {"at most " + std::to_string(GreatestOrder())}));
        return false;
    }
    Material now = *before_;
    now.fits.insert(now.fits.begin(), BlockOf(fit));
    return Write(now, now.fits.front(), context, result);
}

bool FitStore::Store(const mechanics::HardeningFit& fit, const HardeningCurve& curve, CommandContext& context,
                     Result& result) {
    auto block = BlockOf(fit, curve, *before_, context.findings, result);
    if (!block) return false;
    Material now = *before_;
    const auto later = std::find_if(now.blocks.begin(), now.blocks.end(), [&](const Block& each) {
        return each.kind >= block->kind;
    });  // all are BlockKinds() entries
    const bool there = later != now.blocks.end() && later->kind == block->kind;
    const auto place = there ? later : now.blocks.insert(later, Block());
    *place = std::move(*block);
    return Write(now, *place, context, result);
}

bool FitStore::Write(const Material& now, const Block& changed, CommandContext& context, Result& result) {
    if (!gate_.PassesChange(*before_, now, context.findings)) return false;
    KORISpecObject* const feature = target_->feature.Get();
    Findings answers;
    WriteBlocks(feature, now, {&changed}, answers);
    const Material held = ReadHeldMaterial(*target_, document_->Path(), answers);
    context.findings.Add(answers);
    if (answers.HasErrors()) return false;
    const Block* stored = now.fits.empty() ? nullptr : &now.fits.front();
    // Analysis data that hang on no material of the platform have no place for more.
    static_cast<void>(WriteCardExtras(document_->Document(), feature, now, stored, held));
    step_->Commit();
    const auto saved = SaveChange(*document_, context);
    if (!saved) return false;
    result.Say("stored", "stored", ChangeText(*saved));
    return true;
}

}  // namespace zelmat
