#pragma once
// Document information through the per-user cache: what the cache holds for a file that is
// still the same comes from it, on the list's thread; the rest is read on the read-ahead
// pool and kept for the next listing.
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/cache/doccache.h"
#include "host/readers/readahead.h"

class CachedReader {
public:
    // Without a cache every document is read, as before there was one.
    explicit CachedReader(std::unique_ptr<DocCache> cache = nullptr) : cache_(std::move(cache)) {}
    void SetCache(std::unique_ptr<DocCache> cache) { cache_ = std::move(cache); }
    // Called once when a listing begins writing to the cache, so that a host that cannot
    // tell when its listing ends (the window) calls Flush once it is back in its loop.
    void OnFirstWrite(std::function<void()> call) { onFirstWrite_ = std::move(call); }

    // `known`, when given, holds each path's identity as the caller just took it; else
    // the files the cache knows are stat'ed here.
    void ReadAhead(const std::vector<std::string>& paths, const std::vector<FileIdentity>* known = nullptr);
    std::unique_ptr<DocInfo> Take(const std::string& path);
    // Why the document at `path` holds no information, from the cache when it is current.
    ReadProblem Problem(const std::string& path);
    // Writes what this listing read into the cache.
    void Flush();

private:
    // Stored only when the file's times are older than the clock's resolution on its file
    // system: a change within the same tick would otherwise keep its identity.
    bool Settled(const std::string& path, const FileIdentity& id);
    static bool Worth(const DocReading& reading);
    bool Lookup(const std::string& path, const FileIdentity& id, DocReading& reading);
    void TakeFolderHits(const std::string& dir, const std::vector<std::string>& paths,
                        const std::vector<FileIdentity>* known, size_t first, size_t end, std::vector<bool>& hit);

    void Written();

    std::unique_ptr<DocCache> cache_;
    std::function<void()> onFirstWrite_;
    bool flushAsked_ = false;
    DocReadAhead readAhead_;
    std::unordered_map<std::string, DocReading> hits_;
    std::unordered_set<std::string> planned_;  // read on the pool
    std::string slackDir_;
    int64_t slackNs_ = 0;
};
