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
    KORValue left = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
    const KORListValKORISpecObject_var children = All();
    for (int position = 1; position <= children.Size(); ++position) {
        if (children[position] == child) continue;
        left.Append(KORBaseUnknown_var(children[position]).Get());
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
