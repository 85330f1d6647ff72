#include "platform/analysis/KORChildren.h"

namespace {

const KORName* const kChildren = KORName::Intern("Children");

}  // namespace

KORListValKORISpecObject_var KORChildren::All() const {
    if (!CanBe()) return {};
    return parent_.At(parent_.Layout().Find(kChildren).slot).Features();
}

bool KORChildren::Contain(const KORISpecObject_var& child) const {
    const KORListValKORISpecObject_var children = All();
    for (int position = 1; position <= children.Size(); ++position) {
        if (children[position] == child) return true;
    }
    return false;
}

bool KORChildren::CanBe() const {
    return parent_.Layout().Find(kChildren).kind == KORAttributeKind::ListOfComponents;
}

void KORChildren::Append(KORISpecObject* child) {
    parent_.AppendComponent(kChildren, KORBaseUnknown_var::Of(child).Get());
}

void KORChildren::Remove(const KORISpecObject_var& child) {
    if (!Contain(child)) return;
    const KORBaseUnknown_var gone(child);
    KORValue left = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
    for (int position = 1; position <= parent_.GetListSize(kChildren); ++position) {
        const auto entry = KORBaseUnknown_var::Adopt(parent_.GetComponent(kChildren, position));
        if (entry != gone) left.Append(entry.Get());
    }
    parent_.Write(parent_.Layout().Find(kChildren).slot, std::move(left));
}

KORListValKORISpecObject_var KORChildren::OfType(const KORUnicodeString& lateType) const {
    KORListValKORISpecObject_var found;
    const KORListValKORISpecObject_var children = All();
    for (int position = 1; position <= children.Size(); ++position) {
        if (children[position] && children[position]->GetType() == lateType) found.Append(children[position]);
    }
    return found;
}
