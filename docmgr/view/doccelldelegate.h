#pragma once
// Paints one cell of the document list: the text at the cell's left edge, clipped to the
// cell and never shortened with an ellipsis (a column fitted to its widest text shows
// it whole); the size column ends at the cell's right edge.
#include <QStyledItemDelegate>

class DocCellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    // Space left of a left-aligned text and right of a right-aligned one.
    static constexpr int TEXT_MARGIN = 1;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
