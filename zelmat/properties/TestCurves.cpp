#include "zelmat/properties/TestCurves.h"

namespace zelmat {

std::vector<mechanics::TestCurve> TestCurvesOf(const Material& material) {
    using mechanics::LoadingMode;
    std::vector<mechanics::TestCurve> curves;
    for (const Block& block : material.information) {
        if (block.kind->name != "test_data") continue;
        for (const auto mode : {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR}) {
            const Table* table = block.Find(std::string(Keyword(mode)));
            if (!table || table->Rows() == 0) continue;
            mechanics::TestCurve curve{.mode = mode, .points = {}, .lower = {}, .upper = {}};
            for (std::size_t row = 0; row < table->Rows(); ++row) {
                curve.points.push_back({.stretch = table->columns[0].values[row],
                                        .nominalStress = table->columns[1].values[row]});
            }
            curves.push_back(std::move(curve));
        }
    }
    return curves;
}

}  // namespace zelmat
