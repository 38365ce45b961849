#pragma once
// Document information and selections for tests without a window.
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "docmgr/records/docsource.h"

// Answers CreateDocInfo with known information per file name and counts the calls, and
// those of the collection's progress.
class TestSource : public DocSource, public CollectObserver {
public:
    // What a file gets when `known` has nothing for it: title = its name, author
    // "Tester", created 2020-01-02 10:00:00, modified and printed stamps equal to it.
    static DocInfo Sample(const std::string& name);

    // Calls `onRead` (when set) before it answers, to change files during a listing.
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    void CollectProgress(size_t, size_t docs) override { ++progressCalls, lastProgressDocs = docs; }
    // Checks the plan against the calls that follow it: each file asked for the first time
    // must be the next one planned, and a new plan (or the end) finds the last one done.
    void ReadAhead(const std::vector<std::string>& paths) override;
    // Calls that broke the last plan, and planned files never asked for.
    int PlanMisses() const { return unplannedCalls + unaskedPlans + int(planned.size() - plannedAsked); }

    // Calls for the file at `path` (absolute), and for all files.
    int CallsFor(const std::string& path) const { return callsPerPath.count(path) ? callsPerPath.at(path) : 0; }
    int TotalCalls() const { return totalCalls; }
    void ResetCalls() { callsPerPath.clear(), totalCalls = 0; }

    std::function<void(const std::string&)> onRead;
    std::map<std::string, DocInfo> known;  // by file name
    std::set<std::string> notDocuments;    // file names answered with null
    std::map<std::string, int> callsPerPath;
    int totalCalls = 0;
    std::vector<std::string> planned;
    size_t plannedAsked = 0;
    std::set<std::string> askedOfPlan;
    int unplannedCalls = 0, unaskedPlans = 0;
    size_t progressCalls = 0, lastProgressDocs = 0;
};

// A fixed set of selected rows.
class TestSelection : public DocSelection {
public:
    explicit TestSelection(std::set<long> chosen = {}) : rows(std::move(chosen)) {}
    long FirstSelected() const override { return rows.empty() ? -1 : *rows.begin(); }
    long NextSelected(long row) const override
    {
        const auto it = rows.upper_bound(row);
        return it == rows.end() ? -1 : *it;
    }

    std::set<long> rows;
};
