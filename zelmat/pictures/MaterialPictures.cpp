#include "zelmat/pictures/MaterialPictures.h"

#include "zelmat/pictures/GasketPictures.h"
#include "zelmat/pictures/HardeningPictures.h"
#include "zelmat/pictures/HyperelasticPictures.h"
#include "zelmat/pictures/PictureNames.h"
#include "zelmat/pictures/PropertyPictures.h"
#include "zelmat/properties/TestCurves.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

/// Collects the pictures of one material.
class Collection {
public:
    Collection(const Material& material, const PictureWish& wish, const UnitChoice& units, Findings& findings)
        : material_(material), wish_(wish), units_(units), findings_(findings) {}

    std::vector<Picture> Take() {
        for (const Block& block : material_.blocks) {
            if (IsWanted(block)) AddBlock(block);
        }
        AddFits();
        AddTests();
        return std::move(pictures_);
    }

private:
    bool IsWanted(const Block& block) const {
        const bool asked = wish_.block.empty() || wish_.block == block.kind->name;
        return asked && block.enabled && block.kind->name != "hyperelastic";
    }

    void Add(Picture picture) {
        picture.name = names_.Take(picture.name);
        pictures_.push_back(std::move(picture));
    }
    void Add(std::vector<Picture> pictures) {
        for (Picture& picture : pictures) Add(std::move(picture));
    }

    void AddRefusal(const Block& block, const std::string& why) {
        findings_.Add({FindingKind::WARNING,
                       {material_.file, block.origin.Line()},
                       "not-drawn",
                       block.kind->name + " of " + QuotedText(material_.name) + " cannot be drawn",
                       {why}});
    }

    void AddBlock(const Block& block) {
        const auto used = UsedBlock(material_, block, findings_);
        if (!used) return;
        if (block.kind->name == "plastic") {
            const auto picture = HardeningPicture(material_, *used, units_);
            if (picture.Ok()) {
                Add(*picture);
            } else {
                AddRefusal(block, picture.Why());
            }
        } else if (block.kind->name == "gasket") {
            Add(GasketPictures(material_, *used, units_));
        } else {
            Add(PropertyPictures(material_, *used, units_));
        }
    }

    void AddFits() {
        if (!wish_.block.empty() && wish_.block != "hyperelastic") return;
        std::vector<Block> used;
        for (const Block* fit : FitsOf(material_)) {
            if (!fit->enabled) continue;
            if (auto block = UsedBlock(material_, *fit, findings_)) used.push_back(std::move(*block));
        }
        for (const Block& fit : used) {
            const auto pictures = ResponsePictures(material_, fit, units_);
            if (pictures.Ok()) {
                Add(*pictures);
            } else {
                AddRefusal(fit, pictures.Why());
            }
            if (wish_.oneFit) break;
        }
        if (used.size() > 1) AddWithBars(FitsPicture(material_, used, units_));
        if (wish_.ranking) AddWithBars(RankingPicture(material_));
    }

    void AddWithBars(Picture picture) {
        if (!picture.bars.empty()) Add(std::move(picture));
    }

    /// The tests alone, where there is no fit beside which they would stand.
    void AddTests() {
        const bool wanted = wish_.block == "test_data" || (wish_.block.empty() && FitsOf(material_).empty());
        const auto tests = wanted ? TestCurvesOf(material_) : std::vector<mechanics::TestCurve>();
        if (tests.empty()) return;
        const ShownQuantity stress("stress", units_);
        Picture picture{.name = "test_data",
                        .title = material_.name,
                        .what = "Test data: nominal stress over stretch",
                        .x = {.title = "stretch"},
                        .y = {.title = "nominal stress", .unit = stress.Unit()},
                        .legend = "mode"};
        for (const mechanics::TestCurve& test : tests) {
            Series series{.label = std::string(Keyword(test.mode)),
                          .style = SeriesStyle::POINTS,
                          .color = picture.series.size()};
            for (const auto& point : test.points) {
                series.points.push_back({point.stretch, stress(point.nominalStress)});
            }
            picture.series.push_back(std::move(series));
        }
        AddTestSource(material_, picture);
        Add(std::move(picture));
    }

    const Material& material_;
    const PictureWish& wish_;
    const UnitChoice& units_;
    Findings& findings_;
    std::vector<Picture> pictures_;
    PictureNames names_;
};

}  // namespace

std::vector<Picture> MaterialPictures(const Material& material, const PictureWish& wish,
                                      const UnitChoice& units, Findings& findings) {
    return Collection(material, wish, units, findings).Take();
}

}  // namespace zelmat
