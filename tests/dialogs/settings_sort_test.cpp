// The sort dialog: the title shown one place before the id stored, and the direction
// buttons around "no sort".
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "docmgr/dialogs/docsortdialog.h"
#include "docmgr/records/docfields.h"
#include "tests/dialogs/settings_fixture.h"

namespace {

class SortDialogTest : public SettingsTest {
protected:
    struct Controls {
        QListWidget* list;
        QRadioButton* up;
        QRadioButton* down;
    };
    Controls Find(const DocSortDialog& dialog)
    {
        return {Child<QListWidget>(dialog, "columnList"), Child<QRadioButton>(dialog, "ascendingButton"),
                Child<QRadioButton>(dialog, "descendingButton")};
    }
    void Ok(DocSortDialog& dialog) { Child<QPushButton>(dialog, "okButton")->click(); }
};

TEST_F(SortDialogTest, PositionShowsTheNextColumnsTitleAndStoresItsOwnNumber)
{
    Working().infoLabel[0] = "Budget";
    Working().sortColumnId = 5;
    Working().sortAscending = false;
    DocSortDialog dialog(nullptr, &config, WORKING_GROUP);
    auto c = Find(dialog);
    const auto texts = Texts(*c.list);
    ASSERT_EQ(texts.size(), 20u);
    EXPECT_EQ(texts[0], ResString(15700));
    EXPECT_EQ(texts[1], ResString(15701));
    EXPECT_EQ(texts[2], ResString(15703));
    EXPECT_EQ(texts[15], "Budget");
    EXPECT_EQ(texts[19], ResString(15702));
    for (int p = 0; p < 20; ++p)
        EXPECT_EQ(texts[p], GetColumnTitle(uint16_t(p + 1), Working()));

    // Stored 5 selects position 5, which shows column 6's title.
    EXPECT_EQ(c.list->currentRow(), 5);
    EXPECT_EQ(texts[5], ResString(15706));
    EXPECT_TRUE(c.down->isChecked());
    EXPECT_TRUE(c.up->isEnabled());

    c.list->setCurrentRow(3);  // shows column 4's title, stores 3
    c.up->setChecked(true);
    Ok(dialog);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(Working().sortColumnId, 3);
    EXPECT_TRUE(Working().sortAscending);
}

TEST_F(SortDialogTest, NoSortDisablesTheDirectionAndRemembersIt)
{
    Working().sortColumnId = NO_COLUMN;
    Working().sortAscending = false;
    DocSortDialog dialog(nullptr, &config, WORKING_GROUP);
    auto c = Find(dialog);
    EXPECT_EQ(c.list->currentRow(), 0);
    EXPECT_FALSE(c.up->isChecked());
    EXPECT_FALSE(c.down->isChecked());
    EXPECT_FALSE(c.up->isEnabled());
    EXPECT_FALSE(c.down->isEnabled());
    EXPECT_FALSE(DocSortDialog::RememberedAscending());

    c.list->setCurrentRow(7);  // the group's own direction comes back
    EXPECT_TRUE(c.down->isChecked());
    EXPECT_FALSE(c.up->isChecked());
    EXPECT_TRUE(c.down->isEnabled());

    c.list->setCurrentRow(8);  // still a column: the user's choice stays
    c.up->setChecked(true);
    c.list->setCurrentRow(9);
    EXPECT_TRUE(c.up->isChecked());

    c.list->setCurrentRow(0);
    EXPECT_TRUE(DocSortDialog::RememberedAscending());
    EXPECT_FALSE(c.up->isEnabled());
    Ok(dialog);
    EXPECT_EQ(Working().sortColumnId, NO_COLUMN);
    EXPECT_FALSE(Working().sortAscending);  // neither button is checked
}

TEST_F(SortDialogTest, EscapeCancelsAndLeavesTheGroupUnchanged)
{
    Working().sortColumnId = 12;
    Working().sortAscending = true;
    DocSortDialog dialog(nullptr, &config, WORKING_GROUP);
    auto c = Find(dialog);
    EXPECT_EQ(c.list->currentRow(), 12);
    c.list->setCurrentRow(0);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), 0);
    EXPECT_EQ(Working().sortColumnId, 12);
    EXPECT_TRUE(Working().sortAscending);
}

}  // namespace
