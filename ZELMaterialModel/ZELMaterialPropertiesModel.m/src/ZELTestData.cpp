#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELTestData.h"

#include <memory>

#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELFeatureCopy.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELMaterialConstants.h"
#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELKeyOnce.h"
#include "ZELMaterialModel/include/ZELHyperelastic.h"

namespace {

/// The list of test data on a material's hyperelastic model, as long as this object lives.
class TestDataList {
public:
    explicit TestDataList(KORISpecObject* material) : behavior_(material) {
        if (FAILED(behavior_.GetHyperelasticMaterialModel(model_))) return;
        access_ = KORISpecAttrAccess_var(model_);
        if (access_) key_ = holder_.Resolve(*access_);
    }

    bool IsThere() const { return key_ != nullptr; }
    bool IsOn() {
        unsigned char enabled = 0;
        return SUCCEEDED(behavior_.GetHyperelasticEnabled(enabled)) && enabled != 0;
    }

    /// The listed features; none when the list was never valued.
    KORListValKORISpecObject_var Entries() const {
        const std::unique_ptr<KORListValKORISpecObject_var> entries(access_->GetListOfComponents(key_));
        return entries ? *entries : KORListValKORISpecObject_var();
    }
    void Reset() { access_->RemoveAllValues(key_); }
    void Append(const KORISpecObject_var& entry) {
        access_->AppendComponent(key_, KORBaseUnknown_var(entry).Get());
    }

private:
    ZELHyperelastic behavior_;
    KORISpecObject_var model_;
    KORISpecAttrAccess_var access_;
    ZELKeyOnce holder_{ZELKey::HyperelasticMatModelData};
    KORISpecAttrKey* key_ = nullptr;
};

/// Copies of the features, in their order, in the container of `to`; none when they cannot be copied.
KORListValKORISpecObject_var CopyBeside(KORISpecObject* to, const KORListValKORISpecObject_var& features) {
    const KORICutAndPastable_var source(ZELContainerOf(features[1]));
    const KORICutAndPastable_var target(ZELContainerOf(to));
    return ZELCopyInto(source, target, features);
}

bool SameObject(KORISpecObject* a, KORISpecObject* b) {
    return KORBaseUnknown_var::Of(a) == KORBaseUnknown_var::Of(b);
}

}  // namespace

HRESULT ZELFindTestDataContainer(KORISpecObject* material, KORBaseUnknown_var& container) {
    const TestDataList list(material);
    if (!list.IsThere()) return E_FAIL;
    const KORListValKORISpecObject_var entries = list.Entries();
    if (entries.Size() == 0) return E_FAIL;
    container = ZELContainerOf(entries[1]);
    return container ? S_OK : E_FAIL;
}

HRESULT ZELCarryTestData(KORISpecObject* from, KORISpecObject* to) {
    TestDataList oldList(from);
    TestDataList newList(to);
    if (!oldList.IsThere() || !newList.IsThere()) return E_FAIL;
    const KORListValKORISpecObject_var entries = oldList.Entries();
    if (entries.Size() == 0) return S_OK;
    const bool sameMaterial = SameObject(from, to);
    const bool wanted = newList.IsOn();
    // One material has one list: it is not emptied before the copies are there.
    if (!sameMaterial || !wanted) newList.Reset();
    if (!wanted) return S_OK;
    const KORListValKORISpecObject_var copies = CopyBeside(to, entries);
    if (copies.Size() == 0) return E_FAIL;
    if (sameMaterial) {
        newList.Reset();
    }
    for (int position = 1; position <= copies.Size(); ++position) newList.Append(copies[position]);
    if (!sameMaterial) oldList.Reset();
    return S_OK;
}
