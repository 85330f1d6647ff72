#include "platform/analysis/KORAnalysisModelExtension.h"

#include <limits>

#include "framework/KORDictionary.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "interfaces/TIEKORISamAnalysisModel.h"
#include "interfaces/TIEKORISamAnalysisScan.h"
#include "platform/analysis/KORChildren.h"
#include "platform/analysis/KORPlatformModule.h"
#include "platform/store/KORFeaturePlaces.h"

KORImplementClass(KORAnalysisModelExtension, KORClassKind::CodeExtension, "KORAnalysisModelLT",
                  kKORPlatformModule)

KORBaseUnknown* KORAnalysisModelExtension::CreateItself() {
    return new KORAnalysisModelExtension;
}

namespace {

const KORFillDictionary model(KORAnalysisModelExtension::MetaObject(), KORISamAnalysisModel::MetaObject(),
                              KORCreateTie<TIEKORISamAnalysisModel<KORAnalysisModelExtension>>, nullptr, 1);
const KORFillDictionary scan(KORAnalysisModelExtension::MetaObject(), KORISamAnalysisScan::MetaObject(),
                             KORCreateTie<TIEKORISamAnalysisScan<KORAnalysisModelExtension>>, nullptr, 1);

constexpr int kOwnChildren = 1;
constexpr int kChildrenOfSets = 2;
constexpr int kEverything = 3;

/// One walk over a model's tree, down to a depth: 1 is that of the model's own children.
class Walk {
public:
    Walk(const KORUnicodeString& lateType, int first, int last)
        : lateType_(lateType), first_(first), last_(last) {}

    void Visit(KORFeature& parent, int depth) {
        if (depth > last_) return;
        const KORListValKORISpecObject_var children = KORChildren(parent).All();
        for (int position = 1; position <= children.Size(); ++position) {
            const KORVar<KORFeature> child(children[position]);
            if (!child) continue;
            if (depth >= first_ && child->GetType() == lateType_ && found_.Add(child.Get(), 0)) {
                features_.Append(KORISpecObject_var(child.Get()));
            }
            // A set that holds itself, by whatever way, is entered once.
            if (KORISamAnalysisSet_var(child) && entered_.Add(child.Get(), 0)) Visit(*child, depth + 1);
        }
    }

    const KORListValKORISpecObject_var& Features() const { return features_; }

private:
    const KORUnicodeString& lateType_;
    int first_;
    int last_;
    KORFeaturePlaces found_;
    KORFeaturePlaces entered_;
    KORListValKORISpecObject_var features_;
};

}  // namespace

KORListValKORISpecObject_var KORAnalysisModelExtension::Scan(const KORUnicodeString& lateType, int mode) {
    if (mode < kOwnChildren || mode > kEverything) return {};
    const int first = mode == kChildrenOfSets ? 2 : 1;
    const int last = mode == kEverything ? std::numeric_limits<int>::max() : mode;
    Walk walk(lateType, first, last);
    walk.Visit(*KORVar<KORFeature>::Of(this), 1);
    return walk.Features();
}
