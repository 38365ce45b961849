// Reading a directory's index and bringing it up to date (the writing is in
// indexwrite.cpp), and the recursion into subdirectories.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docrecord.h"
#include "docmgr/records/docrowlist.h"
#include "docmgr/records/indexblocks.h"
#include "docmgr/records/indexpass.h"
#include "docmgr/tools/filestream.h"
#include "docmgr/tools/folderaudience.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/replacefile.h"

using namespace indexlayout;

namespace {

uint32_t FileSize32(uint64_t size)
{
    // A file of 4 GiB or more must not read as "not a document".
    return size >= NO_DOC_INFO ? NO_DOC_INFO - 1 : static_cast<uint32_t>(size);
}

uint32_t ReadLE32(const char* p)
{
    const auto* u = reinterpret_cast<const unsigned char*>(p);
    return uint32_t(u[0]) | uint32_t(u[1]) << 8 | uint32_t(u[2]) << 16 | uint32_t(u[3]) << 24;
}

// A large directory read from its index reports this often.
constexpr size_t PROGRESS_ROWS = 4096;

// Room for records beyond one per directory entry: files made while a listing ran, and
// the cut-name records of long names.
constexpr uint64_t SPARE_RECORDS = 64;

// How long a network or FUSE client may show a file's old times (smbnetfs and the
// kernel's SMB client keep them for about a second).
constexpr int64_t CACHED_TIMES_NS = 2000000000;

}  // namespace

void DocRowList::ReadWriteDocInfos(const std::string& dir, bool withSubdirs)
{
    DirVisit visit;
    if (withSubdirs)
        visit.ahead = std::make_unique<ListAhead>(FilePattern());
    ReadDir(dir, withSubdirs, visit);
}

std::string DocRowList::FilePattern() const
{
    const std::string filterFiles = config_ ? config_->WorkingGroup().filterFiles : std::string();
    return filterFiles.empty() ? std::string(1, '*') : filterFiles;
}

RowStore::Id DocRowList::Probe(const DirPass& pass, size_t file)
{
    const fsutil::DirItem& item = pass.files[file];
    const std::string path = fsutil::Join(pass.dir, item.name);
    std::unique_ptr<DocInfo> info = source_.CreateDocInfo(path);
    // Reading documents is the slow part: a large directory reports as it goes.
    if (++probed_ % 256 == 0)
        observer_.CollectProgress(dirsRead_, rows_.size() + pass.working.size());
    if (info) {
        info->size = FileSize32(item.size);
    } else {
        info = std::make_unique<DocInfo>();
        info->size = NO_DOC_INFO;
    }
    info->entry = path;
    return store_.Add(*info);
}

void DocRowList::ProbeAll(DirPass& pass)
{
    {
        std::vector<std::string> reads;
        std::vector<const fsutil::DirItem*> items;
        for (size_t i = 0; i < pass.files.size(); ++i) {
            if (!pass.IsIndex(i)) {
                reads.push_back(fsutil::Join(pass.dir, pass.files[i].name));
                items.push_back(&pass.files[i]);
            }
        }
        source_.ReadAheadKnown(reads, items);
    }  // the plan's memory is back before the rows take theirs
    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (!pass.IsIndex(i))
            pass.working.push_back(Probe(pass, i));
    }
}

// One walk over the records: an unchanged document's row is made from its record at
// once; a changed one keeps its place in the rows and is read after the walk, with the
// files the index has no record of, so that all those reads are known before the first.
void DocRowList::ReadRecords(DirPass& pass, IndexBlocks& records)
{
    MatchRecords(pass, records);
    ReadChanged(pass);
    ProbeNew(pass);
}

