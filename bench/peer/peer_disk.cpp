// The peer's side of bench_disk: the whole document in a file. Its framework flushes nothing to the disk.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <TColStd_HArray1OfReal.hxx>
#include <filesystem>
#include <string>

#include "bench/peer/PeerTree.h"

namespace {

/// A file of a process's own, which goes with this object.
class OwnFile {
public:
    OwnFile() = default;
    ~OwnFile() { std::filesystem::remove(path_); }
    OwnFile(const OwnFile&) = delete;
    OwnFile& operator=(const OwnFile&) = delete;

    const char* Path() const { return path_.c_str(); }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("peer-" + std::to_string(getpid()) + ".cbfl");
};

/// So many materials: a tree each, and a table of three columns and ten rows.
void Fill(const peer::Document& document, int materials) {
    for (int i = 0; i < materials; ++i) {
        const TDF_Label root = peer::GrowTree(document, 1.0);
        for (const Standard_GUID& key : peer::ThreeKeys()) {
            Handle(TColStd_HArray1OfReal) column = new TColStd_HArray1OfReal(1, 10);
            for (int row = 0; row < 10; ++row) column->ChangeValue(row + 1) = i + row;
            peer::WriteColumn(root, key, column);
        }
    }
}

void PeerSave(benchmark::State& state) {
    const OwnFile file;
    const peer::Document document;
    Fill(document, static_cast<int>(state.range(0)));
    for (auto _ : state) document.Save(file.Path());
}
BENCHMARK(PeerSave)->Arg(2000);

/// The saved document is closed first: the framework opens a file only once.
void PeerOpen(benchmark::State& state) {
    const OwnFile file;
    {
        const peer::Document document;
        Fill(document, static_cast<int>(state.range(0)));
        document.Save(file.Path());
    }
    for (auto _ : state) peer::Document::Open(file.Path());
}
BENCHMARK(PeerOpen)->Arg(2000);

}  // namespace
