// What does a table cost, written in a step and read back: at the store, and through the elastic behavior
// with its three columns? Beside them the plain loop: the same rows into three fresh columns.

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

#include "ZELMaterialModel/include/ZELIMaterial.h"
#include "ZELMaterialModel/include/ZELMaterialElastic.h"
#include "bench/Ground.h"
#include "bench/Ratios.h"
#include "bench/TableOf.h"
#include "platform/store/KORStep.h"

namespace {

using bench::Figure;
using bench::Ground;
using bench::TableOf;
using bench::Target;

constexpr int kColumns = 3;

void PlainLoop(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    const ZELCftArrayZELCftArrayDouble table = TableOf(rows, 1.0);
    for (auto _ : state) {
        const auto size = static_cast<std::size_t>(rows);
        const auto moduli = std::make_unique_for_overwrite<double[]>(size);
        const auto ratios = std::make_unique_for_overwrite<double[]>(size);
        const auto temperatures = std::make_unique_for_overwrite<double[]>(size);
        for (std::size_t row = 0; row < size; ++row) {
            const ZELCftArraydouble& numbers = table[static_cast<int>(row)];
            moduli[row] = numbers[0];
            ratios[row] = numbers[1];
            temperatures[row] = numbers[2];
        }
        benchmark::DoNotOptimize(moduli.get());
        benchmark::DoNotOptimize(ratios.get());
        benchmark::DoNotOptimize(temperatures.get());
        benchmark::ClobberMemory();
    }
}

/// A feature's table as the store keeps it: three lists.
class StoredTable {
public:
    explicit StoredTable(Ground& ground) : access_(ground.New("ZELElasticLT")) {}

    void Write(const ZELCftArrayZELCftArrayDouble& table) const {
        std::array<KORRawColldouble, kColumns> columns;
        double* const a = columns[0].Extend(table.size());
        double* const b = columns[1].Extend(table.size());
        double* const c = columns[2].Extend(table.size());
        for (int row = 0; row < table.size(); ++row) {
            const ZELCftArraydouble& numbers = table[row];
            a[row] = numbers[0];
            b[row] = numbers[1];
            c[row] = numbers[2];
        }
        for (std::size_t column = 0; column < kColumns; ++column) {
            access_->SetListOfDouble(keys_[column], columns[column]);
        }
    }

