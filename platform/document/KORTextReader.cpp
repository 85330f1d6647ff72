#include "platform/document/KORTextReader.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kFormat = 1;
constexpr const char* kPressure = "PRESSURE";

}  // namespace

void KORTextReader::Read() {
    const Pointer root;
    if (!IsObjectOf(root, {"format", "catalogs", "pressure_unit", "containers", "features"})) return;
    ExpectFormat(kFormat);
    if (!KORBaseUnknown_var::Adopt(document_.GetFeatContainer())) Fail(root, "the document is closed");
    if (!Error()) ReadCatalogs();
    if (!Error()) ReadPressureUnit();
    if (!Error()) ReadContainers();
    if (Error()) return;
    const std::size_t count = Array(root, "features").size();
    for (std::size_t index = 0; index < count && !Error(); ++index) {
        features_.push_back(ReadHead(root / "features" / index));
        if (!Error()) places_.emplace(features_.back().id, index);
    }
    for (std::size_t index = 0; index < count && !Error(); ++index) {
        const Pointer at = root / "features" / index;
        if (Has(at, "attributes")) ReadAttributes(at / "attributes", features_[index]);
    }
}

void KORTextReader::ReadCatalogs() {
    const Pointer root;
    if (!Has(root, "catalogs")) return;
    const std::size_t count = Array(root, "catalogs").size();
    for (std::size_t index = 0; index < count && !Error(); ++index) {
        const Pointer at = root / "catalogs" / index;
        if (!At(at).is_string()) {
            Fail(at, "expected the file name of a catalog");
            return;
        }
        const std::string name = At(at);
        const auto file = document_.Platform().OpenCatalog(name);
        if (file) {
            catalogs_.Add(name, file);
        } else {
            Fail(at,
                 "the catalog " + Quoted(name) + " cannot be opened: " + document_.Platform().CatalogError());
        }
    }
}

void KORTextReader::ReadPressureUnit() {
    const Pointer root;
    if (!Has(root, "pressure_unit")) return;
    pressureUnit_ = Text(root, "pressure_unit");
    if (Error() || KORFindUnit(*KORFindUnitType(kPressure), pressureUnit_)) return;
    Fail(root / "pressure_unit", Quoted(pressureUnit_) + " is no unit of pressure");
}

void KORTextReader::ReadContainers() {
    const Pointer root;
    if (!Has(root, "containers")) return;
    for (std::size_t index = 0; index < Array(root, "containers").size(); ++index) {
        const Pointer at = root / "containers" / index;
        if (!At(at).is_string() || At(at) == "") {
            Fail(at, "expected the name of an applicative container");
            return;
        }
        containers_.push_back(At(at));
    }
}

KORTextReader::Feature KORTextReader::ReadHead(const Pointer& at) {
    Feature feature;
    if (!IsObjectOf(at, {"id", "type", "name", "alias", "container", "attributes"})) return feature;
    feature.id = ReadId(at);
    const std::string lateType = Text(at, "type");
    const KORCatalogType* type = catalogs_.Find(KORName::Find(lateType));
    if (type) {
        feature.layout = type->layout;
    } else {
        Fail(at / "type", "the late type " + Quoted(lateType) + " is in none of the catalogs");
    }
    feature.name = OptionalText(at, "name");
    feature.alias = OptionalText(at, "alias");
    ReadContainer(at, feature);
    return feature;
}

int KORTextReader::ReadId(const Pointer& at) {
    if (!Has(at, "id") || !IsInt(At(at / "id")) || At(at / "id") < 1) {
        Fail(at / "id", "expected \"id\": a whole number from 1 on");
        return 0;
    }
    const int id = At(at / "id");
    if (places_.contains(id)) Fail(at / "id", "the id " + std::to_string(id) + " is given twice");
    return id;
}

void KORTextReader::ReadContainer(const Pointer& at, Feature& feature) {
    if (!Has(at, "container")) return;
    const Json& container = At(at / "container");
    if (container.is_null()) {
        feature.container.reset();
    } else if (std::ranges::none_of(containers_,
                                    [&](const std::string& name) { return container == name; })) {
        Fail(at / "container", "expected one of \"containers\", or null");
    } else {
        feature.container = container;
    }
}

void KORTextReader::ReadAttributes(const Pointer& at, Feature& feature) {
    if (!At(at).is_object()) {
        Fail(at, "expected an object");
        return;
    }
    for (const auto& item : At(at).items()) {
        const KORName* key = KORName::Find(item.key());
        const KORLayout::Place place = key ? feature.layout->Find(key) : KORLayout::Place{};
        if (place.slot != 0) {
            ReadAttribute(at / item.key(), place, feature);
        } else {
            CheckKept(at / item.key());
            feature.kept.emplace(item.key(), item.value());
        }
        if (Error()) return;
    }
}

void KORTextReader::ReadAttribute(const Pointer& at, KORLayout::Place place, Feature& feature) {
    if (At(at).is_null()) {
        feature.values.emplace_back(place.slot, KORValue(place.kind));
    } else if (place.kind == KORAttributeKind::Component) {
        feature.references.push_back({place.slot, ReadReference(at)});
    } else if (place.kind == KORAttributeKind::ListOfComponents) {
        feature.references.push_back({place.slot, ReadReferences(at)});
    } else {
        feature.values.emplace_back(place.slot, ReadValue(at, place.kind));
    }
}

