#include "ZELMaterialModel/include/ZELTableBehavior.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTableDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELAttribute.h"
#include "framework/KORDiagnostic.h"

ZELTableBehavior::ZELTableBehavior(KORISpecObject* material, ZELTableDescription& description)
    : description_(&description), material_(material) {
    bound_ = Bind();
}

bool ZELTableBehavior::Bind() {
    if (!material_) {
        KORDiagnosticLine("No material SpecObject !");
        return false;
    }
    const auto access = KORISpecAttrAccess_var::Of(material_.Get());
    if (!access) {
        KORDiagnosticLine("Accessing ZELMaterial failed !");
        return false;
    }
    feature_ = ZELRememberedFeature(
        KORISpecObject_var::Adopt(access->GetSpecObject(description_->component.c_str(), 0)));
    if (!feature_) KORDiagnosticLine(description_->noFeature);
    return true;
}

void ZELTableBehavior::Report(HRESULT status, const char* text) {
    if (FAILED(status)) KORDiagnosticLine(text);
}

HRESULT ZELTableBehavior::StoreEnabled(const unsigned char& enabled) {
    enabled_ = enabled;
    return WriteEnabled();
}

HRESULT ZELTableBehavior::ReadEnabled() {
    return ZELReadField(material_.Get(), description_->enabled, enabled_);
}

HRESULT ZELTableBehavior::WriteEnabled() {
    return ZELSetValue(material_.Get(), description_->enabled, enabled_);
}

HRESULT ZELTableBehavior::GetPropertyDataFile() {
    return ZELGetValue(Feature(), description_->dataFile, DataFile);
}

HRESULT ZELTableBehavior::SetPropertyDataFile() {
    return ZELSetValue(FeatureForWriting(), description_->dataFile, DataFile);
}

HRESULT ZELTableBehavior::GetPropertyTemperatureDependent() {
    return ZELReadField(Feature(), description_->temperatureDependent, TemperatureDependent);
}

HRESULT ZELTableBehavior::SetPropertyTemperatureDependent() {
    return ZELSetValue(FeatureForWriting(), description_->temperatureDependent, TemperatureDependent);
}

HRESULT ZELTableBehavior::StoreTable(const ZELCftArrayZELCftArrayDouble& table) {
    table_ = table;
    return WriteTable();
}

HRESULT ZELTableBehavior::ReadTable() {
    ZELColumnsRead outcome;
    const HRESULT status =
        ZELReadColumns(Feature(), description_->columns, TemperatureDependent != 0, table_, outcome);
    if (outcome == ZELColumnsRead::Consistent) return status;
    KORDiagnosticLine(description_->inconsistent);
    return description_->inconsistentStatus;
}

HRESULT ZELTableBehavior::WriteTable() {
    return ZELWriteColumns(FeatureForWriting(), description_->columns, table_, TemperatureDependent != 0);
}
