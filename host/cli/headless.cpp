#include "host/cli/headless.h"

#include <cstring>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docfind.h"
#include "docmgr/records/docrowlist.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/tokens.h"
#include "docmgr/config/pathrules.h"
#include "host/cli/collectpaths.h"
#include "host/cli/listformat.h"
#include "host/cli/readersource.h"
#include "host/cli/userconfig.h"
#include "resources/resids.h"

namespace {

struct HeadlessResult {
    int status = 0;   // 0 success, 1 failure, 2 bad arguments
    std::string err;  // messages for standard error
};

HeadlessResult Failure(int status, std::string err, const std::string& message)
{
    HeadlessResult result;
    result.status = status;
    result.err = std::move(err) + "docmanager: " + message + "\n";
    return result;
}

bool HasGroup(const ImplDocConfig& config, const std::string& name)
{
    for (uint16_t g = 0; g < config.GroupCount(); ++g)
        if (config.Group(g).groupName == name)
            return true;
    return false;
}

std::string KnownGroups(const ImplDocConfig& config)
{
    std::string names;
    for (uint16_t g = 0; g < config.GroupCount(); ++g)
        names += (g ? ", \"" : "\"") + config.Group(g).groupName + "\"";
    return names.empty() ? std::string("none") : names;
}

// Path tokens that name no directory are skipped by the collection without a word; a
// script is better served by hearing about them.
std::string MissingDirectories(const std::string& pathList)
{
    std::string warnings;
    for (const std::string& token : tokens::Split(pathList, ';')) {
        if (token.empty())
            continue;
        const std::string dir = WoutSub(token);
        if (!fsutil::IsDirectory(dir))
            warnings += "docmanager: " + dir + " is not a directory; skipped\n";
    }
    return warnings;
}

// Folders that exist but cannot be read would otherwise list as empty without a word.
class ListingSource : public ReaderDocSource, public CollectObserver {
public:
    explicit ListingSource(bool useCache)
        : ReaderDocSource(useCache, [this](const std::string& line) { warnings += line + "\n"; })
    {}
    void DirectoryUnreadable(const std::string& dir, int error) override
    {
        warnings += "docmanager: the directory " + dir + " cannot be read (" + std::strerror(error) + "); skipped\n";
    }
    std::string warnings;
};

// --find: the rows that show `text` in one of the listed columns, as the find bar keeps them.
void KeepFound(DocRowList& rows, const std::vector<uint16_t>& columns, const std::string& text)
{
    DocFind find;
    find.Reset(columns);
    for (const auto& row : rows.Rows())
        find.AddRow(*row);
    rows.KeepRows(find.Find(text));
}

HeadlessResult List(const CommandLine& cmd, ImplDocConfig& settings, std::string err, std::ostream& out,
                    std::ostream& errOut)
{
    if (cmd.groupGiven) {
        if (!HasGroup(settings, cmd.groupName))
            return Failure(2, std::move(err),
                           "there is no group named \"" + cmd.groupName + "\"; the known groups are " +
                               KnownGroups(settings));
        settings.SetCurGroup(cmd.groupName);
    }
    const DocGroupConfig& group = settings.WorkingGroup();
    const std::string pathList = CollectPathList(group, JoinStartPaths(cmd.startPaths));
    if (pathList.empty())
        err += "docmanager: the group \"" + group.groupName +
               "\" has no active directory and no START_PATH was given; nothing to list\n";
    err += MissingDirectories(pathList);

    ListingSource source(!cmd.noCache);
    DocRowList rows(source, &source);
    rows.SetConfig(&settings);
    rows.SetDirFileName(cmd.indexName.empty() ? ResString(STR_INDEX_NAME) : cmd.indexName);
    rows.CollectFiles(pathList);
    source.Flush();

    const std::vector<uint16_t> columns = ListColumns(group, cmd.columns);
    if (cmd.findGiven)
        KeepFound(rows, columns, cmd.findText);

    errOut << err << source.warnings;
    ListSink sink(out, [&source](const std::string& path) { return source.Problem(path); });
    WriteList(cmd.format, sink, rows.Rows(), columns, group);
    return {};
}

}  // namespace

namespace {

HeadlessResult Run(const CommandLine& cmd, std::ostream& out, std::ostream& errOut)
{
    ResModule resources;
    std::string err;
    std::string error;
    std::unique_ptr<Config> config = OpenUserConfig(cmd.configPath, error);
    if (!config)
        return Failure(1, std::move(err), error);

    // A configuration without groups gets its first group, and the user is told so.
    ImplDocConfig settings(config.get(), ResString(STR_DEF_EXTENSIONS),
                           [&err](const std::string& message) { err += message + "\n"; });
    if (!config->GetSaveError().empty())
        err += "docmanager: the configuration " + config->GetPath() + " could not be saved: " + config->GetSaveError() +
               "\n";

    if (cmd.mode == RunMode::ExportConfig) {
        errOut << err;
        out << settings.Export() << '\n';
        return {};
    }
    return List(cmd, settings, std::move(err), out, errOut);
}

}  // namespace

int RunHeadless(const CommandLine& cmd, std::ostream& out, std::ostream& err)
{
    const HeadlessResult result = Run(cmd, out, err);
    err << result.err;
    return result.status;
}
