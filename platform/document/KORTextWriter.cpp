#include "platform/document/KORTextWriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

std::string NumberText(double number) {
    if (std::isnan(number)) return "\"NaN\"";
    if (std::isinf(number)) return number > 0 ? "\"Infinity\"" : "\"-Infinity\"";
    if (number == 0.0 && std::signbit(number)) return "-0.0";  // "-0" would be read as a whole number
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return {text, end};
}

/// The text of a number whose kind no late type declares: one that reads as a whole number gets a fraction,
/// or a reader would take it for an integer.
std::string UndeclaredNumberText(double number) {
    const std::string text = NumberText(number);
    const bool whole = text.find_first_not_of("-0123456789") == std::string::npos;
    return whole && std::fabs(number) <= std::numeric_limits<int>::max() ? text + ".0" : text;
}

/// "[a, b, c]"
template <class Range>
std::string Joined(const Range& texts) {
    std::string joined = "[";
    for (const std::string& text : texts) joined += (joined.size() > 1 ? ", " : "") + text;
    return joined + "]";
}

}  // namespace

std::optional<std::string> KORTextWriter::Write(KORFileError& error) {
    CollectFeatures();
    WriteHead();
    for (const auto& feature : features_) WriteFeature(*feature);
    text_ += features_.empty() ? "]\n}\n" : "\n  ]\n}\n";
    if (!error_) return text_;
    error = *error_;
    return std::nullopt;
}

void KORTextWriter::CollectFeatures() {
    KORFeaturePlaces seen(document_.FeatureCount());
    const auto take = [&](KORFeature* feature) {
        if (feature && feature->StoreDocument() == &document_ && seen.Add(feature, 0))
            features_.emplace_back(feature);
    };
    document_.ForEachFeature(nullptr, [&](KORFeature& feature) { take(&feature); });
    for (std::size_t next = 0; next < features_.size(); ++next) {
        const KORVar<KORFeature> feature = features_[next];
        feature->ForEachComponent(
            [&](KORBaseUnknown& component) { take(KORVar<KORFeature>::Of(&component).Get()); });
        take(KORVar<KORFeature>(KORISpecObject_var::Adopt(feature->GetFather())).Get());
    }
    std::ranges::sort(features_, {}, [](const auto& feature) { return feature->Number(); });
    for (std::uint32_t index = 0; index < features_.size(); ++index) {
        ids_.Add(features_[index].Get(), index + 1);
    }
}

void KORTextWriter::WriteHead() {
    const KORUnitType& pressure = *KORFindUnitType("PRESSURE");
    std::vector<std::string> catalogs;
    for (const auto& catalog : document_.Catalogs().Catalogs()) catalogs.push_back(Quoted(catalog.name));
    std::vector<std::string> containers;
    for (const std::string& name : document_.ContainerNames()) {
        containers.push_back(Quoted(name));
        const KORBaseUnknown_var container(document_.AddContainer(name));
        containers_.emplace(container.Get(), containers.back());
    }
    text_ = "{\n  \"format\": 1,\n  \"catalogs\": " + Joined(catalogs) +
            ",\n  \"pressure_unit\": " + Quoted(document_.Platform().Units().CurrentUnit(pressure).symbol) +
            ",\n  \"containers\": " + Joined(containers) + ",\n  \"features\": [";
}

void KORTextWriter::WriteFeature(const KORFeature& feature) {
    const std::uint32_t id = *ids_.Find(&feature);
    text_ += (id > 1 ? ",\n" : "\n") + std::string("    {\"id\": ") + std::to_string(id) +
             ", \"type\": " + Quoted(feature.Layout().NameText().View());
    const KORValue& name = feature.At(KORLayout::kName);
    if (name.State() == KORValueState::Valued) text_ += ", \"name\": " + Quoted(name.String().View());
    const KORValue& alias = feature.At(KORLayout::kAlias);
    if (alias.State() == KORValueState::Valued) text_ += ", \"alias\": " + Quoted(alias.String().View());
    WriteContainer(feature);
    const std::vector<std::string> attributes = AttributesOf(feature);
    if (!attributes.empty()) {
        text_ += ",\n     \"attributes\": {";
        const char* separator = "\n       ";
        for (const std::string& attribute : attributes) {
            text_ += separator + attribute;
            separator = ",\n       ";
        }
        text_ += "\n     }";
    }
    text_ += "}";
}

