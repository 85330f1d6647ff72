#include "bench/StoreTree.h"

#include <string>

#include "platform/store/KORStoreDocument.h"

namespace bench {

StoreTree::StoreTree()
    : flag_(KORName::Intern("BenchFlag")),
      integer_(KORName::Intern("BenchInteger")),
      number_(KORName::Intern("BenchNumber")) {
    std::vector<KORAttribute> attributes;
    for (int i = 0; i < kBranches; ++i) {
        references_.push_back(KORName::Intern("BenchBranch" + std::to_string(i)));
        attributes.push_back({references_.back(), KORValue(KORAttributeKind::Component)});
    }
    const int numbersBelow = 3 * kWideBranches + 2 * (kBranches - kWideBranches);
    for (int i = 0; i < kAttributes - kBranches - numbersBelow; ++i) {
        flags_.push_back(KORName::Intern("BenchFlag" + std::to_string(i)));
        attributes.push_back({flags_.back(), KORValue(KORAttributeKind::Boolean)});
    }
    root_ = std::make_shared<KORLayout>(KORName::Intern("BenchRootLT"), attributes);
    attributes = {{flag_, KORValue(KORAttributeKind::Boolean)},
                  {number_, KORValue(KORAttributeKind::Double)}};
    narrow_ = std::make_shared<KORLayout>(KORName::Intern("BenchNarrowLT"), attributes);
    attributes.push_back({integer_, KORValue(KORAttributeKind::Integer)});
    wide_ = std::make_shared<KORLayout>(KORName::Intern("BenchWideLT"), attributes);
}

KORVar<KORFeature> StoreTree::Grow(KORStoreDocument& document, KORBaseUnknown& container,
                                   double value) const {
    const auto grow = [&](const KORLayoutHandle& layout) {
        return KORFeature::New(document, layout, layout->NameText(), container);
    };
    auto root = grow(root_);
    for (const KORName* flag : flags_) root->SetBoolean(flag, true, 0);
    for (int i = 0; i < kBranches; ++i) {
        const bool wide = i < kWideBranches;
        const auto branch = grow(wide ? wide_ : narrow_);
        branch->SetBoolean(flag_, true, 0);
        branch->SetDouble(number_, value, 0);
        if (wide) branch->SetInteger(integer_, i + 1, 0);
        root->SetComponent(references_[static_cast<std::size_t>(i)], branch.Get(), 0);
    }
    return root;
}

}  // namespace bench
