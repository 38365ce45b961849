// The controls of the document manager dialog, their layout and their connections.
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/ui/docmgrresid.h"
#include "docmgr/print/docprintdialog.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/docsummarywindow.h"

namespace {
// Width of the summary pane in dialog units.
constexpr int SUMMARY_WIDTH = 240;
// Default size of the dialog in dialog units; the list takes what the controls leave.
constexpr int DEFAULT_WIDTH = 560;
constexpr int DEFAULT_HEIGHT = 360;
// Rows the section and group lists show before they scroll.
constexpr int LIST_ROWS = 4;

template <class Control>
Control* Make(QWidget* parent, const char* name)
{
    auto* control = new Control(parent);
    control->setObjectName(name);
    return control;
}
}  // namespace

void DocManager::BuildControls()
{
    const DocMgrResId res(DLG_MANAGER);
    setObjectName("docManager");
    setWindowTitle(res.DialogText());
    auto text = [&res](uint16_t local) { return res.DialogText(local); };

    d->sectionLabel = Make<QLabel>(this, "sectionLabel");
    d->sectionLabel->setText(text(MANAGER_SECTION_LABEL));
    d->sectionList = Make<QListWidget>(this, "sectionList");
    d->sectionLabel->setBuddy(d->sectionList);
    d->groupLabel = Make<QLabel>(this, "groupLabel");
    d->groupLabel->setText(text(MANAGER_GROUP_LABEL));
    d->groupList = Make<QListWidget>(this, "groupList");
    d->groupLabel->setBuddy(d->groupList);
    const int listHeight = QFontMetrics(font()).height() * LIST_ROWS + 8;
    for (QListWidget* list : {d->sectionList, d->groupList}) {
        list->setSelectionMode(QAbstractItemView::SingleSelection);
        list->setFixedHeight(listHeight);
    }
    d->singleViewBox = Make<QCheckBox>(this, "singleViewBox");
    d->singleViewBox->setText(text(MANAGER_SINGLE_VIEW));
    d->readOnlyBox = Make<QCheckBox>(this, "readOnlyBox");
    d->readOnlyBox->setText(text(MANAGER_READ_ONLY));

    d->openButton = Make<QPushButton>(this, "openButton");
    d->openButton->setText(text(MANAGER_OPEN));
    d->openButton->setDefault(true);
    d->openButton->setEnabled(false);
    d->closeButton = Make<QPushButton>(this, "closeButton");
    d->closeButton->setText(text(MANAGER_CLOSE));
    d->closeButton->setAutoDefault(false);
    d->commandsButton = Make<QToolButton>(this, "commandsButton");
    d->commandsButton->setText(text(MANAGER_COMMANDS));
    d->commandMenu = new DocCommandMenu(d->commandsButton);
    d->commandsButton->setMenu(d->commandMenu);
    d->commandsButton->setPopupMode(QToolButton::InstantPopup);
    d->commandsButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    d->commandsButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    d->commandsButton->setMinimumHeight(d->closeButton->sizeHint().height());

    d->pathLine = Make<QLabel>(this, "pathLine");
    d->pathLine->setTextFormat(Qt::PlainText);
    // A long path list is cut off rather than widening the dialog.
    d->pathLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    d->pathLine->setMinimumWidth(1);

    d->browser = new DocBrowser(this, *d);
    // Delete and F2 in the list run the menu's items, so they follow its enabling.
    d->browser->addAction(d->commandMenu->Item(CMD_DELETE));
    d->browser->addAction(d->commandMenu->Item(CMD_RENAME));
    ConnectBrowser();

    struct Settings {
        QPushButton*& button;
        const char* name;
        uint16_t id;
    };
    const Settings settingsButtons[] = {{d->groupsButton, "groupsButton", MANAGER_GROUPS},
                                        {d->pathsButton, "pathsButton", MANAGER_PATHS},
                                        {d->filterButton, "filterButton", MANAGER_FILTER},
                                        {d->sortButton, "sortButton", MANAGER_SORT},
                                        {d->columnsButton, "columnsButton", MANAGER_COLUMNS}};
    for (const Settings& s : settingsButtons) {
        s.button = Make<QPushButton>(this, s.name);
        s.button->setText(text(s.id));
        s.button->setAutoDefault(false);
    }

    // Left: the choice of group above the list; right: the buttons in one column.
    auto* sectionColumn = new QVBoxLayout;
    sectionColumn->addWidget(d->sectionLabel);
    sectionColumn->addWidget(d->sectionList);
    auto* groupColumn = new QVBoxLayout;
    groupColumn->addWidget(d->groupLabel);
    groupColumn->addWidget(d->groupList);
    auto* choice = new QHBoxLayout;
    choice->addLayout(sectionColumn, 1);
    choice->addLayout(groupColumn, 1);
    auto* viewOptions = new QHBoxLayout;
    viewOptions->addWidget(d->singleViewBox);
    viewOptions->addSpacing(DialogUnitsX(this, 12));
    viewOptions->addWidget(d->readOnlyBox);
    viewOptions->addStretch(1);
    d->listRow = new QHBoxLayout;
    d->listRow->addWidget(d->browser, 2);
    auto* left = new QVBoxLayout;
    left->addLayout(choice);
    left->addLayout(viewOptions);
    left->addWidget(d->pathLine);
    left->addLayout(d->listRow, 1);

    auto* buttons = new QVBoxLayout;
    buttons->addWidget(d->openButton);
    buttons->addWidget(d->closeButton);
    buttons->addWidget(d->commandsButton);
    buttons->addSpacing(DialogUnitsY(this, 10));
    for (const Settings& s : settingsButtons)
        buttons->addWidget(s.button);
    buttons->addStretch(1);

    auto* root = new QHBoxLayout(this);
    root->addLayout(left, 1);
    root->addLayout(buttons);
    resize(DialogUnitsX(this, DEFAULT_WIDTH), DialogUnitsY(this, DEFAULT_HEIGHT));
}

