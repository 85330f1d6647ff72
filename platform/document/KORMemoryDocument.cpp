#include "platform/document/KORMemoryDocument.h"

#include "platform/catalog/KORPlatformCatalog.h"

KORMemoryDocument::KORMemoryDocument(KORPlatform& platform)
    : platform_(platform), container_(KORVar<KORMemoryContainer>::Adopt(new KORMemoryContainer(*this))) {}

KORVar<KORMemoryDocument> KORMemoryDocument::New(KORPlatform& platform) {
    return KORVar<KORMemoryDocument>::Adopt(new KORMemoryDocument(platform));
}

KORBaseUnknown* KORMemoryDocument::GetFeatContainer() {
    if (container_) container_->AddRef();
    return container_.Get();
}

KORVar<KORFeature> KORMemoryDocument::NewPlatformFeature(const char* lateType, const KORUnicodeString& name) {
    const KORCatalogType* type = KORPlatformCatalog().Find(KORName::Find(lateType));
    return type && container_ ? container_->NewFeature(type->layout, name) : nullptr;
}

HRESULT KORMemoryDocument::Remove(KORISpecObject* feature) {
    const auto own = KORVar<KORFeature>::Of(feature);
    if (!own || own->StoreDocument() != this || !own->LiesInContainer()) return E_FAIL;
    own->SetContainer(nullptr);
    return S_OK;
}

void KORMemoryDocument::Close() noexcept {
    if (!container_) return;
    container_->ForgetDocument();  // first: it takes no features any more
    CloseStore();
    container_ = nullptr;
}

void* KORMemoryDocument::OwnInterface(KORIID iid) {
    return iid == IID_KORMemoryDocument ? this : KORImplements::OwnInterface(iid);
}
