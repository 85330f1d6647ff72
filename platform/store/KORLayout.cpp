#include "platform/store/KORLayout.h"

#include <algorithm>
#include <unordered_map>

namespace {

std::uint32_t NextOrdinal() {
    static std::uint32_t next = 0;
    return next++;
}

}  // namespace

KORLayout::KORLayout(const KORName* name, std::vector<KORAttribute> attributes, const KORName* role)
    : name_(name),
      role_(role),
      nameText_(std::string_view(name->Text())),
      attributes_(std::move(attributes)),
      ordinal_(NextOrdinal()) {
    initials_.assign(kFirstAttribute, KORValue(KORAttributeKind::Component));
    for (const KORAttribute& attribute : attributes_) {
        initials_.push_back(attribute.initial);
        initials_.back().SetSlot(static_cast<KORSlot>(initials_.size() - 1));
    }
    if (attributes_.empty()) return;
    const auto byNumber = [](const KORAttribute& a, const KORAttribute& b) {
        return a.name->Number() < b.name->Number();
    };
    const auto [first, last] = std::minmax_element(attributes_.begin(), attributes_.end(), byNumber);
    firstNumber_ = first->name->Number();
    numbers_ = last->name->Number() - firstNumber_ + 1;
    places_.resize(numbers_);
    KORSlot slot = kFirstAttribute;
    for (const KORAttribute& attribute : attributes_) {
        if (attribute.isFather) father_ = slot;
        places_[attribute.name->Number() - firstNumber_] = {slot++, attribute.initial.Kind()};
    }
}

KORLayoutHandle KORLayout::OfUndeclaredType(const KORName* name) {
    static auto& layouts = *new std::unordered_map<const KORName*, KORLayoutHandle>;
    KORLayoutHandle& layout = layouts[name];
    if (!layout) layout = std::make_shared<KORLayout>(name, std::vector<KORAttribute>());
    return layout;
}

const char* KORLayout::SlotName(KORSlot slot) const {
    switch (slot) {
        case kName:
            return "Name";
        case kAlias:
            return "Alias";
        case kContainer:
            return "Container";
        default:
            return attributes_[static_cast<std::size_t>(slot - kFirstAttribute)].name->c_str();
    }
}
