#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Renames the first selected document in its directory; result 1.
class DocRenameDialog : public QDialog {
    Q_OBJECT
public:
    DocRenameDialog(DocManager* parent);
    ~DocRenameDialog() override;
    // 1 after a successful rename, else 0.
    unsigned GetRenameCount() const;

private:
    void ModifyHdl();
    void OKHdl();

    struct Impl;
    std::unique_ptr<Impl> d;
};
