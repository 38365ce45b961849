#pragma once
// The information of several documents at once: each field shows the value they share or
// "(various)", and only the fields the user changes make up the edit.
#include <QDialog>
#include <array>
#include <vector>

#include "docmgr/records/docinfoedit.h"

class QLineEdit;

class DocBatchInfoDialog : public QDialog {
    Q_OBJECT
public:
    // `captions`: the fields' names, in the order of EDIT_FIELD_NAMES.
    DocBatchInfoDialog(QWidget* parent, const std::vector<DocInfo>& docs,
                       const std::array<QString, EDIT_FIELD_COUNT>& captions);

    // The fields changed, with their new texts.
    DocInfoEdit GetEdit() const;

private:
    std::array<QLineEdit*, EDIT_FIELD_COUNT> edits_{};
    std::array<bool, EDIT_FIELD_COUNT> changed_{};
};
