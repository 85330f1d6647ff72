#include "ZELMaterialModel/include/ZELGasketElasticBehavior.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELGasketElasticDescription.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELBoundAccess.h"
#include "framework/KORDiagnostic.h"

namespace {

// The keys in the order in which they are resolved; the enabled flag's comes last, after those of the
// columns.
constexpr std::size_t kDataFile = 0;
constexpr std::size_t kTemperatureDependent = 1;
constexpr std::size_t kColumns = 2;

}  // namespace

ZELGasketElasticBehavior::ZELGasketElasticBehavior(KORISpecObject* material,
                                                   const ZELGasketElasticDescription& description)
    : ZELGasketBehavior(material), description_(&description) {
    const KORISpecAttrAccess_var access = OpenMaterial();
    if (access) Bind(*access);
}

void ZELGasketElasticBehavior::Bind(KORISpecAttrAccess& material) {
    const KORBaseUnknown_var held = Held(material, description_->component);
    if (!held) return;
    feature_ = ZELRememberedFeature(KORISpecObject_var(held));
    if (!feature_) KORDiagnosticLine(description_->noFeature);
    access_ = KORISpecAttrAccess_var(held);
    if (!TakeKey(access_, description_->dataFile) || !TakeKey(access_, description_->temperatureDependent))
        return;
    for (const KORUnicodeString* column : description_->columns) {
        if (!TakeKey(access_, *column)) return;
    }
    TakeKey(access_, description_->enabled);
}

std::vector<KORISpecAttrKey*> ZELGasketElasticBehavior::Columns() const {
    std::vector<KORISpecAttrKey*> columns;
    for (std::size_t column = 0; column < description_->columns.size(); ++column) {
        columns.push_back(Key(kColumns + column));
    }
    return columns;
}

HRESULT ZELGasketElasticBehavior::GetFlag(unsigned char& enabled) {
    return ZELGetBound(access_, Key(kColumns + description_->columns.size()), enabled);
}

HRESULT ZELGasketElasticBehavior::SetFlag(const unsigned char& enabled) {
    return ZELSetBound(ForWriting(feature_, access_), Key(kColumns + description_->columns.size()), enabled);
}

HRESULT ZELGasketElasticBehavior::GetDataFile(KORUnicodeString& name) {
    return ZELGetBound(access_, Key(kDataFile), name);
}

HRESULT ZELGasketElasticBehavior::SetDataFile(const KORUnicodeString& name) {
    return ZELSetBound(ForWriting(feature_, access_), Key(kDataFile), name);
}

HRESULT ZELGasketElasticBehavior::GetTempDepFlag(unsigned char& dependent) {
    return ZELGetBound(access_, Key(kTemperatureDependent), dependent);
}

HRESULT ZELGasketElasticBehavior::SetTempDepFlag(const unsigned char& dependent) {
    return ZELSetBound(ForWriting(feature_, access_), Key(kTemperatureDependent), dependent);
}

HRESULT ZELGasketElasticBehavior::GetDataArray(ZELCftArrayZELCftArrayDouble& rows) {
    return ZELGetBoundColumns(access_, Columns(), rows);
}

HRESULT ZELGasketElasticBehavior::SetDataArray(const ZELCftArrayZELCftArrayDouble& rows) {
    return ZELSetBoundColumns(ForWriting(feature_, access_), Columns(), rows);
}
