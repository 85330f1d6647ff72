#include "zelmat/materials/OlderCoefficients.h"

#include <algorithm>

namespace zelmat {

namespace {

const KORName* const kEnabled = KORName::Intern("ZELHyperelasticFlag");
const KORName* const kConverted = KORName::Intern("HyperelasticUnitUpgradeRequired");  // true: it is done
const KORName* const kModelType = KORName::Intern("HyperelasticMatModelType");
const KORName* const kOrder = KORName::Intern("HyperelasticMatModelPotentialOrder");
const KORName* const kTemperatureDependent = KORName::Intern("HyperelasticMatModelTempDependentFlag");
const KORName* const kRows = KORName::Intern("HyperelasticMatModelData");
const KORName* const kRow = KORName::Intern("MaterialModelRowData");

KORVar<KORFeature> PartOf(KORFeature& feature, const char* attribute) {
    return KORVar<KORFeature>(KORISpecObject_var::Adopt(feature.GetSpecObject(attribute, 0)));
}

/// A row without numbers is no row.
std::vector<std::vector<double>> RowsOf(KORFeature& model) {
    std::vector<std::vector<double>> rows;
    for (int position = 1; position <= model.GetListSize(kRows); ++position) {
        const KORVar<KORFeature> row(KORBaseUnknown_var::Adopt(model.GetComponent(kRows, position)));
        const std::unique_ptr<KORRawColldouble> numbers(row ? row->GetListOfDouble(kRow) : nullptr);
        if (!numbers) continue;
        std::vector<double>& read = rows.emplace_back();
        for (int i = 1; i <= numbers->Size(); ++i) read.push_back((*numbers)[i]);
    }
    return rows;
}

}  // namespace

std::size_t OlderCoefficients::Width() const {
    std::size_t width = 0;
    for (const auto& row : rows) width = std::max(width, row.size());
    return width;
}

OlderCoefficients ReadOlderCoefficients(KORFeature& material) {
    OlderCoefficients read;
    const auto hyperelasticity = PartOf(material, "ZELHyperelasticity");
    if (!hyperelasticity) return read;
    read.hyperelasticFeature = hyperelasticity->Number();
    read.enabled = material.GetBoolean(kEnabled, 0);
    read.unconverted =
        hyperelasticity->Layout().Find(kConverted).slot != 0 && !hyperelasticity->GetBoolean(kConverted, 0);
    read.model = hyperelasticity->GetString(kModelType, 0).c_str();
    auto model = PartOf(*hyperelasticity, "HyperelasticModel");
    if (!model) model = PartOf(*hyperelasticity, "HyperelasticModel_v2");
    if (!model) return read;
    read.modelFeature = model->Number();
    read.order = model->GetInteger(kOrder, 0);
    read.temperatureDependent = model->GetBoolean(kTemperatureDependent, 0);
    read.rows = RowsOf(*model);
    return read;
}

}  // namespace zelmat
