// The controls of the document manager dialog, their layout and their connections.
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/ui/docmgrresid.h"
#include "docmgr/print/docprintdialog.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/docfolderwatch.h"
#include "docmgr/view/docsummarywindow.h"

namespace {
// Width of the summary pane in dialog units.
constexpr int SUMMARY_WIDTH = 240;
// Default size of the dialog in dialog units; the list takes what the controls leave.
constexpr int DEFAULT_WIDTH = 560;
constexpr int DEFAULT_HEIGHT = 360;
// Rows the section and group lists show before they scroll.
constexpr int LIST_ROWS = 4;

// A settings button: where it is kept, its object name, its text's id.
struct SettingsButton {
    QPushButton*& button;
    const char* name;
    uint16_t id;
};

template <class Control>
Control* Make(QWidget* parent, const char* name)
{
    auto* control = new Control(parent);
    control->setObjectName(name);
    return control;
}
}  // namespace

void DocManagerImpl::BuildControls()
{
    const DocMgrResId res(DLG_MANAGER);
    manager.setObjectName("docManager");
    manager.setWindowTitle(res.DialogText());
    // The controls are made in the order of the dialog, which is also their tab order.
    QLayout* choice = BuildChoice(res);
    QLayout* viewOptions = BuildViewOptions(res);
    BuildDialogButtons(res);
    BuildPathLine();
    BuildFindBar(res);
    BuildBrowser();
    BuildSettingsButtons(res);

    // Left: the choice of group above the list; right: the buttons in one column.
    auto* left = new QVBoxLayout;
    left->addLayout(choice);
    left->addLayout(viewOptions);
    left->addWidget(pathLine);
    left->addWidget(findBar);
    left->addLayout(listRow, 1);
    auto* root = new QHBoxLayout(&manager);
    root->addLayout(left, 1);
    root->addLayout(ButtonColumn());
    manager.resize(DialogUnitsX(&manager, DEFAULT_WIDTH), DialogUnitsY(&manager, DEFAULT_HEIGHT));
}

QLayout* DocManagerImpl::BuildChoice(const DocMgrResId& res)
{
    sectionLabel = Make<QLabel>(&manager, "sectionLabel");
    sectionLabel->setText(res.DialogText(MANAGER_SECTION_LABEL));
    sectionList = Make<QListWidget>(&manager, "sectionList");
    sectionLabel->setBuddy(sectionList);
    groupLabel = Make<QLabel>(&manager, "groupLabel");
    groupLabel->setText(res.DialogText(MANAGER_GROUP_LABEL));
    groupList = Make<QListWidget>(&manager, "groupList");
    groupLabel->setBuddy(groupList);
    const int listHeight = QFontMetrics(manager.font()).height() * LIST_ROWS + 8;
    for (QListWidget* list : {sectionList, groupList}) {
        list->setSelectionMode(QAbstractItemView::SingleSelection);
        list->setFixedHeight(listHeight);
    }

    auto* sectionColumn = new QVBoxLayout;
    sectionColumn->addWidget(sectionLabel);
    sectionColumn->addWidget(sectionList);
    auto* groupColumn = new QVBoxLayout;
    groupColumn->addWidget(groupLabel);
    groupColumn->addWidget(groupList);
    auto* choice = new QHBoxLayout;
    choice->addLayout(sectionColumn, 1);
    choice->addLayout(groupColumn, 1);
    return choice;
}

QLayout* DocManagerImpl::BuildViewOptions(const DocMgrResId& res)
{
    singleViewBox = Make<QCheckBox>(&manager, "singleViewBox");
    singleViewBox->setText(res.DialogText(MANAGER_SINGLE_VIEW));
    readOnlyBox = Make<QCheckBox>(&manager, "readOnlyBox");
    readOnlyBox->setText(res.DialogText(MANAGER_READ_ONLY));

    auto* viewOptions = new QHBoxLayout;
    viewOptions->addWidget(singleViewBox);
    viewOptions->addSpacing(DialogUnitsX(&manager, 12));
    viewOptions->addWidget(readOnlyBox);
    viewOptions->addStretch(1);
    return viewOptions;
}

void DocManagerImpl::BuildDialogButtons(const DocMgrResId& res)
{
    openButton = Make<QPushButton>(&manager, "openButton");
    openButton->setText(res.DialogText(MANAGER_OPEN));
    openButton->setDefault(true);
    openButton->setEnabled(false);
    closeButton = Make<QPushButton>(&manager, "closeButton");
    closeButton->setText(res.DialogText(MANAGER_CLOSE));
    closeButton->setAutoDefault(false);
    commandsButton = Make<QToolButton>(&manager, "commandsButton");
    commandsButton->setText(res.DialogText(MANAGER_COMMANDS));
    commandMenu = new DocCommandMenu(commandsButton, true);
    commandsButton->setMenu(commandMenu);
    commandsButton->setPopupMode(QToolButton::InstantPopup);
    commandsButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    commandsButton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    commandsButton->setMinimumHeight(closeButton->sizeHint().height());
}

