#include "docmgr/dialogs/docdirdelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace {
constexpr int kStep = 8;    // pixels per leading blank: 16 per level
constexpr int kArrow = 12;  // branch arrow box
constexpr int kIcon = 16;
constexpr int kGap = 4;
}  // namespace

void DocDirDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QString line = opt.text;
    opt.text.clear();
    opt.icon = QIcon();
    QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    int indent = 0;
    while (indent < line.size() && line[indent] == u' ')
        ++indent;
    const bool root = indent == 0;
    QRect rect = opt.rect.adjusted(kGap + indent * kStep - (root ? 0 : 2 * kStep), 0, -kGap, 0);

    if (!root) {
        QStyleOption arrow;
        arrow.initFrom(opt.widget);
        arrow.state = opt.state;
        arrow.rect = QRect(rect.left(), rect.center().y() - kArrow / 2, kArrow, kArrow);
        const bool open = indent < line.size() && line[indent] == u'+';
        style->drawPrimitive(open ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight, &arrow, painter,
                             opt.widget);
    }
    rect.setLeft(rect.left() + kArrow + kGap);
    const QIcon folder = style->standardIcon(QStyle::SP_DirIcon, nullptr, opt.widget);
    folder.paint(painter, QRect(rect.left(), rect.center().y() - kIcon / 2, kIcon, kIcon));
    rect.setLeft(rect.left() + kIcon + kGap);

    const QString name = root ? line : line.mid(indent + 2);
    const QPalette::ColorRole role = opt.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    painter->save();
    painter->setPen(opt.palette.color(role));
    painter->setFont(opt.font);
    painter->drawText(rect, Qt::AlignVCenter | Qt::AlignLeft,
                      opt.fontMetrics.elidedText(name, Qt::ElideRight, rect.width()));
    painter->restore();
}

QSize DocDirDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), kIcon + 4));
    return size;
}
