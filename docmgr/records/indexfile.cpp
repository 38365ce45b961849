// Reading and maintaining the per-directory index file, and the recursion into
// subdirectories.
#include <algorithm>
#include <cstring>
#include <unordered_map>
#include <utility>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docrecord.h"
#include "docmgr/records/docrowlist.h"
#include "docmgr/tools/filestream.h"
#include "docmgr/tools/fsutil.h"

namespace {

constexpr char MAGIC[5] = {'K', 'I', 'D', 'X', '\0'};
constexpr uint16_t VERSION = 255;
constexpr size_t MAGIC_AND_VERSION = 7;
constexpr size_t HEADER_SIZE = 11;

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

std::string IndexHeader()
{
    std::string header(MAGIC, sizeof MAGIC);
    header += char(VERSION & 0xFF);
    header += char(VERSION >> 8);
    const uint32_t charSet = GetSystemCharSet();
    for (int shift = 0; shift < 32; shift += 8)
        header += char((charSet >> shift) & 0xFF);
    return header;
}

}  // namespace

// Directories on the current recursion path, by device and inode, so that a link back
// to one of them is not followed.
struct DocRowList::DirVisit {
    std::vector<std::pair<uint64_t, uint64_t>> path;

    bool Contains(uint64_t dev, uint64_t ino) const
    {
        return std::find(path.begin(), path.end(), std::make_pair(dev, ino)) != path.end();
    }
};

// The state of one directory's read-update-write.
struct DocRowList::DirPass {
    std::string dir;                  // absolute
    std::string indexName;
    std::string indexPath;
    std::vector<fsutil::DirItem> files;
    std::vector<bool> consumed;
    std::unordered_map<std::string, size_t> byName;  // listed name -> position; no index
    std::vector<std::unique_ptr<DocInfo>> working;
    KxFileStream stream;
    bool rewriteNeeded = false;
    bool reprobeAll = false;
    bool unusable = false;
    bool mayWrite = true;             // false while another process holds the lock

    bool IsIndex(size_t i) const { return files[i].name == indexName; }
    bool InPlaceUpdates() const { return !rewriteNeeded && !reprobeAll && mayWrite; }
};

bool DocRowList::WriteDirFileEntry(KxFileStream& stream, const DocInfo* info)
{
    char bytes[DocRecord::SIZE];
    DocRecord(*info).ToBytes(bytes);
    return stream.Write(bytes, sizeof bytes) == sizeof bytes;
}

void DocRowList::ReadWriteDocInfos(const std::string& dir, bool withSubdirs)
{
    DirVisit visit;
    ReadDir(dir, withSubdirs, visit);
}

std::unique_ptr<DocInfo> DocRowList::Probe(const DirPass& pass, size_t file)
{
    const fsutil::DirItem& item = pass.files[file];
    const std::string path = fsutil::Join(pass.dir, item.name);
    std::unique_ptr<DocInfo> info = source_.CreateDocInfo(path);
    // Reading documents is the slow part: a large directory reports as it goes.
    if (++probed_ % 256 == 0)
        source_.CollectProgress(dirsRead_, rows_.size() + pass.working.size());
    if (info) {
        info->size = FileSize32(item.size);
    } else {
        info = std::make_unique<DocInfo>();
        info->size = NO_DOC_INFO;
    }
    info->entry = path;
    return info;
}

void DocRowList::ProbeAll(DirPass& pass)
{
    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (!pass.IsIndex(i))
            pass.working.push_back(Probe(pass, i));
    }
}

void DocRowList::ReadRecords(DirPass& pass, const std::string& data, int64_t indexMtimeNs)
{
    if (data.size() >= HEADER_SIZE)
        pass.stream.SetCharSet(ReadLE32(data.data() + MAGIC_AND_VERSION));

    // Only whole records count; a partial one at the end stays as it is.
    for (size_t offset = HEADER_SIZE; offset + DocRecord::SIZE <= data.size();
         offset += DocRecord::SIZE) {
        const DocRecord record = DocRecord::FromBytes(data.data() + offset);
        const std::string name = record.ReadString(record.name, DocRecord::NAME_LEN);
        const auto found = pass.byName.find(name);
        if (found == pass.byName.end() || pass.consumed[found->second]) {
            pass.rewriteNeeded = true;  // vanished, no longer matching, or a duplicate
            continue;
        }
        const size_t file = found->second;
        const fsutil::DirItem& item = pass.files[file];
        const std::string path = fsutil::Join(pass.dir, name);
        std::unique_ptr<DocInfo> info;
        if (indexMtimeNs > item.mtimeNs) {
            info = std::make_unique<DocInfo>();
            info->entry = path;
            info->size = record.hasInfo != 0 ? FileSize32(item.size) : NO_DOC_INFO;
            record.FillDocInfo(*info);
        } else {
            info = source_.CreateDocInfo(path);
            if (!info)
                continue;  // not consumed: probed again with the new files
            info->entry = path;
            info->size = FileSize32(item.size);
            if (pass.InPlaceUpdates()) {
                pass.stream.Seek(offset);
                WriteDirFileEntry(pass.stream, info.get());
            }
        }
        pass.working.push_back(std::move(info));
        pass.consumed[file] = true;
    }

    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (pass.consumed[i] || pass.IsIndex(i))
            continue;
        std::unique_ptr<DocInfo> info = Probe(pass, i);
        // Non-documents reach the index only through a full rewrite.
        if (info->HasInfo() && pass.InPlaceUpdates()) {
            pass.stream.SeekToEnd();
            WriteDirFileEntry(pass.stream, info.get());
        }
        pass.working.push_back(std::move(info));
    }
}

