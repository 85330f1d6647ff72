#include <gmock/gmock.h>

#include "ZELShared/TIEZELIKqcAnalysisCaseFact.h"
#include "framework/KORDictionary.h"
#include "framework/TIEKORICreateInstance.h"
#include "tests/ZELMaterialModel/ZELAnalysisServices.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELTestAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// What the analysis-case factory of a test does, and what has been asked of it.
struct Case {
    bool makesInstances = true;
    bool answersNull = false;  ///< the instances, with success, when asked for their interface
    bool makesSets = true;
    HRESULT status = S_OK;
    std::vector<KORDocument*> documents;
    std::vector<KORBaseUnknown*> factories;  ///< no references
};
Case* current = nullptr;

/// Stands in for the analysis-case module's factory.
class CaseFact final : public KORBaseUnknown {
    KORDeclareClass

    HRESULT QueryInterface(KORIID iid, void** out) override {
        if (!current->answersNull) return KORBaseUnknown::QueryInterface(iid, out);
        *out = nullptr;
        return S_OK;
    }
    HRESULT CreatePropertySet(KORDocument* document) {
        current->documents.push_back(document);
        const auto analysis = KORIAnalysisDocument_var::Of(document);
        if (!current->makesSets || !analysis) return current->status;
        const auto factory = KORISamAnalysisModelFactory_var::Adopt(analysis->GetFactory());
        const KORISpecObject_var model(KORISamAnalysisModel_var::Adopt(analysis->GetAnalysisModel()));
        const auto set =
            KORBaseUnknown_var::Adopt(factory->CreateEntity("ZELZelmarPropertySetLT", "Set", model.Get()));
        return current->status;
    }
};
KORImplementClass(CaseFact, KORClassKind::Component, "KORnull", "ZELTest")

KORBaseUnknown* CaseFact::CreateItself() {
    return nullptr;
}

class CaseFactInst final : public KORBaseUnknown {
    KORDeclareClass

    HRESULT CreateInstance(void** out) {
        KORBaseUnknown* made = current->makesInstances ? new CaseFact : nullptr;
        if (made) current->factories.push_back(made);
        *out = made;
        return S_OK;
    }
};
KORImplementClass(CaseFactInst, KORClassKind::CodeExtension, "ZELKqcAnalysisCaseFact", "ZELTest")

KORBaseUnknown* CaseFactInst::CreateItself() {
    return new CaseFactInst;
}

/// The analysis-case module, loaded for as long as this lives.
class CaseModule {
public:
    CaseModule() { current = &asked_; }
    ~CaseModule() { current = nullptr; }
    CaseModule(const CaseModule&) = delete;
    CaseModule& operator=(const CaseModule&) = delete;

    Case* operator->() { return &asked_; }

private:
    Case asked_;
    KORFillDictionary instance_{CaseFactInst::MetaObject(), KORICreateInstance::MetaObject(),
                                KORCreateTie<TIEKORICreateInstance<CaseFactInst>>, nullptr, 1};
};

/// That the factory component answers its interface.
class CaseInterface {
    KORFillDictionary entry_{CaseFact::MetaObject(), ZELIKqcAnalysisCaseFact::MetaObject(),
                             KORCreateTie<TIEZELIKqcAnalysisCaseFact<CaseFact>>, nullptr, 1};
};

class ZELPropertiesSet : public testing::Test {
protected:
    HRESULT CreateSet() { return ZELTestAccess::CreatePropertiesSet(store_.Document()); }

    ZELMapStore store_;
    KORISpecObject_var model_ = store_.AddAnalysisModel();
    ZELAnalysisServices services_;
    KORISpecObject_var layup_;
};

}  // namespace

TEST_F(ZELPropertiesSet, CannotBeMadeWithoutTheAnalysisCaseModule) {
    EXPECT_EQ(CreateSet(), E_FAIL);
    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_FAIL);

    EXPECT_EQ(layup_, nullptr);
    EXPECT_THAT(ZELChildrenOf(model_), IsEmpty());
}

TEST_F(ZELPropertiesSet, CannotBeMadeWhenTheFactoryIsNoneOrLacksItsInterface) {
    CaseModule module;
    EXPECT_EQ(CreateSet(), E_FAIL);

    const CaseInterface interface;
    module->makesInstances = false;
    EXPECT_EQ(CreateSet(), E_FAIL);

    module->makesInstances = true;
    module->answersNull = true;
    EXPECT_EQ(CreateSet(), E_FAIL);

    EXPECT_THAT(module->documents, IsEmpty());
}

TEST_F(ZELPropertiesSet, IsMadeByTheAnalysisCaseFactory) {
    CaseModule module;
    const CaseInterface interface;

    EXPECT_EQ(CreateSet(), S_OK);

    EXPECT_THAT(module->documents, ElementsAre(store_.Document()));
    EXPECT_EQ(ZELChildrenOf(model_).size(), 1u);
}

TEST_F(ZELPropertiesSet, PassesTheFactorysFailureOnUnchanged) {
    CaseModule module;
    const CaseInterface interface;
    for (const HRESULT failure : {E_OUTOFMEMORY, E_NOINTERFACE, -5}) {
        module->status = failure;
        EXPECT_EQ(CreateSet(), failure);
    }
}

TEST_F(ZELPropertiesSet, MakesEverySuccessOfTheFactoryPlain) {
    CaseModule module;
    const CaseInterface interface;
    for (const HRESULT success : {0, 1, 42}) {
        module->status = success;
        EXPECT_EQ(CreateSet(), S_OK);
    }
}

TEST_F(ZELPropertiesSet, KeepsItsReferenceOnTheFactory) {
    CaseModule module;
    const CaseInterface interface;

    EXPECT_EQ(CreateSet(), S_OK);

    ASSERT_EQ(module->factories.size(), 1u);
    EXPECT_EQ(module->factories[0]->References(), 1) << "the binding's, which nobody gives back";
}

TEST_F(ZELPropertiesSet, LetsALayupsCreationFailWithItsOwnStatus) {
    CaseModule module;
    const CaseInterface interface;
    module->status = E_OUTOFMEMORY;

    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_OUTOFMEMORY);

    EXPECT_EQ(layup_, nullptr);
    EXPECT_THAT(store_.Calls().Log("Scan"), ElementsAre("Scan ZELZelmarPropertySetLT 3"));
}

TEST_F(ZELPropertiesSet, LetsALayupsCreationFailWhenItIsNotThereAfterwards) {
    CaseModule module;
    const CaseInterface interface;
    module->makesSets = false;

    EXPECT_EQ(ZELFactory()->CreateLayup(layup_, store_.Document()), E_FAIL);

    EXPECT_EQ(layup_, nullptr);
    EXPECT_THAT(store_.Calls().Log("Scan"),
                ElementsAre("Scan ZELZelmarPropertySetLT 3", "Scan ZELZelmarPropertySetLT 3"));
}
