// The file commands of the document manager (commands menu and the list's context menu).
#include <QPushButton>
#include <QStringList>
#include <algorithm>
#include <optional>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/dialogs/doccopydialog.h"
#include "docmgr/dialogs/docrenamedialog.h"
#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/print/docprintdialog.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/ui/waitcursor.h"
#include "resources/resids.h"

std::vector<std::string> DocManagerImpl::SelectedPaths() const
{
    std::vector<std::string> docs;
    for (const std::string* doc = browser->GetFirstDoc(); doc; doc = browser->GetNextDoc())
        docs.push_back(*doc);
    return docs;
}

void DocManagerImpl::WatchControls()
{
    if (!browser || !commandMenu)
        return;
    const long selected = browser->GetSelectedRowCount();
    openButton->setEnabled(selected > 0);
    const uint16_t access = settings ? settings->access : 0;
    auto enable = [this](unsigned short id, bool on) { commandMenu->Item(id)->setEnabled(on); };
    enable(CMD_DELETE, selected > 0 && (access & ACCESS_FILEDELETE));
    enable(CMD_COPY, selected > 0 && (access & ACCESS_FILECOPY));
    enable(CMD_PRINTDOCS, selected > 0 && openMode && (access & ACCESS_FILEPRINT) && manager.IsAvailable());
    enable(CMD_PRINTLIST, true);   // printing the list needs no right
    enable(CMD_EXPORTLIST, true);  // nor does exporting it
    enable(CMD_DOCINFO, selected == 1);
    enable(CMD_RENAME, selected == 1 && (access & ACCESS_FILERENAME));
    enable(CMD_BATCHINFO, selected > 0);
    enable(CMD_UNDO, undo.CanUndo());
    enable(CMD_REDO, undo.CanRedo());
}

void DocManagerImpl::Command(unsigned short id)
{
    switch (id) {
    case CMD_DELETE: DeleteSelected(); break;
    case CMD_DOCINFO: browser->EditDocInfo(); break;
    case CMD_COPY: {
        auto dialog = std::make_unique<DocCopyDialog>(&manager, SelectedPaths());
        if (dialog->exec() == 1 && dialog->GetDoneCount() != 0) {
            undo.Push(dialog->GetUndoStep());
            CollectFiles();
            browser->SelectPaths(dialog->GetResultPaths());
        }
        break;
    }
    case CMD_RENAME: {
        const std::string* selected = browser->GetFirstDoc();
        const std::string first = selected ? *selected : std::string();
        auto dialog = std::make_unique<DocRenameDialog>(&manager, first);
        if (dialog->exec() == 1 && dialog->GetRenameCount() != 0) {
            if (const auto stamp = fileundo::StampOf(dialog->GetNewPath()))
                undo.Push({{{fileundo::ActionKind::Move, first, dialog->GetNewPath(), *stamp, {}, {}}}});
            CollectFiles();
            browser->SelectPaths({dialog->GetNewPath()});
        }
        break;
    }
    case CMD_PRINTDOCS: manager.done(RET_PRINTDOCS); break;
    case CMD_PRINTLIST: browser->PrintList(); break;
    case CMD_EXPORTLIST: ExportList(); break;
    case CMD_BATCHINFO: EditSelectedInfos(); break;
    case CMD_UNDO: TakeBack(true); break;
    case CMD_REDO: TakeBack(false); break;
    default: break;
    }
}

void DocManagerImpl::DeleteSelected()
{
    const std::vector<std::string> docs = SelectedPaths();
    const QString question = docs.size() == 1
                                 ? QString::fromStdString(ResText(ResKind::QueryBox, QUERY_DELETE_ONE))
                                       .arg(QString::fromStdString(fsutil::FileName(docs.front())))
                                 : QString::fromStdString(ResText(ResKind::QueryBox, QUERY_DELETE)).arg(docs.size());
    // Enter keeps the files.
    if (DocQueryBox(&manager, question, RET_NO) != RET_YES)
        return;
    fileundo::Step step;
    std::vector<std::string> noTrash;
    {
        ScopedWaitCursor wait;
        for (const std::string& path : docs) {
            // Only a file goes to the trash: a folder in a document's place is left to the
            // plain delete, which removes it only when empty.
            std::string trashPath;
            const std::optional<fileundo::Stamp> stamp = fileundo::StampOf(path);
            if (stamp && fileundo::MoveToTrash(path, trashPath)) {
                step.actions.push_back({fileundo::ActionKind::Trash, path, trashPath, *stamp, {}, {}});
                browser->RowRemoved(path);
            } else {
                noTrash.push_back(path);
            }
        }
    }
    undo.Push(std::move(step));
    if (!noTrash.empty())
        DeleteForGood(noTrash);
    WatchControls();
    // The line has always ended up as the remaining count written twice ("1212" for 12
    // rows); scripts that read it rely on that, so it stays.
    std::string line = pathLineText;
    line.erase(0, std::min(line.find(' '), line.size()));
    const std::string count = std::to_string(browser->GetRowCount());
    line = count + count;
    SetPathLine(line);
}

void DocManagerImpl::DeleteForGood(const std::vector<std::string>& paths)
{
    // The first files, so that the box stays on the screen; the rest as an ellipsis.
    constexpr size_t kShown = 12;
    QStringList names;
    for (size_t i = 0; i < std::min(paths.size(), kShown); ++i)
        names << QString::fromStdString(paths[i]);
    if (paths.size() > kShown)
        names << QStringLiteral("\u2026");
    const QString question =
        QString::fromStdString(ResText(ResKind::QueryBox, QUERY_DELETE_FOR_GOOD)).arg(names.join(QLatin1Char('\n')));
    if (DocQueryBox(&manager, question, RET_NO) != RET_YES)
        return;
    ScopedWaitCursor wait;
    // What the trash took is no longer in the list, so the selection is these files.
    for (const std::string* doc = browser->GetFirstDoc(); doc; doc = browser->GetFirstDoc()) {
        const std::string path = *doc;
        if (const int error = fsutil::Remove(path); error == 0) {
            browser->RowRemoved(path);
        } else {
            DocInfoBox(&manager, ResString(STR_DELETE_FAILED) + path + ResString(STR_DELETE_FAILED_END),
                       DocErrorText(error));
            browser->DeselectFirstSelected();  // so that the loop moves on
        }
    }
}
