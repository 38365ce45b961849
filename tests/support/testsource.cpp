#include "tests/support/testsource.h"

DocInfo TestSource::Sample(const std::string& name)
{
    DocInfo info;
    info.title = name;
    info.author = "Tester";
    info.createdDate = Date(2, 1, 2020);
    info.createdTime = Time(10, 0, 0);
    info.modifiedDate = info.printedDate = info.createdDate;
    info.modifiedTime = info.printedTime = info.createdTime;
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

std::unique_ptr<DocInfo> TestSource::CreateDocInfo(const std::string& path)
{
    if (onRead)
        onRead(path);
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
