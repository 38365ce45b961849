// Sorting the document list in memory, and what one packed row costs in memory.
//
//   bench_sort                       both sorts of 100,000 rows, then the memory per row
//   bench_sort --benchmark_filter=Title
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

#include "docmgr/records/docfields.h"
#include "docmgr/records/docinfo.h"
#include "docmgr/records/docsort.h"
#include "bench/samplerows.h"

namespace {

// The rows as the list keeps them: packed in a store, in an order of their places.
struct Rows {
    RowStore store;
    std::vector<RowStore::Id> order;
};
constexpr size_t ROW_COUNT = 100000;

std::unique_ptr<Rows> MakeRows(size_t count, unsigned seed)
{
    std::mt19937 rng(seed);
    auto rows = std::make_unique<Rows>();
    rows->order.reserve(count);
    for (size_t i = 0; i < count; ++i)
        rows->order.push_back(rows->store.Add(*SampleRow(i, rng)));
    return rows;
}

void SortBench(benchmark::State& state, uint16_t column)
{
    const std::unique_ptr<Rows> rows = MakeRows(size_t(state.range(0)), 42);
    std::mt19937 rng(7);
    for (auto _ : state) {
        state.PauseTiming();
        std::shuffle(rows->order.begin(), rows->order.end(), rng);
        state.ResumeTiming();
        SortRows(rows->store, rows->order, column, true);
        benchmark::DoNotOptimize(rows->order.data());
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * state.range(0));
}

void BM_SortByTitle(benchmark::State& state)
{
    SortBench(state, COL_TITLE);
}

void BM_SortByModifiedDate(benchmark::State& state)
{
    SortBench(state, COL_MODIFIED_DATE);
}

BENCHMARK(BM_SortByTitle)->Arg(ROW_COUNT)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortByModifiedDate)->Arg(ROW_COUNT)->Unit(benchmark::kMillisecond);

long ResidentBytes()
{
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

// Measured as the growth of the resident set while the rows are made and packed.
void ReportRowMemory()
{
    const long before = ResidentBytes();
    const std::unique_ptr<Rows> rows = MakeRows(ROW_COUNT, 42);
    const long after = ResidentBytes();
    std::printf("memory per row: resident growth %.0f bytes (%zu rows)\n", double(after - before) / double(ROW_COUNT),
                ROW_COUNT);
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    // First, while the heap is fresh, so that the resident growth is the rows' own.
    ReportRowMemory();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
