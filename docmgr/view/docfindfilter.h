#pragma once
// The rows the find bar leaves shown: a filter between the list's model and its view that
// keeps the rows holding the typed text in a shown column (DocFind). It reads no document:
// the texts are those the list shows.
#include <QSortFilterProxyModel>
#include <string>
#include <vector>

#include "docmgr/records/docfind.h"

class DocListModel;

class DocFindFilter : public QSortFilterProxyModel {
    Q_OBJECT
public:
    DocFindFilter(DocListModel* list, QObject* parent);

    // Shows only the rows holding `text`; an empty text shows every row. The rows still
    // shown keep their selection.
    void SetFindText(const std::string& text);
    const std::string& FindText() const { return text_; }
    // Folds the texts of the list now (once a collection), so that the first keystroke
    // costs no more than the others.
    void Prepare();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    // The rows or columns of the list changed: the texts are folded again when next asked.
    void ListChanged() { stale_ = true; }
    void Match() const;

    DocListModel* list_;
    std::string text_;
    mutable DocFind find_;
    mutable std::vector<char> holds_;  // by row of the list
    mutable bool stale_ = true;
};
