#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "KORTestDocument.h"
#include "interfaces/KORISamAnalysisEntity.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "platform/analysis/KORChildren.h"

namespace {

constexpr const char* kSet = "KORTestSetLT";
constexpr const char* kEntity = "KORTestEntityLT";
constexpr const char* kLoose = "KORTestLooseLT";  // has no role
constexpr const char* kCatalogName = "Layups.KORfct";

/// A document with an analysis model, a catalog with entities in its platform's folder, and sets that all
/// documents know.
class KORAnalysisModel : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directory(folder);
        std::ofstream(folder + "/Layups.KORfct") << R"({"format": 1, "types": [
            {"name": "KORTestEntityLT", "role": "entity", "since": 1, "meaning": "x", "attributes": []}]})";
        std::ofstream(folder + "/Shared.KORfct") << R"({"format": 1, "types": [
            {"name": "KORTestLooseLT", "since": 1, "meaning": "x", "attributes": [
              {"name": "Children", "kind": "list of components", "since": 1, "meaning": "x"}]},
            {"name": "KORTestSetLT", "role": "set", "since": 1, "meaning": "x", "attributes": [
              {"name": "Children", "kind": "list of components", "since": 1, "meaning": "x"}]}]})";
        KORFileError error;
        ASSERT_TRUE(platform.ShareCatalog("Shared.KORfct", error)) << error.Text();
        model = document->AddAnalysisModel();
        factory = KORISamAnalysisModelFactory_var::Adopt(document->GetFactory());
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    KORISpecObject_var Create(const char* lateType, const char* name = "Entity") {
        return KORISpecObject_var(
            KORBaseUnknown_var::Adopt(factory->CreateEntity(lateType, name, model.Get())));
    }
    /// Numbers of what is found: the model is 1, entities count from 2 in the order of their creation.
    std::vector<std::uint32_t> Scan(const char* lateType, int mode) {
        return KORNumbersOf(KORISamAnalysisScan_var(model)->Scan(lateType, mode));
    }
    using Numbers = std::vector<std::uint32_t>;

    const std::string folder = testing::TempDir() + "KORAnalysisModel_" +
                               testing::UnitTest::GetInstance()->current_test_info()->name() +
                               std::to_string(::getpid());
    KORPlatform platform{folder};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
    KORVar<KORFeature> model;
    KORISamAnalysisModelFactory_var factory;
};

TEST_F(KORAnalysisModel, IsOneToADocument) {
    EXPECT_EQ(model, document->AddAnalysisModel());
    EXPECT_EQ(1u, document->FeatureCount());

    const auto found = KORISamAnalysisModel_var::Adopt(document->GetAnalysisModel());

    EXPECT_EQ(model, KORVar<KORFeature>(found));
}

TEST_F(KORAnalysisModel, IsNotThereUntilTheHostAddsIt) {
    const auto bare = KORMemoryDocument::New(platform);

    EXPECT_EQ(nullptr, bare->GetAnalysisModel());
    EXPECT_NE(nullptr, KORISamAnalysisModelFactory_var::Adopt(bare->GetFactory()).Get());
}

TEST_F(KORAnalysisModel, ComesAndGoesWithUndo) {
    const auto second = KORMemoryDocument::New(platform);
    {
        KORStep step(*second, "Model");
        second->AddAnalysisModel();
        step.Commit();
    }
    EXPECT_NE(nullptr, KORISamAnalysisModel_var::Adopt(second->GetAnalysisModel()).Get());

    EXPECT_TRUE(second->Undo());
    EXPECT_EQ(nullptr, second->GetAnalysisModel());
    EXPECT_TRUE(second->Redo());
    EXPECT_NE(nullptr, KORISamAnalysisModel_var::Adopt(second->GetAnalysisModel()).Get());
}

TEST_F(KORAnalysisModel, IsGoneOnceTheDocumentIsClosed) {
    document->Close();

    EXPECT_EQ(nullptr, document->GetAnalysisModel());
    EXPECT_EQ(nullptr, document->GetFactory());
    EXPECT_FALSE(document->AddAnalysisModel());
    EXPECT_EQ(E_FAIL, document->LoadCatalog(kCatalogName));
    EXPECT_EQ(nullptr, factory->CreateEntity(kSet, "Set", model.Get()));
}

