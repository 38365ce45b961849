#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Edits one group's directories in a directory tree; result 1 after OK.
class DocPathsDialog : public QDialog {
    Q_OBJECT
public:
    DocPathsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocPathsDialog() override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
