#include "docmgr/view/docsummarywindow.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <memory>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doclisthost.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/resmgr.h"
#include "resources/resids.h"

namespace {
// The fixed rows' labels are the titles of the columns they show.
constexpr uint16_t kMeasuredLabels[] = {STR_COL_NAME,         STR_COL_SIZE,         STR_COL_TITLE,
                                        STR_COL_TOPIC,        STR_COL_CREATED_DATE, STR_COL_MODIFIED_DATE,
                                        STR_COL_PRINTED_DATE, STR_COL_COMMENT,      STR_COL_KEYWORDS};

QString Res(uint16_t id)
{
    return QString::fromStdString(ResString(id));
}

uint16_t TextWidth(const QFontMetrics& metrics, const QString& text)
{
    return static_cast<uint16_t>(metrics.horizontalAdvance(text));
}

// Where a row's label and value stand: a stamp's date, time and author share a line.
enum class RowKind { Line, Date, Time, Author };

// Draws the rows of the block from the top down, labels in the pane's font and values in
// its normal weight.
class RowPainter {
public:
    struct Place {
        int labelX = 0;
        int valueX = 0;
    };
    using Places = std::array<Place, 4>;  // by RowKind

    RowPainter(QWidget& pane, const Places& places, int margin, uint16_t top, uint16_t lineHeight)
        : pane_(pane), painter_(&pane), labelFont_(pane.font()), valueFont_(pane.font()), places_(places),
          margin_(margin), y_(top), lineHeight_(lineHeight)
    {
        painter_.setPen(Qt::black);
        valueFont_.setWeight(QFont::Normal);
        ascent_ = QFontMetrics(labelFont_).ascent();
    }

    // Draws one row; a whole line and the author of a stamp end the line.
    void Draw(RowKind kind, const QString& label, const QString& value)
    {
        const Place& place = places_[size_t(kind)];
        painter_.setFont(labelFont_);
        painter_.drawText(QPoint(place.labelX, int(y_) + ascent_), label);
        painter_.setFont(valueFont_);
        // A long value (a deep path) keeps its start and its end: the middle gives way.
        const int room = std::max(0, pane_.width() - place.valueX - margin_);
        const QString shown =
            kind == RowKind::Line ? QFontMetrics(valueFont_).elidedText(value, Qt::ElideMiddle, room) : value;
        painter_.drawText(QPoint(place.valueX, int(y_) + ascent_), shown);
        if (kind == RowKind::Line || kind == RowKind::Author)
            y_ = static_cast<uint16_t>(y_ + lineHeight_);
    }

private:
    QWidget& pane_;
    QPainter painter_;
    QFont labelFont_;
    QFont valueFont_;
    Places places_;
    int margin_;
    int ascent_ = 0;
    uint16_t y_;
    uint16_t lineHeight_;
};

// Rows 1 to 19 in order, each showing what the column of its number shows; the four
// information rows are captioned as the working group names them.
void DrawRows(RowPainter& rows, const std::string& path, const DocInfo& info, const ImplDocConfig* settings)
{
    const bool printed = !info.NeverPrinted();
    const QString none = QStringLiteral("---");
    auto text = [](const std::string& s) { return QString::fromStdString(s); };
    auto date = [&](const Date& value) { return text(intl::FormatDate(value)); };
    auto time = [&](const Time& value, const Date& of) { return text(intl::FormatTime(value, of)); };

    rows.Draw(RowKind::Line, Res(STR_COL_NAME), text(fsutil::Absolute(path)));
    rows.Draw(RowKind::Line, Res(STR_COL_SIZE), QString::number(fsutil::FileSize(path)));
    rows.Draw(RowKind::Line, Res(STR_COL_TITLE), text(info.title));
    rows.Draw(RowKind::Line, Res(STR_COL_TOPIC), text(info.topic));
    rows.Draw(RowKind::Date, Res(STR_COL_CREATED_DATE), date(info.createdDate));
    rows.Draw(RowKind::Time, Res(STR_AT), time(info.createdTime, info.createdDate));
    rows.Draw(RowKind::Author, Res(STR_BY), text(info.author));
    rows.Draw(RowKind::Date, Res(STR_COL_MODIFIED_DATE), date(info.modifiedDate));
    rows.Draw(RowKind::Time, Res(STR_AT), time(info.modifiedTime, info.modifiedDate));
    rows.Draw(RowKind::Author, Res(STR_BY), text(info.modifiedBy));
    rows.Draw(RowKind::Date, Res(STR_COL_PRINTED_DATE), printed ? date(info.printedDate) : none);
    rows.Draw(RowKind::Time, Res(STR_AT), printed ? time(info.printedTime, info.printedDate) : none);
    rows.Draw(RowKind::Author, Res(STR_BY), printed ? text(info.printedBy) : none);
    rows.Draw(RowKind::Line, Res(STR_COL_COMMENT), text(info.comment));
    rows.Draw(RowKind::Line, Res(STR_COL_KEYWORDS), text(info.keywords));
    for (size_t i = 0; i < info.info.size(); ++i)
        rows.Draw(RowKind::Line, settings ? text(settings->WorkingGroup().infoLabel[i]) : QString(),
                  text(info.info[i]));
}
}  // namespace

