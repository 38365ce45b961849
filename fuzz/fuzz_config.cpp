// Feeds arbitrary bytes to the configuration reader as a configuration file, then exports
// and saves what was read. Any crash, hang or sanitizer report is a bug.
// Every save syncs the file: run with TMPDIR on a memory file system (/dev/shm) for speed.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"

namespace {
// A private directory for the run's configuration file, removed when the run ends.
class WorkDir {
public:
    WorkDir()
    {
        std::string pattern = std::filesystem::temp_directory_path() / "fuzz_config.XXXXXX";
        if (!mkdtemp(pattern.data()))
            std::abort();
        dir_ = pattern;
    }
    ~WorkDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(dir_, ignored);
    }
    std::string File() const { return dir_ + "/docmgr.cfg"; }

private:
    std::string dir_;
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static ResModule module(Language::English);
    static const WorkDir dir;
    const std::string file = dir.File();
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), std::streamsize(size));
    }
    Config config(file);
    ImplDocConfig docConfig(&config, "*.odt");
    volatile size_t length = docConfig.Export().size();
    (void)length;
    docConfig.SaveConfig();
    if (docConfig.GroupCount() > 1)
        docConfig.RemoveGroup(0);
    docConfig.SaveGeneralSection();
    return 0;
}
