#include "host/cache/folderentries.h"

#include "host/cache/blobbytes.h"

using namespace blobbytes;

void AppendEntry(std::string& blob, std::string_view name, const FileIdentity& id, int64_t seenDay,
                 std::string_view packed)
{
    PutRun(blob, name);
    for (int64_t number : {int64_t(id.dev), int64_t(id.ino), id.size, id.mtimeNs, id.ctimeNs, seenDay})
        Put(blob, number);
    PutRun(blob, packed);
}

bool FolderEntries::Next(FolderEntry& entry)
{
    std::string_view in = rest_;
    int64_t dev = 0, ino = 0;
    if (!GetRun(in, entry.name) || !Get(in, dev) || !Get(in, ino) || !Get(in, entry.id.size) ||
        !Get(in, entry.id.mtimeNs) || !Get(in, entry.id.ctimeNs) || !Get(in, entry.seenDay) ||
        !GetRun(in, entry.packed)) {
        rest_ = {};
        return false;
    }
    entry.id.dev = uint64_t(dev);
    entry.id.ino = uint64_t(ino);
    rest_ = in;
    return true;
}
