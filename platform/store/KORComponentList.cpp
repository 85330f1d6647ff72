#include "platform/store/KORComponentList.h"

void KORComponentList::Append(KORBaseUnknown* component) {
    const auto feature = KORISpecObject_var::Of(component);
    const bool isOther = component && !feature;
    // Room first, so that the list is as it was when there is none.
    if (isOther && others_.size() == others_.capacity()) others_.reserve(2 * others_.size() + 1);
    features_.Append(feature);
    if (isOther) others_.emplace_back(Size(), component->MainObject());
}

KORBaseUnknown_var KORComponentList::At(int position) const {
    if (position < 1 || position > Size()) return nullptr;
    if (features_[position]) return KORBaseUnknown_var(features_[position]);
    for (const auto& [at, component] : others_) {
        if (at == position) return component;
    }
    return nullptr;
}

bool KORComponentList::SameAs(const KORComponentList& other) const {
    if (Size() != other.Size() || others_ != other.others_) return false;
    for (int position = 1; position <= Size(); ++position) {
        if (features_[position] != other.features_[position]) return false;
    }
    return true;
}
