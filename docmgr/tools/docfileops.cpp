#include "docmgr/tools/docfileops.h"

#include <cerrno>
#include <string_view>

#include "docmgr/tools/fsutil.h"

namespace docfileops {

int CopyInto(const std::string& source, const std::string& targetDir)
{
    return fsutil::CopyFile(source, fsutil::Join(targetDir, fsutil::FileName(source)));
}

int MoveInto(const std::string& source, const std::string& targetDir)
{
    return MoveTo(source, fsutil::Join(targetDir, fsutil::FileName(source)));
}

int MoveTo(const std::string& source, const std::string& target)
{
    if (fsutil::MoveFile(source, target) == 0)
        return 0;
    // The rename cannot cross devices; a copy can. It fails on an existing target too,
    // so the source is only removed once a complete copy stands under the new name.
    if (const int error = fsutil::CopyFile(source, target))
        return error;
    fsutil::Remove(source);
    return 0;
}

bool StaysBelow(const std::string& name)
{
    if (name.empty() || name.front() == '/')
        return false;
    size_t start = 0;
    while (start <= name.size()) {
        size_t end = name.find('/', start);
        if (end == std::string::npos)
            end = name.size();
        if (std::string_view(name).substr(start, end - start) == "..")
            return false;
        start = end + 1;
    }
    return true;
}

std::string FolderPath(const std::string& base, const std::string& name)
{
    return fsutil::Absolute(fsutil::Join(base, name));
}

int MakeFolder(const std::string& base, const std::string& name)
{
    if (!StaysBelow(name))
        return EINVAL;
    const std::string folder = FolderPath(base, name);
    const int error = fsutil::MakeDir(folder);
    if (error == EEXIST && fsutil::IsDirectory(folder))
        return 0;
    return error;
}

bool IsPlainName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

int RenameTo(const std::string& path, const std::string& newName)
{
    if (!IsPlainName(newName))
        return EINVAL;
    return fsutil::MoveFile(path, fsutil::Join(fsutil::DirName(path), newName));
}

}  // namespace docfileops