void DocRowList::MatchRecords(DirPass& pass, IndexBlocks& records)
{
    // An index written by a listing holds its records in the order the folder lists its
    // files: the file after the last one matched is tried first, and the names are hashed
    // only when that fails.
    size_t next = 0;
    const auto fileNamed = [&pass, &next](std::string_view name) -> std::optional<size_t> {
        if (next < pass.files.size() && pass.files[next].name == name && !pass.IsIndex(next))
            return next;
        if (pass.byName.empty()) {
            pass.byName.reserve(pass.files.size());
            for (size_t i = 0; i < pass.files.size(); ++i) {
                if (!pass.IsIndex(i))
                    pass.byName.emplace(pass.files[i].name, i);
            }
        }
        const auto found = pass.byName.find(name);
        return found == pass.byName.end() ? std::nullopt : std::optional<size_t>(found->second);
    };
    // Only whole records count; a partial one at the end stays as it is.
    records.ForEach([&](uint64_t offset, const char* bytes) {
        const std::string_view name = DocRecord::NameView(bytes);
        const std::optional<size_t> found = fileNamed(name);
        if (!found || pass.consumed[*found]) {
            pass.rewriteNeeded = true;  // vanished, no longer matching, or a duplicate
            return;
        }
        const size_t file = *found;
        next = file + 1;
        const fsutil::DirItem& item = pass.files[file];
        pass.consumed[file] = true;
        if (pass.isPrivate[file])
            pass.rewriteNeeded = true;  // its record must go
        if (pass.isPrivate[file] || !pass.IsCurrent(item)) {
            pass.changed.push_back({pass.working.size(), offset, file});
            pass.working.push_back(DirPass::NO_ROW);
            return;
        }
        // The row goes straight from the record into the store, without a DocInfo.
        const DocRecord record = DocRecord::FromBytes(bytes);
        RowStore::Fields fields = record.Fields(item.name);
        fields.folder = pass.folder;
        fields.size = record.hasInfo != 0 ? FileSize32(item.size) : NO_DOC_INFO;
        pass.working.push_back(store_.Add(fields));
        if (pass.working.size() % PROGRESS_ROWS == 0)
            observer_.CollectProgress(dirsRead_, rows_.size() + pass.working.size());
    });
}

// The changed documents are read in record order; the plan names the new files after
// them, which ProbeNew reads.
void DocRowList::ReadChanged(DirPass& pass)
{
    std::vector<std::string> reads;
    std::vector<const fsutil::DirItem*> items;
    for (const DirPass::Changed& doc : pass.changed) {
        reads.push_back(fsutil::Join(pass.dir, pass.files[doc.file].name));
        items.push_back(&pass.files[doc.file]);
    }
    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (!pass.consumed[i] && !pass.IsIndex(i)) {
            reads.push_back(fsutil::Join(pass.dir, pass.files[i].name));
            items.push_back(&pass.files[i]);
        }
    }
    source_.ReadAheadKnown(reads, items);
    items = {};
    reads.resize(pass.changed.size());
    reads.shrink_to_fit();

    for (size_t k = 0; k < pass.changed.size(); ++k) {
        const DirPass::Changed& doc = pass.changed[k];
        std::unique_ptr<DocInfo> info = source_.CreateDocInfo(reads[k]);
        if (!info) {
            pass.consumed[doc.file] = false;  // probed again with the new files
            continue;
        }
        info->entry = reads[k];
        info->size = FileSize32(pass.files[doc.file].size);
        const RowStore::Id row = store_.Add(*info);
        if (pass.InPlaceUpdates())
            pass.overwrites.emplace_back(doc.offset, row);
        pass.working[doc.row] = row;
    }
    if (!pass.changed.empty())
        std::erase(pass.working, DirPass::NO_ROW);
}

void DocRowList::ProbeNew(DirPass& pass)
{
    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (pass.consumed[i] || pass.IsIndex(i))
            continue;
        const RowStore::Id row = Probe(pass, i);
        // Non-documents reach the index only through a full rewrite.
        if (store_.SizeOf(row) != NO_DOC_INFO && !pass.isPrivate[i] && pass.InPlaceUpdates())
            pass.appends.push_back(row);
        pass.working.push_back(row);
    }
}

