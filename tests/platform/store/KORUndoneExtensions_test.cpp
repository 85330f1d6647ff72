// What undo means to the extensions that were built over the data as they were.

#include "KORUndoTest.h"
#include "framework/KORDictionary.h"
#include "framework/KORTie.h"

namespace {

inline const KORIID IID_KORISeen = KORName::Intern("KORISeen");

/// An extension of the test's late type that remembers what it saw when it was built.
class KORISeen : public KORInterface<IID_KORISeen> {
public:
    virtual double Length() = 0;

protected:
    ~KORISeen() = default;
};
using KORISeen_var = KORVar<KORISeen>;

class KORESeen final : public KORBaseUnknown {
    KORDeclareClass

public:
    KORESeen() {
        const auto access = KORISpecAttrAccess_var::Of(static_cast<KORBaseUnknown*>(this));
        length_ = access->GetDouble(KORName::Intern("Length"), 0);
    }
    double Length() const { return length_; }

private:
    double length_ = 0.0;
};
KORImplementClass(KORESeen, KORClassKind::DataExtension, "KORTestLT", "KORTestModule")

KORBaseUnknown* KORESeen::CreateItself() {
    return new KORESeen;
}

class TIEKORISeen final : public KORTie<KORISeen, KORESeen> {
public:
    using KORTie::KORTie;
    double Length() override { return Called(__func__)->Length(); }
};
const KORFillDictionary seenEntry(KORESeen::MetaObject(), KORISeen::MetaObject(), &KORCreateTie<TIEKORISeen>,
                                  nullptr, 1);

using KORUndoneExtensions = KORUndoTest;

TEST_F(KORUndoneExtensions, RaisesTheGenerationWithUndoRedoAndRollbackOnly) {
    SetLength(2.0);
    EXPECT_EQ(0u, document->Generation());
    document->Undo();
    EXPECT_EQ(1u, document->Generation());
    document->Redo();
    EXPECT_EQ(2u, document->Generation());
    {
        const KORStep step(*document, "Abandoned");
        feature->SetDouble(length, 9.0, 0);
    }
    EXPECT_EQ(3u, document->Generation());
    { const KORStep step(*document, "Nothing"); }
    EXPECT_EQ(3u, document->Generation());
}

TEST_F(KORUndoneExtensions, MakesTheNextQueryBuildAFreshExtension) {
    SetLength(2.0);
    const auto before = KORISeen_var::Of(feature.Get());
    EXPECT_EQ(2.0, before->Length());
    EXPECT_EQ(before, KORISeen_var::Of(feature.Get()));

    document->Undo();
    const auto after = KORISeen_var::Of(feature.Get());

    EXPECT_EQ(2.0, before->Length());
    EXPECT_EQ(1.5, after->Length());
}

TEST_F(KORUndoneExtensions, LeavesOutdatedExtensionsOutdatedWhenTheDocumentIsClosed) {
    SetLength(2.0);
    const auto before = KORISeen_var::Of(feature.Get());
    document->Undo();
    const auto after = KORISeen_var::Of(feature.Get());
    ASSERT_NE(before, after);

    document->Close();

    EXPECT_EQ(after, KORISeen_var::Of(feature.Get()));
    EXPECT_EQ(1.5, KORISeen_var::Of(before.Get())->Length());
}

}  // namespace
