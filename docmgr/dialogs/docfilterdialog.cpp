#include "docmgr/tools/intl.h"
#include "docmgr/dialogs/docfilterdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QVBoxLayout>
#include <array>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/ui/dialoglayout.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/records/docfields.h"
#include "docmgr/records/matches.h"
#include "docmgr/ui/waitcursor.h"

namespace {
QString Text(uint16_t local)
{
    return DialogText(DLG_FILTER, local);
}

// The positions of the condition and link lists are the codes they store.
constexpr FilterLink kLinks[] = {FilterLink::End, FilterLink::And, FilterLink::Or};
enum Entry { VALUE_ENTRY = 0, DATE_ENTRY = 1, TIME_ENTRY = 2 };

// Which entry a row's comparison reads: the pattern condition always reads the value
// text; dates and times read their own fields. Field 20 and above compares the printed
// time, as the filter matching does.
Entry EntryFor(uint16_t field, std::optional<FilterCondition> condition)
{
    if (condition == FilterCondition::Wildcard)
        return VALUE_ENTRY;
    switch (field) {
    case COL_CREATED_DATE:
    case COL_MODIFIED_DATE:
    case COL_PRINTED_DATE: return DATE_ENTRY;
    case COL_CREATED_TIME:
    case COL_MODIFIED_TIME:
    case COL_PRINTED_TIME: return TIME_ENTRY;
    default: return field >= COL_DIRECTORY && field != NO_COLUMN ? TIME_ENTRY : VALUE_ENTRY;
    }
}

QDate ToQDate(uint32_t number)
{
    const Date date(number);
    const QDate result(int(date.GetYear()), int(date.GetMonth()), int(date.GetDay()));
    return result.isValid() ? result : QDate::currentDate();
}

QTime ToQTime(int32_t number)
{
    const Time time(number);
    const QTime result(int(time.GetHour()), int(time.GetMin()), int(time.GetSec()));
    return result.isValid() ? result : QTime(0, 0);
}
}  // namespace

struct DocFilterDialog::Impl {
    struct ConditionRow {
        QComboBox* field = nullptr;
        QComboBox* condition = nullptr;
        QStackedWidget* entries = nullptr;
        QLineEdit* value = nullptr;
        QDateEdit* date = nullptr;
        QTimeEdit* time = nullptr;
        // What the controls showed at first: a date or time the user did not touch
        // keeps its stored number, even one the controls cannot show.
        QDate shownDate;
        QTime shownTime;

        // Makes the row's lists and entries in `frame`; row 0's field list begins with
        // "no condition".
        void Build(QWidget* frame, int r, const DocGroupConfig& group, int entryWidth);
    };

    DocGroupConfig* group = nullptr;
    QLineEdit* titleEdit = nullptr;
    QLineEdit* topicEdit = nullptr;
    QLineEdit* authorEdit = nullptr;
    QLineEdit* keywordsEdit = nullptr;
    QLineEdit* filesEdit = nullptr;
    QCheckBox* sensitiveBox = nullptr;
    std::array<ConditionRow, FILTER_ROWS> rows;
    std::array<QComboBox*, 2> links{};
    std::array<int, 2> shownLinks{};

    // Field id of list position `pos` in `row`: row 0 begins with "no condition".
    static int FieldOf(int row, int pos)
    {
        if (pos < 0)
            return -1;
        if (row == 0)
            return pos == 0 ? NO_COLUMN : pos;
        return pos + 1;
    }
    static int PositionOf(int row, uint16_t field)
    {
        if (row == 0 && field == NO_COLUMN)
            return 0;
        if (field < COL_NAME || field > COL_DIRECTORY)
            return -1;  // a code the list does not hold; kept as it is
        return row == 0 ? field : field - 1;
    }
    uint16_t ShownField(int row) const
    {
        const int field = FieldOf(row, rows[size_t(row)].field->currentIndex());
        return field < 0 ? group->filterField[size_t(row)] : uint16_t(field);
    }
};

