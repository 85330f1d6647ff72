// What does a document in a file cost: opening it, saving it, and saving one change in a document of any
// size? Beside the peer, and beside SQLite alone that reads and writes the same rows.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Ratios.h"
#include "platform/disk/KORDiskDocument.h"

namespace {

using bench::Figure;
using bench::Target;

constexpr int kBranches = 14;
constexpr int kFlags = 11;

/// The late types of a tree of fifteen features with sixty-five attributes, as the peer's, and a table on its
/// root.
std::string CatalogText() {
    const auto attribute = [](const std::string& name, const char* kind) {
        return R"({"name": ")" + name + R"(", "kind": ")" + kind + R"(", "since": 1, "meaning": "one"},)";
    };
    const auto scalar = [](const std::string& name, const char* kind) {
        return R"({"name": ")" + name + R"(", "kind": ")" + kind +
               R"(", "default": null, "since": 1, "meaning": "one"},)";
    };
    const auto number = [](const std::string& name, const char* kind) {
        return R"({"name": ")" + name + R"(", "kind": ")" + kind +
               R"(", "unit": "-", "since": 1, "meaning": "one"},)";
    };
    const auto type = [](const char* name, std::string attributes) {
        attributes.pop_back();
        return std::string(R"({"name": ")") + name + R"(", "since": 1, "meaning": "one", "attributes": [)" +
               attributes + "]}";
    };
    std::string root;
    for (int i = 0; i < kBranches; ++i) root += attribute("DiskBranch" + std::to_string(i), "component");
    for (int i = 0; i < kFlags; ++i) root += scalar("DiskFlag" + std::to_string(i), "boolean");
    for (int i = 0; i < 3; ++i) root += number("DiskColumn" + std::to_string(i), "list of doubles");
    const std::string narrow =
        scalar("DiskFlag", "boolean") + scalar("DiskNumber", "double\", \"unit\": \"-");
    return R"({"format": 1, "types": [)" + type("DiskRootLT", root) + "," + type("DiskNarrowLT", narrow) +
           "," + type("DiskWideLT", narrow + scalar("DiskInteger", "integer")) + "]}";
}

