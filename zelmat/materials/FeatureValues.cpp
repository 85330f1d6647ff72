#include "zelmat/materials/FeatureValues.h"

#include <algorithm>
#include <memory>

namespace zelmat {

namespace {

bool IsSame(const KORISpecObject_var& a, const KORISpecObject_var& b) {
    return KORBaseUnknown_var::Of(a.Get()).Get() == KORBaseUnknown_var::Of(b.Get()).Get();
}

}  // namespace

KORISpecAttrKey* FeatureValues::Key(const char* name) const {
    return access_ ? access_->GetAttrKey(name) : nullptr;
}

std::string FeatureValues::Text(const char* name) const {
    KORISpecAttrKey* const key = Key(name);
    return key ? std::string(access_->GetString(key, 0).View()) : std::string();
}

bool FeatureValues::Flag(const char* name) const {
    KORISpecAttrKey* const key = Key(name);
    return key && access_->GetBoolean(key, 0);
}

std::optional<std::vector<double>> FeatureValues::Numbers(const char* name) const {
    KORISpecAttrKey* const key = Key(name);
    const std::unique_ptr<KORRawColldouble> list(key ? access_->GetListOfDouble(key) : nullptr);
    if (!list) return std::nullopt;
    return std::vector<double>(list->Data(), list->Data() + list->Size());
}

std::vector<KORISpecObject_var> FeatureValues::Features(const char* name) const {
    KORISpecAttrKey* const key = Key(name);
    const std::unique_ptr<KORListValKORISpecObject_var> list(key ? access_->GetListOfComponents(key)
                                                                 : nullptr);
    std::vector<KORISpecObject_var> features;
    for (int position = 1; list && position <= list->Size(); ++position) {
        if ((*list)[position]) features.push_back((*list)[position]);
    }
    return features;
}

KORISpecObject_var FeatureValues::Feature(const char* name) const {
    KORISpecAttrKey* const key = Key(name);
    if (!key) return nullptr;
    return KORISpecObject_var(KORBaseUnknown_var::Adopt(access_->GetComponent(key, 0)));
}

void FeatureValues::SetText(const char* name, std::string_view text) const {
    if (KORISpecAttrKey* const key = Key(name)) access_->SetString(key, KORUnicodeString(text), 0);
}

void FeatureValues::SetFlag(const char* name, bool flag) const {
    if (KORISpecAttrKey* const key = Key(name)) access_->SetBoolean(key, flag, 0);
}

void FeatureValues::SetNumbers(const char* name, const std::vector<double>& numbers) const {
    KORISpecAttrKey* const key = Key(name);
    if (!key) return;
    KORRawColldouble list;
    std::copy(numbers.begin(), numbers.end(), list.Extend(static_cast<int>(numbers.size())));
    access_->SetListOfDouble(key, list);
}

void FeatureValues::SetFeature(const char* name, KORISpecObject* feature) const {
    if (KORISpecAttrKey* const key = Key(name)) {
        access_->SetComponent(key, KORBaseUnknown_var::Of(feature).Get(), 0);
    }
}

void FeatureValues::Append(const char* name, KORISpecObject* feature) const {
    if (KORISpecAttrKey* const key = Key(name)) {
        access_->AppendComponent(key, KORBaseUnknown_var::Of(feature).Get());
    }
}

void FeatureValues::SetFeatures(const char* name, const std::vector<KORISpecObject_var>& features) const {
    if (std::ranges::equal(Features(name), features, IsSame)) return;
    Empty(name);
    for (const auto& feature : features) Append(name, feature.Get());
}

void FeatureValues::Empty(const char* name) const {
    if (KORISpecAttrKey* const key = Key(name)) access_->RemoveAllValues(key);
}

}  // namespace zelmat
