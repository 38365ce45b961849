#pragma once
// What an edit of several documents is about to write: every document with the old and
// new value of each changed field, or why it will be left as it is.
#include <QDialog>
#include <array>
#include <string>
#include <vector>

#include "docmgr/records/docinfoedit.h"

class QTreeWidget;

class DocBatchPreviewDialog : public QDialog {
    Q_OBJECT
public:
    // `refusals[i]`: why docs[i] cannot be written, empty when it can.
    DocBatchPreviewDialog(QWidget* parent, const std::vector<DocInfo>& docs, const DocInfoEdit& edit,
                          const std::vector<std::string>& refusals,
                          const std::array<QString, EDIT_FIELD_COUNT>& captions);

    QTreeWidget* Table() const { return table_; }

private:
    QTreeWidget* table_ = nullptr;
};