/// A folder of this process with the catalog, a platform over it, and documents of so many materials in
/// files.
class Place {
public:
    Place() {
        std::filesystem::create_directories(folder_);
        std::ofstream(folder_ / "disk.KORfct") << CatalogText();
        platform_ = std::make_unique<KORPlatform>(folder_.string());
        KORFileError error;
        if (!platform_->ShareCatalog("disk.KORfct", error)) throw std::runtime_error(error.Text());
    }
    ~Place() { std::filesystem::remove_all(folder_); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    KORPlatform& Platform() { return *platform_; }
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    /// The file of a document with so many materials, made once.
    const std::string& Saved(int materials) {
        std::string& path = saved_[materials];
        if (!path.empty()) return path;
        path = Path("saved-" + std::to_string(materials) + ".zeldoc");
        const auto document = Make(path, materials);
        KORFileError error;
        if (!document->Save({}, error)) throw std::runtime_error(error.Text());
        return path;
    }

    std::unique_ptr<KORDiskDocument> Make(const std::string& path, int materials) {
        std::filesystem::remove(path);
        KORFileError error;
        auto document = KORDiskDocument::Create(*platform_, path, error);
        if (!document) throw std::runtime_error(error.Text());
        for (int i = 0; i < materials; ++i) Grow(document->Document(), i);
        return document;
    }

private:
    static void Grow(KORMemoryDocument& document, int material) {
        const auto key = [](const char* name, int i) { return KORName::Intern(name + std::to_string(i)); };
        const auto root = document.NewPlatformFeature("DiskRootLT", "DiskRootLT");
        for (int i = 0; i < kFlags; ++i) root->SetBoolean(key("DiskFlag", i), true, 1);
        for (int i = 0; i < kBranches; ++i) {
            const bool wide = i < 12;
            const char* const type = wide ? "DiskWideLT" : "DiskNarrowLT";
            const auto branch = document.NewPlatformFeature(type, type);
            branch->SetBoolean(KORName::Intern("DiskFlag"), true, 1);
            branch->SetDouble(KORName::Intern("DiskNumber"), 1.0, 1);
            if (wide) branch->SetInteger(KORName::Intern("DiskInteger"), i + 1, 1);
            root->SetComponent(key("DiskBranch", i), branch.Get(), 1);
        }
        for (int i = 0; i < 3; ++i) {
            KORRawColldouble column;
            for (int row = 0; row < 10; ++row) column.Append(material + row);
            root->SetListOfDouble(key("DiskColumn", i), column);
        }
    }

    const std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("bench-disk-" + std::to_string(getpid()));
    std::unique_ptr<KORPlatform> platform_;
    std::map<int, std::string> saved_;
};

Place& ThePlace() {
    static Place place;
    return place;
}

void Open(benchmark::State& state) {
    Place& place = ThePlace();
    const std::string& path = place.Saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        KORFileError error;
        auto opened = KORDiskDocument::OpenToRead(place.Platform(), path, error);
        state.PauseTiming();
        if (!opened) throw std::runtime_error(error.Text());
        opened.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(Open)->Arg(2000);

void Save(benchmark::State& state) {
    Place& place = ThePlace();
    for (auto _ : state) {
        state.PauseTiming();
        auto document = place.Make(place.Path("save.zeldoc"), static_cast<int>(state.range(0)));
        state.ResumeTiming();
        KORFileError error;
        if (!document->Save({}, error)) throw std::runtime_error(error.Text());
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(Save)->Arg(2000);

/// One number of one material changes, in a step, and is saved.
void SaveOneChange(benchmark::State& state) {
    Place& place = ThePlace();
    KORFileError error;
    auto document =
        KORDiskDocument::OpenToChange(place.Platform(), place.Saved(static_cast<int>(state.range(0))), error);
    if (!document) throw std::runtime_error(error.Text());
    KORVar<KORFeature> feature(document->Document().Features().Find(2));
    double value = 1.0;
    for (auto _ : state) {
        KORStep step(document->Document(), "Change");
        feature->SetDouble(KORName::Intern("DiskNumber"), value += 1.0, 1);
        step.Commit();
        if (!document->Save({}, error)) throw std::runtime_error(error.Text());
    }
}
BENCHMARK(SaveOneChange)->Arg(20)->Arg(20000);

/// SQLite alone over the same rows: what any program pays that keeps them there.
class Alone {
public:
    explicit Alone(const std::string& path) {
        constexpr int kHow = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
        Check(sqlite3_open_v2(path.c_str(), &file_, kHow, nullptr));
        Run("PRAGMA journal_mode=DELETE");
        Run("PRAGMA synchronous=EXTRA");
        Run("PRAGMA cache_spill=OFF");
    }
    ~Alone() { sqlite3_close(file_); }
    Alone(const Alone&) = delete;
    Alone& operator=(const Alone&) = delete;

    void Run(const char* sql) { Check(sqlite3_exec(file_, sql, nullptr, nullptr, nullptr)); }

    struct Row {
        sqlite3_int64 number;
        sqlite3_int64 type;
        std::string attributes;
    };

    std::vector<Row> Read() {
        std::vector<Row> rows;
        EachRow([&](sqlite3_stmt* row) {
            const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, 5));
            rows.push_back({sqlite3_column_int64(row, 0),
                            sqlite3_column_int64(row, 1),
                            {bytes, static_cast<std::size_t>(sqlite3_column_bytes(row, 5))}});
        });
        return rows;
    }

    template <class Visitor>
    void EachRow(Visitor&& visit) {
        sqlite3_stmt* row = nullptr;
        Check(sqlite3_prepare_v2(
            file_, "SELECT number, type, container, name, alias, attributes FROM features ORDER BY number",
            -1, &row, nullptr));
        while (sqlite3_step(row) == SQLITE_ROW) visit(row);
        Check(sqlite3_finalize(row));
    }

    void Write(const std::vector<Row>& rows) {
        Run("BEGIN IMMEDIATE");
        Run("CREATE TABLE features (number INTEGER PRIMARY KEY, type INTEGER NOT NULL, container INTEGER, "
            "name TEXT, "
            "alias TEXT, attributes BLOB NOT NULL) STRICT");
        sqlite3_stmt* insert = nullptr;
        Check(sqlite3_prepare_v2(file_, "INSERT INTO features VALUES(?,?,?,?,?,?)", -1, &insert, nullptr));
        for (const Row& row : rows) {
            sqlite3_bind_int64(insert, 1, row.number);
            sqlite3_bind_int64(insert, 2, row.type);
            sqlite3_bind_int64(insert, 3, 1);
            sqlite3_bind_blob(insert, 6, row.attributes.data(), static_cast<int>(row.attributes.size()),
                              SQLITE_STATIC);
            sqlite3_step(insert);
            Check(sqlite3_reset(insert));
        }
        Check(sqlite3_finalize(insert));
        Run("COMMIT");
    }

private:
    void Check(int code) {
        if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(file_));
    }

    sqlite3* file_ = nullptr;
};

void AloneOpen(benchmark::State& state) {
    const std::string& path = ThePlace().Saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Alone file(path);
        file.EachRow([](sqlite3_stmt* row) {
            for (int column = 0; column < 3; ++column)
                benchmark::DoNotOptimize(sqlite3_column_int64(row, column));
            benchmark::DoNotOptimize(sqlite3_column_text(row, 3));
            benchmark::DoNotOptimize(sqlite3_column_text(row, 4));
            benchmark::DoNotOptimize(sqlite3_column_blob(row, 5));
        });
    }
}
BENCHMARK(AloneOpen)->Arg(2000);

