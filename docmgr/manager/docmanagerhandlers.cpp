// Choosing sections and groups, collecting, the save question and the control handlers.
#include <QCheckBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <memory>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/dialogs/doccolumnsdialog.h"
#include "docmgr/dialogs/docfilterdialog.h"
#include "docmgr/dialogs/docgroupsdialog.h"
#include "docmgr/dialogs/docpathsdialog.h"
#include "docmgr/dialogs/docsortdialog.h"
#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/tokens.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/docfolderwatch.h"
#include "docmgr/ui/waitcursor.h"
#include "resources/resids.h"

namespace {
// Row of the list entry with exactly `text`, or -1.
int FindEntry(const QListWidget* list, const QString& text)
{
    for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->text() == text)
            return row;
    return -1;
}
}  // namespace

void DocManagerImpl::FillSectionBox(bool collect)
{
    {
        ScopedWaitCursor wait;
        const QSignalBlocker quiet(sectionList);
        sectionList->clear();
        // Sections in the order of their first group, each once.
        for (uint16_t g = 0; g < settings->GroupCount(); ++g) {
            const QString section = QString::fromStdString(settings->Group(g).section);
            if (FindEntry(sectionList, section) < 0)
                sectionList->addItem(section);
        }
    }
    SelectSection(settings->Group(settings->CurrentPosition()).section, collect);
}

void DocManagerImpl::SelectSection(const std::string& section, bool collect)
{
    {
        const QSignalBlocker quietSections(sectionList);
        sectionList->setCurrentRow(FindEntry(sectionList, QString::fromStdString(section)));
    }
    {
        ScopedWaitCursor wait;
        const QSignalBlocker quietGroups(groupList);
        groupList->clear();
        const uint16_t current = settings->CurrentPosition();
        uint16_t first = WORKING_GROUP;
        bool found = false;
        for (uint16_t p = 0; p < settings->GroupCount(); ++p) {
            const DocGroupConfig& group = settings->Group(p);
            if (group.section != section)
                continue;
            groupList->addItem(QString::fromStdString(group.groupName));
            if (first == WORKING_GROUP)
                first = p;
            if (p == current) {
                groupList->setCurrentRow(groupList->count() - 1);
                found = true;
            }
        }
        if (!found) {
            if (groupList->count() > 0)
                groupList->setCurrentRow(0);
            settings->SetCurGroup(first);
            changed = false;
        }
    }
    if (collect)
        CollectFiles();
}

void DocManagerImpl::CollectFiles()
{
    if (!settings)
        return;
    // The active paths: those whose flag character is "1"; missing flags count as off.
    const DocGroupConfig& group = settings->WorkingGroup();
    const unsigned short count = tokens::Count(group.paths, ';');
    std::string active;
    for (unsigned short i = 0; i < count; ++i) {
        if (i < group.guis.size() && group.guis[i] == '1') {
            if (!active.empty())
                active += ';';
            active += tokens::Get(group.paths, i, ';');
        }
    }
    SetPathLine(active);
    browser->SetDirFileName(dirFileName);
    browser->SetCollectPaths(GetCollectPaths());
    browser->CollectFiles(false);
    folderWatch->Watch(browser->ListedDirs());
    if (!findBar->isHidden())
        browser->PrepareFind();  // the new rows' texts, folded before the next keystroke
    WatchControls();
}

void DocManagerImpl::QuerySave()
{
    if (!changed)
        return;
    const std::string question =
        ResString(STR_SAVE_QUESTION) + settings->WorkingGroup().groupName + ResString(STR_SAVE_QUESTION_END);
    if (DocQueryBox(&manager, question) == RET_YES) {
        settings->SetGroupByExample(settings->CurrentPosition());
        settings->SaveConfig();
    } else {
        settings->SetCurGroup(0);  // the first group, not the current one: as it always was
    }
}

template <class Dialog>
bool DocManagerImpl::RunSettingsDialog()
{
    auto dialog = std::make_unique<Dialog>(&manager, settings.get(), WORKING_GROUP);
    return dialog->exec() == 1;
}

void DocManagerImpl::CommandsHdl(QAction* item)
{
    Command(DocCommandMenu::ItemId(item));
}

void DocManagerImpl::SectionHdl()
{
    QuerySave();
    const QListWidgetItem* item = sectionList->currentItem();
    SelectSection(item ? item->text().toStdString() : std::string(), true);
}

void DocManagerImpl::GroupHdl()
{
    QuerySave();
    settings->SetCurGroup(SelectedGroupName().toStdString());
    changed = false;
    CollectFiles();
}

void DocManagerImpl::SummaryHdl()
{
    settings->singleView = singleViewBox->isChecked();
    ResizeBrowser();
    browser->InsertColumns();
}

void DocManagerImpl::OpenHdl()
{
    QuerySave();
    manager.done(1);
}

void DocManagerImpl::CloseHdl()
{
    if (settings) {
        settings->SaveGeneralSection();
        QuerySave();
    }
    manager.done(0);
}

void DocManagerImpl::GroupsHdl()
{
    QuerySave();
    changed = false;
    auto dialog = std::make_unique<DocGroupsDialog>(&manager, settings.get(), SelectedGroupName());
    FillSectionBox(dialog->exec() == 1);
}

void DocManagerImpl::PathsHdl()
{
    if (RunSettingsDialog<DocPathsDialog>()) {
        changed = true;
        CollectFiles();
    }
}

void DocManagerImpl::FilterHdl()
{
    if (RunSettingsDialog<DocFilterDialog>()) {
        changed = true;
        CollectFiles();
    }
}

void DocManagerImpl::SortHdl()
{
    if (!RunSettingsDialog<DocSortDialog>())
        return;
    changed = true;
    if (settings->WorkingGroup().sortColumnId < NO_COLUMN) {
        browser->ClearSelection();
        browser->SortFiles(true);
    } else {
        CollectFiles();  // back to the order of collection
    }
}

void DocManagerImpl::ColumnsHdl()
{
    if (RunSettingsDialog<DocColumnsDialog>()) {
        changed = true;
        browser->InsertColumns();
    }
}
