#pragma once
// The rows of the document list: collecting them through the per-directory index
// files, filtering, sorting, and walking the selected ones.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/docrows.h"
#include "docmgr/records/docsource.h"
#include "docmgr/records/rowstore.h"
#include "docmgr/tools/replacefile.h"

class ImplDocConfig;
class KxFileStream;

class IndexBlocks;

class DocRowList {
public:
    // How long a collection waits for another process's lock on an index before it
    // reads that directory without writing its index.
    static constexpr int INDEX_LOCK_WAIT_MS = 200;

    // `observer`, when given, hears the collection's progress and unreadable directories.
    explicit DocRowList(DocSource& source, CollectObserver* observer = nullptr);
    ~DocRowList();

    void SetConfig(const ImplDocConfig* config) { config_ = config; }
    void SetDirFileName(const std::string& name) { dirFileName_ = name; }
    const std::string& GetDirFileName() const { return dirFileName_; }

    // Empties the list, reads every ";"-separated token of `pathList` (a token ending in
    // the subdirectory marker with its subtree), filters and sorts. Clears NeedsCollect.
    void CollectFiles(const std::string& pathList);
    // Reads and maintains the index of `dir`, appends its documents; with `withSubdirs`
    // the subdirectories follow, depth first (never twice round a link cycle).
    void ReadWriteDocInfos(const std::string& dir, bool withSubdirs);
    // Writes the 728-byte record of `info` at the stream's position.
    static bool WriteDirFileEntry(KxFileStream& stream, const DocInfo* info);
    // Sorts by the working group's sort column (no sort for 65535).
    void SortFiles();
    // Removes every row of `path`; returns the removed row positions, highest first.
    std::vector<long> RowRemoved(const std::string& path);
    // Removes the rows the working group's filter rejects.
    void ApplyFilter();
    // Keeps only the rows at `positions` (ascending), in their order.
    void KeepRows(const std::vector<size_t>& positions);

    bool NeedsCollect() const { return needsCollect_; }
    long GetRowCount() const { return long(rows_.size()); }
    // A copy of the row's information.
    DocInfo Row(long row) const;
    // The rows in order, made into DocInfos one at a time.
    DocRows Rows() const { return DocRows(store_, rows_); }
    // The packed rows and, by row, where each lies in them (the same place as long as the
    // row's document is not replaced).
    const RowStore& Store() const { return store_; }
    RowStore::Id StoreId(long row) const { return rows_[size_t(row)]; }
    // Replaces the DocInfo of `row` (after its document was edited).
    void ReplaceRow(long row, std::unique_ptr<DocInfo> info);
    void Clear();

    // Path of the first / next selected row, or null; valid until the next call.
    const std::string* GetFirstDoc(const DocSelection& selection);
    const std::string* GetNextDoc(const DocSelection& selection);

private:
    struct DirVisit;
    struct DirPass;
    void ReadDir(const std::string& dir, bool withSubdirs, DirVisit& visit);
    // `subdirs`, when given, gets the folder's subfolders, from the same listing.
    void ReadOneDir(const std::string& absDir, DirVisit& visit, std::vector<fsutil::DirItem>* subdirs);
    std::string FilePattern() const;
    void ReadSubdirs(const std::string& absDir, const std::vector<fsutil::DirItem>& subdirs, DirVisit& visit);
    enum class IndexOpening { Opened, Missing, Unstable, Failed };
    IndexOpening OpenIndex(DirPass& pass);
    void ReadIndex(DirPass& pass);
    void ReadRecords(DirPass& pass, IndexBlocks& records);
    void MatchRecords(DirPass& pass, IndexBlocks& records);
    void ReadChanged(DirPass& pass);
    void ProbeNew(DirPass& pass);
    void RewriteIndex(DirPass& pass);
    void WriteUpdates(DirPass& pass);
    void ReplaceIndex(DirPass& pass, const replacefile::Fill& fill);
    void ProbeAll(DirPass& pass);
    RowStore::Id Probe(const DirPass& pass, size_t file);
    const std::string* WalkTo(long row);

    DocSource& source_;
    CollectObserver& observer_;
    const ImplDocConfig* config_ = nullptr;
    std::string dirFileName_ = ".docindex";
    RowStore store_;
    std::vector<RowStore::Id> rows_;  // in list order
    bool needsCollect_ = true;
    std::string currentDoc_;
    long currentRow_ = -1;
    size_t dirsRead_ = 0;
    size_t probed_ = 0;  // documents read by the host in this collection
};
