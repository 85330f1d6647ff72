#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELHyperelasticUnits.h"

#include <algorithm>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELShared/ZELDlgUnit.h"

namespace {

/// The factor row as it grows, never wider than the table that it is for: an order is whatever a document
/// says.
class FactorRow {
public:
    explicit FactorRow(int width) : width_(static_cast<std::size_t>(std::max(width, 0))) {}

    FactorRow& Add(double factor, int times = 1) {
        for (int i = 0; i < times && factors_.size() < width_; ++i) factors_.push_back(factor);
        return *this;
    }
    bool IsFull() const { return factors_.size() == width_; }
    std::vector<double> Take() { return std::move(factors_); }

private:
    std::size_t width_;
    std::vector<double> factors_;
};

/// Coefficients of a full polynomial potential; orders outside the table count as 1.
int PolynomialCoefficients(int order) {
    constexpr int kCoefficients[] = {2, 5, 9, 14, 20, 27};
    return order >= 1 && order <= 6 ? kCoefficients[order - 1] : 2;
}

}  // namespace

std::vector<double> ZELHyperelasticUnitFactors(const KORUnicodeString& model, int order,
                                               double pressureFactor, int width) {
    const double F = pressureFactor;
    const double inverse = 1.0 / F;
    FactorRow row(width);
    if (model == ZELKeyword::ARRUDA_BOYCE) {
        row.Add(F).Add(1.0).Add(inverse);
    } else if (model == ZELKeyword::MOONEY_RIVLIN) {
        row.Add(F, 2).Add(inverse);
    } else if (model == ZELKeyword::NEO_HOOKE) {
        row.Add(F).Add(inverse);
    } else if (model == ZELKeyword::OGDEN) {
        for (int pair = 0; pair < order && !row.IsFull(); ++pair) row.Add(F).Add(1.0);
        row.Add(inverse, order);
    } else if (model == ZELKeyword::POLYNOMIAL) {
        row.Add(F, PolynomialCoefficients(order)).Add(inverse, order);
    } else if (model == ZELKeyword::REDUCED_POLYNOMIAL) {
        row.Add(F, order).Add(inverse, order);
    } else if (model == ZELKeyword::VAN_DER_WAALS) {
        row.Add(F).Add(1.0, 3).Add(inverse);
    } else if (model == ZELKeyword::YEOH) {
        row.Add(F, 3).Add(inverse, 3);
    }
    return row.Take();
}

ZELCftArrayZELCftArrayDouble ZELScaleColumns(const ZELCftArrayZELCftArrayDouble& table,
                                             const std::vector<double>& factors) {
    ZELCftArrayZELCftArrayDouble scaled(table);
    for (int row = 0; row < scaled.size(); ++row) {
        const int columns = std::min(scaled[row].size(), static_cast<int>(factors.size()));
        for (int column = 0; column < columns; ++column) {
            scaled[row][column] *= factors[static_cast<std::size_t>(column)];
        }
    }
    return scaled;
}

bool ZELCurrentPressureFactor(double& factor) {
    const ZELDlgUnit pressure(ZELUnit::Pressure);
    const auto parameter = KORIVdxParameter_var::Adopt(pressure.GetParameter());
    if (!parameter) return false;
    const auto magnitude = KORIVdxMagnitude_var::Adopt(parameter->GetMagnitude());
    if (!magnitude) return false;
    const auto unit = KORIVdxUnit_var::Adopt(magnitude->GetCurrentUnit());
    if (!unit) return false;
    factor = unit->ConvertToStored(1.0);
    return true;
}
