// Any bytes as a directory's index: reading must neither crash nor list a file twice,
// and the index it leaves behind must read again just as safely.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "docmgr/records/docrowlist.h"

namespace {

constexpr const char* INDEX = ".docindex";
constexpr long FILE_COUNT = 4;

// Documents are named *.odt; anything else is not a document.
class FuzzSource : public DocSource {
public:
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override
    {
        if (path.size() < 4 || path.compare(path.size() - 4, 4, ".odt") != 0)
            return nullptr;
        auto info = std::make_unique<DocInfo>();
        info->title = path.substr(path.find_last_of('/') + 1);
        info->comment = "line\nbreak";
        info->createdDate = Date(29, 2, 2024);
        return info;
    }
};

void WriteFile(const std::string& path, const char* data, size_t size)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(data, std::streamsize(size));
}

void SetMTime(const std::string& path, time_t seconds)
{
    const timespec times[2] = {{seconds, 0}, {seconds, 0}};
    utimensat(AT_FDCWD, path.c_str(), times, 0);
}

// A directory with a few files, made once per process.
struct FuzzDir {
    std::string path;

    FuzzDir()
    {
        char pattern[] = "/tmp/fuzz-index-XXXXXX";
        if (!mkdtemp(pattern))
            std::abort();
        path = pattern;
        for (const char* name : {"a.odt", "b.odt", "notes.txt", "a-name-much-longer-than-32-bytes.odt"}) {
            const std::string file = path + "/" + name;
            WriteFile(file, name, 5);
            SetMTime(file, 1600000000);
        }
    }
    ~FuzzDir()
    {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
};

void ReadAndCheck(const std::string& dir)
{
    FuzzSource source;
    DocRowList rows(source);
    rows.ReadWriteDocInfos(dir, false);
    std::set<std::string> seen;
    for (const auto& row : rows.Rows()) {
        if (!seen.insert(row->entry).second || !row->HasInfo())
            __builtin_trap();
    }
    // A current record may call any listed file a document, but no file comes twice.
    if (rows.GetRowCount() > FILE_COUNT)
        __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static FuzzDir dir;
    const std::string index = dir.path + "/" + INDEX;
    WriteFile(index, reinterpret_cast<const char*>(data), size);
    // Younger than the documents, so its records are taken as they stand; the first
    // byte sometimes makes it older, so that records are overwritten in place.
    SetMTime(index, size > 0 && data[0] == 'O' ? 1500000000 : 1700000000);
    ReadAndCheck(dir.path);
    ReadAndCheck(dir.path);
    return 0;
}