TEST_F(KORAnalysisModel, IsTheDocumentsAnalysisSide) {
    const auto side = KORIAnalysisDocument_var::Of(static_cast<KORDocument*>(document.Get()));

    ASSERT_TRUE(side);
    EXPECT_EQ(S_OK, side->LoadCatalog(kCatalogName));
    testing::internal::CaptureStderr();
    EXPECT_EQ(E_FAIL, side->LoadCatalog("Missing.KORfct"));
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(1u, document->Catalogs().Catalogs().size());
    EXPECT_EQ(kCatalogName, document->Catalogs().Catalogs()[0].name);
}

TEST_F(KORAnalysisModel, TakesEntitiesOfTheSharedAndTheLoadedCatalogs) {
    EXPECT_FALSE(Create(kEntity));
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));

    const auto layup = Create(kEntity, "Layup-");
    const auto set = Create(kSet, "Set");

    ASSERT_TRUE(layup);
    ASSERT_TRUE(set);
    EXPECT_EQ(KORUnicodeString("Layup-"), layup->GetName());
    EXPECT_EQ(KORUnicodeString(kEntity), layup->GetType());
    EXPECT_EQ((Numbers{2}), Scan(kEntity, 1));
    EXPECT_EQ((Numbers{3}), Scan(kSet, 1));
}

TEST_F(KORAnalysisModel, TakesNoEntityUnderWhatCanHaveNoChildren) {
    const auto material = document->NewPlatformFeature("KORMaterialLT", "Steel");

    EXPECT_EQ(nullptr, factory->CreateEntity(kSet, "Set", material.Get()));
    EXPECT_EQ(nullptr, factory->CreateEntity(kSet, "Set", nullptr));
    EXPECT_EQ(nullptr, factory->CreateEntity("KORNoSuchLT", "Set", model.Get()));
    model->SetContainer(nullptr);
    EXPECT_EQ(nullptr, factory->CreateEntity(kSet, "Set", model.Get()));

    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORAnalysisModel, HandsAnEntityToTheSetItIsPutInto) {
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));
    const KORISamAnalysisSet_var set(Create(kSet));  // 2
    const auto layup = Create(kEntity);              // 3
    const auto loose = Create(kEntity);              // 4

    set->AddChild(layup);
    set->AddChild(layup);
    set->AddChild(nullptr);

    EXPECT_EQ((Numbers{3}), KORNumbersOf(set->GetFeatures(kEntity)));
    EXPECT_EQ(Numbers{}, KORNumbersOf(set->GetFeatures(kSet)));
    EXPECT_EQ((Numbers{4}), Scan(kEntity, 1));
    EXPECT_EQ((Numbers{3}), Scan(kEntity, 2));
    EXPECT_EQ((Numbers{3, 4}), Scan(kEntity, 3));  // the set comes first in the model
    EXPECT_EQ(Numbers{}, Scan(kSet, 2));
    EXPECT_EQ(Numbers{}, Scan(kEntity, 0));
    EXPECT_EQ(Numbers{}, Scan(kEntity, 4));
}

// What is no feature comes into the list past this platform's own operations.
TEST_F(KORAnalysisModel, KeepsWhatElseItListsWhenAnEntityGoesIntoASet) {
    const KORName* const children = KORName::Intern("Children");
    const KORISamAnalysisSet_var set(Create(kSet));
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    model->AppendComponent(children, stranger.Get());
    model->AppendComponent(children, nullptr);
    const auto child = Create(kSet);

    set->AddChild(child);

    EXPECT_EQ(3, model->GetListSize(children));
    EXPECT_EQ(stranger, KORBaseUnknown_var::Adopt(model->GetComponent(children, 2)));
    EXPECT_EQ(nullptr, model->GetComponent(children, 3));
    EXPECT_EQ(2, stranger->References()) << "this test and the model";
}

TEST_F(KORAnalysisModel, FindsAFeatureOnceAndAtAnyDepth) {
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));
    const auto outer = Create(kSet);     // 2
    const auto inner = Create(kSet);     // 3
    const auto layup = Create(kEntity);  // 4
    KORISamAnalysisSet_var(outer)->AddChild(inner);
    KORISamAnalysisSet_var(inner)->AddChild(layup);
    KORISamAnalysisSet_var(outer)->AddChild(layup);
    KORISamAnalysisSet_var(inner)->AddChild(outer);  // leaves the model, so nothing is found any more
    EXPECT_EQ(Numbers{}, Scan(kSet, 3));
    model->AppendComponent(KORName::Intern("Children"), KORBaseUnknown_var(outer).Get());
    model->AppendComponent(KORName::Intern("Children"), nullptr);

    EXPECT_EQ((Numbers{4}), Scan(kEntity, 3));
    EXPECT_EQ((Numbers{2, 3}), Scan(kSet, 3));
    EXPECT_EQ((Numbers{4}), Scan(kEntity, 2));
}