KORValue KORTextReader::ReadValue(const Pointer& at, KORAttributeKind kind) {
    const Json& value = At(at);
    switch (kind) {
        case KORAttributeKind::Boolean:
            if (value.is_boolean()) return KORValue::OfBoolean(value.get<bool>());
            Fail(at, "expected true or false");
            break;
        case KORAttributeKind::Integer:
            if (IsInt(value)) return KORValue::OfInteger(value.get<int>());
            Fail(at, "expected a whole number of 32 bits");
            break;
        case KORAttributeKind::Double:
            if (const auto number = Number(value); number) return KORValue::OfDouble(*number);
            Fail(at, "expected a number");
            break;
        case KORAttributeKind::String:
            if (value.is_string()) return KORValue::OfString(value.get_ref<const std::string&>().c_str());
            Fail(at, "expected a text");
            break;
        case KORAttributeKind::ListOfDoubles:
            return ReadNumbers(at);
        case KORAttributeKind::Component:
        case KORAttributeKind::ListOfComponents:
            break;  // references are resolved once all features are there
    }
    return KORValue(kind);
}

KORValue KORTextReader::ReadNumbers(const Pointer& at) {
    KORRawColldouble list;
    if (!At(at).is_array()) Fail(at, "expected an array of numbers");
    for (std::size_t index = 0; index < At(at).size() && !Error(); ++index) {
        const auto number = Number(At(at / index));
        if (number) {
            list.Append(*number);
        } else {
            Fail(at / index, "expected a number");
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

std::vector<int> KORTextReader::ReadReference(const Pointer& at) {
    if (!At(at).is_object() || At(at).size() != 1 || !Has(at, "ref")) {
        Fail(at, "expected {\"ref\": id}");
        return {};
    }
    return {ReadTarget(at / "ref")};
}

std::vector<int> KORTextReader::ReadReferences(const Pointer& at) {
    std::vector<int> ids;
    if (!At(at).is_object() || At(at).size() != 1 || !Has(at, "refs") || !At(at / "refs").is_array()) {
        Fail(at, "expected {\"refs\": [id or null, ...]}");
        return ids;
    }
    for (std::size_t index = 0; index < At(at / "refs").size(); ++index) {
        const Pointer entry = at / "refs" / index;
        ids.push_back(At(entry).is_null() ? 0 : ReadTarget(entry));
    }
    return ids;
}

int KORTextReader::ReadTarget(const Pointer& at) {
    if (IsInt(At(at)) && places_.contains(At(at).get<int>())) return At(at);
    Fail(at, "there is no feature with the id " + At(at).dump());
    return 0;
}

void KORTextReader::CheckKept(const Pointer& at) {
    if (!At(at).is_object()) return;
    if (Has(at, "refs")) {
        ReadReferences(at);
    } else {
        ReadReference(at);
    }
}

std::optional<KORUnicodeString> KORTextReader::OptionalText(const Pointer& at, const char* member) {
    if (!Has(at, member)) return std::nullopt;
    const Json& text = At(at / member);
    if (text.is_string()) return KORUnicodeString(text.get_ref<const std::string&>());
    Fail(at / member, "expected " + Quoted(member) + ": a text");
    return std::nullopt;
}

std::unordered_map<int, std::uint32_t> KORTextReader::Build(KORKeptAttributes& kept) const {
    for (const auto& catalog : catalogs_.Catalogs()) static_cast<void>(document_.OpenCatalog(catalog.name));
    for (const std::string& name : containers_) document_.AddContainer(name.c_str());
    if (!pressureUnit_.empty()) document_.Platform().Units().SetCurrentUnit(kPressure, pressureUnit_);

    std::vector<KORVar<KORFeature>> made;
    for (const Feature& feature : features_) made.push_back(Make(feature));
    const auto target = [&](int id) { return id != 0 ? made[places_.at(id)].Get() : nullptr; };
    const auto number = [&](Json& id) {
        if (!id.is_null()) id = target(id)->Number();
    };
    std::unordered_map<int, std::uint32_t> numbers;
    for (std::size_t index = 0; index < features_.size(); ++index) {
        KORFeature& feature = *made[index];
        numbers.emplace(features_[index].id, feature.Number());
        for (const auto& [slot, ids] : features_[index].references) {
            const bool list = feature.At(slot).Kind() == KORAttributeKind::ListOfComponents;
            KORValue value = list ? KORValue::EmptyList(KORAttributeKind::ListOfComponents)
                                  : KORValue::OfComponent(target(ids[0]));
            for (std::size_t entry = 0; list && entry < ids.size(); ++entry) value.Append(target(ids[entry]));
            feature.Write(slot, std::move(value));
        }
        for (auto [name, value] : features_[index].kept) {
            if (value.is_object() && value.contains("ref")) number(value["ref"]);
            if (value.is_object() && value.contains("refs")) std::ranges::for_each(value["refs"], number);
            kept[feature.Number()].emplace(name, std::move(value));
        }
    }
    return numbers;
}

KORVar<KORFeature> KORTextReader::Make(const Feature& feature) const {
    const bool own = !feature.container || feature.container->empty();
    const KORIFeatureContainer_var container(KORBaseUnknown_var::Adopt(
        own ? document_.GetFeatContainer() : document_.FindContainer(feature.container->c_str())));
    auto made = container->NewFeature(feature.layout, feature.name.value_or(feature.layout->NameText()));
    if (feature.alias) made->SetAlias(*feature.alias);
    for (const auto& [slot, value] : feature.values) made->Write(slot, KORValue(value));
    if (!feature.container) made->SetContainer(nullptr);
    return made;
}
