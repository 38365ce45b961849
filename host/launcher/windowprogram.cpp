#include "host/launcher/windowprogram.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

std::string WindowProgram()
{
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    const fs::path dir = error ? fs::path(".") : self.parent_path();
    const fs::path beside = dir / "docmanager-window";
    if (fs::exists(beside, error))
        return beside.string();
    return (dir / ".." / "libexec" / "docmanager" / "docmanager-window").lexically_normal().string();
}
