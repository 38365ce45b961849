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

void DocManager::FillSectionBox(bool collect)
{
    {
        ScopedWaitCursor wait;
        const QSignalBlocker quiet(d->sectionList);
        d->sectionList->clear();
        // Sections in the order of their first group, each once.
        for (uint16_t g = 0; g < d->settings->GroupCount(); ++g) {
            const QString section = QString::fromStdString(d->settings->Group(g).section);
            if (FindEntry(d->sectionList, section) < 0)
                d->sectionList->addItem(section);
        }
    }
    SelectSection(d->settings->Group(d->settings->CurrentPosition()).section, collect);
}

void DocManager::SelectSection(const std::string& section, bool collect)
{
    {
        const QSignalBlocker quietSections(d->sectionList);
        d->sectionList->setCurrentRow(FindEntry(d->sectionList, QString::fromStdString(section)));
    }
    {
        ScopedWaitCursor wait;
        const QSignalBlocker quietGroups(d->groupList);
        d->groupList->clear();
        const uint16_t current = d->settings->CurrentPosition();
        uint16_t first = WORKING_GROUP;
        bool found = false;
        for (uint16_t p = 0; p < d->settings->GroupCount(); ++p) {
            const DocGroupConfig& group = d->settings->Group(p);
            if (group.section != section)
                continue;
            d->groupList->addItem(QString::fromStdString(group.groupName));
            if (first == WORKING_GROUP)
                first = p;
            if (p == current) {
                d->groupList->setCurrentRow(d->groupList->count() - 1);
                found = true;
            }
        }
        if (!found) {
            if (d->groupList->count() > 0)
                d->groupList->setCurrentRow(0);
            d->settings->SetCurGroup(first);
            d->changed = false;
        }
    }
    if (collect)
        CollectFiles();
}

void DocManager::CollectFiles()
{
    if (!d->settings)
        return;
    // The active paths: those whose flag character is "1"; missing flags count as off.
    const DocGroupConfig& group = d->settings->WorkingGroup();
    const unsigned short count = tokens::Count(group.paths, ';');
    std::string active;
    for (unsigned short i = 0; i < count; ++i) {
        if (i < group.guis.size() && group.guis[i] == '1') {
            if (!active.empty())
                active += ';';
            active += tokens::Get(group.paths, i, ';');
        }
    }
    d->SetPathLine(active);
    d->browser->SetDirFileName(d->dirFileName);
    d->browser->SetCollectPaths(d->GetCollectPaths());
    d->browser->CollectFiles(false);
    WatchControls();
}

void DocManager::QuerySave()
{
    if (!d->changed)
        return;
    const std::string question = ResString(STR_SAVE_QUESTION) + d->settings->WorkingGroup().groupName +
                                 ResString(STR_SAVE_QUESTION_END);
    if (DocQueryBox(this, question) == RET_YES) {
        d->settings->SetGroupByExample(d->settings->CurrentPosition());
        d->settings->SaveConfig();
    } else {
        d->settings->SetCurGroup(0);  // the first group, not the current one: as it always was
    }
}

template <class Dialog>
bool DocManager::RunSettingsDialog()
{
    auto dialog = std::make_unique<Dialog>(this, d->settings.get(), WORKING_GROUP);
    return dialog->exec() == 1;
}

void DocManager::CommandsHdl(QAction* item)
{
    Command(DocCommandMenu::ItemId(item));
}

void DocManager::SectionHdl()
{
    QuerySave();
    const QListWidgetItem* item = d->sectionList->currentItem();
    SelectSection(item ? item->text().toStdString() : std::string(), true);
}

void DocManager::GroupHdl()
{
    QuerySave();
    d->settings->SetCurGroup(d->SelectedGroupName().toStdString());
    d->changed = false;
    CollectFiles();
}

void DocManager::SummaryHdl()
{
    d->settings->singleView = d->singleViewBox->isChecked();
    ResizeBrowser();
    d->browser->InsertColumns();
}

void DocManager::OpenHdl()
{
    QuerySave();
    done(1);
}

void DocManager::CloseHdl()
{
    if (d->settings) {
        d->settings->SaveGeneralSection();
        QuerySave();
    }
    done(0);
}

void DocManager::reject()
{
    CloseHdl();
}

void DocManager::GroupsHdl()
{
    QuerySave();
    d->changed = false;
    auto dialog = std::make_unique<DocGroupsDialog>(this, d->settings.get(), d->SelectedGroupName());
    FillSectionBox(dialog->exec() == 1);
}

void DocManager::PathsHdl()
{
    if (RunSettingsDialog<DocPathsDialog>()) {
        d->changed = true;
        CollectFiles();
    }
}

void DocManager::FilterHdl()
{
    if (RunSettingsDialog<DocFilterDialog>()) {
        d->changed = true;
        CollectFiles();
    }
}

void DocManager::SortHdl()
{
    if (!RunSettingsDialog<DocSortDialog>())
        return;
    d->changed = true;
    if (d->settings->WorkingGroup().sortColumnId < NO_COLUMN) {
        d->browser->ClearSelection();
        d->browser->SortFiles(true);
    } else {
        CollectFiles();  // back to the order of collection
    }
}

void DocManager::ColumnsHdl()
{
    if (RunSettingsDialog<DocColumnsDialog>()) {
        d->changed = true;
        d->browser->InsertColumns();
    }
}
