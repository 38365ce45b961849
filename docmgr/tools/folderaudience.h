#pragma once
// Who may read a folder, and whether each of them may read a file listed in it too. An
// index that everyone who lists the folder reads must never tell them what they could not
// read in the file itself, and must itself be readable by all of them.
#include <cstdint>
#include <string>

#include "docmgr/tools/fsutil.h"

class FolderAudience {
public:
    // The readers of `dir`: everybody, its group, or its owner alone, by its permissions.
    explicit FolderAudience(const std::string& dir);

    // True when every reader of the folder may read the file of `item` as well; for a
    // link, the file it leads to, through every folder on the way there.
    bool MayRead(const std::string& dir, const fsutil::DirItem& item) const;

    // Permissions for an index of the folder: read for whoever may read the folder, write
    // for whoever may write it (unless the folder is sticky and others may not replace it).
    uint32_t IndexMode() const;
    uint32_t Owner() const { return uid_; }
    uint32_t Group() const { return gid_; }

private:
    enum class Reader { Everybody, Group, Owner };
    // Whether the readers have the permission `bit` (4 read, 1 search) on a file of
    // these permissions and owners.
    bool Grants(uint32_t mode, uint32_t uid, uint32_t gid, uint32_t bit) const;
    bool MayReachThrough(const std::string& target) const;

    Reader readers_ = Reader::Owner;
    uint32_t mode_ = 0700;
    uint32_t uid_ = 0;
    uint32_t gid_ = 0;
};
