#pragma once
#include <QDialog>
#include <memory>

class DocBrowser;
class QPrinter;

// Prints the document list as a text table with the chosen columns; result 0.
class DocPrintDialog : public QDialog {
    Q_OBJECT
public:
    DocPrintDialog(QWidget* parent, DocBrowser& browser);
    ~DocPrintDialog() override;
    // Lays out and prints page `page` (from 1); false when there is no such page.
    bool PrintPage(unsigned short page) const;
    QPrinter* GetPrinter() const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
