// The filter dialog: what it shows of a group's filter, what OK writes back, and that
// Cancel writes nothing.
#include <QComboBox>
#include <QDateEdit>
#include <QStackedWidget>
#include <QTimeEdit>

#include "docmgr/dialogs/docfilterdialog.h"
#include "tests/support/managerfixture.h"

class FilterDialogTest : public ManagerTest {
protected:
    void SetUp() override { StartWith({}); }
    static QWidget* ShownEntry(QDialog& dialog, int row)
    {
        return In<QStackedWidget>(dialog, "entryStack" + QString::number(row))->currentWidget();
    }
};

TEST_F(FilterDialogTest, ShowsTheGroupsFilterWithTheFittingEntriesOkWritesTheEditsCancelNothing)
{
    DocGroupConfig& group = Working();
    group.filterTitle = "*Plan*";
    group.filterSensitive = true;
    group.filterField = {5, 6, 3};  // created date, created time, title
    group.filterCondition = {4, 0, 6};
    group.filterDate[0] = 20240315;
    group.filterTime[1] = uint32_t(Time(9, 30, 15).GetTime());
    group.filterValue[2] = "Re*";
    group.filterLink = {1, 7};  // any code but 0 and 1 means "or"

    DocFilterDialog dialog(host.get(), &Settings(), WORKING_GROUP);
    EXPECT_EQ(In<QLineEdit>(dialog, "titleEdit")->text(), "*Plan*");
    EXPECT_TRUE(In<QCheckBox>(dialog, "sensitiveBox")->isChecked());
    // Row 0 begins with "no condition": position = field id; rows 1 and 2: id - 1.
    for (const auto& [box, index] :
         {std::pair{"fieldList0", 5}, {"fieldList1", 5}, {"fieldList2", 2}, {"conditionList0", 4}, {"linkList0", 1}, {"linkList1", 2}})
        EXPECT_EQ(In<QComboBox>(dialog, box)->currentIndex(), index) << box;
    EXPECT_EQ(In<QComboBox>(dialog, "fieldList0")->count(), 21);

    EXPECT_EQ(ShownEntry(dialog, 0), In<QDateEdit>(dialog, "dateEdit0"));
    EXPECT_EQ(In<QDateEdit>(dialog, "dateEdit0")->date(), QDate(2024, 3, 15));
    EXPECT_EQ(ShownEntry(dialog, 1), In<QTimeEdit>(dialog, "timeEdit1"));
    EXPECT_EQ(In<QTimeEdit>(dialog, "timeEdit1")->time(), QTime(9, 30, 15));
    EXPECT_EQ(ShownEntry(dialog, 2), In<QLineEdit>(dialog, "valueEdit2"));

    // A pattern is typed as text even for a date; a title compares with text.
    In<QComboBox>(dialog, "conditionList0")->setCurrentIndex(6);
    EXPECT_EQ(ShownEntry(dialog, 0), In<QLineEdit>(dialog, "valueEdit0"));
    In<QComboBox>(dialog, "fieldList1")->setCurrentIndex(2);
    EXPECT_EQ(ShownEntry(dialog, 1), In<QLineEdit>(dialog, "valueEdit1"));

    // Rows after an end link are not in use.
    In<QComboBox>(dialog, "linkList0")->setCurrentIndex(0);
    EXPECT_FALSE(In<QComboBox>(dialog, "fieldList1")->isEnabled() || In<QComboBox>(dialog, "fieldList2")->isEnabled());
    In<QComboBox>(dialog, "fieldList0")->setCurrentIndex(0);
    EXPECT_FALSE(In<QComboBox>(dialog, "conditionList0")->isEnabled());

    // On user group 0, OK writes the edits and keeps what was not touched.
    DocGroupConfig& other = Settings().Group(0);
    other.filterLink = {5, 0};
    other.filterField = {65535, 20, 1};
    other.filterDate = {0, 0, 0};

    DocFilterDialog edits(host.get(), &Settings(), 0);
    In<QLineEdit>(edits, "authorEdit")->setText("Ann*");
    In<QLineEdit>(edits, "filesEdit")->setText("*.odt;*.pdf");
    In<QComboBox>(edits, "fieldList0")->setCurrentIndex(11);  // printed date
    In<QComboBox>(edits, "conditionList0")->setCurrentIndex(3);
    In<QDateEdit>(edits, "dateEdit0")->setDate(QDate(2001, 2, 3));
    In<QComboBox>(edits, "fieldList2")->setCurrentIndex(0);  // file name
    In<QLineEdit>(edits, "valueEdit2")->setText("x");
    In<QPushButton>(edits, "okButton")->click();

    EXPECT_EQ(edits.result(), 1);
    EXPECT_EQ(other.filterAuthor + "|" + other.filterFiles, "Ann*|*.odt;*.pdf");
    EXPECT_EQ(other.filterField, (decltype(other.filterField){11, 20, 1}));  // the directory entry stays id 20
    EXPECT_EQ(other.filterCondition[0], 3);
    EXPECT_EQ(other.filterDate, (decltype(other.filterDate){20010203u, 0, 0}));  // the unset dates nobody touched
    EXPECT_EQ(other.filterValue[2], "x");
    EXPECT_EQ(other.filterLink[0], 5);      // shown as "or", left as it was
    EXPECT_EQ(Working().filterAuthor, "");  // another group

    DocFilterDialog cancelled(host.get(), &Settings(), 0);  // Cancel writes nothing
    In<QLineEdit>(cancelled, "authorEdit")->setText("changed");
    In<QComboBox>(cancelled, "fieldList0")->setCurrentIndex(3);
    In<QPushButton>(cancelled, "cancelButton")->click();
    EXPECT_EQ(other.filterAuthor, "Ann*");
    EXPECT_EQ(other.filterField[0], 11);
}
