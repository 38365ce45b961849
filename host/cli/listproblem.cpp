#include "host/cli/listproblem.h"

#include "host/readers/docreader.h"

std::string ProblemOfRow(const DocInfo& info, const std::function<ReadProblem(const std::string&)>& problemOf)
{
    if (!info.HasInfo() || !HoldsNoInformation(info))
        return {};
    return std::string(ProblemText(problemOf ? problemOf(info.entry) : ReadDocument(info.entry).problem));
}