    /// Into rows that are there already.
    void Read(ZELCftArrayZELCftArrayDouble& rows) const {
        const std::unique_ptr<KORRawColldouble> moduli(access_->GetListOfDouble(keys_[0]));
        const std::unique_ptr<KORRawColldouble> ratios(access_->GetListOfDouble(keys_[1]));
        const std::unique_ptr<KORRawColldouble> temperatures(access_->GetListOfDouble(keys_[2]));
        const int count = rows.size();
        ZELCftArraydouble* const row = rows.Refill(count);
        for (int i = 0; i < count; ++i) {
            const double numbers[] = {moduli->Data()[i], ratios->Data()[i], temperatures->Data()[i]};
            row[i].Assign(numbers);
        }
    }

private:
    KORISpecAttrAccess_var access_;
    std::array<KORISpecAttrKey*, kColumns> keys_ = {
        KORName::Intern("YoungData"), KORName::Intern("PoissonData"), KORName::Intern("TemperatureData")};
};

/// Writes two tables in turn, so that every write is a change.
template <class Write>
void WriteInSteps(benchmark::State& state, Ground& ground, Write write) {
    const int rows = static_cast<int>(state.range(0));
    const ZELCftArrayZELCftArrayDouble tables[] = {TableOf(rows, 1.0), TableOf(rows, 1.01)};
    int turn = 0;
    for (auto _ : state) {
        KORStep step(ground.Document(), "Write");
        write(tables[turn ^= 1]);
        step.Commit();
        ground.ForgetSteps();
    }
}

void WriteAtStore(benchmark::State& state) {
    Ground ground;
    const StoredTable stored(ground);
    WriteInSteps(state, ground, [&](const auto& table) { stored.Write(table); });
}

void ReadAtStore(benchmark::State& state) {
    Ground ground;
    const StoredTable stored(ground);
    auto rows = TableOf(static_cast<int>(state.range(0)), 1.0);
    stored.Write(rows);
    for (auto _ : state) {
        stored.Read(rows);
        benchmark::DoNotOptimize(&rows[0]);
        benchmark::ClobberMemory();
    }
}

/// The elastic behavior of a new material, with a temperature column.
ZELGenHeapObjectProxy<ZELMaterialElastic> NewElastic(Ground& ground) {
    const ZELIMaterial_var material(ground.NewCurrentMaterial());
    ZELGenHeapObjectProxy<ZELMaterialElastic> elastic;
    material->GetElasticProperties(elastic);
    elastic->SetTemperatureDependent(1);
    return elastic;
}

void WriteThroughBehavior(benchmark::State& state) {
    Ground ground;
    const auto elastic = NewElastic(ground);
    WriteInSteps(state, ground, [&](const auto& table) { elastic->SetElasticDataArray(table); });
}

void ReadThroughBehavior(benchmark::State& state) {
    Ground ground;
    const auto elastic = NewElastic(ground);
    elastic->SetElasticDataArray(TableOf(static_cast<int>(state.range(0)), 1.0));
    for (auto _ : state) benchmark::DoNotOptimize(elastic->GetPropertyElasticDataArray());
}

BENCHMARK(PlainLoop)->Arg(10)->Arg(1000)->Arg(100000);
BENCHMARK(WriteAtStore)->Arg(10)->Arg(1000)->Arg(100000);
BENCHMARK(ReadAtStore)->Arg(10)->Arg(1000)->Arg(100000);
BENCHMARK(WriteThroughBehavior)->Arg(10)->Arg(1000)->Arg(100000);
BENCHMARK(ReadThroughBehavior)->Arg(10)->Arg(1000)->Arg(100000);

const bench::Ratio kRatios[] = {
    {"table write in a step, 10 rows, at the store", Figure::Time("WriteAtStore/10"),
     Figure::Time("PeerWriteTable/10"), Target::AtLeast(15)},
    {"  beside the plain loop", Figure::Time("WriteAtStore/10"), Figure::Time("PlainLoop/10"),
     Target::None()},
    {"table write in a step, 1,000 rows, at the store", Figure::Time("WriteAtStore/1000"),
     Figure::Time("PeerWriteTable/1000"), Target::AtLeast(8)},
    {"  beside the plain loop", Figure::Time("WriteAtStore/1000"), Figure::Time("PlainLoop/1000"),
     Target::AtMost(1.5)},
    {"table write in a step, 100,000 rows, at the store", Figure::Time("WriteAtStore/100000"),
     Figure::Time("PeerWriteTable/100000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("WriteAtStore/100000"), Figure::Time("PlainLoop/100000"),
     Target::None()},
    {"table write in a step, 10 rows, through a behavior", Figure::Time("WriteThroughBehavior/10"),
     Figure::Time("PeerWriteTable/10"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("WriteThroughBehavior/10"), Figure::Time("PlainLoop/10"),
     Target::None()},
    {"table write in a step, 1,000 rows, through a behavior", Figure::Time("WriteThroughBehavior/1000"),
     Figure::Time("PeerWriteTable/1000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("WriteThroughBehavior/1000"), Figure::Time("PlainLoop/1000"),
     Target::AtMost(2)},
    {"table write in a step, 100,000 rows, through a behavior", Figure::Time("WriteThroughBehavior/100000"),
     Figure::Time("PeerWriteTable/100000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("WriteThroughBehavior/100000"), Figure::Time("PlainLoop/100000"),
     Target::AtMost(2.5)},
    {"table read into reused rows, 1,000, at the store", Figure::Time("ReadAtStore/1000"),
     Figure::Time("PeerReadTable/1000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("ReadAtStore/1000"), Figure::Time("PlainLoop/1000"),
     Target::AtMost(1.2)},
    {"table read into reused rows, 1,000, through a behavior", Figure::Time("ReadThroughBehavior/1000"),
     Figure::Time("PeerReadTable/1000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("ReadThroughBehavior/1000"), Figure::Time("PlainLoop/1000"),
     Target::AtMost(1.2)},
    {"table read into reused rows, 100,000, at the store", Figure::Time("ReadAtStore/100000"),
     Figure::Time("PeerReadTable/100000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("ReadAtStore/100000"), Figure::Time("PlainLoop/100000"),
     Target::AtMost(1.2)},
    {"table read into reused rows, 100,000, through a behavior", Figure::Time("ReadThroughBehavior/100000"),
     Figure::Time("PeerReadTable/100000"), Target::Faster()},
    {"  beside the plain loop", Figure::Time("ReadThroughBehavior/100000"), Figure::Time("PlainLoop/100000"),
     Target::AtMost(1.2)},
};

}  // namespace

int main(int argc, char** argv) {
    return bench::RunWithRatios(argc, argv, kRatios);
}
