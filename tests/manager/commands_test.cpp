// The commands menu's enabling and the delete command.
#include <QFileDialog>
#include <cerrno>
#include <cstring>

#include "docmgr/records/docfields.h"
#include "docmgr/view/doccommandmenu.h"
#include "tests/support/managerfixture.h"

class CommandsTest : public ManagerTest {
protected:
    void SetUp() override
    {
        WriteDefaultConfig();
        MakeDocs({"a.odt", "b.odt", "c.odt", "d.odt"});
    }
    std::vector<unsigned short> EnabledCommands()
    {
        auto* menu = static_cast<DocCommandMenu*>(Child<QToolButton>("commandsButton")->menu());
        std::vector<unsigned short> ids;
        for (unsigned short id = CMD_DELETE; id <= CMD_EXPORTLIST; ++id)
            if (menu->Item(id)->isEnabled())
                ids.push_back(id);
        return ids;
    }
    using Ids = std::vector<unsigned short>;
};

// The list's context menu follows the rights alone.
TEST_F(CommandsTest, CommandsFollowTheSelectionTheOpenModeAndTheRights)
{
    const uint16_t all = ACCESS_FILEDELETE | ACCESS_FILECOPY | ACCESS_FILEPRINT | ACCESS_FILERENAME;
    auto without = [all](uint16_t right) { return uint16_t(all & ~right); };
    // The commands enabled, and the items of the context menu that are off.
    const struct {
        uint16_t access;
        bool openMode;
        std::set<std::string> selected;
        Ids commands, contextOff;
    } rows[] = {
        {all, true, {}, {CMD_PRINTLIST, CMD_EXPORTLIST}, {}},
        {all, true, {"a.odt"}, {20, 21, 22, 23, 24, 25, 26}, {}},
        {all, true, {"a.odt", "b.odt", "c.odt"}, {20, 22, 24, 25, 26}, {}},  // information and rename need one row
        {all, false, {"a.odt", "b.odt", "c.odt"}, {20, 22, 25, 26}, {}},     // printing documents needs open mode
        {without(ACCESS_FILEDELETE), true, {"a.odt"}, {21, 22, 23, 24, 25, 26}, {CMD_DELETE}},
        {without(ACCESS_FILECOPY), true, {"a.odt"}, {20, 21, 23, 24, 25, 26}, {CMD_COPY}},
        {without(ACCESS_FILEPRINT), true, {"a.odt"}, {20, 21, 22, 23, 25, 26}, {CMD_PRINTDOCS}},
        {without(ACCESS_FILERENAME), true, {"a.odt"}, {20, 21, 22, 24, 25, 26}, {CMD_RENAME}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "access " << row.access << ", " << row.selected.size() << " selected");
        host.reset();
        Start(row.openMode);
        Settings().access = row.access;
        Browser().clearSelection();
        Select(row.selected);
        EXPECT_EQ(EnabledCommands(), row.commands);
        EXPECT_EQ(Child<QPushButton>("openButton")->isEnabled(), !row.selected.empty());
        auto context = Browser().CreateContextMenu();
        if (row.selected.empty()) {
            EXPECT_EQ(context, nullptr);
            continue;
        }
        Ids off;
        for (QAction* item : context->actions())
            if (!item->isSeparator() && !item->isEnabled())
                off.push_back(DocCommandMenu::ItemId(item));
        EXPECT_EQ(off, row.contextOff);
    }
}

