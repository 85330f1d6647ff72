#include "platform/store/KORStoreDocument.h"

KORStoreDocument::~KORStoreDocument() {
    CloseStore();
}

KORFeatureType& KORStoreDocument::MakeType(const KORLayoutHandle& layout) {
    const std::uint32_t ordinal = layout->Ordinal();
    if (ordinal >= types_.size()) types_.resize(ordinal + 1);
    return *(types_[ordinal] = new KORFeatureType(*this, layout));
}

void KORStoreDocument::DropUndeclaredOf(std::uint32_t number) noexcept {
    // Out of the table first: what its values reference may go with them, with tables of their own.
    const auto dropped = undeclared_.extract(number);
}

void KORStoreDocument::CloseStore() noexcept {
    log_.Drop();
    features_.ForEach([](KORFeature& feature) { feature.AddRef(); });
    features_.ForEach([](KORFeature& feature) { feature.Clear(); });
    features_.ForEach([](KORFeature& feature) { feature.Release(); });
    for (KORFeatureType* type : types_) {
        if (!type) continue;
        type->ForgetDocument(log_.Generation());
        type->Release();
    }
    types_.clear();
    features_ = {};
}
