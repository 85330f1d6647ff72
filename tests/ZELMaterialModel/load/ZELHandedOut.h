#pragma once

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <memory>

#include "ZELMaterialModel/include/ZELIHyperelasticMaterialModel.h"
#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "framework/KORError.h"
#include "framework/KORLibrary.h"
#include "tests/ZELMaterialModel/load/ZELCaller.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELMapStore.h"

inline constexpr const char* kZELLoadedModule = "ZELMaterialModel";

inline bool ZELIsInProcess(const char* path) {
    void* handle = dlopen(path, RTLD_NOW | RTLD_NOLOAD);
    if (handle) dlclose(handle);
    return handle != nullptr;
}

/// The caller's library, loaded while it lives.
class ZELCaller {
public:
    ZELCaller() : handle_(dlopen(ZEL_CALLER_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {
        if (!handle_) ADD_FAILURE() << dlerror();
    }
    ~ZELCaller() {
        if (handle_) dlclose(handle_);
    }
    ZELCaller(const ZELCaller&) = delete;
    ZELCaller& operator=(const ZELCaller&) = delete;

    template <class Operation>
    Operation Find(const char* name) const {
        return reinterpret_cast<Operation>(dlsym(handle_, name));
    }

private:
    void* handle_;
};

/// Features with data for every kind of answer.
struct ZELFeaturesToAsk {
    explicit ZELFeaturesToAsk(ZELTestStore& store)
        : material(store.Make("ZELMaterialLT")),
          layup(store.Make("ZELLayupLT")),
          layer(store.Make("ZELLayupLayerLT")),
          model(store.Make("ZELHyperelasticMaterialModelLT")) {
        Attach(material, "ZELElastic", store.Make("ZELElasticLT"));
        AppendComponent(layup, "LayerList", layer);
        Attach(layer, "UserMaterial", material);
        const auto row = store.Make("ZELMaterialModelRowDataLT");
        SetList(row, "MaterialModelRowData", {0.8e6, 0.2e6, 0.0});
        AppendComponent(model, "HyperelasticMatModelData", row);
        SetText(model, "HyperelasticMatModelDataFile",
                "a name too long for any inner buffer of a string.csv");
    }

    KORISpecObject_var material, layup, layer, model;
};

/// One of every kind of value that the module hands out and does not count as an object of its own.
class ZELHandedOut {
public:
    void Take(const ZELFeaturesToAsk& features) {
        layers_.RemoveAll();  // the module appends to lists and tables
        rows_.Kill();
        {
            const ZELCaller caller;
            warning_ = caller.Find<ZELCutElasticTable>("CutElasticTable")(features.material.Get());
            table_.reset(caller.Find<ZELTakeElasticTable>("TakeElasticTable")(features.material.Get()));
        }
        const ZELILayup_var layup = features.layup;
        ASSERT_TRUE(layup);
        EXPECT_EQ(layup->GetLayers(layers_), S_OK);
        EXPECT_EQ(ZELILayupLayer_var(features.layer)->GetMaterial(material_), S_OK);
        const ZELIHyperelasticMaterialModel_var model = features.model;
        EXPECT_EQ(model->GetPropertyData(rows_), S_OK);
        EXPECT_EQ(model->GetPropertyDataFile(fileName_), S_OK);
        void* found = nullptr;
        ASSERT_EQ(model->QueryInterface(IID_KORImplementation, &found), S_OK);
        const auto implementation = KORBaseUnknown_var::Adopt(static_cast<KORBaseUnknown*>(found));
        className_ = implementation->IsA();
        classId_ = implementation->GetMetaObject().ClassId();
    }

    /// Reads them all, and writes to those that can be written.
    void ExpectGood(const ZELFeaturesToAsk& features) {
        ASSERT_EQ(layers_.Size(), 1);
        EXPECT_EQ(layers_[1], features.layer);
        const KORListValKORISpecObject_var copy = layers_;
        layers_.Append(features.model);
        layers_.RemovePosition(1);
        EXPECT_EQ(layers_[1], features.model);
        layers_ = copy;

        EXPECT_EQ(material_, features.material);
        ASSERT_TRUE(table_);
        EXPECT_EQ((*table_)[0][0], 210e9);
        table_->push_back(rows_[0]);
        EXPECT_EQ(rows_[0][1], 0.2e6);
        table_->Resize(1);
        EXPECT_EQ(fileName_, "a name too long for any inner buffer of a string.csv");
        EXPECT_STREQ(className_, "ZELEHyperelasticMaterialModel");
        EXPECT_EQ(classId_, KORName::Find("ZELEHyperelasticMaterialModel"));

        const KORErrorRecords::Entry* warning = KORError::Find(warning_);
        ASSERT_NE(warning, nullptr);
        EXPECT_EQ(warning->error->MessageCatalog(), "ZELMaterialPropertiesElasticDlg");
        EXPECT_EQ(KORBaseUnknown_var(warning->error)->References(), 2);
    }

private:
    KORListValKORISpecObject_var layers_;
    KORISpecObject_var material_;
    HRESULT warning_ = S_OK;
    std::unique_ptr<ZELCftArrayZELCftArrayDouble> table_;
    ZELCftArrayZELCftArrayDouble rows_;
    KORUnicodeString fileName_;
    const char* className_ = "";
    KORClassId classId_ = nullptr;
};

/// A program that knows the module by its interfaces and its path, and keeps what it was given.
class ZELKeptOverUnload : public testing::Test {
protected:
    std::unique_ptr<KORLibrary> Load() {
        std::string error;
        auto library = KORLibrary::Load(ZEL_MODULE_LIBRARY, kZELLoadedModule, error);
        EXPECT_EQ(error, "");
        return library;
    }
    static std::size_t Records() { return KORModule::Of(kZELLoadedModule).Records(); }

    ZELDiagnostics diagnostics_;
    ZELMapStore store_;
    ZELFeaturesToAsk features_{store_};
    ZELHandedOut values_;
};
