#include "KORTestDocument.h"

namespace {

using KORApplicativeContainers = KORTestDocument;

TEST_F(KORApplicativeContainers, AreFoundByName) {
    const auto added = document->AddContainer("VRBMatAppliCont");
    void* found = nullptr;

    EXPECT_EQ(S_OK, KORGetApplicativeContainer(document.Get(), IID_KORIContainer, "VRBMatAppliCont", &found));

    const auto container_ = KORIContainer_var::Adopt(static_cast<KORIContainer*>(found));
    EXPECT_EQ(KORBaseUnknown_var(added.Get()), KORBaseUnknown_var(container_));
    EXPECT_EQ(static_cast<KORDocument*>(document.Get()), container_->GetDocument());
    EXPECT_EQ(std::vector<std::string>{"VRBMatAppliCont"}, document->ContainerNames());
    EXPECT_NE(container.Get(), static_cast<KORBaseUnknown*>(added.Get()));
}

TEST_F(KORApplicativeContainers, AreNotFoundWhenTheDocumentHasNone) {
    void* found = this;

    EXPECT_EQ(E_FAIL,
              KORGetApplicativeContainer(document.Get(), IID_KORIContainer, "VRBMatAppliCont", &found));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(E_FAIL, KORGetApplicativeContainer(nullptr, IID_KORIContainer, "VRBMatAppliCont", &found));
    document->AddContainer("VRBMatAppliCont");
    EXPECT_EQ(E_NOINTERFACE,
              KORGetApplicativeContainer(document.Get(), IID_KORIAlias, "VRBMatAppliCont", &found));
}

TEST_F(KORApplicativeContainers, HaveOneContainerToAName) {
    const auto first = document->AddContainer("A");
    const auto second = document->AddContainer("B");

    EXPECT_EQ(first, document->AddContainer("A"));
    EXPECT_FALSE(first == second);
    EXPECT_FALSE(document->AddContainer(""));
    EXPECT_EQ((std::vector<std::string>{"A", "B"}), document->ContainerNames());
}

TEST_F(KORApplicativeContainers, HoldFeaturesOfTheDocument) {
    const auto added = document->AddContainer("A");

    const auto feature = added->NewFeature(layout, "Inside");

    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_EQ(KORBaseUnknown_var(added.Get()), KORBaseUnknown_var::Adopt(feature->GetFeatContainer()));
    EXPECT_EQ(S_OK, document->Remove(feature.Get()));
    EXPECT_EQ(0u, document->FeatureCount());
}

TEST_F(KORApplicativeContainers, OutliveTheDocumentEmpty) {
    const auto added = document->AddContainer("A");

    document->Close();

    EXPECT_EQ(nullptr, added->GetDocument());
    EXPECT_FALSE(added->NewFeature(layout, "late"));
    EXPECT_EQ(nullptr, document->FindContainer("A"));
    EXPECT_FALSE(document->AddContainer("B"));
    EXPECT_EQ(1, added->References());
}

}  // namespace
