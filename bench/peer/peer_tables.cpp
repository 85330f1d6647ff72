// The peer's side of bench_tables: three columns under a label, written in a command and read into rows.

#include <benchmark/benchmark.h>

#include <TColStd_HArray1OfReal.hxx>
#include <TDataStd_RealArray.hxx>

#include "bench/TableOf.h"
#include "bench/peer/PeerDocument.h"

namespace {

void Write(const TDF_Label& feature, const peer::ColumnKeys& keys,
           const ZELCftArrayZELCftArrayDouble& table) {
    const int size = table.size();
    Handle(TColStd_HArray1OfReal) columns[3];
    for (auto& column : columns) column = new TColStd_HArray1OfReal(1, size);
    for (int row = 0; row < size; ++row) {
        const ZELCftArraydouble& numbers = table[row];
        for (int column = 0; column < 3; ++column) columns[column]->ChangeValue(row + 1) = numbers[column];
    }
    for (std::size_t column = 0; column < 3; ++column) {
        peer::WriteColumn(feature, keys[column], columns[column]);
    }
}

void PeerWriteTable(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    const ZELCftArrayZELCftArrayDouble tables[] = {bench::TableOf(rows, 1.0), bench::TableOf(rows, 1.01)};
    peer::Document document;
    const TDF_Label feature = document.NewFeature();
    const auto keys = peer::ThreeKeys();
    int turn = 0;
    for (auto _ : state) {
        document.Step([&] { Write(feature, keys, tables[turn ^= 1]); });
        document.ForgetSteps();
    }
}
BENCHMARK(PeerWriteTable)->Arg(10)->Arg(1000)->Arg(100000);

void PeerReadTable(benchmark::State& state) {
    peer::Document document;
    const TDF_Label feature = document.NewFeature();
    const auto keys = peer::ThreeKeys();
    auto rows = bench::TableOf(static_cast<int>(state.range(0)), 1.0);
    document.Step([&] { Write(feature, keys, rows); });
    for (auto _ : state) {
        Handle(TDataStd_RealArray) columns[3];
        for (std::size_t column = 0; column < 3; ++column)
            feature.FindAttribute(keys[column], columns[column]);
        for (int row = 0; row < rows.size(); ++row) {
            ZELCftArraydouble& numbers = rows[row];
            for (int column = 0; column < 3; ++column) {
                numbers[column] = columns[column]->Array()->Value(row + 1);
            }
        }
        benchmark::DoNotOptimize(&rows[0]);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(PeerReadTable)->Arg(10)->Arg(1000)->Arg(100000);

}  // namespace
