#include "host/readers/readahead.h"

#include <algorithm>

#include "host/readers/docreader.h"

DocReadAhead::~DocReadAhead()
{
    Stop();
}

void DocReadAhead::Stop()
{
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    for (std::thread& worker : workers_)
        worker.join();
    workers_.clear();
    paths_.clear();
    index_.clear();
    results_.clear();
    states_.clear();
    next_ = 0;
    stopping_ = false;
}

void DocReadAhead::Start(const std::vector<std::string>& paths)
{
    Stop();
    if (paths.size() < 2)
        return;  // one document is read as soon as it is asked for
    paths_ = paths;
    results_.resize(paths_.size());
    states_.assign(paths_.size(), State::Waiting);
    index_.reserve(paths_.size());
    for (size_t i = 0; i < paths_.size(); ++i)
        index_.emplace(paths_[i], i);
    const size_t cores = std::max(1u, std::thread::hardware_concurrency());
    for (size_t n = std::min(cores, paths_.size()); n > 0; --n)
        workers_.emplace_back(&DocReadAhead::Work, this);
}

void DocReadAhead::Work()
{
    std::unique_lock lock(mutex_);
    while (!stopping_ && next_ < paths_.size()) {
        const size_t i = next_++;
        if (states_[i] != State::Waiting)
            continue;  // the list asked before a worker got there
        states_[i] = State::Reading;
        lock.unlock();
        std::unique_ptr<DocInfo> info = ReadDocInfo(paths_[i]);
        lock.lock();
        results_[i] = std::move(info);
        states_[i] = State::Read;
        read_.notify_all();
    }
}

std::unique_ptr<DocInfo> DocReadAhead::Take(const std::string& path)
{
    std::unique_lock lock(mutex_);
    const auto found = index_.find(path);
    if (found == index_.end())
        return ReadDocInfo(path);
    const size_t i = found->second;
    switch (states_[i]) {
    case State::Waiting:
        states_[i] = State::Taken;
        lock.unlock();
        return ReadDocInfo(path);
    case State::Taken:
        lock.unlock();
        return ReadDocInfo(path);  // asked again: read again, as without the pool
    case State::Reading:
    case State::Read:
        read_.wait(lock, [&] { return states_[i] == State::Read; });
        states_[i] = State::Taken;
        return std::move(results_[i]);
    }
    return nullptr;
}