// Opens and locks the index, for writing where it can be written. A rewrite by another
// process renames a new file over the one opened here; the lock is then taken again on
// the file the name holds now.
DocRowList::IndexOpening DocRowList::OpenIndex(DirPass& pass)
{
    for (int attempt = 0; attempt < 8; ++attempt) {
        pass.mayWrite = true;
        if (!pass.stream.Open(pass.indexPath, KxFileStream::Mode::ReadWrite)) {
            if (errno == ENOENT)
                return IndexOpening::Missing;  // removed since it was seen
            if (errno != EACCES && errno != EROFS && errno != EPERM && errno != ETXTBSY)
                return IndexOpening::Failed;
            // A folder or index the user cannot write: read it, write nothing.
            if (!pass.stream.Open(pass.indexPath, KxFileStream::Mode::Read))
                return errno == ENOENT ? IndexOpening::Missing : IndexOpening::Failed;
            pass.mayWrite = false;
        }
        // Another process busy with this directory: list it, but leave its index alone.
        if (!pass.stream.LockExclusive(INDEX_LOCK_WAIT_MS))
            pass.mayWrite = false;
        if (pass.stream.IsFileAt(pass.indexPath))
            return IndexOpening::Opened;
        pass.stream.Close();
    }
    // Replaced again and again by other listings: nothing wrong with it.
    return IndexOpening::Unstable;
}

void DocRowList::ReadIndex(DirPass& pass)
{
    if (!fsutil::Exists(pass.indexPath)) {
        ProbeAll(pass);
        pass.rewriteNeeded = true;
        return;
    }
    // A directory, a pipe or a link under the index's name is not ours to read, replace
    // or delete: the documents are listed without an index.
    if (!fsutil::IsPlainFile(pass.indexPath)) {
        pass.mayWrite = false;
        ProbeAll(pass);
        return;
    }
    switch (OpenIndex(pass)) {
    case IndexOpening::Opened: break;
    case IndexOpening::Missing:
        ProbeAll(pass);
        pass.rewriteNeeded = true;
        return;
    case IndexOpening::Unstable:
        // The documents themselves are read; the busy index is neither written nor deleted.
        pass.mayWrite = false;
        ProbeAll(pass);
        return;
    case IndexOpening::Failed: pass.unusable = true; return;
    }
    // The file that was opened, whatever its name holds by now.
    if (!pass.stream.Status(pass.indexSize, pass.indexMtimeNs)) {
        pass.unusable = true;
        return;
    }

    char header[HEADER_SIZE];
    const size_t headerRead = pass.stream.Read(header, sizeof header);
    if (headerRead < MAGIC_AND_VERSION) {
        pass.unusable = true;
        return;
    }
    const bool badMagic = std::memcmp(header, MAGIC, 4) != 0;
    if (badMagic)
        pass.unusable = true;
    const auto* bytes = reinterpret_cast<const unsigned char*>(header);
    const uint16_t version = uint16_t(bytes[5] | bytes[6] << 8);
    // Larger than one record for every entry of the directory could make it: damaged
    // (or hostile), and not worth the memory of reading it.
    const uint64_t bound = HEADER_SIZE + (pass.dirEntries + SPARE_RECORDS + 1) * DocRecord::SIZE;
    if (version != VERSION || badMagic || pass.indexSize > bound) {
        pass.reprobeAll = true;
        ProbeAll(pass);
        return;
    }
    if (headerRead == HEADER_SIZE)
        pass.stream.SetCharSet(ReadLE32(header + MAGIC_AND_VERSION));
    IndexBlocks records(pass.stream, HEADER_SIZE, pass.indexSize);
    ReadRecords(pass, records);
}