void DocManager::ConnectBrowser()
{
    connect(d->browser, &DocBrowser::countLineChanged, this,
            [this](const QString& line) { d->SetPathLine(line.toStdString()); });
    connect(d->browser, &DocBrowser::selectionStateChanged, this, [this] {
        WatchControls();
        if (d->summary)
            d->summary->update();  // shows the newly selected document
    });
    connect(d->browser, &DocBrowser::rowActivated, this, [this] {
        if (d->openButton->isEnabled())
            d->openButton->click();
    });
    connect(d->browser, &DocBrowser::printListRequested, this, [this] {
        DocPrintDialog dialog(d->browser, *d->browser);
        dialog.exec();
    });
}

void DocManager::ConnectHandlers()
{
    connect(d->commandMenu, &QMenu::triggered, this, &DocManager::CommandsHdl);
    connect(d->sectionList, &QListWidget::currentRowChanged, this, &DocManager::SectionHdl);
    connect(d->groupList, &QListWidget::currentRowChanged, this, &DocManager::GroupHdl);
    connect(d->singleViewBox, &QCheckBox::clicked, this, &DocManager::SummaryHdl);
    connect(d->openButton, &QPushButton::clicked, this, &DocManager::OpenHdl);
    connect(d->closeButton, &QPushButton::clicked, this, &DocManager::CloseHdl);
    connect(d->groupsButton, &QPushButton::clicked, this, &DocManager::GroupsHdl);
    connect(d->pathsButton, &QPushButton::clicked, this, &DocManager::PathsHdl);
    connect(d->filterButton, &QPushButton::clicked, this, &DocManager::FilterHdl);
    connect(d->sortButton, &QPushButton::clicked, this, &DocManager::SortHdl);
    connect(d->columnsButton, &QPushButton::clicked, this, &DocManager::ColumnsHdl);
}

void DocManager::ResizeBrowser()
{
    const bool single = d->singleViewBox->isChecked();
    if (single && !d->summary) {
        d->browser->SetSingleView(true);
        d->summary = new DocSummaryWindow(this, *d->browser, *d);
        // At least its width; a wider dialog gives the pane the room its values want.
        d->summary->setMinimumWidth(DialogUnitsX(this, SUMMARY_WIDTH));
        d->listRow->addWidget(d->summary, 3);
        d->summary->show();
    } else if (!single && d->summary) {
        d->browser->SetSingleView(false);
        delete d->summary;
        d->summary = nullptr;
    }
}
