// What the manager does after each settings and file dialog, whatever the dialog edited.
#include <QContextMenuEvent>

#include "docmgr/records/docfields.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/frozencolumns.h"
#include "tests/support/managerfixture.h"

class HandlersTest : public ManagerTest {
protected:
    void SetUp() override { StartWith({"b.odt", "c.odt", "a.odt"}); }
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
        void (DocManagerImpl::*handler)();
        bool marks;
    } table[] = {
        {"paths", &DocManagerImpl::PathsHdl, true},
        {"filter", &DocManagerImpl::FilterHdl, true},
        {"sort without column", &DocManagerImpl::SortHdl, true},
        {"groups", &DocManagerImpl::GroupsHdl, false},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(row.name);
        host.reset();
        Start();
        Working().sortColumnId = NO_COLUMN;
        const long rows = Browser().GetRowCount();
        dir.MakeFile(std::string("docs/") + row.name + ".odt", "x");
        Confirm(0);
        (Impl().*row.handler)();
        EXPECT_FALSE(Impl().changed);
        EXPECT_EQ(Browser().GetRowCount(), rows);
        Confirm(1);
        (Impl().*row.handler)();
        EXPECT_EQ(Impl().changed, row.marks);
        EXPECT_EQ(Browser().GetRowCount(), rows + 1);
    }
}

TEST_F(HandlersTest, ConfirmedSortAndColumnsRebuildCopyAndRenameCollectOnlyAfterAChangeRightClickOpensTheMenu)
{
    Select({"c.odt"});
    Working().sortColumnId = COL_NAME;
    Confirm();
    Impl().SortHdl();
    EXPECT_EQ(RowNames(), (std::vector<std::string>{"a.odt", "b.odt", "c.odt"}));
    EXPECT_EQ(Browser().GetSelectedRowCount(), 0);

    Working().columnId[0] = COL_AUTHOR;
    Confirm(0);
    Impl().ColumnsHdl();
    EXPECT_EQ(Browser().GetColumnId(0), COL_NAME);
    Confirm(1);
    Impl().ColumnsHdl();
    EXPECT_EQ(Browser().GetColumnId(0), COL_AUTHOR);

    // Copy and rename confirmed but nothing done: no collection.
    Select({"a.odt"});
    dir.MakeFile("docs/new.odt", "x");
    for (unsigned short command : {CMD_COPY, CMD_RENAME}) {
        Confirm(1);
        Impl().Command(command);
        EXPECT_EQ(Browser().GetRowCount(), 3) << command;
    }

    // A right click opens the context menu only on a selection.
    host->resize(700, 500);
    host->show();
    // The name of the menu a right click on `viewport` opens; empty for none.
    auto rightClick = [](QWidget* viewport) {
        QString seen;
        QTimer::singleShot(0, [&seen] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                seen = popup->objectName();
                popup->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(20, 10), viewport->mapToGlobal(QPoint(20, 10)));
        QApplication::sendEvent(viewport, &event);
        QApplication::processEvents();
        return seen;
    };
    Browser().ClearSelection();
    EXPECT_EQ(rightClick(Browser().viewport()), "");
    Select({"a.odt"});
    EXPECT_EQ(rightClick(Browser().viewport()), "commandMenu");
    ASSERT_TRUE(Browser().GetFrozenView()->isVisible());  // over the frozen columns the same menu opens
    EXPECT_EQ(rightClick(Browser().GetFrozenView()->viewport()), "commandMenu");
}
