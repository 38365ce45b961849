#pragma once
#include <QDialog>
#include <QString>
#include <memory>

class DocBrowser;
class QFont;
class QPrinter;

// Prints the document list as a text table with the chosen columns; result 0.
class DocPrintDialog : public QDialog {
    Q_OBJECT
public:
    DocPrintDialog(QWidget* parent, DocBrowser& browser);
    ~DocPrintDialog() override;
    // Lays out and prints page `page` (from 1) of the running job; false when there is
    // no such page or no job is running.
    bool PrintPage(unsigned short page) const;
    QPrinter* GetPrinter() const;

    // The printing font: the printer's font, set by the font button.
    QFont GetPrintFont() const;
    void SetPrintFont(const QFont& font);
    // Starts a job named `name` on the printer; false when the printer cannot start one.
    bool StartJob(const QString& name);
    // Ends the running job; the printer then finishes it.
    void EndJob();
    // How many of the chosen columns fit across the page in the printing font.
    int FittingColumns() const;

private:
    void LayOutControls();
    void SelectHdl();
    void PrintSettingsHdl();
    void FontSettingsHdl();
    // Tells how many of the chosen columns fit, when not all do.
    void ShowFit();
    void OkHdl();

    struct Impl;
    std::unique_ptr<Impl> d;
};
