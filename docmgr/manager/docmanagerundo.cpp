// Undo and redo of the file commands, and the host's edit of one document's information
// as a step that can be taken back.
#include <QString>

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/view/docbrowser.h"
#include "resources/resids.h"

bool DocManagerImpl::ChangeDocInfo(const std::string& path)
{
    // The file as it was, kept aside so that the host's edit can be taken back.
    const std::string before = undo.KeepCopy(path);
    const std::optional<fileundo::Stamp> old = fileundo::StampOf(path);
    const bool edited = manager.ChangeDocInfo(&manager, path);
    const std::optional<fileundo::Stamp> now = fileundo::StampOf(path);
    if (edited && !before.empty() && now && now != old) {
        undo.Push({{{fileundo::ActionKind::Content, path, {}, *now, before, undo.KeepCopy(path)}}});
        WatchControls();
    } else if (!before.empty()) {
        fsutil::Remove(before);
    }
    return edited;
}

void DocManagerImpl::TakeBack(bool back)
{
    fileundo::Result result;
    {
        ScopedWaitCursor wait;
        result = back ? undo.Undo() : undo.Redo();
    }
    const QString path = QString::fromStdString(result.path);
    switch (result.outcome) {
    case fileundo::Outcome::Nothing: break;
    case fileundo::Outcome::Stale:
        DocInfoBox(&manager, QString::fromStdString(ResString(back ? STR_UNDO_STALE : STR_REDO_STALE)).arg(path));
        break;
    case fileundo::Outcome::Failed:
        DocInfoBox(&manager, QString::fromStdString(ResString(STR_UNDO_FAILED)).arg(path), DocErrorText(result.error));
        CollectFiles();
        break;
    case fileundo::Outcome::Done:
        CollectFiles();
        browser->SelectPaths(result.paths);
        break;
    }
    WatchControls();
}