void DocManagerImpl::BuildPathLine()
{
    pathLine = Make<QLabel>(&manager, "pathLine");
    pathLine->setTextFormat(Qt::PlainText);
    // A long path list is cut off rather than widening the dialog.
    pathLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    pathLine->setMinimumWidth(1);
}

void DocManagerImpl::BuildBrowser()
{
    browser = new DocBrowser(&manager, *this);
    folderWatch = new DocFolderWatch(&manager);
    // Delete and F2 in the list run the menu's items, so they follow its enabling.
    browser->addAction(commandMenu->Item(CMD_DELETE));
    browser->addAction(commandMenu->Item(CMD_RENAME));
    // Undo and redo wherever the focus is in the dialog.
    manager.addAction(commandMenu->Item(CMD_UNDO));
    manager.addAction(commandMenu->Item(CMD_REDO));
    ConnectBrowser();
    listRow = new QHBoxLayout;
    listRow->addWidget(browser, 2);
}

void DocManagerImpl::BuildSettingsButtons(const DocMgrResId& res)
{
    const SettingsButton buttons[] = {{groupsButton, "groupsButton", MANAGER_GROUPS},
                                      {pathsButton, "pathsButton", MANAGER_PATHS},
                                      {filterButton, "filterButton", MANAGER_FILTER},
                                      {sortButton, "sortButton", MANAGER_SORT},
                                      {columnsButton, "columnsButton", MANAGER_COLUMNS}};
    for (const SettingsButton& s : buttons) {
        s.button = Make<QPushButton>(&manager, s.name);
        s.button->setText(res.DialogText(s.id));
        s.button->setAutoDefault(false);
    }
}

QLayout* DocManagerImpl::ButtonColumn()
{
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(openButton);
    buttons->addWidget(closeButton);
    buttons->addWidget(commandsButton);
    buttons->addSpacing(DialogUnitsY(&manager, 10));
    for (QPushButton* button : {groupsButton, pathsButton, filterButton, sortButton, columnsButton})
        buttons->addWidget(button);
    buttons->addStretch(1);
    return buttons;
}

void DocManagerImpl::ConnectBrowser()
{
    QObject::connect(browser, &DocBrowser::countLineChanged, &manager,
                     [this](const QString& line) { SetPathLine(line.toStdString()); });
    QObject::connect(browser, &DocBrowser::selectionStateChanged, &manager, [this] {
        WatchControls();
        if (summary)
            summary->update();  // shows the newly selected document
    });
    QObject::connect(browser, &DocBrowser::rowActivated, &manager, [this] {
        if (openButton->isEnabled())
            openButton->click();
    });
    QObject::connect(browser, &DocBrowser::shownRowsChanged, &manager, [this] { ShowFindCount(); });
    QObject::connect(browser, &DocBrowser::printListRequested, &manager, [this] {
        DocPrintDialog dialog(browser, *browser);
        dialog.exec();
    });
}

void DocManagerImpl::ConnectHandlers()
{
    // The dialog is each connection's context, so none outlives it.
    auto onChange = [this](QListWidget* list, void (DocManagerImpl::*handler)()) {
        QObject::connect(list, &QListWidget::currentRowChanged, &manager, [this, handler] { (this->*handler)(); });
    };
    auto onClick = [this](QAbstractButton* button, void (DocManagerImpl::*handler)()) {
        QObject::connect(button, &QAbstractButton::clicked, &manager, [this, handler] { (this->*handler)(); });
    };
    QObject::connect(commandMenu, &QMenu::triggered, &manager, [this](QAction* item) { CommandsHdl(item); });
    onChange(sectionList, &DocManagerImpl::SectionHdl);
    onChange(groupList, &DocManagerImpl::GroupHdl);
    onClick(singleViewBox, &DocManagerImpl::SummaryHdl);
    onClick(openButton, &DocManagerImpl::OpenHdl);
    onClick(closeButton, &DocManagerImpl::CloseHdl);
    onClick(groupsButton, &DocManagerImpl::GroupsHdl);
    onClick(pathsButton, &DocManagerImpl::PathsHdl);
    onClick(filterButton, &DocManagerImpl::FilterHdl);
    onClick(sortButton, &DocManagerImpl::SortHdl);
    onClick(columnsButton, &DocManagerImpl::ColumnsHdl);
    QObject::connect(findField, &QLineEdit::textChanged, &manager, [this] { FindFieldHdl(); });
    QObject::connect(folderWatch, &DocFolderWatch::foldersChanged, &manager, [this] { FolderWatchHdl(); });
}

void DocManagerImpl::ResizeBrowser()
{
    const bool single = singleViewBox->isChecked();
    if (single && !summary) {
        browser->SetSingleView(true);
        summary = new DocSummaryWindow(&manager, *browser, *this);
        // At least its width; a wider dialog gives the pane the room its values want.
        summary->setMinimumWidth(DialogUnitsX(&manager, SUMMARY_WIDTH));
        listRow->addWidget(summary, 3);
        summary->show();
    } else if (!single && summary) {
        browser->SetSingleView(false);
        delete summary;
        summary = nullptr;
    }
}
