#include "platform/document/KORTextReader.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kFormat = 1;
constexpr const char* kPressure = "PRESSURE";

/// Also what lies behind an embedded NUL.
KORUnicodeString String(const nlohmann::json& text) {
    return KORUnicodeString(std::string_view(text.get_ref<const std::string&>()));
}

}  // namespace

void KORTextReader::Read() {
    if (!IsObjectOf(Root(), {"format", "catalogs", "pressure_unit", "containers", "features"})) return;
    ExpectFormat(kFormat);
    if (!KORBaseUnknown_var::Adopt(document_.GetFeatContainer())) Fail(Root(), "the document is closed");
    if (!Error()) ReadCatalogs();
    if (!Error()) ReadPressureUnit();
    if (!Error()) ReadContainers();
    if (Error()) return;
    const Json& features = Array(Root(), "features");
    for (const Json& feature : features) {
        features_.push_back(ReadHead(feature));
        if (Error()) return;
        places_.emplace(features_.back().id, features_.size() - 1);
    }
    for (std::size_t index = 0; index < features.size() && !Error(); ++index) {
        if (const Json* attributes = Find(features[index], "attributes")) {
            ReadAttributes(*attributes, features_[index]);
        }
    }
}

void KORTextReader::ReadCatalogs() {
    if (!Find(Root(), "catalogs")) return;
    for (const Json& catalog : Array(Root(), "catalogs")) {
        if (!catalog.is_string()) {
            Fail(catalog, "expected the file name of a catalog");
            return;
        }
        const std::string name = catalog;
        KORFileError error;
        const auto file = document_.Platform().OpenCatalog(name, error);
        if (!file) {
            Fail(catalog, "the catalog " + Quoted(name) + " cannot be opened: " + error.Text());
            return;
        }
        catalogs_.Add(name, file);
    }
}

void KORTextReader::ReadPressureUnit() {
    const Json* unit = Find(Root(), "pressure_unit");
    if (!unit) return;
    pressureUnit_ = Text(Root(), "pressure_unit");
    if (Error() || KORFindUnit(*KORFindUnitType(kPressure), pressureUnit_)) return;
    Fail(*unit, Quoted(pressureUnit_) + " is no unit of pressure");
}

void KORTextReader::ReadContainers() {
    if (!Find(Root(), "containers")) return;
    for (const Json& name : Array(Root(), "containers")) {
        // One that begins with NUL is empty to those who ask for it by narrow text.
        const bool named = name.is_string() && name.get_ref<const std::string&>().c_str()[0] != '\0';
        if (!named) {
            Fail(name, "expected the name of an applicative container");
            return;
        }
        containers_.push_back(name);
        knownContainers_.insert(containers_.back());
    }
}

KORTextReader::Feature KORTextReader::ReadHead(const Json& at) {
    Feature feature;
    if (!IsObjectOf(at, {"id", "type", "name", "alias", "container", "attributes"})) return feature;
    feature.id = ReadId(at);
    const std::string lateType = Text(at, "type");
    const KORCatalogType* type = catalogs_.Find(KORName::Find(lateType));
    feature.layout = type ? type->layout : KORLayout::OfUndeclaredType(KORName::Intern(lateType));
    feature.name = OptionalText(at, "name");
    feature.alias = OptionalText(at, "alias");
    ReadContainer(at, feature);
    return feature;
}

int KORTextReader::ReadId(const Json& at) {
    const Json& value = PlaceOf(at, "id");
    if (!IsInt(value) || value < 1) {
        Fail(value, "expected \"id\": a whole number from 1 on");
        return 0;
    }
    const int id = value;
    if (places_.contains(id)) Fail(value, "the id " + std::to_string(id) + " is given twice");
    return id;
}

void KORTextReader::ReadContainer(const Json& at, Feature& feature) {
    const Json* container = Find(at, "container");
    if (!container) return;
    if (container->is_null()) {
        feature.container.reset();
    } else if (container->is_string() &&
               knownContainers_.contains(container->get_ref<const std::string&>())) {
        feature.container = *container;
    } else {
        Fail(*container, "expected one of \"containers\", or null");
    }
}

void KORTextReader::ReadAttributes(const Json& at, Feature& feature) {
    if (!at.is_object()) {
        Fail(at, "expected an object");
        return;
    }
    if (at.size() > KORUndeclaredAttributes::kMost) {
        Fail(at, "more than " + std::to_string(KORUndeclaredAttributes::kMost) + " attributes");
        return;
    }
    for (const auto& item : at.items()) {
        const KORName* key = KORName::Find(item.key());
        const KORLayout::Place place = key ? feature.layout->Find(key) : KORLayout::Place{};
        if (place.slot != 0) {
            ReadAttribute(item.value(), {place.slot, {}}, place.kind, feature);
        } else {
            const Target target{0, KORUnicodeString(std::string_view(item.key()))};
            ReadAttribute(item.value(), target, KindOf(item.value()), feature);
        }
        if (Error()) return;
    }
}

void KORTextReader::ReadAttribute(const Json& at, const Target& target, KORAttributeKind kind,
                                  Feature& feature) {
    if (at.is_null()) {
        feature.values.emplace_back(target, KORValue(kind));
    } else if (kind == KORAttributeKind::Component) {
        feature.references.push_back({target, kind, ReadReference(at)});
    } else if (kind == KORAttributeKind::ListOfComponents) {
        feature.references.push_back({target, kind, ReadReferences(at)});
    } else {
        feature.values.emplace_back(target, ReadValue(at, kind));
    }
}

