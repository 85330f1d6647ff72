#pragma once

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

/// A data extension whose creation, constructor and destructor a test can enter.
class KORTestExtension final : public KORBaseUnknown {
    KORDeclareClass

public:
    KORTestExtension() {
        ++living;
        ++made;
        try {
            if (inConstructor) inConstructor(*this);
        } catch (...) {
            --living;  // no destructor follows
            throw;
        }
    }
    ~KORTestExtension() override {
        if (inDestructor) inDestructor(*this);
        --living;
    }

    int Value() { return value_; }
    void SetValue(int value) { value_ = value; }
    std::string Name() { return "extension"; }

    static inline int living = 0;
    static inline int made = 0;
    static inline std::function<void(KORTestExtension&)> inConstructor;
    static inline std::function<void(KORTestExtension&)> inDestructor;
    static inline std::function<KORBaseUnknown*()> create;

private:
    int value_ = 1;
};

/// Extends the same late type by another interface.
class KORTestNeighbour final : public KORBaseUnknown {
    KORDeclareClass

public:
    KORTestNeighbour() { ++living; }
    ~KORTestNeighbour() override { --living; }
    static inline int living = 0;
};

/// A feature that extensions can be asked of; afterwards nothing of it is left.
class KORExtension : public testing::Test {
protected:
    ~KORExtension() override {
        KORTestExtension::inConstructor = nullptr;
        KORTestExtension::inDestructor = nullptr;
        KORTestExtension::create = nullptr;
        feature_ = nullptr;
        EXPECT_EQ(KORTestFeature::living, 0);
        EXPECT_EQ(KORTestExtension::living, 0);
        EXPECT_EQ(KORTestNeighbour::living, 0);
        EXPECT_EQ(KORModule::Of("ExtensionModule").LiveObjects(), 0);
    }

    HRESULT Ask(KORIID iid) {
        void* found = this;
        const HRESULT status = feature_->QueryInterface(iid, &found);
        if (SUCCEEDED(status)) {
            static_cast<KORIUnknown*>(found)->Release();
        } else {
            EXPECT_EQ(found, nullptr);
        }
        return status;
    }

    KORTestFeature_var feature_ = MakeTestFeature("ExtendedLT");
    int made_ = KORTestExtension::made;
};
