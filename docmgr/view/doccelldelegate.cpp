#include "docmgr/view/doccelldelegate.h"

#include <QApplication>
#include <QPainter>

void DocCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QString text = opt.text;
    const bool rightAligned = opt.displayAlignment & Qt::AlignRight;
    opt.text.clear();
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);  // background, selection

    if (text.isEmpty())
        return;
    const QRect cell = opt.rect;
    const QFontMetrics metrics(opt.font);
    const int width = metrics.horizontalAdvance(text);
    const int x = rightAligned ? cell.left() + cell.width() - width - TEXT_MARGIN : cell.left() + TEXT_MARGIN;
    const int y = cell.top() + (cell.height() - metrics.height()) / 2 + metrics.ascent();
    const QPalette::ColorGroup group = opt.state & QStyle::State_Enabled ? QPalette::Normal : QPalette::Disabled;
    painter->save();
    painter->setClipRect(cell.adjusted(0, 0, -TEXT_MARGIN, 0));
    painter->setFont(opt.font);
    painter->setPen(
        opt.palette.color(group, opt.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(QPoint(x, y), text);
    painter->restore();
}
