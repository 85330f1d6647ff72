#include "platform/catalog/KORCatalogReader.h"

#include <algorithm>
#include <string_view>

#include "platform/store/KORRoles.h"

namespace {

constexpr int kFormat = 1;

struct Kind {
    std::string_view name;
    KORAttributeKind kind;
};

constexpr Kind kKinds[] = {
    {"boolean", KORAttributeKind::Boolean},
    {"integer", KORAttributeKind::Integer},
    {"double", KORAttributeKind::Double},
    {"string", KORAttributeKind::String},
    {"list of doubles", KORAttributeKind::ListOfDoubles},
    {"component", KORAttributeKind::Component},
    {"list of components", KORAttributeKind::ListOfComponents},
};

constexpr struct {
    std::string_view name;
    const char* role;
} kRoles[] = {
    {"model", kKORModelRole},
    {"set", kKORSetRole},
    {"entity", kKOREntityRole},
};

bool HasUnit(KORAttributeKind kind) {
    return kind == KORAttributeKind::Double || kind == KORAttributeKind::ListOfDoubles;
}

}  // namespace

std::string_view KORKindName(KORAttributeKind kind) {
    return std::ranges::find(kKinds, kind, &Kind::kind)->name;
}

std::vector<KORCatalogType> KORCatalogReader::Read() {
    std::vector<KORCatalogType> types;
    if (!IsObjectOf(Root(), {"format", "types"})) return types;
    ExpectFormat(kFormat);
    for (const Json& at : Array(Root(), "types")) {
        KORCatalogType type = ReadType(at);
        if (Error()) return types;
        for (const KORCatalogType& other : types) {
            if (other.layout->Name() != type.layout->Name()) continue;
            Fail(at, "the late type " + Quoted(type.layout->Name()->Text()) + " is declared twice");
        }
        if (Error()) return types;
        types.push_back(std::move(type));
    }
    return types;
}

KORCatalogType KORCatalogReader::ReadType(const Json& at) {
    KORCatalogType type;
    if (!IsObjectOf(at, {"name", "role", "since", "meaning", "attributes"})) return type;
    const std::string name = Text(at, "name");
    const KORName* role = Find(at, "role") ? ReadRole(at) : nullptr;
    type.since = Release(at);
    type.meaning = Text(at, "meaning");
    std::vector<KORAttribute> attributes;
    const Json& declared = Array(at, "attributes");
    if (declared.size() > KORLayout::kMostAttributes) {
        Fail(declared, "more than " + std::to_string(KORLayout::kMostAttributes) + " attributes");
    }
    for (const Json& attribute : declared) {
        if (Error()) return type;
        type.attributes.push_back(ReadAttribute(attribute, attributes));
    }
    if (Error()) return type;
    type.layout = std::make_shared<KORLayout>(KORName::Intern(name), std::move(attributes), role);
    CheckSuccessors(at, type);
    return type;
}

KORCatalogAttribute KORCatalogReader::ReadAttribute(const Json& at, std::vector<KORAttribute>& attributes) {
    KORCatalogAttribute read;
    if (!IsObjectOf(at, {"name", "kind", "role", "default", "unit", "since", "superseded_by", "meaning"}))
        return read;
    const std::string name = Text(at, "name");
    read.since = Release(at);
    read.meaning = Text(at, "meaning");
    if (Find(at, "superseded_by")) read.supersededBy = Text(at, "superseded_by");
    const auto kind = ReadKind(at);
    if (!kind) return read;
    if (HasUnit(*kind)) {
        read.unit = Text(at, "unit");
    } else if (const Json* unit = Find(at, "unit")) {
        Fail(*unit, "only a double or a list of doubles has a unit");
    }
    KORValue initial = ReadInitial(at, *kind);
    const KORName* key = KORName::Intern(name);
    const auto same = [key](const KORAttribute& other) { return other.name == key; };
    if (std::ranges::any_of(attributes, same)) {
        Fail(at, "the attribute " + Quoted(name) + " is declared twice");
    }
    const bool isFather = Find(at, "role") && IsFather(at, *kind);
    if (isFather && std::ranges::any_of(attributes, &KORAttribute::isFather)) {
        Fail(PlaceOf(at, "role"), "a late type has one father");
    }
    attributes.push_back({key, std::move(initial), isFather});
    return read;
}

const KORName* KORCatalogReader::ReadRole(const Json& at) {
    const std::string text = Text(at, "role");
    std::string known;
    for (const auto& [name, role] : kRoles) {
        if (text == name) return KORName::Intern(role);
        known += (known.empty() ? "" : ", ") + Quoted(name);
    }
    Fail(PlaceOf(at, "role"), "the role " + Quoted(text) + " is unknown; expected one of " + known);
    return nullptr;
}

bool KORCatalogReader::IsFather(const Json& at, KORAttributeKind kind) {
    if (Text(at, "role") != "father") Fail(PlaceOf(at, "role"), "an attribute's one role is \"father\"");
    if (kind != KORAttributeKind::Component) Fail(PlaceOf(at, "role"), "only a component can be the father");
    return true;
}

std::optional<KORAttributeKind> KORCatalogReader::ReadKind(const Json& at) {
    const std::string text = Text(at, "kind");
    std::string known;
    for (const auto& [name, kind] : kKinds) {
        if (text == name) return kind;
        known += (known.empty() ? "" : ", ") + Quoted(name);
    }
    Fail(PlaceOf(at, "kind"), "the kind " + Quoted(text) + " is unknown; expected one of " + known);
    return std::nullopt;
}

KORValue KORCatalogReader::ReadInitial(const Json& at, KORAttributeKind kind) {
    KORValue never(kind);
    const Json* const given = Find(at, "default");
    if (!given) {
        if (kind <= KORAttributeKind::String) Fail(at, "expected \"default\": a value, or null for none");
        return never;
    }
    const Json& value = *given;
    if (value.is_null()) return never;
    switch (kind) {
        case KORAttributeKind::Boolean:
            if (value.is_boolean()) return KORValue::OfBoolean(value.get<bool>());
            break;
        case KORAttributeKind::Integer:
            if (IsInt(value)) return KORValue::OfInteger(value.get<int>());
            break;
        case KORAttributeKind::Double:
            if (value.is_number()) return KORValue::OfDouble(value.get<double>());
            break;
        case KORAttributeKind::String:
            if (value.is_string())
                return KORValue::OfString(KORUnicodeString(value.get_ref<const std::string&>()));
            break;
        case KORAttributeKind::ListOfDoubles:
        case KORAttributeKind::Component:
        case KORAttributeKind::ListOfComponents:
            Fail(value, "lists and components have no default: they start never valued");
            return never;
    }
    Fail(value, "the default is not of the attribute's kind");
    return never;
}

void KORCatalogReader::CheckSuccessors(const Json& at, const KORCatalogType& type) {
    for (std::size_t index = 0; index < type.attributes.size(); ++index) {
        const std::string& successor = type.attributes[index].supersededBy;
        if (successor.empty() || type.layout->Find(KORName::Intern(successor)).slot != 0) continue;
        Fail(at.at("attributes").at(index).at("superseded_by"),
             Quoted(type.layout->Name()->Text()) + " has no attribute " + Quoted(successor));
    }
}

int KORCatalogReader::Release(const Json& at) {
    const Json* since = Find(at, "since");
    if (since && IsInt(*since) && *since >= 1) return *since;
    Fail(PlaceOf(at, "since"), "expected \"since\": the number of a release, from 1 on");
    return 0;
}
