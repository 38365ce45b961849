#include "docmgr/view/docsummarywindow.h"

#include <QPainter>
#include <algorithm>
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
constexpr uint16_t kMeasuredLabels[] = {STR_COL_NAME,          STR_COL_SIZE,
                                        STR_COL_TITLE,         STR_COL_TOPIC,
                                        STR_COL_CREATED_DATE,  STR_COL_MODIFIED_DATE,
                                        STR_COL_PRINTED_DATE,  STR_COL_COMMENT,
                                        STR_COL_KEYWORDS};

QString Res(uint16_t id)
{
    return QString::fromStdString(ResString(id));
}

uint16_t TextWidth(const QFontMetrics& metrics, const QString& text)
{
    return static_cast<uint16_t>(metrics.horizontalAdvance(text));
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
    uint16_t y = static_cast<uint16_t>(static_cast<uint16_t>(height - LINE_COUNT * charHeight_) / 2);
    const std::unique_ptr<DocInfo> info = host_.CreateDocInfo(path);
    if (!info)
        return;

    QPainter painter(this);
    painter.setPen(Qt::black);
    const QFont labelFont = font();
    QFont valueFont = font();
    valueFont.setWeight(QFont::Normal);
    const int ascent = QFontMetrics(labelFont).ascent();
    const bool printed = !info->NeverPrinted();
    const QString none = QStringLiteral("---");

    const int C = charWidth_, L = labelWidth_, D = dateWidth_, T = timeWidth_,
              TL = timeLabelWidth_, AL = authorLabelWidth_;
    enum class Kind { Line, Date, Time, Author };
    auto draw = [&](Kind kind, const QString& label, const QString& value) {
        int labelX = C, valueX = C + L + C;
        if (kind == Kind::Time) {
            labelX = C + L + 2 * C + D;
            valueX = C + L + 3 * C + D + TL;
        } else if (kind == Kind::Author) {
            labelX = C + L + 4 * C + D + TL + T;
            valueX = C + L + 5 * C + D + TL + T + AL;
        }
        painter.setFont(labelFont);
        painter.drawText(QPoint(labelX, int(y) + ascent), label);
        painter.setFont(valueFont);
        // A long value (a deep path) keeps its start and its end: the middle gives way.
        const int room = std::max(0, width() - valueX - C);
        const QString shown = kind == Kind::Line
                                  ? QFontMetrics(valueFont).elidedText(value, Qt::ElideMiddle, room)
                                  : value;
        painter.drawText(QPoint(valueX, int(y) + ascent), shown);
        if (kind == Kind::Line || kind == Kind::Author)
            y = static_cast<uint16_t>(y + charHeight_);
    };
    auto text = [](const std::string& s) { return QString::fromStdString(s); };
    auto date = [&](const Date& value) { return text(intl::FormatDate(value)); };
    auto time = [&](const Time& value, const Date& of) { return text(intl::FormatTime(value, of)); };

    draw(Kind::Line, Res(STR_COL_NAME), text(fsutil::Absolute(path)));
    draw(Kind::Line, Res(STR_COL_SIZE), QString::number(fsutil::FileSize(path)));
    draw(Kind::Line, Res(STR_COL_TITLE), text(info->title));
    draw(Kind::Line, Res(STR_COL_TOPIC), text(info->topic));
    draw(Kind::Date, Res(STR_COL_CREATED_DATE), date(info->createdDate));
    draw(Kind::Time, Res(STR_AT), time(info->createdTime, info->createdDate));
    draw(Kind::Author, Res(STR_BY), text(info->author));
    draw(Kind::Date, Res(STR_COL_MODIFIED_DATE), date(info->modifiedDate));
    draw(Kind::Time, Res(STR_AT), time(info->modifiedTime, info->modifiedDate));
    draw(Kind::Author, Res(STR_BY), text(info->modifiedBy));
    draw(Kind::Date, Res(STR_COL_PRINTED_DATE), printed ? date(info->printedDate) : none);
    draw(Kind::Time, Res(STR_AT), printed ? time(info->printedTime, info->printedDate) : none);
    draw(Kind::Author, Res(STR_BY), printed ? text(info->printedBy) : none);
    draw(Kind::Line, Res(STR_COL_COMMENT), text(info->comment));
    draw(Kind::Line, Res(STR_COL_KEYWORDS), text(info->keywords));
    const ImplDocConfig* settings = browser_.GetSettings();
    for (size_t i = 0; i < info->info.size(); ++i)
        draw(Kind::Line, settings ? text(settings->WorkingGroup().infoLabel[i]) : QString(),
             text(info->info[i]));
}
