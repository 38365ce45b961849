#pragma once
#include <QDialog>
#include <string>

#include "docmgr/dialogs/pathentries.h"

class DocDirBox;
class ImplDocConfig;
class QCheckBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

// Edits one group's directories in a directory tree; result 1 after OK.
// Only the entries whose path flag is "1" are shown; the others are kept as they are
// and written after the shown ones.
class DocPathsDialog : public QDialog {
    Q_OBJECT
public:
    DocPathsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocPathsDialog() override;

    void OKHdl();
    void AddHdl();
    void RemoveHdl();
    void RemoveAllHdl();
    void IncludeHdl();      // switches the selected entry's subdirectory marker
    void PathsHdl();        // path list selection
    void DirectoriesHdl();  // tree selection: add only a directory not yet in the list

    DocDirBox* GetDirBox() const { return dirTree_; }

private:
    void BuildControls();
    void LayOutControls();

    ImplDocConfig* config_;
    unsigned short group_;
    QLabel* listCaption_;
    QListWidget* pathList_;
    QPushButton* addButton_;
    QPushButton* removeButton_;
    QPushButton* removeAllButton_;
    QLabel* treeCaption_;
    DocDirBox* dirTree_;
    QCheckBox* includeBox_;
    QGroupBox* frame_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    pathentries::Entries hidden_;  // the entries not shown, with their flags
};