KORAttributeKind KORTextReader::KindOf(const Json& value) {
    if (value.is_boolean()) return KORAttributeKind::Boolean;
    if (value.is_number()) return IsInt(value) ? KORAttributeKind::Integer : KORAttributeKind::Double;
    if (value.is_array()) return KORAttributeKind::ListOfDoubles;
    if (!value.is_object()) return KORAttributeKind::String;
    return Find(value, "refs") ? KORAttributeKind::ListOfComponents : KORAttributeKind::Component;
}

KORValue KORTextReader::ReadValue(const Json& value, KORAttributeKind kind) {
    switch (kind) {
        case KORAttributeKind::Boolean:
            if (value.is_boolean()) return KORValue::OfBoolean(value.get<bool>());
            Fail(value, "expected true or false");
            break;
        case KORAttributeKind::Integer:
            if (IsInt(value)) return KORValue::OfInteger(value.get<int>());
            Fail(value, "expected a whole number of 32 bits");
            break;
        case KORAttributeKind::Double:
            if (const auto number = Number(value); number) return KORValue::OfDouble(*number);
            Fail(value, "expected a number");
            break;
        case KORAttributeKind::String:
            if (value.is_string()) return KORValue::OfString(String(value));
            Fail(value, "expected a text");
            break;
        case KORAttributeKind::ListOfDoubles:
            return ReadNumbers(value);
        case KORAttributeKind::Component:
        case KORAttributeKind::ListOfComponents:
            break;  // references are resolved once all features are there
    }
    return KORValue(kind);
}

KORValue KORTextReader::ReadNumbers(const Json& at) {
    KORRawColldouble list;
    if (!at.is_array()) Fail(at, "expected an array of numbers");
    for (const Json& entry : at) {
        if (Error()) break;
        const auto number = Number(entry);
        if (number) {
            list.Append(*number);
        } else {
            Fail(entry, "expected a number");
        }
    }
    return KORValue::OfListOfDoubles(list);
}

std::optional<double> KORTextReader::Number(const Json& value) const {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    if (value.is_number()) return value.get<double>();
    if (value == "NaN") return std::numeric_limits<double>::quiet_NaN();
    if (value == "Infinity") return kInfinity;
    if (value == "-Infinity") return -kInfinity;
    return std::nullopt;
}

std::vector<int> KORTextReader::ReadReference(const Json& at) {
    const Json* target = Find(at, "ref");
    if (target && at.size() == 1) return {ReadTarget(*target)};
    Fail(at, "expected {\"ref\": id}");
    return {};
}

std::vector<int> KORTextReader::ReadReferences(const Json& at) {
    std::vector<int> ids;
    const Json* targets = Find(at, "refs");
    if (!targets || at.size() != 1 || !targets->is_array()) {
        Fail(at, "expected {\"refs\": [id or null, ...]}");
        return ids;
    }
    for (const Json& target : *targets) ids.push_back(target.is_null() ? 0 : ReadTarget(target));
    return ids;
}

int KORTextReader::ReadTarget(const Json& at) {
    if (IsInt(at) && places_.contains(at.get<int>())) return at;
    if (!Error()) Fail(at, "there is no feature with the id " + Shown(at));
    return 0;
}

std::optional<KORUnicodeString> KORTextReader::OptionalText(const Json& at, const char* member) {
    const Json* text = Find(at, member);
    if (!text) return std::nullopt;
    if (text->is_string()) return String(*text);
    Fail(*text, "expected " + Quoted(member) + ": a text");
    return std::nullopt;
}

std::unordered_map<int, std::uint32_t> KORTextReader::Build() const {
    for (const auto& catalog : catalogs_.Catalogs()) static_cast<void>(document_.OpenCatalog(catalog.name));
    for (const std::string& name : containers_) document_.AddContainer(name);
    if (!pressureUnit_.empty()) document_.Platform().Units().SetCurrentUnit(kPressure, pressureUnit_);

    std::vector<KORVar<KORFeature>> made;
    for (const Feature& feature : features_) made.push_back(Make(feature));
    const auto target = [&](int id) { return id != 0 ? made[places_.at(id)].Get() : nullptr; };
    std::unordered_map<int, std::uint32_t> numbers;
    for (std::size_t index = 0; index < features_.size(); ++index) {
        KORFeature& feature = *made[index];
        numbers.emplace(features_[index].id, feature.Number());
        for (const auto& [where, kind, ids] : features_[index].references) {
            const bool list = kind == KORAttributeKind::ListOfComponents;
            KORValue value = list ? KORValue::EmptyList(kind) : KORValue::OfComponent(target(ids[0]));
            for (std::size_t entry = 0; list && entry < ids.size(); ++entry) value.Append(target(ids[entry]));
            where.Write(feature, std::move(value));
        }
    }
    return numbers;
}

void KORTextReader::Target::Write(KORFeature& feature, KORValue&& value) const {
    if (slot != 0) {
        feature.Write(slot, std::move(value));
    } else {
        feature.SetUndeclared(name, std::move(value));
    }
}

KORVar<KORFeature> KORTextReader::Make(const Feature& feature) const {
    const bool own = !feature.container || feature.container->empty();
    const KORIFeatureContainer_var container(
        own ? KORBaseUnknown_var::Adopt(document_.GetFeatContainer())
            : KORBaseUnknown_var(document_.AddContainer(*feature.container)));
    auto made = container->NewFeature(feature.layout, feature.name.value_or(feature.layout->NameText()));
    if (feature.alias) made->SetAlias(*feature.alias);
    for (const auto& [where, value] : feature.values) where.Write(*made, KORValue(value));
    if (!feature.container) made->SetContainer(nullptr);
    return made;
}