TEST_F(KORAnalysisModel, IsScannedHoweverDeepItsSetsLieInEachOther) {
    constexpr std::uint32_t kDeep = 100000;
    KORISamAnalysisSet_var outer(Create(kSet));
    for (std::uint32_t depth = 1; depth < kDeep; ++depth) {
        const KORISpecObject_var inner = Create(kSet);
        outer->AddChild(inner);
        outer = inner;
    }

    EXPECT_EQ(Numbers{2}, Scan(kSet, 1));
    EXPECT_EQ(Numbers{3}, Scan(kSet, 2));
    EXPECT_EQ(kDeep, Scan(kSet, 3).size());
}

// The same set is first met where it is too deep to be looked into.
TEST_F(KORAnalysisModel, LooksIntoASetThatIsListedInAnotherOneBeforeIt) {
    const auto outer = Create(kSet);
    const auto inner = Create(kSet);
    const auto loose = Create(kLoose);
    KORISamAnalysisSet_var(inner)->AddChild(loose);
    KORISamAnalysisSet_var(outer)->AddChild(inner);
    KORChildren(*model).Append(inner.Get());

    EXPECT_EQ(Numbers{4}, Scan(kLoose, 2));
}

TEST_F(KORAnalysisModel, TellsAnEntityTheSetsThatHoldIt) {
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));
    const auto first = Create(kSet);
    const auto second = Create(kSet);
    const auto layup = Create(kEntity);
    const KORISamAnalysisEntity_var entity(layup);
    ASSERT_TRUE(entity);
    EXPECT_EQ(0, entity->GetParentSets().Size());

    KORISamAnalysisSet_var(second)->AddChild(layup);

    const KORListValKORBaseUnknown_var parents = entity->GetParentSets();
    ASSERT_EQ(1, parents.Size());
    EXPECT_EQ(KORBaseUnknown_var(second), parents[1]);
    document->Remove(model.Get());
    EXPECT_EQ(0, entity->GetParentSets().Size());
    document->Close();
    EXPECT_EQ(0, entity->GetParentSets().Size());
}

TEST_F(KORAnalysisModel, IsNotNeededForASetToHoldChildren) {
    const auto bare = KORMemoryDocument::New(platform);
    const auto set = bare->NewPlatformFeature(kSet, "Set");
    const auto section = bare->NewPlatformFeature(kLoose, "Section");

    KORISamAnalysisSet_var(set)->AddChild(KORISpecObject_var(section));

    EXPECT_EQ((Numbers{2}), KORNumbersOf(KORISamAnalysisSet_var(set)->GetFeatures(kLoose)));
}

TEST_F(KORAnalysisModel, KnowsSetsEntitiesAndModelsByTheRoleOfTheirType) {
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));
    const auto loose = Create(kLoose);

    EXPECT_TRUE(KORISamAnalysisModel_var(model));
    EXPECT_FALSE(KORISamAnalysisEntity_var(model));
    EXPECT_TRUE(KORISamAnalysisSet_var(Create(kSet)));
    EXPECT_TRUE(KORISamAnalysisEntity_var(Create(kEntity)));
    EXPECT_FALSE(KORISamAnalysisSet_var(loose)) << "children alone make no set";
    EXPECT_FALSE(KORISamAnalysisEntity_var(loose));
    EXPECT_FALSE(KORISamAnalysisModel_var(loose));
}

TEST_F(KORAnalysisModel, UndoesAMoveIntoASet) {
    EXPECT_EQ(S_OK, document->LoadCatalog(kCatalogName));
    const KORISamAnalysisSet_var set(Create(kSet));
    const auto layup = Create(kEntity);
    {
        KORStep step(*document, "Move");
        set->AddChild(layup);
        step.Commit();
    }

    EXPECT_TRUE(document->Undo());

    EXPECT_EQ((Numbers{3}), Scan(kEntity, 1));
    EXPECT_EQ(Numbers{}, Scan(kEntity, 2));
}

TEST_F(KORAnalysisModel, LetsEntitiesBeFreedOfADomain) {
    const auto set = Create(kSet);

    set->SetDomain(nullptr);

    EXPECT_EQ((Numbers{2}), Scan(kSet, 1));
}

}  // namespace
