#include "framework/KORError.h"

#include <gtest/gtest.h>

#include "tests/support/ZELTestServices.h"

namespace {

/// Records a warning and gives the caller's reference on it away.
HRESULT Warn(const char* key) {
    return KORError::GetReturn(2, new KORInputError("ZELMessages", key), nullptr, "ZELMaterialElastic", 123);
}

}  // namespace

TEST(KORInputError, NamesAMessageInACatalog) {
    const auto error = KORInputError_var::Adopt(new KORInputError("ZELMessages", "NotTemperatureDependent"));

    EXPECT_EQ(error->MessageCatalog(), "ZELMessages");
    EXPECT_EQ(error->MessageKey(), "NotTemperatureDependent");
}

TEST(KORError, CarriesAnErrorInACodeThatSucceedsButIsNotOk) {
    const ZELTestServices services;

    const HRESULT code = Warn("NotTemperatureDependent");

    EXPECT_TRUE(SUCCEEDED(code));
    EXPECT_NE(code, S_OK);
    const KORErrorRecords::Entry* entry = KORError::Find(code);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->code, code);
    EXPECT_EQ(entry->level, 2);
    EXPECT_EQ(entry->error->MessageKey(), "NotTemperatureDependent");
    EXPECT_EQ(entry->source, "ZELMaterialElastic");
    EXPECT_EQ(entry->line, 123);
}

TEST(KORError, TakesOverTheReferenceOnTheError) {
    const ZELTestServices services;
    const auto error = KORInputError_var::Adopt(new KORInputError("ZELMessages", "key"));
    error->AddRef();

    static_cast<void>(KORError::GetReturn(2, error.Get(), nullptr, "source", 1));

    EXPECT_EQ(error->References(), 2) << "this handle and the record";
}

TEST(KORError, CarriesNoErrorInPlainCodes) {
    const ZELTestServices services;
    EXPECT_EQ(KORError::Find(S_OK), nullptr) << "also when nothing was recorded yet";
    Warn("key");

    for (const HRESULT plain : {S_OK, E_FAIL, E_NOINTERFACE, E_OUTOFMEMORY, HRESULT{1}}) {
        EXPECT_EQ(KORError::Find(plain), nullptr) << plain;
    }
}

TEST(KORError, GivesEachErrorACodeOfItsOwn) {
    const ZELTestServices services;
    const HRESULT first = Warn("first");
    const HRESULT second = Warn("second");

    EXPECT_NE(first, second);
    EXPECT_EQ(KORError::Find(first)->error->MessageKey(), "first");
    EXPECT_EQ(KORError::Find(second)->error->MessageKey(), "second");
}

TEST(KORError, GivesBackTheLast64Errors) {
    const ZELTestServices services;
    const HRESULT first = Warn("first");
    const HRESULT second = Warn("second");
    for (int i = 3; i <= 64; ++i) Warn("later");
    ASSERT_NE(KORError::Find(first), nullptr);

    Warn("the 65th");

    EXPECT_EQ(KORError::Find(first), nullptr);
    ASSERT_NE(KORError::Find(second), nullptr);
    EXPECT_EQ(KORError::Find(second)->error->MessageKey(), "second");
}

TEST(KORError, ReleasesTheErrorsItForgets) {
    const ZELTestServices services;
    const auto error = KORInputError_var::Adopt(new KORInputError("ZELMessages", "key"));
    error->AddRef();
    static_cast<void>(KORError::GetReturn(2, error.Get(), nullptr, "source", 1));

    for (int i = 0; i < 64; ++i) Warn("later");

    EXPECT_EQ(error->References(), 1);
}

TEST(KORError, RecordsACodeWithoutAnErrorObject) {
    const ZELTestServices services;

    const HRESULT code = KORError::GetReturn(2, nullptr, nullptr, "source", 1);

    EXPECT_TRUE(SUCCEEDED(code));
    ASSERT_NE(KORError::Find(code), nullptr);
    EXPECT_EQ(KORError::Find(code)->error, nullptr);
}

TEST(KORErrorRecords, KeepsToSuccessCodesForAsLongAsAProcessLives) {
    KORErrorRecords records;
    HRESULT code = S_OK;
    for (int i = 0; i < 70000; ++i) {
        code = records.Record(2, nullptr, "source", i);
        if (FAILED(code) || code == S_OK) FAIL() << "error " << i << " has code " << code;
    }
    EXPECT_EQ(records.Find(code)->line, 69999);
}
