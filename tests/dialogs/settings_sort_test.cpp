// The sort dialog: the title shown one place before the id stored, and the direction
// buttons around "no sort".
#include <QRadioButton>

#include "docmgr/dialogs/docsortdialog.h"
#include "docmgr/records/docfields.h"
#include "tests/support/managerfixture.h"

class SortDialogTest : public ManagerTest {
protected:
    void SetUp() override { StartWith({}); }
};

TEST_F(SortDialogTest, PositionShowsTheNextColumnsTitleOkStoresItsOwnNumberEscapeNothingNoSortNoDirection)
{
    Working().infoLabel[0] = "Budget";
    Working().sortColumnId = 5;
    Working().sortAscending = false;
    DocSortDialog dialog(nullptr, &Settings(), WORKING_GROUP);
    auto* list = In<QListWidget>(dialog, "columnList");
    const auto texts = Texts(list);
    ASSERT_EQ(texts.size(), 20u);
    EXPECT_EQ(texts[15], "Budget");
    // Stored 5 selects position 5, which shows column 6's title.
    EXPECT_EQ(texts[5], GetColumnTitle(6, Working()));
    EXPECT_EQ(list->currentRow(), 5);
    EXPECT_TRUE(In<QRadioButton>(dialog, "descendingButton")->isChecked());
    list->setCurrentRow(3);  // shows column 4's title, stores 3
    In<QRadioButton>(dialog, "ascendingButton")->setChecked(true);
    In<QPushButton>(dialog, "okButton")->click();
    EXPECT_EQ(Working().sortColumnId, 3);
    EXPECT_TRUE(Working().sortAscending);

    DocSortDialog again(nullptr, &Settings(), WORKING_GROUP);  // Escape leaves the group unchanged
    In<QListWidget>(again, "columnList")->setCurrentRow(0);
    again.show();
    QTest::keyClick(&again, Qt::Key_Escape);
    EXPECT_EQ(again.result(), 0);
    EXPECT_EQ(Working().sortColumnId, 3);

    // No sort disables the direction buttons and remembers the direction.
    Working().sortColumnId = NO_COLUMN;
    Working().sortAscending = false;
    DocSortDialog noSort(nullptr, &Settings(), WORKING_GROUP);
    auto* rows = In<QListWidget>(noSort, "columnList");
    auto* up = In<QRadioButton>(noSort, "ascendingButton");
    auto* down = In<QRadioButton>(noSort, "descendingButton");
    EXPECT_FALSE(up->isChecked() || down->isChecked() || up->isEnabled() || down->isEnabled());
    EXPECT_FALSE(DocSortDialog::RememberedAscending());

    rows->setCurrentRow(7);  // the group's own direction comes back
    EXPECT_TRUE(down->isChecked() && down->isEnabled());
    rows->setCurrentRow(8);  // still a column: the user's choice stays
    up->setChecked(true);
    rows->setCurrentRow(9);
    EXPECT_TRUE(up->isChecked());

    rows->setCurrentRow(0);
    EXPECT_TRUE(DocSortDialog::RememberedAscending());
    EXPECT_FALSE(up->isEnabled());
    In<QPushButton>(noSort, "okButton")->click();
    EXPECT_EQ(Working().sortColumnId, NO_COLUMN);
    EXPECT_FALSE(Working().sortAscending);  // neither button is checked
}
