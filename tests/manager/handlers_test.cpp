// What the manager does after each settings and file dialog, whatever the dialog edited.
#include <QContextMenuEvent>

#include "docmgr/records/docfields.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/frozencolumns.h"
#include "tests/support/managerfixture.h"

class HandlersTest : public ManagerTest {
protected:
    void SetUp() override
    {
        WriteDefaultConfig();
        for (const char* name : {"b.odt", "c.odt", "a.odt"})
            dir.MakeFile(std::string("docs/") + name, "x");
        Start();
    }
    // Ends the next dialog with `result` without touching it.
    static void Confirm(int result = 1)
    {
        OnNextModal([](QDialog&) {}, result);
    }
};

// A settings dialog ended with 0 changes nothing; confirmed, the settings count as changed
// and the list is collected again (the groups dialog, which saves itself, only collects).
TEST_F(HandlersTest, ConfirmedSettingsDialogsMarkTheSettingsAndCollect)
{
    const struct {
        const char* name;
        void (TestHost::*handler)();
        bool marks;
    } table[] = {
        {"paths", &TestHost::PathsHdl, true},
        {"filter", &TestHost::FilterHdl, true},
        {"sort without column", &TestHost::SortHdl, true},
        {"groups", &TestHost::GroupsHdl, false},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        host.reset();
        Start();
        Settings().WorkingGroup().sortColumnId = NO_COLUMN;
        const int rows = Browser().GetRowCount();
        dir.MakeFile(std::string("docs/") + row.name + ".odt", "x");
        Confirm(0);
        (host.get()->*row.handler)();
        EXPECT_FALSE(host->IsChanged());
        EXPECT_EQ(Browser().GetRowCount(), rows);
        Confirm(1);
        (host.get()->*row.handler)();
        EXPECT_EQ(host->IsChanged(), row.marks);
        EXPECT_EQ(Browser().GetRowCount(), rows + 1);
    }
}

TEST_F(HandlersTest, ConfirmedSortSortsAndColumnsRebuildTheColumns)
{
    Select({"c.odt"});
    Settings().WorkingGroup().sortColumnId = COL_NAME;
    Confirm();
    host->SortHdl();
    EXPECT_TRUE(host->IsChanged());
    EXPECT_EQ(RowNames(), (std::vector<std::string>{"a.odt", "b.odt", "c.odt"}));
    EXPECT_EQ(Browser().GetSelectedRowCount(), 0);

    Settings().WorkingGroup().columnId[0] = COL_AUTHOR;
    Confirm(0);
    host->ColumnsHdl();
    EXPECT_EQ(Browser().GetColumnId(0), COL_NAME);
    Confirm(1);
    host->ColumnsHdl();
    EXPECT_EQ(Browser().GetColumnId(0), COL_AUTHOR);
}

TEST_F(HandlersTest, TheGroupsDialogAsksFirstAboutChangedSettings)
{
    AnswerBoxes(RET_YES);
    Confirm();
    host->PathsHdl();
    Confirm(0);
    host->GroupsHdl();
    EXPECT_EQ(queries.size(), 1u);
    EXPECT_FALSE(host->IsChanged());
}

TEST_F(HandlersTest, CopyAndRenameCollectOnlyWhenTheyChangedFiles)
{
    Select({"a.odt"});
    dir.MakeFile("docs/new.odt", "x");
    for (unsigned short command : {CMD_COPY, CMD_RENAME}) {
        Confirm(1);  // confirmed, but nothing copied or renamed
        host->Command(command);
        EXPECT_EQ(Browser().GetRowCount(), 3) << command;
    }
}

TEST_F(HandlersTest, RightClickOpensTheContextMenuOnlyOnASelection)
{
    host->resize(700, 500);
    host->show();
    QWidget* viewport = Browser().viewport();
    const QPoint at(20, 10);
    QStringList seen;
    auto closePopup = [&seen] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            seen << popup->objectName();
            popup->close();
        }
    };
    QContextMenuEvent none(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at));
    QTimer::singleShot(0, closePopup);
    QApplication::sendEvent(viewport, &none);
    QApplication::processEvents();
    EXPECT_TRUE(seen.isEmpty());

    Select({"a.odt"});
    QContextMenuEvent some(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at));
    QTimer::singleShot(0, closePopup);
    QApplication::sendEvent(viewport, &some);
    EXPECT_EQ(seen, QStringList{"commandMenu"});

    // Over the frozen columns the same menu opens.
    QWidget* frozen = Browser().GetFrozenView()->viewport();
    ASSERT_TRUE(Browser().GetFrozenView()->isVisible());
    QContextMenuEvent overFrozen(QContextMenuEvent::Mouse, at, frozen->mapToGlobal(at));
    QTimer::singleShot(0, closePopup);
    QApplication::sendEvent(frozen, &overFrozen);
    EXPECT_EQ(seen, (QStringList{"commandMenu", "commandMenu"}));
}
