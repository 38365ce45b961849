#pragma once
// The document list: a table view over the row list, one column per configured id.
#include <QTableView>
#include <memory>
#include <string>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/docrowlist.h"

class DocManager;
class KxFileStream;

class DocBrowser : public QTableView {
    Q_OBJECT
public:
    explicit DocBrowser(DocManager* parent);
    ~DocBrowser() override;

    DocManager* GetMgr() const;
    void Initialize();
    void InsertColumns();

    // Index and collection, kept by the row list.
    void ReadWriteDocInfos(const std::string& dir, bool withSubdirs);
    static bool WriteDirFileEntry(KxFileStream& stream, const DocInfo* info);
    void RowRemoved(const std::string& path);
    void CollectFiles(bool onlyIfNeeded);
    void SortFiles(bool repaint);
    const std::string* GetFirstDoc();
    const std::string* GetNextDoc();

    std::string GetFieldString(const DocInfo& info, unsigned short columnId) const;
    std::string GetColumnText(long row, unsigned short columnId) const;
    long GetRowCount() const;
    const DocRowList& GetRowList() const;
    // Columns in display order.
    unsigned short ColCount() const;
    unsigned short GetColumnId(unsigned short position) const;
    std::string GetColumnTitle(unsigned short columnId) const;

    void ColumnResized(unsigned short columnId);
    void EditDocInfo();
    void PrintList();
    // Selection helpers for the manager's commands.
    long GetSelectedRowCount() const;
    void DeselectFirstSelected();
    void ClearSelection();

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
