#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

#include "tests/ZELMaterialModel/src/ZELTestDataMaterial.h"

std::ostream& operator<<(std::ostream& out, const ZELTold& told) {
    return out << told.name << ", " << told.feature << " -> " << told.replacement << ", " << std::hex
               << told.status << std::dec << (told.stillNeeded ? ", still needed" : "") << ", changed "
               << testing::PrintToString(told.changes) << ", unlisted "
               << testing::PrintToString(told.unlisted);
}

std::vector<ZELTold> ZELToldOf(const KORUpgradeReport& report) {
    std::vector<ZELTold> all;
    for (const KORUpgradedFeature& one : report.upgraded) {
        ZELTold told{std::string(one.name.View()),
                     one.feature,
                     one.replacement,
                     one.status,
                     one.stillNeeded,
                     {},
                     one.unlisted};
        for (const KORUpgradeChange& change : one.changes) {
            told.changes.push_back(std::to_string(change.feature) + " " + change.attribute);
        }
        all.push_back(std::move(told));
    }
    return all;
}

std::string ZELOlderText(const std::string& name) {
    std::ifstream file(std::filesystem::path(ZEL_OLDER_DOCUMENTS) / (name + ".json"), std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ZELOlderTextOverCompleteCatalog(const std::string& name) {
    const std::string moduleCatalog = ZELCatalogFolder::kModuleCatalog;
    std::string text = ZELOlderText(name);
    return text.replace(text.find(moduleCatalog), moduleCatalog.size(), ZELCatalogFolder::kCompleteCatalog);
}

ZELOlderDocument::ZELOlderDocument(const ZELCatalogFolder& catalogs, const std::string& text)
    : platform_(catalogs.Path()) {
    KORFileError error;
    EXPECT_TRUE(text_.ReadText(text, "older", error)) << error.Text();
}

ZELOlderDocument::~ZELOlderDocument() {
    document_->Close();
}

KORUpgradeReport ZELOlderDocument::Upgrade() {
    return KORRunUpgrade(*document_, "ZELMaterialLT", "ZELMaterialApplicative");
}

std::string ZELOlderDocument::Text() const {
    KORFileError error;
    const auto text = text_.Write(error);
    EXPECT_TRUE(text) << error.Text();
    return text.value_or("");
}

ZELRows ZELOlderDocument::Coefficients() const {
    const auto hyperelasticity = Component(Material(), "ZELHyperelasticity");
    const auto model = hyperelasticity ? Component(hyperelasticity, "HyperelasticModel_v2") : nullptr;
    return model ? ZELTestDataOf(model) : ZELRows();
}

std::vector<double> ZELOlderDocument::JohnsonCook() const {
    const auto plastic = Component(Material(), "ZELPlastic");
    const auto data = plastic ? Component(plastic, "JohnsonCookData_v2") : nullptr;
    if (!data) return {};
    return {GetNumber(data, "CoeffA"),
            GetNumber(data, "CoeffB"),
            GetNumber(data, "CoeffN"),
            GetNumber(data, "CoeffM"),
            GetNumber(data, "MeltingTemperature"),
            GetNumber(data, "TransitionTemperature")};
}

KORISpecObject_var ZELOlderDocument::Material() const {
    KORISpecObject_var first;
    document_->ForEachFeature(KORName::Find("ZELMaterialLT"), [&first](KORFeature& material) {
        if (!first) first = KORISpecObject_var(&material);
    });
    return first;
}