DocSummaryWindow::DocSummaryWindow(QWidget* parent, DocBrowser& browser, DocListHost& host)
    : QFrame(parent), browser_(browser), host_(host)
{
    setObjectName("summaryPane");
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, Qt::black);
    setPalette(colours);
    // Labels stand out from their values by weight.
    QFont labelFont = font();
    labelFont.setWeight(QFont::DemiBold);
    setFont(labelFont);

    const QFontMetrics metrics(labelFont);
    for (uint16_t id : kMeasuredLabels)
        labelWidth_ = std::max(labelWidth_, TextWidth(metrics, Res(id)));
    charWidth_ = TextWidth(metrics, QStringLiteral("X"));
    charHeight_ = static_cast<uint16_t>(metrics.height());
    dateWidth_ = TextWidth(metrics, QString::fromStdString(intl::FormatDate(Date::Today())));
    timeWidth_ = TextWidth(metrics, QString::fromStdString(intl::FormatTime(Time::Now())));
    timeLabelWidth_ = TextWidth(metrics, Res(STR_AT));
    authorLabelWidth_ = TextWidth(metrics, Res(STR_BY));
}

DocSummaryWindow::~DocSummaryWindow() = default;

void DocSummaryWindow::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);  // the border
    const std::string* first = browser_.GetFirstDoc();
    if (!first)
        return;
    const std::string path = *first;
    // Centred in 16-bit arithmetic: in a pane lower than the block the top wraps round
    // and the block lands out of sight, as it always has.
    const uint16_t height = static_cast<uint16_t>(this->height());
    const uint16_t top = static_cast<uint16_t>(static_cast<uint16_t>(height - LINE_COUNT * charHeight_) / 2);
    const std::unique_ptr<DocInfo> info = host_.CreateDocInfo(path);
    if (!info)
        return;

    const int C = charWidth_, L = labelWidth_, D = dateWidth_, T = timeWidth_, TL = timeLabelWidth_,
              AL = authorLabelWidth_;
    RowPainter::Places places{};
    places[size_t(RowKind::Line)] = places[size_t(RowKind::Date)] = {C, C + L + C};
    places[size_t(RowKind::Time)] = {C + L + 2 * C + D, C + L + 3 * C + D + TL};
    places[size_t(RowKind::Author)] = {C + L + 4 * C + D + TL + T, C + L + 5 * C + D + TL + T + AL};
    RowPainter rows(*this, places, C, top, charHeight_);
    DrawRows(rows, path, *info, browser_.GetSettings());
}
