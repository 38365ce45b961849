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

namespace {

// The rows as the list keeps them: packed in a store, in an order of their places.
struct Rows {
    RowStore store;
    std::vector<RowStore::Id> order;
};
constexpr size_t ROW_COUNT = 100000;

const char* const WORDS[] = {"Annual",    "report",  "Budget",   "minutes", "Quarterly", "review",
                             "Project",   "plan",    "Meeting",  "notes",   "Invoice",   "draft",
                             "Übersicht", "Angebot", "contract", "Summary", "letter",    "memo"};

std::string Words(std::mt19937& rng, int count)
{
    std::uniform_int_distribution<size_t> pick(0, std::size(WORDS) - 1);
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (i)
            text += ' ';
        text += WORDS[pick(rng)];
    }
    return text;
}

// Rows shaped like a real library: a directory path, titles of a few words with numbers,
// stamps spread over thirty years, some fields empty.
std::unique_ptr<Rows> MakeRows(size_t count, unsigned seed)
{
    std::mt19937 rng(seed);
    std::uniform_int_distribution<unsigned> year(1995, 2024), month(1, 12), day(1, 28);
    std::uniform_int_distribution<unsigned> hour(0, 23), minute(0, 59), number(1, 9999);
    auto rows = std::make_unique<Rows>();
    rows->order.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        auto info = std::make_unique<DocInfo>();
        info->entry = "/home/user/Documents/library/doc" + std::to_string(i) + ".odt";
        info->size = number(rng) * 37;
        info->title = Words(rng, 3) + ' ' + std::to_string(number(rng));
        info->topic = Words(rng, 2);
        info->author = i % 3 ? "Erika Mustermann" : "John Smith";
        info->createdDate = Date(day(rng), month(rng), year(rng));
        info->createdTime = Time(hour(rng), minute(rng), minute(rng));
        if (i % 5) {
            info->modifiedDate = Date(day(rng), month(rng), year(rng));
            info->modifiedTime = Time(hour(rng), minute(rng), minute(rng));
            info->modifiedBy = info->author;
        }
        info->printedDate = info->createdDate;
        info->printedTime = info->createdTime;
        info->printedBy = info->author;
        if (i % 4 == 0)
            info->keywords = Words(rng, 4);
        rows->order.push_back(rows->store.Add(*info));
    }
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
