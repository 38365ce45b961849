#include "host/cache/cachedreader.h"

#include <fcntl.h>
#include <unistd.h>

#include "docmgr/tools/fsutil.h"

namespace {

// A long listing commits its writes in batches of about this many.
constexpr size_t kFlushAt = 5000;

}  // namespace

bool CachedReader::Settled(const std::string& path, const FileIdentity& id)
{
    const std::string dir = fsutil::DirName(path);
    if (dir != slackDir_) {
        slackDir_ = dir;
        // Network and FUSE mounts show the server's times, late and coarse.
        slackNs_ = fsutil::CachesFileTimes(dir) ? 3000000000 : 100000000;
    }
    const int64_t limit = id.takenNs - slackNs_;
    return id.mtimeNs < limit && id.ctimeNs < limit;
}

bool CachedReader::Lookup(const std::string& path, const FileIdentity& id, DocReading& reading)
{
    DocCache::Entry entry;
    if (!cache_ || !cache_->Find(path, entry) || !(entry.id == id))
        return false;
    if (entry.seenDay != DocCache::Today())
        cache_->Seen(path);
    reading = std::move(entry.reading);
    return true;
}

void CachedReader::ReadAhead(const std::vector<std::string>& paths)
{
    hits_.clear();
    planned_.clear();
    if (!cache_) {
        readAhead_.Start(paths);
        return;
    }
    if (cache_->Pending() >= kFlushAt)
        cache_->Flush();
    // Only files the cache knows are stat'ed here; the pool stats the others as it reads
    // them, so a folder new to the cache starts reading at once.
    std::vector<std::string> toRead;
    std::string dir, name;
    bool loaded = false;
    int dirFd = -1;
    std::unordered_map<std::string, DocCache::Entry> folder;
    const int64_t today = DocCache::Today();
    for (const std::string& path : paths) {
        // Split in place: the paths are absolute, and the hits are thousands per listing.
        const size_t slash = path.rfind('/');
        if (slash == std::string::npos) {
            planned_.insert(path);
            toRead.push_back(path);
            continue;
        }
        if (!loaded || dir.size() != slash || path.compare(0, slash, dir) != 0) {
            loaded = true;
            dir.assign(path, 0, slash);
            folder = cache_->Folder(dir);
            if (dirFd >= 0)
                ::close(dirFd);
            dirFd = folder.empty() ? -1 : ::open(dir.empty() ? "/" : dir.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        }
        name.assign(path, slash + 1);
        FileIdentity id;
        const auto found = folder.empty() ? folder.end() : folder.find(name);
        if (found != folder.end() && (dirFd >= 0 ? IdentityAt(dirFd, name.c_str(), id) : IdentityOf(path, id)) &&
            found->second.id == id) {
            if (found->second.seenDay != today)
                cache_->Seen(path);
            DocReading& reading = found->second.reading;
            if (reading.info)
                reading.info->entry = path;  // Folder leaves it to the one asking
            hits_.emplace(path, std::move(reading));
            continue;
        }
        planned_.insert(path);
        toRead.push_back(path);
    }
    if (dirFd >= 0)
        ::close(dirFd);
    readAhead_.Start(toRead, true);
    Written();
}

void CachedReader::Written()
{
    if (!flushAsked_ && cache_->Pending() > 0 && onFirstWrite_) {
        flushAsked_ = true;
        onFirstWrite_();
    }
}

std::unique_ptr<DocInfo> CachedReader::Take(const std::string& path)
{
    if (const auto hit = hits_.find(path); hit != hits_.end()) {
        std::unique_ptr<DocInfo> info = std::move(hit->second.info);
        hits_.erase(hit);
        return info;
    }
    if (!cache_)
        return readAhead_.Take(path);
    if (planned_.erase(path) == 0) {
        FileIdentity id;
        DocReading reading;
        if (IdentityOf(path, id) && Lookup(path, id, reading))
            return std::move(reading.info);
    }
    // The identity is taken before the read: a change while reading makes the entry stale
    // by its own identity, never a current-looking one.
    FileIdentity id;
    bool known = false;
    DocReading reading = readAhead_.TakeReading(path, &id, &known);
    if (known && Settled(path, id)) {
        cache_->Store(path, id, reading);
        Written();
    }
    return std::move(reading.info);
}

ReadProblem CachedReader::Problem(const std::string& path)
{
    FileIdentity id;
    const bool known = cache_ && IdentityOf(path, id);
    DocReading reading;
    if (known && Lookup(path, id, reading))
        return reading.problem;
    reading = ReadDocument(path);
    if (known && Settled(path, id))
        cache_->Store(path, id, reading);
    return reading.problem;
}

void CachedReader::Flush()
{
    flushAsked_ = false;
    if (cache_)
        cache_->Flush();
}