void AloneSave(benchmark::State& state) {
    Place& place = ThePlace();
    const auto rows = Alone(place.Saved(static_cast<int>(state.range(0)))).Read();
    const std::string path = place.Path("alone");
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(path);
        state.ResumeTiming();
        Alone(path).Write(rows);
    }
}
BENCHMARK(AloneSave)->Arg(2000);

/// The rows that a change touches are written anew, in a copy of a file of any size.
void AloneSaveOneChange(benchmark::State& state) {
    const std::string path = ThePlace().Path("alone-changed");
    std::filesystem::copy_file(ThePlace().Saved(static_cast<int>(state.range(0))), path,
                               std::filesystem::copy_options::overwrite_existing);
    Alone file(path);
    for (auto _ : state) {
        file.Run("BEGIN IMMEDIATE");
        file.Run("UPDATE features SET attributes=randomblob(length(attributes)) WHERE number=2");
        file.Run("UPDATE document SET last_step=last_step+1");
        file.Run(
            "INSERT INTO steps SELECT last_step, 'Change', '2026-11-21T21:00:44Z', '', '', 13, "
            "randomblob(13) "
            "FROM document");
        file.Run("DELETE FROM steps WHERE number<=(SELECT last_step-1000 FROM document)");
        file.Run("COMMIT");
    }
}
BENCHMARK(AloneSaveOneChange)->Arg(20)->Arg(20000);

const bench::Ratio kRatios[] = {
    {"open 2,000 materials with tables", Figure::Time("Open/2000"), Figure::Time("PeerOpen/2000"),
     Target::AtLeast(5)},
    {"  beside SQLite alone reading the same rows", Figure::Time("Open/2000"), Figure::Time("AloneOpen/2000"),
     Target::AtMost(2)},
    {"save 2,000 materials with tables", Figure::Time("Save/2000"), Figure::Time("PeerSave/2000"),
     Target::AtLeast(2)},
    {"  beside SQLite alone writing the same rows", Figure::Time("Save/2000"), Figure::Time("AloneSave/2000"),
     Target::AtMost(1.5)},
    {"save one changed number among 20 materials", Figure::Time("SaveOneChange/20"),
     Figure::Time("AloneSaveOneChange/20"), Target::None()},
    {"save one changed number among 20,000 materials", Figure::Time("SaveOneChange/20000"),
     Figure::Time("SaveOneChange/20"), Target::AtMost(1.5)},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
