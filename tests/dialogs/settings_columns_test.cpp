// The columns dialog: the separator line, moves across and beside it, widths left in slots.
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <numeric>

#include "docmgr/dialogs/doccolumnsdialog.h"
#include "tests/dialogs/settings_fixture.h"

namespace {

class ColumnsDialogTest : public SettingsTest {
protected:
    ColumnsDialogTest()
    {
        std::iota(Working().columnId.begin(), Working().columnId.end(), uint16_t(1));
        for (unsigned i = 0; i < COLUMN_SLOTS; ++i)
            Working().columnWidth[i] = uint16_t(100 + i);
        Working().frozenColumns = 3;
    }

    // Selects `row` and presses the up or down button.
    void Move(DocColumnsDialog& dialog, int row, const char* button)
    {
        Child<QListWidget>(dialog, "columnList")->setCurrentRow(row);
        Child<QToolButton>(dialog, button)->click();
    }

    void Ok(DocColumnsDialog& dialog) { Child<QPushButton>(dialog, "okButton")->click(); }

    static std::array<uint16_t, 20> Ids(std::initializer_list<std::pair<int, int>> swaps)
    {
        std::array<uint16_t, 20> ids;
        std::iota(ids.begin(), ids.end(), uint16_t(1));
        for (auto [a, b] : swaps)
            std::swap(ids[a], ids[b]);
        return ids;
    }
};

TEST_F(ColumnsDialogTest, OpensWithTwentyTitlesAndTheSeparatorAtTheFrozenCount)
{
    Working().infoLabel[1] = "Project";
    Working().columnId[19] = 999;  // not a column: an empty entry
    DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
    auto* list = Child<QListWidget>(dialog, "columnList");
    const auto texts = Texts(*list);
    ASSERT_EQ(texts.size(), 21u);
    EXPECT_EQ(texts[0], ResString(15700));
    EXPECT_EQ(texts[1], ResString(15701));
    EXPECT_EQ(texts[2], ResString(15703));
    EXPECT_EQ(texts[3], "--------------------");
    EXPECT_EQ(texts[4], ResString(15704));
    EXPECT_EQ(texts[17], "Project");  // slot 16 holds id 17, the second info field
    EXPECT_EQ(texts[20], "");
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_FALSE(Child<QToolButton>(dialog, "upButton")->isEnabled());
    EXPECT_TRUE(Child<QToolButton>(dialog, "downButton")->isEnabled());

    list->setCurrentRow(20);
    EXPECT_TRUE(Child<QToolButton>(dialog, "upButton")->isEnabled());
    EXPECT_FALSE(Child<QToolButton>(dialog, "downButton")->isEnabled());
}

TEST_F(ColumnsDialogTest, MovingAcrossTheSeparatorChangesOnlyTheFrozenCount)
{
    {
        DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
        Move(dialog, 2, "downButton");  // third column goes below the line
        EXPECT_EQ(Child<QListWidget>(dialog, "columnList")->currentRow(), 3);
        Ok(dialog);
        EXPECT_EQ(dialog.result(), 1);
    }
    EXPECT_EQ(Working().frozenColumns, 2);
    EXPECT_EQ(Working().columnId, Ids({}));

    {
        DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
        Move(dialog, 2, "upButton");  // the separator itself moves up
        Move(dialog, 2, "upButton");  // a column moves up over the separator
        Ok(dialog);
    }
    EXPECT_EQ(Working().frozenColumns, 2);  // 2 -> 1 -> 2
    EXPECT_EQ(Working().columnId, Ids({}));
}

TEST_F(ColumnsDialogTest, ColumnsOnOneSideExchangeIdsAndWidthsStayInTheirSlots)
{
    const auto widths = Working().columnWidth;
    DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
    Move(dialog, 0, "downButton");   // slots 0 and 1, above the line
    Move(dialog, 5, "upButton");     // list 5 and 4 are slots 4 and 3, below it
    Move(dialog, 19, "downButton");  // the last two slots
    EXPECT_EQ(dialog.GetColumnOrder(), Ids({{0, 1}, {3, 4}, {18, 19}}));
    const auto texts = Texts(*Child<QListWidget>(dialog, "columnList"));
    EXPECT_EQ(texts[0], ResString(15701));
    EXPECT_EQ(texts[1], ResString(15700));
    Ok(dialog);
    EXPECT_EQ(Working().columnId, Ids({{0, 1}, {3, 4}, {18, 19}}));
    EXPECT_EQ(Working().frozenColumns, 3);
    EXPECT_EQ(Working().columnWidth, widths);
}

TEST_F(ColumnsDialogTest, AnUnknownIdTravelsWithItsEntry)
{
    Working().columnId[5] = 999;
    DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
    Move(dialog, 6, "upButton");  // list 6 is slot 5
    Move(dialog, 5, "upButton");
    Ok(dialog);
    EXPECT_EQ(Working().columnId[3], 999);
    EXPECT_EQ(Working().columnId[4], 4);
    EXPECT_EQ(Working().columnId[5], 5);
}

TEST_F(ColumnsDialogTest, CancelAndOtherGroupsAreLeftAlone)
{
    const auto before = Working().columnId;
    {
        DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
        Move(dialog, 0, "downButton");
        Move(dialog, 3, "downButton");
        Child<QPushButton>(dialog, "cancelButton")->click();
        EXPECT_EQ(dialog.result(), 0);
    }
    EXPECT_EQ(Working().columnId, before);
    EXPECT_EQ(Working().frozenColumns, 3);

    // Group 0 is list element 1; the working group stays as it was.
    config.Group(0).frozenColumns = 5;
    {
        DocColumnsDialog dialog(nullptr, &config, 0);
        EXPECT_EQ(Child<QListWidget>(dialog, "columnList")->item(5)->text().toStdString(),
                  "--------------------");
        Move(dialog, 5, "upButton");
        Ok(dialog);
    }
    EXPECT_EQ(config.Group(0).frozenColumns, 4);
    EXPECT_EQ(Working().frozenColumns, 3);
}

TEST_F(ColumnsDialogTest, CtrlArrowsMoveTheSelectedEntryAndEnterConfirms)
{
    DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
    dialog.show();
    auto* list = Child<QListWidget>(dialog, "columnList");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);  // second column below the third
    EXPECT_EQ(list->currentRow(), 2);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(Working().columnId, Ids({{1, 2}}));
}

TEST_F(ColumnsDialogTest, ATitleEqualToTheSeparatorIsTakenAsTheSeparator)
{
    Working().infoLabel[0] = "--------------------";  // column 16, slot 15
    DocColumnsDialog dialog(nullptr, &config, WORKING_GROUP);
    Ok(dialog);
    EXPECT_EQ(Working().frozenColumns, 3);  // the first match is the real line
    Working().frozenColumns = 18;
    DocColumnsDialog second(nullptr, &config, WORKING_GROUP);
    Ok(second);
    EXPECT_EQ(Working().frozenColumns, 15);
}

}  // namespace
