#pragma once
// Draws the lines of the directory tree as a tree: the leading blanks become indentation,
// the state character an open or closed branch arrow, followed by a folder and the name.
// The line texts themselves stay as they are.
#include <QStyledItemDelegate>

class DocDirDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
