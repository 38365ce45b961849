#include "host/cache/cachewriter.h"

CacheWriter::~CacheWriter()
{
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

void CacheWriter::Store(std::string path, const FileIdentity& id, std::string packed)
{
    {
        const std::lock_guard lock(mutex_);
        queue_.push_back({std::move(path), id, std::move(packed)});
        if (!thread_.joinable())
            thread_ = std::thread(&CacheWriter::Work, this);
    }
    wake_.notify_one();
}

void CacheWriter::Drain()
{
    std::unique_lock lock(mutex_);
    drained_.wait(lock, [&] { return queue_.empty() && !writing_; });
}

void CacheWriter::Work()
{
    std::unique_lock lock(mutex_);
    std::vector<Item> batch;
    for (;;) {
        wake_.wait(lock, [&] { return stopping_ || !queue_.empty(); });
        if (queue_.empty())
            return;  // stopping, and everything is written
        batch.swap(queue_);
        writing_ = true;
        lock.unlock();
        for (const Item& item : batch)
            cache_.Store(item.path, item.id, item.packed);
        batch.clear();
        lock.lock();
        writing_ = false;
        drained_.notify_all();
    }
}
