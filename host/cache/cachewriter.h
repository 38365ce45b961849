#pragma once
// Writes into the cache on a thread of its own, so that a listing that reads many new
// documents does not wait for the store's inserts between one document and the next.
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "host/cache/doccache.h"

class CacheWriter {
public:
    explicit CacheWriter(DocCache& cache) : cache_(cache) {}
    // Everything handed over is in the store's open transaction before the thread ends.
    ~CacheWriter();
    CacheWriter(const CacheWriter&) = delete;
    CacheWriter& operator=(const CacheWriter&) = delete;

    // `packed` is what PackReading made of the document at `path`.
    void Store(std::string path, const FileIdentity& id, std::string packed);
    // Returns once everything handed over so far is in the store's open transaction.
    void Drain();

private:
    struct Item {
        std::string path;
        FileIdentity id;
        std::string packed;
    };
    void Work();

    DocCache& cache_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable drained_;
    std::vector<Item> queue_;
    bool writing_ = false;
    bool stopping_ = false;
    std::thread thread_;  // started with the first item
};
