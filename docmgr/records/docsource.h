#pragma once
// What the row list needs from its owner: document information for a file, and which
// rows are selected; and whom it tells how a collection goes.
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "docmgr/tools/fsutil.h"

class DocSource {
public:
    virtual ~DocSource() = default;
    // A new DocInfo for the file at `path`, or null when it is not a document.
    virtual std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) = 0;
    // The files of one directory whose information is asked for next, in that order: a
    // source may start reading them (on other threads, say). What CreateDocInfo returns
    // must not depend on it.
    virtual void ReadAhead(const std::vector<std::string>& /*paths*/) {}
    // The same with what the listing's stat of each file gave (`items[i]` for `paths[i]`),
    // for a source that keeps what it read and so can tell a file it knows without a stat
    // of its own. By default the status goes unused.
    virtual void ReadAheadKnown(const std::vector<std::string>& paths,
                                const std::vector<const fsutil::DirItem*>& /*items*/)
    {
        ReadAhead(paths);
    }
};

// Hears how a collection goes: the list's progress display, a listing's warnings.
class CollectObserver {
public:
    virtual ~CollectObserver() = default;
    // Called now and then while a collection runs (directories and documents so far).
    virtual void CollectProgress(size_t /*dirs*/, size_t /*docs*/) {}
    // Called for a directory that could not be listed (`error` is an errno value); it
    // adds no rows.
    virtual void DirectoryUnreadable(const std::string& /*dir*/, int /*error*/) {}
    // Called for each directory the collection lists (absolute, also one that cannot be
    // read): the folders the list shows, which the window watches.
    virtual void DirectoryRead(const std::string& /*dir*/) {}
};

// The selected rows, in ascending order, as the list view reports them.
class DocSelection {
public:
    virtual ~DocSelection() = default;
    // First selected row, or -1.
    virtual long FirstSelected() const = 0;
    // Next selected row after `row`, or -1.
    virtual long NextSelected(long row) const = 0;
};
