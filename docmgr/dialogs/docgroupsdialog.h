#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Creates, renames, moves, deletes and configures the named groups; result 1 when the caller must take the actual group anew.
class DocGroupsDialog : public QDialog {
    Q_OBJECT
public:
    DocGroupsDialog(DocManager* parent);
    ~DocGroupsDialog() override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
