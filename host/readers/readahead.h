#pragma once
// Reads the documents of a directory on every core ahead of their turn, so that the row
// list, which asks for them one by one on its own thread, mostly finds them read. What it
// hands out is exactly what ReadDocument returns.
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <vector>

#include "host/readers/docreader.h"
#include "host/readers/fileidentity.h"

class DocReadAhead {
public:
    DocReadAhead() = default;
    ~DocReadAhead();
    DocReadAhead(const DocReadAhead&) = delete;
    DocReadAhead& operator=(const DocReadAhead&) = delete;

    // Starts reading `paths` in their order on a pool as large as the machine has cores;
    // what an earlier start read and nobody took is dropped.
    // With `identify` each file is stat'ed just before it is read (see TakeReading), unless
    // `ids` gives what a stat of the caller's just found (ids[i] for paths[i]).
    void Start(const std::vector<std::string>& paths, bool identify = false, std::vector<FileIdentity> ids = {});
    // The information of `path`: taken from the pool (waiting while it is being read), or
    // read here when it was not planned, not yet begun or already taken.
    std::unique_ptr<DocInfo> Take(const std::string& path);
    // The same with the reason a document could not be read in full, and the identity the
    // file had just before it was read (`known` false when it could not be stat'ed).
    DocReading TakeReading(const std::string& path, FileIdentity* id = nullptr, bool* known = nullptr);

private:
    enum class State : unsigned char { Waiting, Reading, Read };
    void Work();
    void Stop();

    // A path's memory is given back once its document is taken, so that at the end of a
    // large directory the plan costs next to nothing beside the rows it became.
    std::vector<std::string> paths_;
    std::unordered_map<std::string_view, size_t> index_;  // into paths_; the ones not yet taken
    struct Result {
        DocReading reading;
        FileIdentity id;
        bool known = false;
    };
    // `given`: the identity the caller gave at the start, which spares the stat.
    static Result Read(const std::string& path, bool identify, const FileIdentity* given = nullptr);
    std::vector<FileIdentity> ids_;
    std::vector<Result> results_;
    std::vector<State> states_;
    size_t next_ = 0;
    size_t reading_ = 0;  // documents a worker is reading now
    bool stopping_ = false;
    bool identify_ = false;
    std::mutex mutex_;
    std::condition_variable read_;
    std::vector<std::thread> workers_;
};
