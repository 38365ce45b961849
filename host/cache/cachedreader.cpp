#include "host/cache/cachedreader.h"

#include <fcntl.h>
#include <unistd.h>

#include "docmgr/tools/fsutil.h"
#include "host/cache/packedreading.h"

namespace {

// A long listing commits its writes in batches of about this many.
constexpr size_t kFlushAt = 5000;

}  // namespace

// A reading that failed for want of a reader says nothing of the file: kept, it would
// outlive the missing module.
bool CachedReader::Worth(const DocReading& reading)
{
    return reading.problem != ReadProblem::NoReader;
}

bool CachedReader::Settled(const std::string& path, const FileIdentity& id)
{
    // The paths are absolute: the folder is what stands before the last slash.
    const std::string_view dir = std::string_view(path).substr(0, path.rfind('/'));
    if (dir != slackDir_) {
        slackDir_ = dir;
        // Network and FUSE mounts show the server's times, late and coarse.
        slackNs_ = fsutil::CachesFileTimes(slackDir_) ? 3000000000 : 100000000;
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

void CachedReader::ReadAhead(const std::vector<std::string>& paths, const std::vector<FileIdentity>* known)
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
    std::vector<bool> hit(paths.size());
    for (size_t first = 0, end; first < paths.size(); first = end) {
        const size_t slash = paths[first].rfind('/');
        end = first + 1;
        if (slash == std::string::npos)
            continue;
        const std::string_view dir(paths[first].data(), slash);
        while (end < paths.size() && paths[end].size() > slash && paths[end][slash] == '/' &&
               paths[end].compare(0, slash, dir) == 0 && paths[end].find('/', slash + 1) == std::string::npos)
            ++end;
        TakeFolderHits(std::string(dir), paths, known, first, end, hit);
    }
    std::vector<std::string> toRead;
    std::vector<FileIdentity> toReadIds;
    for (size_t i = 0; i < paths.size(); ++i) {
        if (!hit[i]) {
            planned_.insert(paths[i]);
            toRead.push_back(paths[i]);
            if (known)
                toReadIds.push_back((*known)[i]);
        }
    }
    readAhead_.Start(toRead, true, std::move(toReadIds));
    Written();
}

// The hits among paths[first, end), all in `dir`: one scan of the folder's entries, a stat
// of the files the cache knows, relative to the folder.
void CachedReader::TakeFolderHits(const std::string& dir, const std::vector<std::string>& paths,
                                  const std::vector<FileIdentity>* known, size_t first, size_t end,
                                  std::vector<bool>& hit)
{
    const size_t nameAt = dir.size() + 1;
    std::unordered_map<std::string_view, size_t> wanted;
    wanted.reserve(end - first);
    for (size_t i = first; i < end; ++i)
        wanted.emplace(std::string_view(paths[i]).substr(nameAt), i);
    const int dirFd = known ? -1 : ::open(dir.empty() ? "/" : dir.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (!known && dirFd < 0)
        return;
    const int64_t today = DocCache::Today();
    std::vector<size_t> seen;
    size_t at = 0;
    cache_->Folder(
        dir,
        [&](std::string_view name, const FileIdentity& stored) {
            const auto found = wanted.find(name);
            if (found == wanted.end())
                return false;
            FileIdentity id;
            if (known)
                id = (*known)[found->second];
            else if (!IdentityAt(dirFd, paths[found->second].c_str() + nameAt, id))
                return false;
            if (!(id == stored))
                return false;
            at = found->second;
            return true;
        },
        [&](std::string_view, DocCache::Entry&& entry) {
            hit[at] = true;
            if (entry.seenDay != today)
                seen.push_back(at);
            if (entry.reading.info)
                entry.reading.info->entry = paths[at];
            hits_.emplace(paths[at], std::move(entry.reading));
        });
    if (dirFd >= 0)
        ::close(dirFd);
    // Marked after the scan: the store is not changed under its own cursor.
    for (size_t i : seen)
        cache_->Seen(paths[i]);
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
    if (known && Worth(reading) && Settled(path, id)) {
        cache_->Store(path, id, PackReading(reading));
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
    if (known && Worth(reading) && Settled(path, id))
        cache_->Store(path, id, PackReading(reading));
    return reading.problem;
}

void CachedReader::Flush()
{
    flushAsked_ = false;
    if (cache_)
        cache_->Flush();
}
