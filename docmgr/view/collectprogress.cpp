#include "docmgr/view/collectprogress.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include "docmgr/tools/resmgr.h"
#include "resources/resids.h"

namespace {
int delayMs = 100;  // from the first tenth of a second: a large listing is seen to move
constexpr int UPDATE_INTERVAL_MS = 100;
}  // namespace

CollectProgress::CollectProgress(QWidget* parent) : parent_(parent)
{}

CollectProgress::~CollectProgress()
{
    delete dialog_;
}

void CollectProgress::SetDelay(int ms)
{
    delayMs = ms;
}

void CollectProgress::Start()
{
    started_.start();
    running_ = true;
    shown_ = false;
    lastText_.clear();
}

void CollectProgress::Update(size_t dirs, size_t docs)
{
    if (!running_ || started_.elapsed() < delayMs)
        return;
    if (dialog_ && lastUpdate_.isValid() && lastUpdate_.elapsed() < UPDATE_INTERVAL_MS)
        return;
    if (!dialog_) {
        dialog_ = new QProgressDialog(parent_);
        dialog_->setObjectName("collectProgress");
        dialog_->setWindowTitle(QString::fromStdString(ResText(ResKind::Dialog, DLG_MANAGER, MANAGER_PROGRESS_TITLE)));
        dialog_->setCancelButton(nullptr);  // a collection runs to its end
        dialog_->setRange(0, 0);
        dialog_->setMinimumDuration(0);
        dialog_->setWindowModality(Qt::WindowModal);
        dialog_->setMinimumWidth(dialog_->fontMetrics().averageCharWidth() * 45);
        shown_ = true;
    }
    lastText_ = QString::fromStdString(ResText(ResKind::Dialog, DLG_MANAGER, MANAGER_PROGRESS)).arg(dirs).arg(docs);
    dialog_->setLabelText(lastText_);
    dialog_->show();
    lastUpdate_.start();
    // Let the window paint the progress; input waits for the end of the collection.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void CollectProgress::Finish()
{
    running_ = false;
    delete dialog_;
}
