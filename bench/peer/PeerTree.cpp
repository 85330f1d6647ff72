#include "bench/peer/PeerTree.h"

#include <TCollection_ExtendedString.hxx>
#include <TDF_CopyLabel.hxx>
#include <TDF_Reference.hxx>
#include <TDataStd_Integer.hxx>
#include <TDataStd_Name.hxx>
#include <TDataStd_Real.hxx>
#include <stdexcept>
#include <vector>

namespace peer {

namespace {

constexpr int kFlags = 11;
constexpr int kBranches = 14;
constexpr int kWideBranches = 12;

/// Made once, as the house's keys are.
struct Keys {
    std::vector<Standard_GUID> flags;
    Standard_GUID flag = Key(100);
    Standard_GUID integer = Key(101);
    Standard_GUID number = Key(102);
    TCollection_ExtendedString rootName = "BenchRootLT";
    TCollection_ExtendedString wideName = "BenchWideLT";
    TCollection_ExtendedString narrowName = "BenchNarrowLT";

    Keys() {
        for (int i = 0; i < kFlags; ++i) flags.push_back(RootFlag(i));
    }
};

}  // namespace

Standard_GUID RootFlag(int i) {
    return Key(200 + i);
}

TDF_Label GrowTree(const Document& document, double value) {
    static const Keys keys;
    const TDF_Label root = document.NewFeature();
    TDataStd_Name::Set(root, keys.rootName);
    for (const Standard_GUID& flag : keys.flags) TDataStd_Integer::Set(root, flag, 1);
    for (int i = 0; i < kBranches; ++i) {
        const TDF_Label branch = root.FindChild(i + 1);
        TDataStd_Name::Set(branch, i < kWideBranches ? keys.wideName : keys.narrowName);
        TDataStd_Integer::Set(branch, keys.flag, 1);
        TDataStd_Real::Set(branch, keys.number, value);
        if (i < kWideBranches) TDataStd_Integer::Set(branch, keys.integer, i + 1);
        TDF_Reference::Set(branch, root);
    }
    return root;
}

void CopyTree(const Document& document, const TDF_Label& root) {
    TDF_CopyLabel copy(root, document.NewFeature());
    copy.Perform();
    if (!copy.IsDone()) throw std::runtime_error("the peer cannot copy");
}

}  // namespace peer
