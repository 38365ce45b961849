#include "host/cli/collectpaths.h"

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/config/pathrules.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/tokens.h"
#include "resources/resids.h"

std::string ActivePaths(const DocGroupConfig& group)
{
    std::string result;
    const unsigned short count = tokens::Count(group.paths, ';');
    for (unsigned short i = 0; i < count; ++i) {
        if (i >= group.guis.size() || group.guis[i] != '1')
            continue;
        if (!result.empty())
            result += ';';
        result += tokens::Get(group.paths, i, ';');
    }
    return result;
}

std::string JoinStartPaths(const std::vector<std::string>& paths)
{
    std::string raw;
    for (const std::string& path : paths)
        raw += (raw.empty() ? "" : ";") + path;
    // The placeholder start path means "none", as in the window.
    if (raw == ResString(STR_SUBDIR_MARKER))
        return {};

    std::string joined;
    for (const std::string& path : paths) {
        if (path.empty())
            continue;
        const bool withSub = TestSub(path);
        std::string dir = WoutSub(path);
        dir = fsutil::Absolute(dir.empty() ? std::string("/") : dir);
        if (!joined.empty())
            joined += ';';
        joined += withSub ? WithSub(dir) : dir;
    }
    return joined;
}

std::string CollectPathList(const DocGroupConfig& group, const std::string& startPaths)
{
    std::string active = ActivePaths(group);
    return active.empty() ? startPaths : active;
}
