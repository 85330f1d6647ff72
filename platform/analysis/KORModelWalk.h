#pragma once

#include <limits>

#include "interfaces/KORISamAnalysisSet.h"
#include "platform/analysis/KORChildren.h"
#include "platform/store/KORFeaturePlaces.h"

/// A walk over what an analysis model lists, in document order: its children, each set followed by what it
/// holds. Depth 1 is that of the model's own children. A feature is passed as often as it is listed, but a
/// set is entered once, however it holds itself.
class KORModelWalk {
public:
    static constexpr int kEverything = std::numeric_limits<int>::max();

    /// Down to the depth `last`.
    explicit KORModelWalk(int last = kEverything) : last_(last) {}

    /// Visits with (KORFeature&, int depth) what stands below `parent`.
    template <class Visitor>
    void Visit(KORFeature& parent, Visitor&& visit, int depth = 1) {
        if (depth > last_) return;
        const KORListValKORISpecObject_var children = KORChildren(parent).All();
        for (int position = 1; position <= children.Size(); ++position) {
            const KORVar<KORFeature> child(children[position]);
            if (!child) continue;
            visit(*child, depth);
            if (KORISamAnalysisSet_var(child) && entered_.Add(child.Get(), 0))
                Visit(*child, visit, depth + 1);
        }
    }

private:
    int last_;
    KORFeaturePlaces entered_;
};
