#include "zelmat/commands/ReportGathering.h"

#include <utility>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/checks/Checks.h"
#include "zelmat/commands/reports/KeptReport.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/pictures/MaterialPictures.h"
#include "zelmat/pictures/PictureDrawing.h"

namespace zelmat {

namespace {

/// The pictures of one block after the other, so that a data sheet can put them where they belong.
std::vector<ReportPicture> PicturesOf(const Material& material, const UnitChoice& units, Findings& findings) {
    std::vector<ReportPicture> pictures;
    for (const BlockKind& kind : BlockKinds()) {
        const PictureWish wish{.block = kind.name, .oneFit = true};
        for (Picture& picture : MaterialPictures(material, wish, units, findings)) {
            pictures.push_back({.block = kind.name, .picture = std::move(picture)});
        }
    }
    return pictures;
}

/// The tests stand beside the fit, where there is one.
bool HasFits(const Material& material) {
    return !material.fits.empty();
}

}  // namespace

void ReportGathering::Add(GivenContent given) {
    for (Material& material : given.materials) AddMaterial(std::move(material));
    for (LayupCard& card : given.layups) AddLayup(std::move(card));
}

void ReportGathering::AddMaterial(Material material) {
    ReportMaterial& added = content_.materials.emplace_back();
    added.given = std::move(material);
    added.findings = CheckMaterial(added.given);
    added.stored.given = &added.given;
    const Block* fit = ChooseFit(added.given, {}, added.findings);
    MaterialHost host(context_.options.catalogs);
    added.stored = StoreMaterial(host, added.given, fit ? std::vector{fit} : std::vector<const Block*>(),
                                 added.findings);
    for (KeptPart& part : KeptParts(added.given)) {
        ReportFacts& facts = added.further.emplace_back();
        facts.title = std::move(part.title);
        for (KeptLine& line : part.lines)
            facts.facts.push_back({std::move(line.name), std::move(line.value)});
    }
    Findings conversions;  // told by storing already
    added.pictures = PicturesOf(added.given, units_, conversions);
    for (const Finding& finding : conversions.All()) {
        if (finding.code == "not-drawn") added.findings.Add(finding);
    }
    if (HasFits(added.given)) {
        std::erase_if(added.pictures,
                      [](const ReportPicture& picture) { return picture.block == "test_data"; });
    }
    pictures_ += added.pictures.size();
    context_.findings.Add(added.findings);
}

void ReportGathering::AddLayup(LayupCard card) {
    ReportLayup& added = content_.layups.emplace_back();
    added.card = std::move(card);
    added.findings = CheckLayup(added.card);
    added.stack = LayupDrawing(LayupOf(added.card), StackPicture(added.card, units_));
    for (Picture& picture : LayupPictures(added.card, units_, added.findings)) {
        added.pictures.push_back({.block = "layup", .picture = std::move(picture)});
    }
    pictures_ += added.pictures.size() + 1;
    context_.findings.Add(added.findings);
}

bool ReportGathering::Draw(Progress& progress) {
    std::vector<ReportPicture*> all;
    const auto collect = [&](std::vector<ReportPicture>& pictures) {
        for (ReportPicture& picture : pictures) all.push_back(&picture);
    };
    for (ReportMaterial& material : content_.materials) collect(material.pictures);
    for (ReportLayup& layup : content_.layups) collect(layup.pictures);
    std::vector<PictureSheet> sheets;
    sheets.reserve(all.size());
    for (ReportPicture* picture : all) {
        sheets.push_back(
            {.file = "p" + std::to_string(sheets.size()) + ".svg", .pictures = {&picture->picture}});
    }
    auto drawn = DrawSheets(sheets, PictureFormat::SVG, context_.findings, [&](std::size_t count) {
        progress.Tell("drawn", count, all.size(), "pictures");
    });
    if (!drawn) return false;
    for (std::size_t i = 0; i < all.size(); ++i) all[i]->svg = std::move((*drawn)[i]);
    return true;
}

}  // namespace zelmat
