#include "host/launcher/installedfiles.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

std::string InstalledFile(const char* name, const char* installedDirFromProgram)
{
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    const fs::path dir = error ? fs::path(".") : self.parent_path();
    const fs::path beside = dir / name;
    if (fs::exists(beside, error))
        return beside.string();
    return (dir / installedDirFromProgram / name).lexically_normal().string();
}

}  // namespace

std::string WindowProgram()
{
    return InstalledFile("docmanager-window", DOCMGR_WINDOW_DIR_FROM_PROGRAM);
}

std::string PdfOleModule()
{
    return InstalledFile("docmanager-pdfole.so", DOCMGR_MODULE_DIR_FROM_PROGRAM);
}
