#pragma once
// The state of reading one directory's index, shared by the reading and the writing half.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "docmgr/records/docrowlist.h"
#include "docmgr/records/rowstore.h"
#include "docmgr/tools/filestream.h"
#include "docmgr/tools/folderaudience.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/listahead.h"
#include "docmgr/tools/replacefile.h"

// The header: "KIDX" and NUL, the version (16 bits), the character set (32 bits).
namespace indexlayout {
inline constexpr char MAGIC[5] = {'K', 'I', 'D', 'X', '\0'};
inline constexpr uint16_t VERSION = 255;
inline constexpr size_t MAGIC_AND_VERSION = 7;
inline constexpr size_t HEADER_SIZE = 11;
}  // namespace indexlayout

// Directories on the current recursion path, by device and inode, so that a link back
// to one of them is not followed.
struct DocRowList::DirVisit {
    std::vector<std::pair<uint64_t, uint64_t>> path;
    // Lists the subfolders ahead of their reading; only in a recursive listing.
    std::unique_ptr<ListAhead> ahead;

    bool Contains(uint64_t dev, uint64_t ino) const
    {
        return std::find(path.begin(), path.end(), std::make_pair(dev, ino)) != path.end();
    }
};

// The state of one directory's read-update-write.
struct DocRowList::DirPass {
    explicit DirPass(const std::string& absDir)
        : dir(absDir), folder(FolderPart(fsutil::Join(absDir, "-"))), audience(absDir)
    {}

    std::string dir;     // absolute
    std::string folder;  // what the paths of its files start with (with the delimiter)
    FolderAudience audience;
    std::string indexName;
    std::string indexPath;
    std::vector<fsutil::DirItem> files;
    size_t dirEntries = 0;   // every entry of the directory, to bound the index
    int64_t listedAtNs = 0;  // taken before the directory was listed
    std::vector<bool> consumed;
    // Files that some reader of the folder may not read: they never get a record, which
    // would tell those readers what the file does not.
    std::vector<bool> isPrivate;
    // Listed name (in `files`) -> position, the index left out; made only when a record
    // is not where the listing order puts it.
    std::unordered_map<std::string_view, size_t> byName;
    // The directory's rows so far, as places in the row store (non-documents too, which
    // the index keeps); NO_ROW holds the place of a changed document until it is read.
    std::vector<RowStore::Id> working;
    static constexpr RowStore::Id NO_ROW = RowStore::Id(-1);
    KxFileStream stream;
    bool rewriteNeeded = false;
    bool reprobeAll = false;
    bool unusable = false;
    // False while another process holds the lock, and where the index cannot be written
    // (a read-only folder) or is not a plain file.
    bool mayWrite = true;
    uint64_t indexSize = 0;
    int64_t indexMtimeNs = 0;
    // Records to write over (at their offsets) and to append. They reach the disk as a
    // whole new index, so that no crash can leave a record dated as current that does not
    // describe its document. The rows are those of `working`.
    std::vector<std::pair<uint64_t, RowStore::Id>> overwrites;
    std::vector<RowStore::Id> appends;
    // Documents whose records are out of date, to be read after the walk over the index.
    struct Changed {
        size_t row;       // its place in `working`
        uint64_t offset;  // of its record
        size_t file;      // in `files`
    };
    std::vector<Changed> changed;

    // The index and the temporary files of its rewrites are never documents.
    bool IsIndex(size_t i) const
    {
        const std::string& name = files[i].name;
        return name.compare(0, indexName.size(), indexName) == 0 &&
               (name.size() == indexName.size() ||
                name.compare(indexName.size(), replacefile::TEMP_INFIX.size(), replacefile::TEMP_INFIX) == 0);
    }
    bool InPlaceUpdates() const { return !rewriteNeeded && !reprobeAll && mayWrite; }
    // A record made now would be current until the document changes.
    bool IsCurrent(const fsutil::DirItem& item) const
    {
        return item.mtimeNs < indexMtimeNs && item.ctimeNs < indexMtimeNs;
    }
};
