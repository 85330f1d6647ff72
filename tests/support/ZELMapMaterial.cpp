#include "tests/support/ZELMapMaterial.h"

#include "tests/support/ZELMapFeature.h"

namespace {

/// Features of another store hang on nothing.
void Hang(const KORISpecObject_var& feature, KORISpecObject* father) {
    if (auto* mapFeature = dynamic_cast<ZELMapFeature*>(feature.Get())) mapFeature->HangOn(father);
}
void TakeOff(const KORISpecObject_var& feature, KORISpecObject* father) {
    if (auto* mapFeature = dynamic_cast<ZELMapFeature*>(feature.Get())) mapFeature->LetGoOf(father);
}

}  // namespace

KORBaseUnknown* ZELMapMaterial::GetFeatContainer() {
    const ZELVerdict verdict = Calls().Record("GetFeatContainer", Label(), true);
    return verdict == ZELVerdict::Answer ? KORBaseUnknown_var(container_).Detach() : nullptr;
}

KORISpecObject* ZELMapMaterial::GetApplicativeFeature(const KORUnicodeString& name) {
    const ZELVerdict verdict = Calls().Record("GetApplicativeFeature", std::string(name.View()), true);
    const auto found = applicative_.find(std::string(name.View()));
    if (verdict != ZELVerdict::Answer || found == applicative_.end()) return nullptr;
    return KORISpecObject_var(found->second).Detach();
}

HRESULT ZELMapMaterial::SetApplicativeFeature(const KORUnicodeString& name, KORISpecObject* feature) {
    const ZELVerdict verdict = Calls().Record("SetApplicativeFeature", std::string(name.View()), true);
    if (verdict == ZELVerdict::Refuse) return Calls().StatusOf(verdict);
    if (!feature) return E_FAIL;
    KORISpecObject_var& held = applicative_[std::string(name.View())];
    TakeOff(held, this);
    held = feature;
    Hang(held, this);
    return Calls().StatusOf(verdict);
}

HRESULT ZELMapMaterial::RemoveApplicativeFeature(const KORUnicodeString& name) {
    const ZELVerdict verdict = Calls().Record("RemoveApplicativeFeature", std::string(name.View()), true);
    const auto found = applicative_.find(std::string(name.View()));
    if (verdict == ZELVerdict::Refuse) return Calls().StatusOf(verdict);
    if (found == applicative_.end()) return E_FAIL;
    TakeOff(found->second, this);
    applicative_.erase(found);
    return Calls().StatusOf(verdict);
}

KORBaseUnknown* ZELMapMaterial::GetSupport() {
    const ZELVerdict verdict = Calls().Record("GetSupport", Label(), true);
    return verdict == ZELVerdict::Answer ? KORBaseUnknown_var(this).Detach() : nullptr;
}

KORBaseUnknown* ZELMapMaterial::FindApplicative(const KORUnicodeString& name) {
    const ZELVerdict verdict = Calls().Record("FindApplicative", std::string(name.View()), true);
    const auto found = applicative_.find(std::string(name.View()));
    if (verdict != ZELVerdict::Answer || found == applicative_.end()) return nullptr;
    const ZELUnrecorded unrecorded;
    return KORBaseUnknown_var(found->second).Detach();
}

KORDocument* ZELMapMaterial::GetDocument() {
    const ZELVerdict verdict = Calls().Record("GetDocument", Label(), true);
    return verdict == ZELVerdict::Answer && container_ ? container_->GetDocument() : nullptr;
}
