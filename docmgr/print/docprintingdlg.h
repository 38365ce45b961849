#pragma once
// Shown while the printer works on the list; closes when the job is done, or aborts it.
#include <QDialog>

class QLabel;
class QPrinter;
class QPushButton;
class QTimer;

class DocPrintingDlg : public QDialog {
    Q_OBJECT
public:
    // `printer` is not owned; the progress polls it every 2000 ms.
    DocPrintingDlg(QWidget* parent, QPrinter* printer);
    ~DocPrintingDlg() override;

    // Escape and closing the window abort the job like the cancel button.
    void reject() override;

private:
    void AbortPrintingHdl();
    void FinishPrintHdl();

    QPrinter* printer_;
    QLabel* messageLabel_;
    QLabel* printerLabel_;
    QPushButton* cancelButton_;
    QTimer* timer_;
};
