#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/disk/KORDiskDocument.h"
#include "tests/platform/KORTestDocument.h"

/// A document as text: its living features in the order of their numbers, each with all that it holds.
std::string KORShownDocument(KORMemoryDocument& document);
std::string KORShownValue(const KORValue& value);

/// A folder of the test's own, a platform whose shared catalog declares a late type with one attribute of
/// every kind, and the shortest way to documents in files.
class KORDiskTest : public testing::Test, protected KORTestKeys {
protected:
    KORDiskTest();
    ~KORDiskTest() override;

    std::string Path(const std::string& name = "d.zeldoc") const { return folder_ + "/" + name; }

    std::vector<std::string> Files() const;  ///< the folder's, sorted, without the catalog
    void Touch(const std::string& name, const std::string& content = "") const;
    std::string Content(const std::string& name = "d.zeldoc") const;
    void Sql(const std::string& statements) const;  ///< changes d.zeldoc with SQLite itself

    /// The rows of a query to SQLite itself, their columns with a "|" between them.
    std::vector<std::string> Rows(const std::string& sql) const;

    // Null, and the test has failed, when it does not work.
    std::unique_ptr<KORDiskDocument> Create(const std::string& name = "d.zeldoc");
    std::unique_ptr<KORDiskDocument> OpenToRead(
        const std::string& name = "d.zeldoc",
        KORDiskDocument::History history = KORDiskDocument::History::Names);
    std::unique_ptr<KORDiskDocument> OpenToChange(const std::string& name = "d.zeldoc");
    void Save(KORDiskDocument& document, const KORHistoryOrigin& origin = {});

    static std::string Shown(KORMemoryDocument& document) { return KORShownDocument(document); }

    static KORVar<KORFeature> Material(KORMemoryDocument& document, const char* name) {
        return document.NewPlatformFeature("KORDiskTestLT", name);
    }
    static KORValue UndeclaredOf(const KORFeature& feature,
                                 std::string_view name);           ///< absent when it has none
    static KORVar<KORFeature> First(KORMemoryDocument& document);  ///< that lies in a container; null: none

    template <class Change>
    static void Do(KORMemoryDocument& document, const char* name, Change&& change) {
        KORStep step(document, name);
        change();
        step.Commit();
    }

    std::unique_ptr<KORPlatform> platform;

private:
    std::string folder_;
};
