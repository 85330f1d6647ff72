#include "platform/document/KORMemoryContainer.h"

#include "platform/catalog/KORCatalog.h"
#include "platform/document/KORMemoryDocument.h"

KORDocument* KORMemoryContainer::GetDocument() {
    return document_;
}

HRESULT KORMemoryContainer::OpenCatalog(const KORUnicodeString& catalog, const KORUnicodeString&,
                                        KORICatalog_var& opened) {
    auto file = document_ ? document_->Platform().OpenCatalog(catalog.View()) : nullptr;
    if (!file) return E_FAIL;
    opened = KORICatalog_var::Adopt(new KORCatalog(std::move(file)));
    return S_OK;
}

KORVar<KORFeature> KORMemoryContainer::NewFeature(const KORLayoutHandle& layout,
                                                  const KORUnicodeString& name) {
    return document_ ? KORFeature::New(*document_, layout, name, *this) : nullptr;
}