void DocRowList::ReadIndex(DirPass& pass)
{
    if (!fsutil::Exists(pass.indexPath)) {
        ProbeAll(pass);
        pass.rewriteNeeded = true;
        return;
    }
    // Something other than a plain file under the index's name (a pipe would block the
    // read) counts as an index that does not open.
    if (!fsutil::IsFile(pass.indexPath) ||
        !pass.stream.Open(pass.indexPath, KxFileStream::Mode::ReadWrite)) {
        pass.unusable = true;
        return;
    }
    // Another process busy with this directory: list it, but leave its index alone.
    pass.mayWrite = pass.stream.LockExclusive(INDEX_LOCK_WAIT_MS);

    uint64_t indexSize = 0;
    int64_t indexMtimeNs = 0;
    fsutil::Stat(pass.indexPath, indexSize, indexMtimeNs);
    std::string data;
    if (!pass.stream.ReadAll(data) || data.size() < MAGIC_AND_VERSION) {
        pass.unusable = true;
        return;
    }
    const bool badMagic = std::memcmp(data.data(), MAGIC, 4) != 0;
    if (badMagic)
        pass.unusable = true;
    const auto* header = reinterpret_cast<const unsigned char*>(data.data());
    const uint16_t version = uint16_t(header[5] | header[6] << 8);
    if (version != VERSION || badMagic) {
        pass.reprobeAll = true;
        ProbeAll(pass);
        return;
    }
    ReadRecords(pass, data, indexMtimeNs);
}

void DocRowList::RewriteIndex(DirPass& pass)
{
    if (!pass.mayWrite)
        return;
    if (!pass.stream.IsOpen()) {
        if (!pass.stream.Open(pass.indexPath, KxFileStream::Mode::ReadWriteCreate))
            return;
        if (!pass.stream.LockExclusive(INDEX_LOCK_WAIT_MS))
            return;
    }
    std::string image = IndexHeader();
    image.reserve(HEADER_SIZE + pass.working.size() * DocRecord::SIZE);
    char bytes[DocRecord::SIZE];
    for (const auto& info : pass.working) {
        // A longer name could not be matched with its file again.
        if (fsutil::FileName(info->entry).size() > DocRecord::NAME_LEN)
            continue;
        DocRecord(*info).ToBytes(bytes);
        image.append(bytes, sizeof bytes);
    }
    // Written over the open, locked file and cut to length, so the lock is held
    // from the read to the end of the write.
    pass.stream.Seek(0);
    const size_t written = pass.stream.Write(image.data(), image.size());
    pass.stream.Truncate(written);
}

void DocRowList::ReadDir(const std::string& dir, bool withSubdirs, DirVisit& visit)
{
    const std::string absDir = fsutil::Absolute(dir);
    fsutil::CurrentDirGuard cwd(absDir);
    ReadOneDir(absDir);
    source_.CollectProgress(++dirsRead_, rows_.size());
    if (withSubdirs)
        ReadSubdirs(absDir, visit);
}

void DocRowList::ReadOneDir(const std::string& absDir)
{
    DirPass pass;
    pass.dir = absDir;
    const std::string filterFiles = config_ ? config_->WorkingGroup().filterFiles : std::string();
    const std::string pattern = filterFiles.empty() ? std::string(1, '*') : filterFiles;

    pass.files = fsutil::List(pass.dir, pattern, fsutil::Kind::Files);
    pass.indexName = dirFileName_;
    pass.indexPath = fsutil::Join(pass.dir, dirFileName_);
    pass.consumed.assign(pass.files.size(), false);
    pass.byName.reserve(pass.files.size());
    for (size_t i = 0; i < pass.files.size(); ++i) {
        if (!pass.IsIndex(i))
            pass.byName.emplace(pass.files[i].name, i);
    }

    ReadIndex(pass);
    if ((pass.rewriteNeeded || (pass.reprobeAll && !pass.unusable)) && !pass.working.empty())
        RewriteIndex(pass);
    if (pass.working.empty() && pass.mayWrite)
        fsutil::Remove(pass.indexPath);
    pass.stream.Close();

    // Non-documents stay in the index but never become rows.
    for (auto& info : pass.working) {
        if (info->HasInfo())
            rows_.push_back(std::move(info));
    }
}

void DocRowList::ReadSubdirs(const std::string& dir, DirVisit& visit)
{
    uint64_t dev = 0, ino = 0;
    if (!fsutil::Identity(dir, dev, ino))
        return;
    visit.path.emplace_back(dev, ino);
    const bool exceptions = config_ && !config_->GetExceptionPaths().empty();
    for (const fsutil::DirItem& item : fsutil::List(dir, "*", fsutil::Kind::Dirs)) {
        if (item.name == "." || item.name == "..")
            continue;
        const std::string subdir = fsutil::Join(dir, item.name);
        if (exceptions && config_->IsExceptionPath(subdir))
            continue;
        uint64_t subDev = 0, subIno = 0;
        if (!fsutil::Identity(subdir, subDev, subIno) || visit.Contains(subDev, subIno))
            continue;
        ReadDir(subdir, true, visit);
    }
    visit.path.pop_back();
}
