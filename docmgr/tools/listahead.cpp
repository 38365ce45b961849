#include "docmgr/tools/listahead.h"

#include <algorithm>
#include <ctime>

namespace {
// Listings made and not yet taken: a folder of 100,000 files lists into some 10 MB.
constexpr size_t MAX_DONE = 2;
}  // namespace

ListAhead::ListAhead(std::string pattern) : pattern_(std::move(pattern))
{}

ListAhead::~ListAhead()
{
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

int64_t ListAhead::FileClockNowNs()
{
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return int64_t(now.tv_sec) * 1000000000 + now.tv_nsec;
}

void ListAhead::Want(const std::vector<std::string>& dirs)
{
    if (dirs.empty())
        return;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        waiting_.insert(waiting_.begin(), dirs.begin(), dirs.end());
    }
    if (!thread_.joinable())
        thread_ = std::thread([this] { Run(); });
    changed_.notify_all();
}

std::optional<ListAhead::Listing> ListAhead::Take(const std::string& dir)
{
    std::unique_lock<std::mutex> lock(mutex_);
    const auto queued = std::find(waiting_.begin(), waiting_.end(), dir);
    if (queued != waiting_.end()) {
        waiting_.erase(queued);  // not begun: quicker done here than waited for
        return std::nullopt;
    }
    // While the thread lists this folder, the asker lists the next one rather than wait:
    // the stats are shared out between both cores.
    while (busy_ == dir) {
        if (waiting_.empty() || done_.size() >= MAX_DONE) {
            changed_.wait(lock);
            continue;
        }
        const std::string next = waiting_.front();
        waiting_.pop_front();
        lock.unlock();
        Listing listing = ListNow(next, pattern_);
        lock.lock();
        done_[next] = std::move(listing);
    }
    const auto found = done_.find(dir);
    if (found == done_.end())
        return std::nullopt;
    Listing listing = std::move(found->second);
    done_.erase(found);
    lock.unlock();
    changed_.notify_all();  // room for the next
    return listing;
}

ListAhead::Listing ListAhead::ListNow(const std::string& dir, const std::string& pattern)
{
    Listing listing;
    listing.startedNs = FileClockNowNs();
    listing.files = fsutil::List(dir, pattern, fsutil::Kind::Files, &listing.status, &listing.subdirs);
    return listing;
}

void ListAhead::Run()
{
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
        changed_.wait(lock, [&] { return stopping_ || (!waiting_.empty() && done_.size() < MAX_DONE); });
        if (stopping_)
            return;
        const std::string dir = waiting_.front();
        busy_ = dir;
        waiting_.pop_front();
        lock.unlock();
        Listing listing = ListNow(dir, pattern_);
        lock.lock();
        done_[dir] = std::move(listing);
        busy_.clear();
        changed_.notify_all();
    }
}
