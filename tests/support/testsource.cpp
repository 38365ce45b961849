#include "tests/support/testsource.h"

DocInfo TestSource::Sample(const std::string& name)
{
    DocInfo info;
    info.title = name;
    info.author = "Tester";
    info.createdDate = Date(2, 1, 2020);
    info.createdTime = Time(10, 0, 0);
    info.modifiedDate = info.createdDate;
    info.modifiedTime = info.createdTime;
    info.printedDate = info.createdDate;
    info.printedTime = info.createdTime;
    info.printedBy = info.author;
    return info;
}

void TestSource::ReadAhead(const std::vector<std::string>& paths)
{
    unaskedPlans += int(planned.size() - plannedAsked);
    planned = paths;
    plannedAsked = 0;
    askedOfPlan.clear();
}

int TestSource::PlanMisses() const
{
    return unplannedCalls + unaskedPlans + int(planned.size() - plannedAsked);
}

std::unique_ptr<DocInfo> TestSource::CreateDocInfo(const std::string& path)
{
    ++totalCalls;
    ++callsPerPath[path];
    if (askedOfPlan.insert(path).second) {
        if (plannedAsked < planned.size() && planned[plannedAsked] == path)
            ++plannedAsked;
        else
            ++unplannedCalls;
    }
    const size_t slash = path.find_last_of('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    if (notDocuments.count(name))
        return nullptr;
    const auto it = known.find(name);
    auto info = std::make_unique<DocInfo>(it != known.end() ? it->second : Sample(name));
    info->entry = path;
    return info;
}

void TestSource::CollectProgress(size_t dirs, size_t docs)
{
    ++progressCalls;
    lastProgressDirs = dirs;
    lastProgressDocs = docs;
}

int TestSource::CallsFor(const std::string& path) const
{
    const auto it = callsPerPath.find(path);
    return it == callsPerPath.end() ? 0 : it->second;
}

void TestSource::ResetCalls()
{
    callsPerPath.clear();
    totalCalls = 0;
}

long TestSelection::FirstSelected() const
{
    return rows.empty() ? -1 : *rows.begin();
}

long TestSelection::NextSelected(long row) const
{
    const auto it = rows.upper_bound(row);
    return it == rows.end() ? -1 : *it;
}
