// The find bar above the list, the refresh key and the list that follows its folders.
#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/ui/docmgrresid.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/docfolderwatch.h"
#include "docmgr/view/docsummarywindow.h"
#include "resources/resids.h"

void DocManagerImpl::BuildFindBar(const DocMgrResId& res)
{
    findBar = new QWidget(&manager);
    findBar->setObjectName("findBar");
    auto* label = new QLabel(res.DialogText(MANAGER_FIND_LABEL), findBar);
    findField = new QLineEdit(findBar);
    findField->setObjectName("findField");
    findField->setPlaceholderText(res.DialogText(MANAGER_FIND_FIELD));
    findField->setClearButtonEnabled(true);
    label->setBuddy(findField);
    findCount = new QLabel(findBar);
    findCount->setObjectName("findCount");
    auto* row = new QHBoxLayout(findBar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(findField, 1);
    row->addWidget(findCount);
    findBar->hide();

    auto* find = new QAction(&manager);
    find->setObjectName("findAction");
    find->setShortcut(QKeySequence::Find);
    QObject::connect(find, &QAction::triggered, &manager, [this] { FindHdl(); });
    manager.addAction(find);
    // Escape belongs to the bar while the focus is in it; elsewhere it closes the dialog.
    auto* close = new QAction(findBar);
    close->setShortcut(Qt::Key_Escape);
    close->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(close, &QAction::triggered, &manager, [this] { FindCloseHdl(); });
    findBar->addAction(close);
    auto* refresh = new QAction(&manager);
    refresh->setObjectName("refreshAction");
    refresh->setShortcut(QKeySequence::Refresh);
    QObject::connect(refresh, &QAction::triggered, &manager, [this] { RefreshHdl(); });
    manager.addAction(refresh);
}

void DocManagerImpl::FindHdl()
{
    browser->PrepareFind();
    findBar->show();
    findField->setFocus(Qt::ShortcutFocusReason);
    findField->selectAll();
    ShowFindCount();
}

void DocManagerImpl::FindFieldHdl()
{
    browser->SetFindText(findField->text().toStdString());
    ShowFindCount();
    // Selected rows no longer shown are no longer selected: the controls and the pane follow.
    WatchControls();
    if (summary)
        summary->update();
}

void DocManagerImpl::FindCloseHdl()
{
    findField->clear();  // every row shows again
    findBar->hide();
    browser->setFocus(Qt::OtherFocusReason);
}

void DocManagerImpl::ShowFindCount()
{
    if (!findCount || findBar->isHidden())
        return;
    const QString text = DocMgrResId(DLG_MANAGER).DialogText(MANAGER_FIND_COUNT);
    findCount->setText(text.arg(browser->GetShownRowCount()).arg(browser->GetRowCount()));
}

void DocManagerImpl::RefreshHdl()
{
    const std::vector<std::string> selected = SelectedPaths();
    const int across = browser->horizontalScrollBar()->value();
    const int down = browser->verticalScrollBar()->value();
    CollectFiles();
    browser->SelectPaths(selected);
    browser->doItemsLayout();  // the scroll bars get their new ranges now, not later
    browser->horizontalScrollBar()->setValue(across);
    browser->verticalScrollBar()->setValue(down);
}

void DocManagerImpl::FolderWatchHdl()
{
    // A box or settings dialog of this dialog is up and may hold rows of the list: the
    // list is collected once it has gone.
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != &manager) {
        QTimer::singleShot(DocFolderWatch::SETTLE_MS, &manager, [this] { FolderWatchHdl(); });
        return;
    }
    RefreshHdl();
}
