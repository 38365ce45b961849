#pragma once
#include <QDialog>
#include <memory>

class DocManager;
class ImplDocConfig;

// Chooses the sort column and direction of one group; result 1 after OK.
class DocSortDialog : public QDialog {
    Q_OBJECT
public:
    DocSortDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocSortDialog() override;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
