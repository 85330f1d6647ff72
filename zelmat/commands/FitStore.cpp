#include "zelmat/commands/FitStore.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "zelmat/commands/ChangeReport.h"
#include "zelmat/commands/FitReport.h"
#include "zelmat/commands/OptionNumbers.h"
#include "zelmat/materials/CardExtras.h"
#include "zelmat/materials/MaterialWriter.h"

namespace zelmat {

namespace {

/// The fit as a hyperelastic block in the stored meaning: incompressible, at every temperature.
Block BlockOf(const mechanics::HyperelasticFit& fit) {
    Block block{.kind = FindBlockKind("hyperelastic")};
    block.values.Set("model", std::string(Keyword(fit.model)));
    block.values.Set("order", fit.order);
    block.values.Set("status", std::string("computed"));
    block.values.Set("variant", "fitted to the tests by " + MeasureWord(fit.measure) + " deviations");
    if (fit.deviation.rmsRelative) block.values.Set("rms_relative_deviation", *fit.deviation.rmsRelative);
    Table table = EmptyTable(block.kind->tables.front(), block.values, false);
    for (Column& column : table.columns) {
        const auto found = std::find_if(fit.coefficients.begin(), fit.coefficients.end(),
                                        [&](const auto& each) { return each.name == column.kind.name; });
        column.values = {found != fit.coefficients.end() ? found->value
                                                         : column.kind.whenAbsent.value_or(0.0)};
    }
    block.tables.push_back(std::move(table));
    return block;
}

/// The greatest order that a material holds.
int GreatestOrder() {
    for (const Setting& setting : FindBlockKind("hyperelastic")->settings) {
        if (setting.name == "order") return setting.most;
    }
    return 0;
}

}  // namespace

void FitStore::Declare(CLI::App& line) {
    line.add_flag("--store", wanted_, "Store the fit in the material of the document, as one step");
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
    Findings& findings = context.findings;
    if (fit.order > GreatestOrder()) {
        findings.Add(UsageFinding("--order", "out-of-range",
                                  "a material holds no order " + std::to_string(fit.order),
                                  {"at most " + std::to_string(GreatestOrder())}));
        return false;
    }
    Material now = *before_;
    now.fits.insert(now.fits.begin(), BlockOf(fit));
    if (!gate_.PassesChange(*before_, now, findings)) return false;
    KORISpecObject* const feature = target_->feature.Get();
    Findings answers;
    WriteBlocks(feature, now, {&now.fits.front()}, answers);
    const Material held = ReadHeldMaterial(*target_, document_->Path(), answers);
    findings.Add(answers);
    if (answers.HasErrors()) return false;
    // Analysis data that hang on no material of the platform have no place for more.
    static_cast<void>(WriteCardExtras(document_->Document(), feature, now, &now.fits.front(), held));
    step_->Commit();
    const auto saved = SaveChange(*document_, context);
    if (!saved) return false;
    result.Say("stored", "stored",
               saved->step ? "step " + std::to_string(saved->step->number) + ": " + saved->step->name
                           : "nothing has changed");
    return true;
}

}  // namespace zelmat
