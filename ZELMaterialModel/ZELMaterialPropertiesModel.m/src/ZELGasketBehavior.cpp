#include "ZELMaterialModel/include/ZELGasketBehavior.h"

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeyOnce.h"
#include "framework/KORDiagnostic.h"

ZELGasketBehavior::ZELGasketBehavior(KORISpecObject* material) : material_(material) {
    if (material_) material_->AddRef();
}

ZELGasketBehavior::~ZELGasketBehavior() {
    if (material_) material_->Release();
    for (std::size_t index = 0; index < taken_; ++index) keys_[index]->Release();
}

KORISpecAttrAccess_var ZELGasketBehavior::OpenMaterial() const {
    if (!material_) {
        KORDiagnosticLine("No material SpecObject !");
        return nullptr;
    }
    auto access = KORISpecAttrAccess_var::Of(material_);
    if (!access) KORDiagnosticLine("Accessing ZELMaterial failed !");
    return access;
}

KORBaseUnknown_var ZELGasketBehavior::Held(KORISpecAttrAccess& feature, const KORUnicodeString& name) {
    ZELKeyOnce holder(name);
    KORISpecAttrKey* key = holder.Resolve(feature);
    return key ? KORBaseUnknown_var::Adopt(feature.GetComponent(key, 0)) : KORBaseUnknown_var();
}

const KORISpecAttrAccess_var& ZELGasketBehavior::ForWriting(const ZELRememberedFeature& feature,
                                                            const KORISpecAttrAccess_var& access) {
    static const KORISpecAttrAccess_var none;
    return feature.IsTakenAway() ? none : access;
}

bool ZELGasketBehavior::TakeKey(const KORISpecAttrAccess_var& feature, const KORUnicodeString& name) {
    KORISpecAttrKey* key = feature ? feature->GetAttrKey(name.c_str()) : nullptr;
    if (key) keys_[taken_++] = key;
    return key != nullptr;
}