void KORTextWriter::WriteContainer(const KORFeature& feature) {
    const KORBaseUnknown* container = feature.At(KORLayout::kContainer).Component();
    if (!container) {
        text_ += ", \"container\": null";
    } else if (const auto name = containers_.find(container); name != containers_.end()) {
        text_ += ", \"container\": " + name->second;
    }
}

std::vector<std::string> KORTextWriter::AttributesOf(const KORFeature& feature) {
    std::vector<std::string> attributes;
    const auto add = [&](std::string_view name, const std::string& text) {
        attributes.push_back(Quoted(name) + ": " + text);
    };
    KORSlot slot = KORLayout::kFirstAttribute;
    for (const KORAttribute& attribute : feature.Layout().Attributes()) {
        const KORValue& value = feature.At(slot++);
        if (value.SameAs(attribute.initial)) continue;
        add(attribute.name->Text(), ValueText(feature, attribute.name->Text(), value));
    }
    std::vector<std::pair<KORUnicodeString, KORValue>> undeclared;
    feature.ForEachUndeclared(
        [&](const KORUnicodeString& name, const KORValue& value) { undeclared.emplace_back(name, value); });
    std::ranges::sort(undeclared, {}, [](const auto& attribute) { return attribute.first.View(); });
    for (const auto& [name, value] : undeclared) {
        const bool isDouble =
            value.Kind() == KORAttributeKind::Double && value.State() == KORValueState::Valued;
        add(name.View(),
            isDouble ? UndeclaredNumberText(value.Double()) : ValueText(feature, name.View(), value));
    }
    return attributes;
}

std::string KORTextWriter::ValueText(const KORFeature& feature, std::string_view name,
                                     const KORValue& value) {
    if (value.State() == KORValueState::NeverValued) return "null";
    switch (value.Kind()) {
        case KORAttributeKind::Boolean:
            return value.Boolean() ? "true" : "false";
        case KORAttributeKind::Integer:
            return std::to_string(value.Integer());
        case KORAttributeKind::Double:
            return NumberText(value.Double());
        case KORAttributeKind::String:
            return Quoted(value.String().View());
        case KORAttributeKind::ListOfDoubles:
            return NumbersText(value.ListOfDoubles());
        case KORAttributeKind::Component:
            return "{\"ref\": " + ReferenceText(feature, name, value.Component()) + "}";
        case KORAttributeKind::ListOfComponents:
            break;
    }
    std::vector<std::string> entries;
    for (int position = 1; position <= value.ListSize(); ++position) {
        entries.push_back(ReferenceText(feature, name, value.ComponentAt(position).Get()));
    }
    return "{\"refs\": " + Joined(entries) + "}";
}

std::string KORTextWriter::NumbersText(const KORRawColldouble& numbers) const {
    std::vector<std::string> texts;
    for (int position = 1; position <= numbers.Size(); ++position) {
        texts.push_back(NumberText(numbers[position]));
    }
    return Joined(texts);
}

std::string KORTextWriter::ReferenceText(const KORFeature& feature, std::string_view name,
                                         KORBaseUnknown* target) {
    if (!target) return "null";
    const auto referenced = KORVar<KORFeature>::Of(target);
    const auto id = referenced ? ids_.Find(referenced.Get()) : std::nullopt;
    if (id) return std::to_string(*id);
    Fail("feature " + std::to_string(feature.Number()) + ", " + std::string(name) +
         ": references what is no feature of the document");
    return "null";
}

std::string KORTextWriter::Quoted(std::string_view text) {
    try {
        return nlohmann::json(text).dump();
    } catch (const nlohmann::json::type_error&) {
        Fail("a text is no UTF-8");
        return "\"\"";
    }
}

void KORTextWriter::Fail(std::string message) {
    if (!error_) error_ = {.message = std::move(message)};
}
