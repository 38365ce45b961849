#include "docmgr/dialogs/docbatchpreviewdialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "docmgr/tools/fsutil.h"
#include "docmgr/ui/dialogtext.h"

DocBatchPreviewDialog::DocBatchPreviewDialog(QWidget* parent, const std::vector<DocInfo>& docs, const DocInfoEdit& edit,
                                             const std::vector<std::string>& refusals,
                                             const std::array<QString, EDIT_FIELD_COUNT>& captions)
    : QDialog(parent), table_(new QTreeWidget)
{
    setObjectName(QStringLiteral("batchPreviewDialog"));
    setWindowTitle(DialogText(DLG_BATCH_PREVIEW));
    table_->setObjectName(QStringLiteral("previewTable"));
    table_->setRootIsDecorated(false);
    table_->setHeaderLabels({DialogText(DLG_BATCH_PREVIEW, PREVIEW_DOCUMENT),
                             DialogText(DLG_BATCH_PREVIEW, PREVIEW_FIELD), DialogText(DLG_BATCH_PREVIEW, PREVIEW_OLD),
                             DialogText(DLG_BATCH_PREVIEW, PREVIEW_NEW)});
    for (size_t i = 0; i < docs.size(); ++i) {
        const QString name = QString::fromStdString(fsutil::FileName(docs[i].entry));
        if (i < refusals.size() && !refusals[i].empty()) {
            auto* row = new QTreeWidgetItem(
                table_, {name, QString(), QString(),
                         DialogText(DLG_BATCH_PREVIEW, PREVIEW_NOT_WRITTEN).arg(QString::fromStdString(refusals[i]))});
            row->setForeground(3, palette().brush(QPalette::Disabled, QPalette::Text));
            row->setToolTip(3, row->text(3));  // a long reason is cut off in the column
            continue;
        }
        for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f) {
            if (!edit.values[f])
                continue;
            new QTreeWidgetItem(table_, {name, captions[f], QString::fromStdString(EditFieldText(docs[i], f)),
                                         QString::fromStdString(*edit.values[f])});
        }
    }
    table_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QHBoxLayout* buttons = MakeOkCancelRow(this, DLG_BATCH_PREVIEW);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(DialogText(DLG_BATCH_PREVIEW, PREVIEW_INTRO)));
    layout->addWidget(table_);
    layout->addLayout(buttons);
    resize(640, 360);
}
