#pragma once

#include <gtest/gtest.h>

#include "platform/document/KORMemoryDocument.h"

/// A late type with one attribute of every kind, and none by default but the flag and the scalars.
inline KORLayoutHandle KORTestLayout(const char* name = "KORTestLT") {
    const auto key = [](const char* text) { return KORName::Intern(text); };
    std::vector<KORAttribute> attributes;
    attributes.push_back({key("Flag"), KORValue::OfBoolean(true)});
    attributes.push_back({key("Count"), KORValue::OfInteger(7)});
    attributes.push_back({key("Length"), KORValue::OfDouble(1.5)});
    attributes.push_back({key("Text"), KORValue::OfString("")});
    attributes.push_back({key("Numbers"), KORValue(KORAttributeKind::ListOfDoubles)});
    attributes.push_back({key("Other"), KORValue(KORAttributeKind::Component)});
    attributes.push_back({key("Others"), KORValue(KORAttributeKind::ListOfComponents)});
    return std::make_shared<KORLayout>(key(name), std::move(attributes));
}

inline KORRawColldouble KORNumbers(std::initializer_list<double> values) {
    KORRawColldouble list;
    for (const double value : values) list.Append(value);
    return list;
}

/// A late type of features that hang on others, and consist of others.
inline KORLayoutHandle KORHangingLayout() {
    const auto key = [](const char* text) { return KORName::Intern(text); };
    std::vector<KORAttribute> attributes;
    attributes.push_back({key("Father"), KORValue(KORAttributeKind::Component), true});
    attributes.push_back({key("Part"), KORValue(KORAttributeKind::Component)});
    attributes.push_back({key("Parts"), KORValue(KORAttributeKind::ListOfComponents)});
    return std::make_shared<KORLayout>(key("KORHangingLT"), std::move(attributes));
}

inline std::vector<std::uint32_t> KORNumbersOf(const KORListValKORISpecObject_var& features) {
    std::vector<std::uint32_t> numbers;
    for (int position = 1; position <= features.Size(); ++position) {
        numbers.push_back(KORVar<KORFeature>(features[position])->Number());
    }
    return numbers;
}

/// The keys of the attributes above.
class KORTestKeys {
protected:
    const KORName* const flag = KORName::Intern("Flag");
    const KORName* const count = KORName::Intern("Count");
    const KORName* const length = KORName::Intern("Length");
    const KORName* const text = KORName::Intern("Text");
    const KORName* const numbers = KORName::Intern("Numbers");
    const KORName* const other = KORName::Intern("Other");
    const KORName* const others = KORName::Intern("Others");
};

/// An empty document, and the shortest way to features of the late type above.
class KORTestDocument : public testing::Test, protected KORTestKeys {
protected:
    KORVar<KORFeature> NewFeature(const char* name = "Feature") {
        return KORFeature::New(*document, layout, name, *container);
    }

    const KORLayoutHandle layout = KORTestLayout();
    KORPlatform platform{"."};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
    KORBaseUnknown_var container = KORBaseUnknown_var::Adopt(document->GetFeatContainer());
};
