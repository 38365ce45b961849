// Find as you type over 100,000 rows in memory: the milliseconds a keystroke costs while a
// word is typed letter by letter and then cleared letter by letter, against a plain
// case-insensitive substring scan over the same cell texts made afresh at each keystroke
// (what a list without folded texts would do).
//
//   bench_find [ROWS]     prints "find: ..." and "find reference: ..." lines
#include <QElapsedTimer>
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "docmgr/records/docfields.h"
#include "docmgr/records/docfind.h"
#include "bench/samplerows.h"

namespace {

// The columns a group shows by default, less the empty information fields.
const std::vector<uint16_t> COLUMNS = {COL_NAME,   COL_SIZE,          COL_TITLE,         COL_TOPIC,    COL_CREATED_DATE,
                                       COL_AUTHOR, COL_MODIFIED_DATE, COL_MODIFIED_TIME, COL_KEYWORDS, COL_DIRECTORY};
const std::string WORD = "quarterly";

std::vector<std::unique_ptr<DocInfo>> MakeRows(size_t count)
{
    std::mt19937 rng(7);
    std::vector<std::unique_ptr<DocInfo>> rows;
    for (size_t i = 0; i < count; ++i)
        rows.push_back(SampleRow(i, rng));
    return rows;
}

// What a list without folded texts does at each keystroke: every cell's text made, and
// searched ignoring ASCII case.
size_t PlainScan(const std::vector<std::unique_ptr<DocInfo>>& rows, const std::string& text)
{
    auto same = [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    };
    size_t found = 0;
    for (const auto& row : rows)
        for (uint16_t column : COLUMNS) {
            const std::string cell = GetFieldString(*row, column);
            if (std::search(cell.begin(), cell.end(), text.begin(), text.end(), same) != cell.end()) {
                ++found;
                break;
            }
        }
    return found;
}

struct Timing {
    double mean = 0, worst = 0;
};

// Times `step` for each prefix of WORD typed, then for each one cleared back to empty.
template <class Step>
std::pair<Timing, Timing> TypeAndClear(Step step)
{
    Timing typing, clearing;
    QElapsedTimer timer;
    for (size_t n = 1; n <= WORD.size(); ++n) {
        timer.start();
        step(WORD.substr(0, n));
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        typing.mean += ms / double(WORD.size());
        typing.worst = std::max(typing.worst, ms);
    }
    for (size_t n = WORD.size(); n-- > 0;) {
        timer.start();
        step(WORD.substr(0, n));
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        clearing.mean += ms / double(WORD.size());
        clearing.worst = std::max(clearing.worst, ms);
    }
    return {typing, clearing};
}

}  // namespace

int main(int argc, char** argv)
{
    const size_t count = argc > 1 ? size_t(std::strtoul(argv[1], nullptr, 10)) : 100000;
    const auto rows = MakeRows(count);
    DocFind find;
    QElapsedTimer timer;
    timer.start();
    find.Reset(COLUMNS);
    for (const auto& row : rows)
        find.AddRow(*row);  // the texts are folded once
    const double foldMs = double(timer.nsecsElapsed()) / 1e6;
    size_t found = 0;
    const auto [typing, clearing] = TypeAndClear([&](const std::string& text) { found += find.Find(text).size(); });
    size_t plainFound = 0;
    const auto [plainTyping, plainClearing] =
        TypeAndClear([&](const std::string& text) { plainFound += PlainScan(rows, text); });

    std::printf("find: %zu rows, typing \"%s\" %.2f ms a keystroke (worst %.2f), clearing %.2f (worst %.2f); "
                "texts folded once in %.0f ms\n",
                count, WORD.c_str(), typing.mean, typing.worst, clearing.mean, clearing.worst, foldMs);
    std::printf("find reference: plain case-insensitive scan of the same texts: typing %.2f ms a keystroke "
                "(worst %.2f), clearing %.2f (worst %.2f)%s\n",
                plainTyping.mean, plainTyping.worst, plainClearing.mean, plainClearing.worst,
                found == plainFound ? "" : "; FOUND OTHER ROWS");
    return found == plainFound ? 0 : 1;
}
