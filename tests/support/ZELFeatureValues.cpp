#include "tests/support/ZELFeatureValues.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/ZELPlatformCalls.h"

namespace {

/// One attribute of one feature, opened for the test.
class Attribute {
public:
    Attribute(const KORISpecObject_var& feature, const char* name) : access_(Access(feature)) {
        if (access_) key_ = access_->GetAttrKey(name);
        if (key_) return;
        ADD_FAILURE() << (feature ? feature->GetType().c_str() : "a null feature") << " has no attribute "
                      << name;
    }
    ~Attribute() {
        if (key_) key_->Release();
    }
    Attribute(const Attribute&) = delete;
    Attribute& operator=(const Attribute&) = delete;

    explicit operator bool() const { return key_ != nullptr; }
    KORISpecAttrAccess* operator->() const { return access_.Get(); }
    KORISpecAttrKey* Key() const { return key_; }

private:
    ZELUnrecorded unrecorded_;
    KORISpecAttrAccess_var access_;
    KORISpecAttrKey* key_ = nullptr;
};

}  // namespace

KORISpecAttrAccess_var Access(KORISpecObject* feature) {
    const ZELUnrecorded unrecorded;
    return KORISpecAttrAccess_var::Of(feature);
}

KORISpecAttrAccess_var Access(const KORISpecObject_var& feature) {
    return Access(feature.Get());
}

void SetFlag(const KORISpecObject_var& feature, const char* name, bool value) {
    if (const Attribute attribute(feature, name); attribute) attribute->SetBoolean(attribute.Key(), value, 0);
}

bool GetFlag(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    return attribute && attribute->GetBoolean(attribute.Key(), 0);
}

void SetNumber(const KORISpecObject_var& feature, const char* name, double value) {
    if (const Attribute attribute(feature, name); attribute) attribute->SetDouble(attribute.Key(), value, 0);
}

double GetNumber(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    return attribute ? attribute->GetDouble(attribute.Key(), 0) : 0.0;
}

void SetWhole(const KORISpecObject_var& feature, const char* name, int value) {
    if (const Attribute attribute(feature, name); attribute) attribute->SetInteger(attribute.Key(), value, 0);
}

int GetWhole(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    return attribute ? attribute->GetInteger(attribute.Key(), 0) : 0;
}

void SetText(const KORISpecObject_var& feature, const char* name, const KORUnicodeString& value) {
    if (const Attribute attribute(feature, name); attribute) attribute->SetString(attribute.Key(), value, 0);
}

std::string GetText(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    return attribute ? std::string(attribute->GetString(attribute.Key(), 0).View()) : std::string();
}

void SetList(const KORISpecObject_var& feature, const char* name, const std::vector<double>& values) {
    KORRawColldouble list;
    for (const double value : values) list.Append(value);
    if (const Attribute attribute(feature, name); attribute)
        attribute->SetListOfDouble(attribute.Key(), list);
}

std::optional<std::vector<double>> List(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    if (!attribute) return std::nullopt;
    const std::unique_ptr<KORRawColldouble> list(attribute->GetListOfDouble(attribute.Key()));
    if (!list) return std::nullopt;
    return Values(*list);
}

void Attach(const KORISpecObject_var& parent, const char* name, const KORISpecObject_var& child) {
    const Attribute attribute(parent, name);
    if (attribute) attribute->SetComponent(attribute.Key(), KORBaseUnknown_var(child).Get(), 0);
}

KORISpecObject_var Component(const KORISpecObject_var& feature, const char* name) {
    const Attribute attribute(feature, name);
    if (!attribute) return nullptr;
    return KORISpecObject_var::Adopt(attribute->GetSpecObject(name, 0));
}

void AppendComponent(const KORISpecObject_var& feature, const char* name, const KORISpecObject_var& entry) {
    const Attribute attribute(feature, name);
    if (attribute) attribute->AppendComponent(attribute.Key(), KORBaseUnknown_var(entry).Get());
}

std::optional<std::vector<KORISpecObject_var>> Components(const KORISpecObject_var& feature,
                                                          const char* name) {
    const Attribute attribute(feature, name);
    if (!attribute) return std::nullopt;
    const std::unique_ptr<KORListValKORISpecObject_var> list(attribute->GetListOfComponents(attribute.Key()));
    if (!list) return std::nullopt;
    std::vector<KORISpecObject_var> entries;
    for (int position = 1; position <= list->Size(); ++position) entries.push_back((*list)[position]);
    return entries;
}

long References(const KORISpecObject_var& feature) {
    return dynamic_cast<KORBaseUnknown&>(*feature).References();
}

KORRawColldouble ListOf(std::initializer_list<double> values) {
    KORRawColldouble list;
    for (const double value : values) list.Append(value);
    return list;
}

std::vector<double> Values(const KORRawColldouble& list) {
    std::vector<double> values;
    for (int position = 1; position <= list.Size(); ++position) values.push_back(list[position]);
    return values;
}
