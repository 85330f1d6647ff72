#include "ZELMaterialModel/include/ZELMaterialElastic.h"

#include <utility>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"
#include "framework/KORError.h"

namespace {

ZELKeySlot columns[] = {ZELKeySlot(ZELKey::YoungData), ZELKeySlot(ZELKey::PoissonData),
                        ZELKeySlot(ZELKey::TemperatureData)};

ZELTableDescription description{
    .component = ZELKey::ZELElastic,
    .enabled = ZELKeySlot(ZELKey::ZELElasticFlag),
    .temperatureDependent = ZELKeySlot(ZELKey::ElasticTemperatureDependent),
    .dataFile = ZELKeySlot(ZELKey::DataFile),
    .columns = columns,
    .noFeature = "No ZELElastic object found !",
    .inconsistent = "The Elastic data is inconsistent !",
    .inconsistentStatus = S_OK,
};

constexpr int kWarning = 2;  ///< level of the error-return service: the data were stored
constexpr int kWarningLine =
    416;  ///< by which callers know this warning; it is not this file's line any more

/// The message key is misspelled in the dialog's message catalog too.
KORInputError* TemperatureIndependenceWarning() {
    return new KORInputError("ZELMaterialPropertiesElasticDlg",
                             "Elastic.TempetarureIndepndent.Warning.Message");
}

}  // namespace

ZELMaterialElastic::ZELMaterialElastic(KORISpecObject* material) : ZELTableBehavior(material, description) {
    if (IsBound()) Report(InitElasticProperties(), "Initialization of ZELElastic failed !");
}

HRESULT ZELMaterialElastic::InitElasticProperties() {
    Report(GetPropertyElasticEnabled(), "Failed to get property elastic enabled");
    Report(GetPropertyTemperatureDependent(), "Can't get property temperature dependent");
    Report(GetPropertyElasticDataArray(), "Failed to read elastic data");
    Report(GetPropertyDataFile(), "Failed to read elastic data");  // the table's text, on purpose
    return S_OK;
}

HRESULT ZELMaterialElastic::SetElasticDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    Table() = rows;
    return SetPropertyElasticDataArray();
}

HRESULT ZELMaterialElastic::SetPropertyElasticDataArray() {
    const bool cut = GetTemperatureDependent() == 0 && Table().size() >= 2;
    if (cut) {
        const ZELCftArrayZELCftArrayDouble firstRow(1, &std::as_const(Table())[0]);
        Table().Kill();
        Table() = firstRow;
    }
    const HRESULT status = WriteTable();
    if (FAILED(status) || !cut || GetElasticEnabled() != 1) return status;
    return KORError::GetReturn(kWarning, TemperatureIndependenceWarning(), nullptr, "ZELMaterialElastic",
                               kWarningLine);
}