TEST_F(CommandsTest, DeleteRemovesTheSelectedFilesAndRewritesThePathLineTheKeysRunDeleteAndRename)
{
    Start();
    EXPECT_EQ(Impl().pathLineText, "4 documents in " + docs);

    Select({"c.odt"});
    AnswerBoxes(RET_NO);
    Impl().Command(CMD_DELETE);
    EXPECT_EQ(queries, std::vector<std::string>{"Move the document \"c.odt\" to the trash?"});
    EXPECT_EQ(AnsweredDocBox().defaultAnswer, RET_NO);  // Enter keeps the files
    EXPECT_TRUE(dir.Exists("docs/c.odt"));
    Select({"a.odt", "b.odt", "d.odt"});

    // b.odt has gone behind the list's back: no trash takes it, it cannot be deleted
    // either, its row stays.
    std::filesystem::remove(docs + "/b.odt");
    queries.clear();
    AnswerBoxes(RET_YES);
    Impl().Command(CMD_DELETE);
    EXPECT_EQ(queries, (std::vector<std::string>{"Move the 3 selected documents to the trash?",
                                                 "No trash can take these files:\n" + docs +
                                                     "/b.odt\n\nDelete them for good? This cannot be undone."}));
    EXPECT_FALSE(dir.Exists("docs/a.odt") || dir.Exists("docs/d.odt"));
    EXPECT_TRUE(dir.Exists("data/Trash/files/a.odt") && dir.Exists("data/Trash/files/d.odt"));
    EXPECT_EQ(infos, std::vector<std::string>{"The file " + docs + "/b.odt could not be deleted."});
    EXPECT_EQ(AnsweredDocBox().detail.toStdString(), std::strerror(ENOENT));  // the system's reason
    EXPECT_EQ(RowNames(), (std::vector<std::string>{"b.odt", "c.odt"}));
    EXPECT_EQ(Browser().GetSelectedRowCount(), 0);
    EXPECT_EQ(Child<QLabel>("pathLine")->text(), "22");
    EXPECT_FALSE(Child<QPushButton>("openButton")->isEnabled());

    // Delete and F2 in the list run their commands when enabled and keep the selection.
    host->show();
    QApplication::setActiveWindow(host.get());
    Browser().setFocus();
    AnswerBoxes(RET_NO);
    queries.clear();

    QTest::keyClick(&Browser(), Qt::Key_Delete);  // nothing selected: delete is off
    Select({"c.odt"});
    QTest::keyClick(&Browser(), Qt::Key_Delete);
    EXPECT_EQ(queries.size(), 1u);

    // F2 renames; the renamed document stays selected.
    OnNextModal([](QDialog& dialog) {
        In<QLineEdit>(dialog, "newNameEdit")->setText("renamed.odt");
        In<QPushButton>(dialog, "okButton")->click();
    });
    QTest::keyClick(&Browser(), Qt::Key_F2);
    EXPECT_EQ(host->SelectedDocs(), std::vector<std::string>{docs + "/renamed.odt"});

    Select({"renamed.odt", "b.odt"});  // rename needs one row: F2 opens nothing
    QTest::keyClick(&Browser(), Qt::Key_F2);
    QApplication::processEvents();
    EXPECT_TRUE(dir.Exists("docs/renamed.odt"));
}

TEST_F(CommandsTest, ExportWritesTheListAsShownToCsvPrintDocumentsEndsTheDialogForTheHost)
{
    Start();
    Working().columnId = {3, 0, 1};  // a place without a column is left out
    Working().sortColumnId = COL_NAME;
    Browser().InsertColumns();
    Browser().SortFiles(false);
    OnNextModal([this](QDialog& dialog) {
        dynamic_cast<QFileDialog&>(dialog).selectFile(QString::fromStdString(dir.PathOf("list.csv")));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    Impl().Command(CMD_EXPORTLIST);
    EXPECT_EQ(dir.Read("list.csv"), "Title,File name\r\na.odt,a.odt\r\nb.odt,b.odt\r\nc.odt,c.odt\r\nd.odt,d.odt\r\n");

    // Printing documents ends the dialog for the host.
    MakeHost();
    QTimer::singleShot(0, host.get(), [this] {
        Select({"c.odt"});
        Child<QToolButton>("commandsButton")->menu()->actions().at(CMD_PRINTDOCS - CMD_DELETE)->trigger();
    });
    EXPECT_EQ(host->Execute(), RET_PRINTDOCS);
    ASSERT_NE(host->GetFirstDoc(), nullptr);
    EXPECT_EQ(*host->GetFirstDoc(), docs + "/c.odt");
}