void DocFilterDialog::Impl::ConditionRow::Build(QWidget* frame, int r, const DocGroupConfig& group, int entryWidth)
{
    const QString n = QString::number(r);
    field = new QComboBox(frame);
    field->setObjectName("fieldList" + n);
    if (r == 0)
        field->addItem(Text(FILTER_NO_CONDITION));
    for (uint16_t id = COL_NAME; id <= COL_DIRECTORY; ++id)
        field->addItem(QString::fromStdString(GetColumnTitle(id, group)));
    condition = new QComboBox(frame);
    condition->setObjectName("conditionList" + n);
    for (int32_t code = 0; code < FILTER_CONDITION_COUNT; ++code)
        condition->addItem(Text(uint16_t(FILTER_EQUAL + code)));

    // One entry for each kind of comparison value, shown by EntryFor.
    entries = new QStackedWidget(frame);
    entries->setObjectName("entryStack" + n);
    entries->setMinimumWidth(entryWidth);
    value = new QLineEdit(entries);
    value->setObjectName("valueEdit" + n);
    date = new QDateEdit(entries);
    date->setDisplayFormat(QString::fromStdString(intl::ShortDateFormat()));
    date->setObjectName("dateEdit" + n);
    date->setCalendarPopup(true);
    time = new QTimeEdit(entries);
    time->setObjectName("timeEdit" + n);
    time->setDisplayFormat(QStringLiteral("HH:mm:ss"));
    entries->insertWidget(VALUE_ENTRY, value);
    entries->insertWidget(DATE_ENTRY, date);
    entries->insertWidget(TIME_ENTRY, time);
}

DocFilterDialog::DocFilterDialog(QWidget* parent, ImplDocConfig* config, unsigned short group)
    : QDialog(parent), d(std::make_unique<Impl>())
{
    ScopedWaitCursor wait;
    d->group = &config->Group(group);
    setObjectName("filterDialog");
    setWindowTitle(Text(CTL_TITLE));

    QGroupBox* textFrame = BuildTextFrame();
    QGroupBox* conditionFrame = BuildConditionFrame();
    QDialogButtonBox* buttons = BuildButtons();
    auto* root = new QVBoxLayout(this);
    root->addWidget(textFrame);
    root->addWidget(conditionFrame);
    root->addWidget(buttons);

    Fill();
}

QGroupBox* DocFilterDialog::BuildTextFrame()
{
    d->titleEdit = Named(new QLineEdit(this), "titleEdit");
    d->topicEdit = Named(new QLineEdit(this), "topicEdit");
    d->authorEdit = Named(new QLineEdit(this), "authorEdit");
    d->keywordsEdit = Named(new QLineEdit(this), "keywordsEdit");
    d->filesEdit = Named(new QLineEdit(this), "filesEdit");
    d->sensitiveBox = Named(new QCheckBox(Text(FILTER_SENSITIVE), this), "sensitiveBox");

    auto* frame = Named(new QGroupBox(Text(FILTER_TEXT_FRAME), this), "textFrame");
    auto* form = new QFormLayout(frame);
    form->addRow(Text(FILTER_TITLE_LABEL), d->titleEdit);
    form->addRow(Text(FILTER_TOPIC_LABEL), d->topicEdit);
    form->addRow(Text(FILTER_AUTHOR_LABEL), d->authorEdit);
    form->addRow(Text(FILTER_KEYWORDS_LABEL), d->keywordsEdit);
    form->addRow(Text(FILTER_FILES_LABEL), d->filesEdit);
    form->addRow(QString(), d->sensitiveBox);
    form->addRow(QString(), Named(new QLabel(Text(FILTER_WILDCARD_HINT), frame), "wildcardHint"));
    return frame;
}

QGroupBox* DocFilterDialog::BuildConditionFrame()
{
    auto* frame = Named(new QGroupBox(Text(FILTER_CONDITION_FRAME), this), "conditionFrame");
    auto* grid = new QGridLayout(frame);
    // Each row on a line of its own, the link to the next row on the line below it.
    for (int r = 0; r < int(FILTER_ROWS); ++r) {
        Impl::ConditionRow& row = d->rows[size_t(r)];
        row.Build(frame, r, *d->group, fontMetrics().averageCharWidth() * 24);
        grid->addWidget(row.field, 2 * r, 0);
        grid->addWidget(row.condition, 2 * r, 1);
        grid->addWidget(row.entries, 2 * r, 2);
        connect(row.field, &QComboBox::currentIndexChanged, this, [this, r] { FieldHdl(r); });
        connect(row.condition, &QComboBox::currentIndexChanged, this, [this, r] { FieldHdl(r); });
        if (r + 1 < int(FILTER_ROWS))
            grid->addWidget(BuildLinkList(frame, r), 2 * r + 1, 0);
    }
    grid->setColumnStretch(2, 1);
    return frame;
}

QComboBox* DocFilterDialog::BuildLinkList(QWidget* frame, int r)
{
    QComboBox*& link = d->links[size_t(r)];
    link = new QComboBox(frame);
    link->setObjectName("linkList" + QString::number(r));
    for (FilterLink code : kLinks)
        link->addItem(Text(uint16_t(FILTER_LINK_END + int(code))));
    connect(link, &QComboBox::currentIndexChanged, this, &DocFilterDialog::LinkHdl);
    return link;
}

