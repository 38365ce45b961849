#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Orders the 20 columns of one group and sets the frozen count; result 1 after OK.
class DocColumnsDialog : public QDialog {
    Q_OBJECT
public:
    DocColumnsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocColumnsDialog() override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
