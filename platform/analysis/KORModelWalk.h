#pragma once

#include <limits>
#include <vector>

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

    /// Visits with (KORFeature&, int depth) what stands below `parent`. However deep that is, the stack is
    /// not.
    template <class Visitor>
    void Visit(KORFeature& parent, Visitor&& visit) {
        std::vector<Level> levels{{KORChildren(parent).All()}};
        while (!levels.empty()) {
            Level& level = levels.back();
            if (level.passed == level.children.Size()) {
                levels.pop_back();
                continue;
            }
            const KORVar<KORFeature> child(level.children[++level.passed]);
            if (!child) continue;
            const int depth = static_cast<int>(levels.size());
            visit(*child, depth);
            if (depth < last_ && KORISamAnalysisSet_var(child) && entered_.Add(child.Get(), 0)) {
                levels.push_back({KORChildren(*child).All()});
            }
        }
    }

private:
    struct Level {
        KORListValKORISpecObject_var children;
        int passed = 0;
    };

    int last_;
    KORFeaturePlaces entered_;
};
