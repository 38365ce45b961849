// The subdirectory marker of path entries and the list of directories never descended into.
#include "docmgr/config/pathrules.h"

#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/textcase.h"
#include "docmgr/tools/tokens.h"
#include "resources/resids.h"

// The marker is loaded every time, so it always follows the module's resources.
bool TestSub(const std::string& path)
{
    const std::string marker = ResString(STR_SUBDIR_MARKER);
    if (path.size() < marker.size())
        return false;
    return path.compare(path.size() - marker.size(), marker.size(), marker) == 0;
}

std::string WithSub(const std::string& path)
{
    return TestSub(path) ? path : path + ResString(STR_SUBDIR_MARKER);
}

std::string WoutSub(const std::string& path)
{
    if (!TestSub(path))
        return path;
    return path.substr(0, path.size() - ResString(STR_SUBDIR_MARKER).size());
}

void ImplDocConfig::SetExceptionPaths(const std::string& paths)
{
    exceptionPaths_ = textcase::ToUpper(paths);
    exceptionCount_ = tokens::Count(exceptionPaths_, ';');
}

// The loop runs one token past the last: that token is empty, so the empty path always
// counts as an exception, even against an empty list. Callers rely on this.
bool ImplDocConfig::IsExceptionPath(const std::string& path) const
{
    const std::string upper = textcase::ToUpper(path);
    for (unsigned i = 0; i <= exceptionCount_; ++i) {
        if (tokens::Get(exceptionPaths_, uint16_t(i), ';') == upper)
            return true;
    }
    return false;
}
