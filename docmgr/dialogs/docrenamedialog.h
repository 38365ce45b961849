#pragma once
#include <QDialog>
#include <memory>
#include <string>

// Renames `document` in its directory; result 1.
class DocRenameDialog : public QDialog {
    Q_OBJECT
public:
    DocRenameDialog(QWidget* parent, const std::string& document);
    ~DocRenameDialog() override;
    // 1 after a successful rename, else 0.
    unsigned GetRenameCount() const;
    // The document's path under its new name after a rename; its old path otherwise.
    std::string GetNewPath() const;

private:
    void ModifyHdl();
    void OKHdl();

    struct Impl;
    std::unique_ptr<Impl> d;
};
