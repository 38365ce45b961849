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
    ids_.clear();
    index_.clear();
    results_.clear();
    states_.clear();
    next_ = 0;
    stopping_ = false;
}

void DocReadAhead::Start(const std::vector<std::string>& paths, bool identify, std::vector<FileIdentity> ids)
{
    Stop();
    identify_ = identify;
    ids_ = std::move(ids);
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
        ++reading_;
        lock.unlock();
        Result result = Read(paths_[i], identify_, i < ids_.size() ? &ids_[i] : nullptr);
        lock.lock();
        results_[i] = std::move(result);
        states_[i] = State::Read;
        --reading_;
        read_.notify_all();
    }
}

std::unique_ptr<DocInfo> DocReadAhead::Take(const std::string& path)
{
    return TakeReading(path).info;
}

DocReadAhead::Result DocReadAhead::Read(const std::string& path, bool identify, const FileIdentity* given)
{
    Result result;
    if (given)
        result.id = *given;
    result.known = given || (identify && IdentityOf(path, result.id));
    result.reading = ReadDocument(path);
    return result;
}

DocReading DocReadAhead::TakeReading(const std::string& path, FileIdentity* id, bool* known)
{
    const auto handOut = [&](Result result) {
        if (id)
            *id = result.id;
        if (known)
            *known = result.known;
        return std::move(result.reading);
    };
    std::unique_lock lock(mutex_);
    const auto found = index_.find(path);
    // Not planned, or asked again: read here, as without the pool.
    if (found == index_.end()) {
        lock.unlock();
        return handOut(Read(path, id != nullptr));
    }
    const size_t i = found->second;
    index_.erase(found);
    const bool readHere = states_[i] == State::Waiting;
    Result read;
    if (readHere) {
        states_[i] = State::Read;  // no worker starts it now
    } else {
        read_.wait(lock, [&] { return states_[i] == State::Read; });
        read = std::move(results_[i]);
    }
    const bool hasGiven = i < ids_.size();
    const FileIdentity given = hasGiven ? ids_[i] : FileIdentity{};
    // The last one taken, and no worker busy (a path planned twice): the plan goes whole.
    if (index_.empty() && reading_ == 0) {
        std::vector<std::string>().swap(paths_);
        std::vector<Result>().swap(results_);
        std::vector<State>().swap(states_);
        std::vector<FileIdentity>().swap(ids_);
    } else {
        std::string().swap(paths_[i]);
    }
    lock.unlock();
    if (readHere)
        return handOut(Read(path, id != nullptr, hasGiven ? &given : nullptr));
    // Copied on this thread, to the texts' lengths: the reader's strings, grown among its
    // scratch buffers in its own arena, would pin that memory for as long as the row lives.
    if (read.reading.info)
        read.reading.info = std::make_unique<DocInfo>(*read.reading.info);
    return handOut(std::move(read));
}
