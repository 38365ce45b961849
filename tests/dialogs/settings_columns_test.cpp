// The columns dialog: which slots a move exchanges on either side of the separator.
#include <numeric>

#include "docmgr/dialogs/doccolumnsdialog.h"
#include "tests/support/managerfixture.h"

class ColumnsDialogTest : public ManagerTest {
protected:
    void SetUp() override
    {
        StartWith({});
        std::iota(Working().columnId.begin(), Working().columnId.end(), uint16_t(1));
        for (unsigned i = 0; i < COLUMN_SLOTS; ++i)
            Working().columnWidth[i] = uint16_t(100 + i);
        Working().frozenColumns = 3;
    }

    // Selects `row` and presses the up or down button.
    static void Move(DocColumnsDialog& dialog, int row, const char* button)
    {
        In<QListWidget>(dialog, "columnList")->setCurrentRow(row);
        In<QToolButton>(dialog, button)->click();
    }
    static std::array<uint16_t, 20> Ids(std::initializer_list<std::pair<int, int>> swaps)
    {
        std::array<uint16_t, 20> ids;
        std::iota(ids.begin(), ids.end(), uint16_t(1));
        for (auto [a, b] : swaps)
            std::swap(ids[a], ids[b]);
        return ids;
    }
};

TEST_F(ColumnsDialogTest, OpensWithTheSeparatorAtTheFrozenCountAndOkStoresTheMoves)
{
    Working().infoLabel[1] = "Project";
    const auto widths = Working().columnWidth;
    DocColumnsDialog dialog(nullptr, &Settings(), WORKING_GROUP);
    auto* list = In<QListWidget>(dialog, "columnList");
    const auto texts = Texts(list);
    ASSERT_EQ(texts.size(), 21u);
    EXPECT_EQ(texts[3], "--------------------");
    EXPECT_EQ(texts[17], "Project");  // slot 16 holds id 17, the second info field
    EXPECT_FALSE(In<QToolButton>(dialog, "upButton")->isEnabled());
    list->setCurrentRow(20);
    EXPECT_FALSE(In<QToolButton>(dialog, "downButton")->isEnabled());

    Move(dialog, 0, "downButton");  // slots 0 and 1, above the line
    Move(dialog, 5, "upButton");    // list 5 and 4 are slots 4 and 3, below it
    Move(dialog, 2, "downButton");  // the third column goes below the line
    In<QPushButton>(dialog, "okButton")->click();
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(Working().columnId, Ids({{0, 1}, {3, 4}}));
    EXPECT_EQ(Working().frozenColumns, 2);
    EXPECT_EQ(Working().columnWidth, widths);  // widths stay in their slots
}

TEST_F(ColumnsDialogTest, CtrlArrowsMoveTheSelectedEntryAndEnterConfirms)
{
    DocColumnsDialog dialog(nullptr, &Settings(), WORKING_GROUP);
    dialog.show();
    auto* list = In<QListWidget>(dialog, "columnList");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);  // second column below the third
    EXPECT_EQ(list->currentRow(), 2);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(Working().columnId, Ids({{1, 2}}));
}
