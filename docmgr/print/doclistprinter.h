#pragma once
// Paints the document list on a printer as a plain text table: a header line of column
// titles, then one line per document, cut into pages; one painter per job.
#include <QFont>
#include <QSet>
#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

class DocBrowser;
class QPainter;
class QPrinter;

class DocListPrinter {
public:
    // Neither `browser` nor `printer` is owned; both outlive this object.
    DocListPrinter(const DocBrowser& browser, QPrinter& printer);
    ~DocListPrinter();

    const QFont& GetFont() const { return font_; }
    void SetFont(const QFont& font) { font_ = font; }

    // Begins a job named `name`; false when the printer cannot start one now.
    bool StartJob(const QString& name);
    // Ends the running job (the printer may still be working on it afterwards).
    void EndJob();
    bool IsJobRunning() const;

    // Prints page `page` (from 1) of the running job with the columns whose titles are in
    // `titles`; false when there is no such page or no job runs.
    bool PrintPage(unsigned short page, const QSet<QString>& titles);

    // Column id -> width in characters, in ascending id order: the columns whose titles
    // are in `titles`, each as wide as its title and its longest text over all rows.
    std::map<uint16_t, uint16_t> ColumnWidths(const QSet<QString>& titles) const;
    // How many of the columns titled `titles`, in printing order, fit across the page;
    // the others are cut off at its right edge.
    int FittingColumns(const QSet<QString>& titles) const;

private:
    const DocBrowser& browser_;
    QPrinter& printer_;
    QFont font_;
    std::unique_ptr<QPainter> painter_;
    int pagesPrinted_ = 0;
    // The widths cover the whole list, which cannot change while a job runs: computed
    // once per job and set of titles, not once per page.
    QSet<QString> widthTitles_;
    std::map<uint16_t, uint16_t> widths_;
    bool widthsValid_ = false;
    // The rows the list shows (after a find), taken when the job starts.
    std::vector<long> rows_;
};
