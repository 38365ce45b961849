#include "host/cli/listproblem.h"

#include "host/readers/docreader.h"

std::string ProblemOfRow(const DocInfo& info)
{
    if (!info.HasInfo() || !HoldsNoInformation(info))
        return {};
    return std::string(ProblemText(ReadDocument(info.entry).problem));
}
