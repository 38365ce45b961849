#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Copies or moves the selected documents into a directory chosen in a tree; result 1.
class DocCopyDialog : public QDialog {
    Q_OBJECT
public:
    DocCopyDialog(DocManager* parent);
    ~DocCopyDialog() override;
    // Files copied or moved successfully.
    unsigned short GetDoneCount() const;

private:
    void OKHdl();
    void FolderHdl();
    // OK and the new folder button need a directory selected in the tree.
    void DirectoriesHdl();

    struct Impl;
    std::unique_ptr<Impl> d;
};
