#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Edits the filter fields of one group in place when confirmed with OK (result 1).
class DocFilterDialog : public QDialog {
    Q_OBJECT
public:
    DocFilterDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocFilterDialog() override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