QDialogButtonBox* DocFilterDialog::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(Text(FILTER_OK), QDialogButtonBox::AcceptRole);
    ok->setObjectName("okButton");
    ok->setDefault(true);
    QPushButton* cancel = buttons->addButton(Text(FILTER_CANCEL), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cancelButton");
    connect(ok, &QPushButton::clicked, this, &DocFilterDialog::OKHdl);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

DocFilterDialog::~DocFilterDialog() = default;

void DocFilterDialog::Fill()
{
    const DocGroupConfig& g = *d->group;
    d->titleEdit->setText(QString::fromStdString(g.filterTitle));
    d->topicEdit->setText(QString::fromStdString(g.filterTopic));
    d->authorEdit->setText(QString::fromStdString(g.filterAuthor));
    d->keywordsEdit->setText(QString::fromStdString(g.filterKeywords));
    d->filesEdit->setText(QString::fromStdString(g.filterFiles));
    d->sensitiveBox->setChecked(g.filterSensitive);
    for (size_t r = 0; r < FILTER_ROWS; ++r) {
        Impl::ConditionRow& row = d->rows[r];
        const QSignalBlocker quietField(row.field), quietCondition(row.condition);
        row.field->setCurrentIndex(Impl::PositionOf(int(r), g.filterField[r]));
        const std::optional<FilterCondition> condition = ConditionOf(g.filterCondition[r]);
        row.condition->setCurrentIndex(condition ? int(*condition) : -1);
        row.value->setText(QString::fromStdString(g.filterValue[r]));
        row.date->setDate(ToQDate(g.filterDate[r]));
        row.shownDate = row.date->date();
        row.time->setTime(ToQTime(int32_t(g.filterTime[r])));
        row.shownTime = row.time->time();
        row.entries->setCurrentIndex(EntryFor(g.filterField[r], condition));
    }
    for (size_t l = 0; l < d->links.size(); ++l) {
        const QSignalBlocker quiet(d->links[l]);
        d->shownLinks[l] = int(LinkOf(g.filterLink[l]));
        d->links[l]->setCurrentIndex(d->shownLinks[l]);
    }
    UpdateRows();
}

void DocFilterDialog::FieldHdl(int r)
{
    Impl::ConditionRow& row = d->rows[size_t(r)];
    row.entries->setCurrentIndex(EntryFor(d->ShownField(r), ConditionOf(row.condition->currentIndex())));
    UpdateRows();
}

void DocFilterDialog::LinkHdl()
{
    UpdateRows();
}

void DocFilterDialog::UpdateRows()
{
    // A row is in use when every row before it is, and the link before it goes on.
    bool used = d->ShownField(0) != NO_COLUMN;
    for (size_t r = 0; r < FILTER_ROWS; ++r) {
        Impl::ConditionRow& row = d->rows[r];
        if (r > 0)
            row.field->setEnabled(used);
        row.condition->setEnabled(used);
        row.entries->setEnabled(used);
        if (r < d->links.size()) {
            d->links[r]->setEnabled(used);
            used = used && d->links[r]->currentIndex() != int(FilterLink::End);
        }
    }
}

void DocFilterDialog::OKHdl()
{
    ScopedWaitCursor wait;
    DocGroupConfig& g = *d->group;
    g.filterTitle = d->titleEdit->text().toStdString();
    g.filterTopic = d->topicEdit->text().toStdString();
    g.filterAuthor = d->authorEdit->text().toStdString();
    g.filterKeywords = d->keywordsEdit->text().toStdString();
    g.filterFiles = d->filesEdit->text().toStdString();
    g.filterSensitive = d->sensitiveBox->isChecked();
    for (size_t r = 0; r < FILTER_ROWS; ++r) {
        const Impl::ConditionRow& row = d->rows[r];
        const int field = Impl::FieldOf(int(r), row.field->currentIndex());
        if (field >= 0)
            g.filterField[r] = uint16_t(field);
        if (row.condition->currentIndex() >= 0)
            g.filterCondition[r] = row.condition->currentIndex();
        g.filterValue[r] = row.value->text().toStdString();
        const QDate date = row.date->date();
        if (date != row.shownDate)
            g.filterDate[r] = Date(unsigned(date.day()), unsigned(date.month()), unsigned(date.year())).GetDate();
        const QTime time = row.time->time();
        if (time != row.shownTime)
            g.filterTime[r] =
                uint32_t(Time(unsigned(time.hour()), unsigned(time.minute()), unsigned(time.second())).GetTime());
    }
    for (size_t l = 0; l < d->links.size(); ++l)
        if (d->links[l]->currentIndex() != d->shownLinks[l])
            g.filterLink[l] = d->links[l]->currentIndex();
    done(1);
}
