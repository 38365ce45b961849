#include "docmgr/tools/folderaudience.h"

#include <cstdlib>
#include <memory>
#include <sys/stat.h>

FolderAudience::FolderAudience(const std::string& dir)
{
    struct stat st {};
    if (stat(dir.c_str(), &st) != 0)
        return;
    mode_ = uint32_t(st.st_mode);
    uid_ = uint32_t(st.st_uid);
    gid_ = uint32_t(st.st_gid);
    readers_ = (mode_ & S_IROTH) ? Reader::Everybody : (mode_ & S_IRGRP) ? Reader::Group : Reader::Owner;
}

bool FolderAudience::Grants(uint32_t mode, uint32_t uid, uint32_t gid, uint32_t bit) const
{
    const bool others = mode & bit;
    const bool group = mode & (bit << 3);
    switch (readers_) {
    case Reader::Everybody: return others;
    case Reader::Group: return others || (group && gid == gid_);
    case Reader::Owner:
        if (uid_ == 0)
            return true;  // the administrator reads everything anyway
        if (uid == uid_)
            return mode & (bit << 6);
        return gid == gid_ ? group : others;
    }
    return false;
}

// Every folder from the root down to the one holding `target` must let the readers pass.
bool FolderAudience::MayReachThrough(const std::string& target) const
{
    for (size_t slash = target.find('/', 1); slash != std::string::npos; slash = target.find('/', slash + 1)) {
        struct stat st {};
        if (stat(target.substr(0, slash).c_str(), &st) != 0 ||
            !Grants(uint32_t(st.st_mode), uint32_t(st.st_uid), uint32_t(st.st_gid), 1))
            return false;
    }
    return true;
}

bool FolderAudience::MayRead(const std::string& dir, const fsutil::DirItem& item) const
{
    if (!Grants(item.mode, item.uid, item.gid, 4))
        return false;
    if (!item.isLink)
        return true;
    const std::unique_ptr<char, decltype(&free)> target(realpath(fsutil::Join(dir, item.name).c_str(), nullptr), &free);
    return target && MayReachThrough(target.get());
}

uint32_t FolderAudience::IndexMode() const
{
    const uint32_t write = (mode_ & S_ISVTX) ? 0 : (mode_ & (S_IWGRP | S_IWOTH));
    return S_IRUSR | S_IWUSR | (mode_ & (S_IRGRP | S_IROTH)) | write;
}
