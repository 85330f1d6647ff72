#include "tests/platform/disk/KORDiskTest.h"

#include <sqlite3.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>

namespace {

constexpr const char* kCatalog = R"json({"format": 1, "types": [
  {"name": "KORDiskTestLT", "since": 1, "meaning": "one attribute of every kind", "attributes": [
    {"name": "Flag", "kind": "boolean", "default": true, "since": 1, "meaning": "a flag"},
    {"name": "Count", "kind": "integer", "default": 7, "since": 1, "meaning": "a number"},
    {"name": "Length", "kind": "double", "default": 1.5, "unit": "m", "since": 1, "meaning": "a length"},
    {"name": "Text", "kind": "string", "default": "", "since": 1, "meaning": "a text"},
    {"name": "Numbers", "kind": "list of doubles", "unit": "m", "since": 1, "meaning": "some lengths"},
    {"name": "Other", "kind": "component", "since": 1, "meaning": "another feature"},
    {"name": "Others", "kind": "list of components", "since": 1, "meaning": "other features"}
  ]}]})json";

std::string Shown(double number) {
    if (std::isnan(number)) {
        char text[40];
        std::snprintf(text, sizeof text, "nan:%016lx", std::bit_cast<unsigned long>(number));
        return text;
    }
    char text[40];
    return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string Shown(std::string_view text) {
    std::string shown = "'";
    for (const char c : text) shown += c == '\0' ? std::string("\\0") : std::string(1, c);
    return shown + "'";
}

std::string Shown(KORBaseUnknown* object) {
    const auto feature = KORVar<KORFeature>::Of(object);
    return "#" + std::to_string(feature ? feature->Number() : 0);
}

std::string Shown(const KORValue& value) {
    if (value.State() == KORValueState::NeverValued) return "never";
    switch (value.Kind()) {
        case KORAttributeKind::Boolean:
            return value.Boolean() ? "true" : "false";
        case KORAttributeKind::Integer:
            return std::to_string(value.Integer());
        case KORAttributeKind::Double:
            return Shown(value.Double());
        case KORAttributeKind::String:
            return Shown(value.String().View());
        case KORAttributeKind::Component:
            return Shown(value.Component());
        case KORAttributeKind::ListOfDoubles:
        case KORAttributeKind::ListOfComponents:
            break;
    }
    std::string shown;
    for (int position = 1; position <= value.ListSize(); ++position) {
        shown += shown.empty() ? "" : " ";
        shown += value.Kind() == KORAttributeKind::ListOfDoubles ? Shown(value.ListOfDoubles()[position])
                                                                 : Shown(value.ComponentAt(position).Get());
    }
    return "[" + shown + "]";
}

}  // namespace

std::string KORShownValue(const KORValue& value) {
    return Shown(value);
}

std::string KORShownDocument(KORMemoryDocument& document) {
    const KORDiskContainers containers(document);
    std::string shown;
    document.Features().ForEach([&](KORFeature& feature) {
        shown += std::to_string(feature.Number()) + " " + feature.Layout().Name()->Text() + " " +
                 Shown(feature.GetName().View());
        const KORValue& alias = feature.At(KORLayout::kAlias);
        if (alias.State() == KORValueState::Valued) shown += " called " + Shown(alias.String().View());
        shown += " in " +
                 std::to_string(containers.NumberOf(feature.At(KORLayout::kContainer)).value_or(99)) + ":";
        feature.ForEachSlot([&](KORSlot slot) {
            const KORValue& value = feature.At(slot);
            if (value.State() == KORValueState::Absent) return;
            const bool declared = slot < KORLayout::kFirstUndeclared;
            shown += (declared ? " " : " +") + std::string(feature.SlotText(slot)) + "=" + Shown(value);
        });
        shown += "\n";
    });
    return shown;
}

KORDiskTest::KORDiskTest() {
    // In memory where there is such a folder: a test is not to wait for a disk at each of its many saves.
    const bool memory = access("/dev/shm", W_OK) == 0;
    std::string folder = (memory ? "/dev/shm" : testing::TempDir()) + std::string("/kor-disk-XXXXXX");
    folder_ = mkdtemp(folder.data());
    std::ofstream(folder_ + "/KORDiskTest.KORfct") << kCatalog;
    platform = std::make_unique<KORPlatform>(folder_);
    KORFileError error;
    EXPECT_TRUE(platform->ShareCatalog("KORDiskTest.KORfct", error)) << error.Text();
}

KORDiskTest::~KORDiskTest() {
    std::filesystem::remove_all(folder_);
}

std::vector<std::string> KORDiskTest::Files() const {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        if (entry.path().filename() != "KORDiskTest.KORfct") files.push_back(entry.path().filename());
    }
    std::ranges::sort(files);
    return files;
}

void KORDiskTest::Touch(const std::string& name, const std::string& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
}

std::string KORDiskTest::Content(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void KORDiskTest::Sql(const std::string& statements) const {
    sqlite3* file = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(Path().c_str(), &file));
    char* problem = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(file, statements.c_str(), nullptr, nullptr, &problem)) << problem;
    sqlite3_close(file);
}

std::unique_ptr<KORDiskDocument> KORDiskTest::Create(const std::string& name) {
    KORFileError error;
    auto made = KORDiskDocument::Create(*platform, Path(name), error);
    EXPECT_TRUE(made) << error.Text();
    return made;
}

std::unique_ptr<KORDiskDocument> KORDiskTest::OpenToRead(const std::string& name,
                                                         KORDiskDocument::History history) {
    KORFileError error;
    auto opened = KORDiskDocument::OpenToRead(*platform, Path(name), error, history);
    EXPECT_TRUE(opened) << error.Text();
    return opened;
}

std::unique_ptr<KORDiskDocument> KORDiskTest::OpenToChange(const std::string& name) {
    KORFileError error;
    auto opened = KORDiskDocument::OpenToChange(*platform, Path(name), error);
    EXPECT_TRUE(opened) << error.Text();
    return opened;
}

void KORDiskTest::Save(KORDiskDocument& document, const KORHistoryOrigin& origin) {
    KORFileError error;
    EXPECT_TRUE(document.Save(origin, error)) << error.Text();
}

KORVar<KORFeature> KORDiskTest::First(KORMemoryDocument& document) {
    KORVar<KORFeature> first;
    document.ForEachFeature(nullptr, [&](KORFeature& feature) {
        if (!first) first = KORVar<KORFeature>(&feature);
    });
    return first;
}

KORValue KORDiskTest::UndeclaredOf(const KORFeature& feature, std::string_view name) {
    KORValue found = KORValue::Absent();
    feature.ForEachUndeclared([&](const KORUnicodeString& known, const KORValue& value) {
        if (known.View() == name) found = value;
    });
    return found;
}

std::vector<std::string> KORDiskTest::Rows(const std::string& sql) const {
    std::vector<std::string> rows;
    sqlite3* file = nullptr;
    sqlite3_stmt* row = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_open(Path().c_str(), &file));
    EXPECT_EQ(SQLITE_OK, sqlite3_prepare_v2(file, sql.c_str(), -1, &row, nullptr)) << sqlite3_errmsg(file);
    while (sqlite3_step(row) == SQLITE_ROW) {
        std::string columns;
        for (int column = 0; column < sqlite3_column_count(row); ++column) {
            const auto* shown = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
            columns += (column > 0 ? "|" : "") + std::string(shown ? shown : "NULL");
        }
        rows.push_back(columns);
    }
    sqlite3_finalize(row);
    sqlite3_close(file);
    return rows;
}
