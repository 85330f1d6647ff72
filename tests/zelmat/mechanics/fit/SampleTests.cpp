#include "tests/zelmat/mechanics/fit/SampleTests.h"

#include <fstream>
#include <nlohmann/json.hpp>

#include "zelmat/mechanics/hyperelastic/OgdenConvention.h"

using namespace zelmat::mechanics;

namespace {

nlohmann::json Sample(const std::string& card) {
    return nlohmann::json::parse(std::ifstream(ZELMAT_SAMPLES "/" + card + ".json"));
}

}  // namespace

std::vector<TestCurve> SampleCurves(const std::string& card) {
    const auto sample = Sample(card);
    std::vector<TestCurve> curves;
    for (const auto mode : {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR}) {
        TestCurve curve{.mode = mode, .points = {}, .weight = 1.0, .lower = {}, .upper = {}};
        for (const auto& row : sample["test_data"][std::string(Keyword(mode))]["rows"]) {
            curve.points.push_back({row[0].get<double>(), row[1].get<double>()});
        }
        curves.push_back(curve);
    }
    return curves;
}

std::vector<CardFit> SampleFits(const std::string& card) {
    const auto sample = Sample(card);
    std::vector<CardFit> fits;
    for (const auto& fit : sample["hyperelastic"]) {
        const auto model = HyperelasticModelOf(fit["model"].get<std::string>()).value();
        auto coefficients = fit["rows"][0].get<std::vector<double>>();
        if (model == HyperelasticModel::OGDEN) {
            coefficients = ConvertOgden(coefficients, OgdenConvention::MU_BY_ALPHA,
                                        OgdenConvention::TWO_MU_BY_ALPHA_SQUARED);
        }
        fits.push_back({model, fit["order"].get<int>(), coefficients, fit.value("variant", ""),
                        fit["rms_relative_deviation"].get<double>()});
    }
    return fits;
}
