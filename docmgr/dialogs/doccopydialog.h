#pragma once
#include <QDialog>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/tools/fileundo.h"

// Copies or moves `documents` into a directory chosen in a tree; result 1.
class DocCopyDialog : public QDialog {
    Q_OBJECT
public:
    DocCopyDialog(QWidget* parent, std::vector<std::string> documents);
    ~DocCopyDialog() override;
    // Files copied or moved successfully.
    unsigned short GetDoneCount() const;
    // Where the documents are after OK: the originals after a copy, the moved files'
    // new paths after a move (a file that could not be moved keeps its old path).
    const std::vector<std::string>& GetResultPaths() const;
    // What OK did, file by file, for taking it back.
    const fileundo::Step& GetUndoStep() const;

private:
    void OKHdl();
    void FolderHdl();
    // OK and the new folder button need a directory selected in the tree.
    void DirectoriesHdl();

    struct Impl;
    std::unique_ptr<Impl> d;
};
