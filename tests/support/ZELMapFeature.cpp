#include "tests/support/ZELMapFeature.h"

#include <algorithm>
#include <charconv>

#include "tests/support/ZELMapContainer.h"

namespace {

std::string Text(double value) {
    char buffer[32];
    return std::string(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

std::string Text(const KORBaseUnknown* component) {
    if (!component) return "null";
    const ZELUnrecorded unrecorded;
    auto* feature = dynamic_cast<KORISpecObject*>(const_cast<KORBaseUnknown*>(component));
    return feature ? std::string(feature->GetType().View()) : component->IsA();
}

/// How a value is written in the log.
struct TextOf {
    std::string operator()(bool value) const { return value ? "1" : "0"; }
    std::string operator()(int value) const { return std::to_string(value); }
    std::string operator()(double value) const { return Text(value); }
    std::string operator()(const KORUnicodeString& value) const {
        return '"' + std::string(value.View()) + '"';
    }
    std::string operator()(const KORRawColldouble& values) const {
        std::string text = "[";
        for (int position = 1; position <= values.Size(); ++position) {
            text += (position == 1 ? "" : ", ") + Text(values[position]);
        }
        return text + "]";
    }
    std::string operator()(const KORBaseUnknown_var& component) const { return Text(component.Get()); }
    std::string operator()(const std::vector<KORBaseUnknown_var>&) const { return "[]"; }
};

}  // namespace

ZELMapFeature::ZELMapFeature(const std::shared_ptr<ZELMapWorld>& world, const std::string& lateType,
                             const KORUnicodeString& name, ZELMapContainer* container)
    : ZELMapAnalysisFeature(world, container ? lateType : lateType + "(start-up)"),
      lateType_(lateType),
      name_(name),
      container_(container),
      isStartUp_(!container),
      attributes_(*world->types.Find(lateType)) {
    if (!isStartUp_) world->features.insert(this);
    for (const ZELAttribute& attribute : attributes_) {
        if (const bool* flag = std::get_if<bool>(&attribute.initial)) values_[attribute.name] = *flag;
        if (const int* whole = std::get_if<int>(&attribute.initial)) values_[attribute.name] = *whole;
        if (const double* number = std::get_if<double>(&attribute.initial)) values_[attribute.name] = *number;
    }
}

ZELMapFeature::~ZELMapFeature() {
    World()->features.erase(this);
}

void ZELMapFeature::EmptyAll() {
    values_.clear();
    father_ = nullptr;
}

ZELMapFeature* ZELMapFeature::Copy(ZELMapContainer* container) const {
    auto* copy = new ZELMapFeature(World(), lateType_, name_, container);
    copy->alias_ = alias_;
    copy->father_ = father_;
    copy->attributes_ = attributes_;
    copy->values_ = values_;
    return copy;
}

std::vector<KORISpecObject*> ZELMapFeature::Referenced() const {
    std::vector<KORISpecObject*> found;
    const auto add = [&found](const KORBaseUnknown_var& component) {
        if (auto* feature = dynamic_cast<KORISpecObject*>(component.Get())) found.push_back(feature);
    };
    for (const auto& [name, value] : values_) {
        if (const auto* component = std::get_if<KORBaseUnknown_var>(&value)) add(*component);
        if (const auto* entries = std::get_if<Entries>(&value)) std::ranges::for_each(*entries, add);
    }
    return found;
}

void ZELMapFeature::Redirect(const std::map<KORISpecObject*, ZELMapFeature*>& copyOf) {
    const auto redirect = [&copyOf](KORBaseUnknown_var& component) {
        const auto found = copyOf.find(dynamic_cast<KORISpecObject*>(component.Get()));
        if (found != copyOf.end()) component = static_cast<KORBaseUnknown*>(found->second);
    };
    for (auto& [name, value] : values_) {
        if (auto* component = std::get_if<KORBaseUnknown_var>(&value)) redirect(*component);
        if (auto* entries = std::get_if<Entries>(&value)) std::ranges::for_each(*entries, redirect);
    }
    const auto father = copyOf.find(father_.Get());
    if (father != copyOf.end()) father_ = static_cast<KORISpecObject*>(father->second);
}

bool ZELMapFeature::Has(const std::string& name, ZELKind kind) const {
    return std::ranges::any_of(attributes_, [&](const ZELAttribute& attribute) {
        return attribute.name == name && attribute.kind == kind;
    });
}

const ZELMapFeature::Value* ZELMapFeature::Find(const std::string& name, ZELKind kind) const {
    const auto found = values_.find(name);
    return found != values_.end() && Has(name, kind) ? &found->second : nullptr;
}

ZELVerdict ZELMapFeature::Note(const char* call, const std::string& attribute, const std::string& value,
                               bool canFail) const {
    return Calls().Record(call, Label() + "." + attribute + (value.empty() ? "" : " " + value), canFail);
}

void ZELMapFeature::Write(const char* call, KORISpecAttrKey* key, const Value& value) {
    Note(call, key ? key->Text() : "null", std::visit(TextOf(), value), false);
    if (Has(key, static_cast<ZELKind>(value.index()))) values_[key->Text()] = value;
}

template <class T>
T ZELMapFeature::Read(const char* call, KORISpecAttrKey* key, ZELKind kind) const {
    Note(call, key ? key->Text() : "null", "", false);
    const Value* value = key ? Find(key->Text(), kind) : nullptr;
    return value ? std::get<T>(*value) : T{};
}

KORUnicodeString ZELMapFeature::GetType() {
    Calls().Record("GetType", Label(), false);
    return KORUnicodeString(lateType_.c_str());
}

KORUnicodeString ZELMapFeature::GetName() {
    Calls().Record("GetName", Label(), false);
    return name_;
}

KORBaseUnknown* ZELMapFeature::GetFeatContainer() {
    const ZELVerdict verdict = Calls().Record("GetFeatContainer", Label(), true);
    if (verdict != ZELVerdict::Answer || !container_) return nullptr;
    container_->AddRef();
    return container_;
}

KORISpecObject* ZELMapFeature::GetFather() {
    const ZELVerdict verdict = Calls().Record("GetFather", Label(), true);
    return verdict == ZELVerdict::Answer ? KORISpecObject_var(father_).Detach() : nullptr;
}

KORISpecObject* ZELMapFeature::Instantiate(const KORUnicodeString& name, KORIContainer* container) {
    const ZELVerdict verdict =
        Calls().Record("Instantiate", Label() + " \"" + std::string(name.View()) + '"', true);
    World()->openCatalogsAtInstantiations.push_back(World()->openCatalogs);
    auto* target = dynamic_cast<ZELMapContainer*>(container);
    if (verdict != ZELVerdict::Answer || !isStartUp_ || !target) return nullptr;
    return target->MakeMember(lateType_, name).Detach();
}

KORISpecAttrKey* ZELMapFeature::GetAttrKey(const char* name) {
    if (Note("GetAttrKey", name, "", true) != ZELVerdict::Answer) return nullptr;
    const bool known = std::ranges::any_of(
        attributes_, [&](const ZELAttribute& attribute) { return attribute.name == name; });
    if (!known) {
        Calls().NoteMiss();
        return nullptr;
    }
    KORISpecAttrKey* key = KORName::Intern(name);
    key->AddRef();
    return key;
}

void ZELMapFeature::SetDouble(KORISpecAttrKey* key, double value, int) {
    Write("SetDouble", key, value);
}

void ZELMapFeature::SetBoolean(KORISpecAttrKey* key, bool value, int) {
    Write("SetBoolean", key, value);
}

void ZELMapFeature::SetString(KORISpecAttrKey* key, const KORUnicodeString& value, int) {
    Write("SetString", key, value);
}

void ZELMapFeature::SetInteger(KORISpecAttrKey* key, int value, int) {
    Write("SetInteger", key, value);
}

void ZELMapFeature::SetListOfDouble(KORISpecAttrKey* key, const KORRawColldouble& values) {
    Write("SetListOfDouble", key, values);
}

double ZELMapFeature::GetDouble(KORISpecAttrKey* key, int) {
    return Read<double>("GetDouble", key, ZELKind::Double);
}

bool ZELMapFeature::GetBoolean(KORISpecAttrKey* key, int) {
    return Read<bool>("GetBoolean", key, ZELKind::Boolean);
}

KORUnicodeString ZELMapFeature::GetString(KORISpecAttrKey* key, int) {
    return Read<KORUnicodeString>("GetString", key, ZELKind::String);
}

int ZELMapFeature::GetInteger(KORISpecAttrKey* key, int) {
    return Read<int>("GetInteger", key, ZELKind::Integer);
}

KORRawColldouble* ZELMapFeature::GetListOfDouble(KORISpecAttrKey* key) {
    if (Note("GetListOfDouble", key ? key->Text() : "null", "", true) != ZELVerdict::Answer) return nullptr;
    const Value* value = key ? Find(key->Text(), ZELKind::ListOfDoubles) : nullptr;
    return value ? new KORRawColldouble(std::get<KORRawColldouble>(*value)) : nullptr;
}

KORISpecObject* ZELMapFeature::GetSpecObject(const char* name, int) {
    if (Note("GetSpecObject", name, "", true) != ZELVerdict::Answer) return nullptr;
    const Value* value = Find(name, ZELKind::Component);
    if (!value) return nullptr;
    auto* feature = dynamic_cast<KORISpecObject*>(std::get<KORBaseUnknown_var>(*value).Get());
    if (feature) feature->AddRef();
    return feature;
}

void ZELMapFeature::SetComponent(KORISpecAttrKey* key, KORBaseUnknown* component, int) {
    Write("SetComponent", key, KORBaseUnknown_var(component));
    if (!component && Has(key, ZELKind::Component)) values_.erase(key->Text());
}

KORBaseUnknown* ZELMapFeature::GetComponent(KORISpecAttrKey* key, int index) {
    if (Note("GetComponent", key ? key->Text() : "null", "", true) != ZELVerdict::Answer || !key) {
        return nullptr;
    }
    KORBaseUnknown_var component;
    if (const Value* value = Find(key->Text(), ZELKind::Component); value && index == 0) {
        component = std::get<KORBaseUnknown_var>(*value);
    }
    if (const Value* value = Find(key->Text(), ZELKind::ListOfComponents); value && index >= 1) {
        const auto& entries = std::get<Entries>(*value);
        const auto position = static_cast<std::size_t>(index - 1);
        if (position < entries.size()) component = entries[position];
    }
    return component.Detach();
}

void ZELMapFeature::AppendComponent(KORISpecAttrKey* key, KORBaseUnknown* component) {
    Note("AppendComponent", key ? key->Text() : "null", Text(component), false);
    if (!Has(key, ZELKind::ListOfComponents)) return;
    Value& value = values_.try_emplace(key->Text(), Entries()).first->second;
    std::get<Entries>(value).emplace_back(component);
}

KORListValKORISpecObject_var* ZELMapFeature::GetListOfComponents(KORISpecAttrKey* key) {
    if (Note("GetListOfComponents", key ? key->Text() : "null", "", true) != ZELVerdict::Answer) {
        return nullptr;
    }
    const Value* value = key ? Find(key->Text(), ZELKind::ListOfComponents) : nullptr;
    if (!value) return nullptr;
    auto* list = new KORListValKORISpecObject_var;
    for (const KORBaseUnknown_var& entry : std::get<Entries>(*value)) {
        list->Append(KORISpecObject_var(dynamic_cast<KORISpecObject*>(entry.Get())));
    }
    return list;
}

int ZELMapFeature::GetListSize(KORISpecAttrKey* key) {
    Note("GetListSize", key ? key->Text() : "null", "", false);
    if (!key) return 0;
    if (const Value* value = Find(key->Text(), ZELKind::ListOfDoubles)) {
        return std::get<KORRawColldouble>(*value).Size();
    }
    const Value* value = Find(key->Text(), ZELKind::ListOfComponents);
    return value ? static_cast<int>(std::get<Entries>(*value).size()) : 0;
}

void ZELMapFeature::RemoveAllValues(KORISpecAttrKey* key) {
    Note("RemoveAllValues", key ? key->Text() : "null", "", false);
    if (Has(key, ZELKind::ListOfDoubles)) values_[key->Text()] = KORRawColldouble();
    if (Has(key, ZELKind::ListOfComponents)) values_[key->Text()] = Entries();
}

void ZELMapFeature::RemoveValue(KORISpecAttrKey* key) {
    Note("RemoveValue", key ? key->Text() : "null", "", false);
    if (key) values_.erase(key->Text());
}

KORDocument* ZELMapFeature::GetDocument() {
    const ZELVerdict verdict = Calls().Record("GetDocument", Label(), true);
    return verdict == ZELVerdict::Answer && !isStartUp_ ? World()->document : nullptr;
}

void ZELMapFeature::SetAlias(const KORUnicodeString& alias) {
    Calls().Record("SetAlias", Label() + " \"" + std::string(alias.View()) + '"', false);
    alias_ = alias;
}

KORUnicodeString ZELMapFeature::GetAlias() {
    Calls().Record("GetAlias", Label(), false);
    return alias_;
}

void ZELMapFeature::SetDomain(KORIDomain* domain) {
    Calls().Record("SetDomain", Label() + (domain ? " domain" : " null"), false);
}
