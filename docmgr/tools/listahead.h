#pragma once
// Lists folders ahead of the one being read, on a thread of its own: while a recursive
// listing reads one folder's index, the folders it comes to next are listed (and every
// file stated) on the other core. Folders are listed in the order they will be read:
// a folder's subfolders before the folders that were waiting behind it.
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "docmgr/tools/fsutil.h"

class ListAhead {
public:
    // A listing of files as fsutil::List gives it, the subfolders from the same pass,
    // and the clock read just before.
    struct Listing {
        std::vector<fsutil::DirItem> files;
        std::vector<fsutil::DirItem> subdirs;
        fsutil::ListStatus status;
        int64_t startedNs = 0;
    };

    // Files of the folders are listed with `pattern`.
    explicit ListAhead(std::string pattern);
    ~ListAhead();
    ListAhead(const ListAhead&) = delete;
    ListAhead& operator=(const ListAhead&) = delete;

    // `dirs` are read next, in this order, before anything asked for earlier.
    void Want(const std::vector<std::string>& dirs);
    // The listing of `dir` when it was made or is being made (lists the next folder
    // meanwhile, or waits); none when it was not begun, and the caller lists it itself.
    std::optional<Listing> Take(const std::string& dir);

    // The clock file times are stamped from: a file changed after this moment carries a
    // time no earlier than it.
    static int64_t FileClockNowNs();

private:
    static Listing ListNow(const std::string& dir, const std::string& pattern);
    void Run();

    const std::string pattern_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::string> waiting_;
    std::string busy_;  // being listed now
    std::map<std::string, Listing> done_;
    bool stopping_ = false;
    std::thread thread_;
};