void DocRowList::ReadDir(const std::string& dir, bool withSubdirs, DirVisit& visit)
{
    const std::string absDir = fsutil::Absolute(dir);
    fsutil::CurrentDirGuard cwd(absDir);
    std::vector<fsutil::DirItem> subdirs;
    ReadOneDir(absDir, visit, withSubdirs ? &subdirs : nullptr);
    observer_.CollectProgress(++dirsRead_, rows_.size());
    if (withSubdirs)
        ReadSubdirs(absDir, subdirs, visit);
}

void DocRowList::ReadOneDir(const std::string& absDir, DirVisit& visit, std::vector<fsutil::DirItem>* subdirs)
{
    DirPass pass(absDir);
    fsutil::ListStatus listed;
    if (std::optional<ListAhead::Listing> ahead = visit.ahead ? visit.ahead->Take(absDir) : std::nullopt) {
        pass.listedAtNs = ahead->startedNs;
        pass.files = std::move(ahead->files);
        listed = ahead->status;
        if (subdirs)
            *subdirs = std::move(ahead->subdirs);
    } else {
        pass.listedAtNs = ListAhead::FileClockNowNs();
        pass.files = fsutil::List(pass.dir, FilePattern(), fsutil::Kind::Files, &listed, subdirs);
    }
    // A client that keeps file times for a while may show a document changed just before
    // the listing with its old time: the index is dated that much earlier.
    if (fsutil::CachesFileTimes(pass.dir))
        pass.listedAtNs -= CACHED_TIMES_NS;
    pass.dirEntries = listed.entries;
    if (listed.error != 0)
        observer_.DirectoryUnreadable(pass.dir, listed.error);
    pass.indexName = dirFileName_;
    pass.indexPath = fsutil::Join(pass.dir, dirFileName_);
    observer_.DirectoryRead(pass.dir);
    pass.consumed.assign(pass.files.size(), false);
    pass.isPrivate.reserve(pass.files.size());
    for (const fsutil::DirItem& item : pass.files)
        pass.isPrivate.push_back(!pass.audience.MayRead(pass.dir, item));

    ReadIndex(pass);
    if ((pass.rewriteNeeded || (pass.reprobeAll && !pass.unusable)) && !pass.working.empty())
        RewriteIndex(pass);
    else if (pass.InPlaceUpdates())
        WriteUpdates(pass);
    if (pass.working.empty() && pass.mayWrite) {
        const int error = fsutil::Remove(pass.indexPath);
        // An index that cannot be read nor deleted would hide the documents every time.
        if (pass.unusable && error != 0 && error != ENOENT)
            ProbeAll(pass);
    }
    pass.stream.Close();

    // Non-documents stay in the index but never become rows.
    for (const RowStore::Id row : pass.working) {
        if (store_.SizeOf(row) != NO_DOC_INFO)
            rows_.push_back(row);
    }
}

void DocRowList::ReadSubdirs(const std::string& dir, const std::vector<fsutil::DirItem>& found, DirVisit& visit)
{
    uint64_t dev = 0, ino = 0;
    if (!fsutil::Identity(dir, dev, ino))
        return;
    visit.path.emplace_back(dev, ino);
    const bool exceptions = config_ && !config_->GetExceptionPaths().empty();
    std::vector<std::string> subdirs;
    for (const fsutil::DirItem& item : found) {
        // A link may lead anywhere, to the root or round to a parent: the listing keeps
        // to the real folders of the tree it was given.
        if (item.name == "." || item.name == ".." || item.isLink)
            continue;
        std::string subdir = fsutil::Join(dir, item.name);
        if (exceptions && config_->IsExceptionPath(subdir))
            continue;
        uint64_t subDev = 0, subIno = 0;
        if (!fsutil::Identity(subdir, subDev, subIno) || visit.Contains(subDev, subIno))
            continue;
        subdirs.push_back(std::move(subdir));
    }
    if (visit.ahead)
        visit.ahead->Want(subdirs);
    for (const std::string& subdir : subdirs)
        ReadDir(subdir, true, visit);
    visit.path.pop_back();
}
