#pragma once
// Paints one cell of the document list: the text a small margin in from the cell's left
// edge, clipped short of its right edge so that it never touches the next column, and
// never shortened with an ellipsis (a column fitted to its widest text shows it whole);
// the size column ends the margin short of the cell's right edge.
#include <QStyledItemDelegate>

class DocCellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    // Space on either side of a cell's text.
    static constexpr int TEXT_MARGIN = 3;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
