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

    /// Two materials may share one model, where that did not lie beside the one that was copied.
    bool IsThatOf(const TestDataList& other) const {
        return KORBaseUnknown_var(model_) == KORBaseUnknown_var(other.model_);
    }
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

/// Copies of the features, in their order, in the container of `to`; none unless all can be copied.
KORListValKORISpecObject_var CopyBeside(KORISpecObject* to, const KORListValKORISpecObject_var& features) {
    return ZELCopyAllInto(KORICutAndPastable_var(ZELContainerOf(to)), features);
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
    const bool shared = newList.IsThatOf(oldList);
    const bool wanted = newList.IsOn();
    // One model has one list: it is not emptied before the copies are there.
    if (!shared || !wanted) newList.Reset();
    if (!wanted) return S_OK;
    const KORListValKORISpecObject_var copies = CopyBeside(to, entries);
    if (copies.Size() == 0) return E_FAIL;
    if (shared) newList.Reset();
    for (int position = 1; position <= copies.Size(); ++position) newList.Append(copies[position]);
    if (!shared) oldList.Reset();
    return S_OK;
}
