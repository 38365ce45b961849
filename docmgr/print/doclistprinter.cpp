#include "docmgr/print/doclistprinter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

#include "docmgr/print/pageplan.h"
#include "docmgr/view/docbrowser.h"

namespace {
uint16_t Characters(const std::string& text)
{
    return uint16_t(std::min<qsizetype>(QString::fromStdString(text).size(), 0xFFFF));
}
}  // namespace

DocListPrinter::DocListPrinter(const DocBrowser& browser, QPrinter& printer) : browser_(browser), printer_(printer)
{
    // The table starts at the top left corner of the printable area; no margin beyond it.
    printer_.setFullPage(false);
}

DocListPrinter::~DocListPrinter()
{
    EndJob();
}

bool DocListPrinter::StartJob(const QString& name)
{
    EndJob();
    printer_.setDocName(name);
    printer_.setFullPage(false);  // whatever the set-up dialog made of it
    auto painter = std::make_unique<QPainter>();
    if (!painter->begin(&printer_))
        return false;
    painter_ = std::move(painter);
    pagesPrinted_ = 0;
    widthsValid_ = false;
    rows_ = browser_.ShownRows();
    return true;
}

void DocListPrinter::EndJob()
{
    if (painter_ && painter_->isActive())
        painter_->end();
    painter_.reset();
}

bool DocListPrinter::IsJobRunning() const
{
    return painter_ && painter_->isActive();
}

std::map<uint16_t, uint16_t> DocListPrinter::ColumnWidths(const QSet<QString>& titles) const
{
    std::map<uint16_t, uint16_t> widths;
    for (unsigned short pos = 0; pos < browser_.ColCount(); ++pos) {
        const uint16_t id = browser_.GetColumnId(pos);
        const std::string title = browser_.GetColumnTitle(id);
        if (titles.contains(QString::fromStdString(title)))
            widths.emplace(id, Characters(title));
    }
    for (const long row : browser_.ShownRows())
        for (auto& [id, width] : widths)
            width = std::max(width, Characters(browser_.GetColumnText(row, id)));
    return widths;
}

int DocListPrinter::FittingColumns(const QSet<QString>& titles) const
{
    const QFontMetrics metrics(font_, &printer_);
    return pageplan::FittingColumns(ColumnWidths(titles), metrics.horizontalAdvance(QLatin1Char('X')),
                                    printer_.width());
}

bool DocListPrinter::PrintPage(unsigned short page, const QSet<QString>& titles)
{
    if (!IsJobRunning())
        return false;
    const QFontMetrics metrics(font_, &printer_);
    const long lineHeight = metrics.height();
    const int charWidth = metrics.horizontalAdvance(QLatin1Char('X'));
    if (lineHeight <= 0)
        return false;
    const auto rows = pageplan::RowsOnPage(page, printer_.height() / lineHeight, long(rows_.size()));
    if (!rows)
        return false;

    if (!widthsValid_ || widthTitles_ != titles) {
        widths_ = ColumnWidths(titles);
        widthTitles_ = titles;
        widthsValid_ = true;
    }

    if (pagesPrinted_ > 0 && !printer_.newPage())
        return false;
    ++pagesPrinted_;
    painter_->setFont(font_);
    const int ascent = metrics.ascent();
    long y = 0;
    auto drawLine = [&](auto textOf) {
        long x = 0;
        for (const auto& [id, width] : widths_) {
            painter_->drawText(QPoint(int(x), int(y) + ascent), textOf(id));
            x += long(width) * charWidth;
        }
        y += lineHeight;
    };
    drawLine([&](uint16_t id) { return QString::fromStdString(browser_.GetColumnTitle(id)); });
    for (long r = rows->first; r < rows->end; ++r)
        drawLine([&](uint16_t id) { return QString::fromStdString(browser_.GetColumnText(rows_[size_t(r)], id)); });
    return true;
}
