// Any bytes as a document: every reader must return without crashing, hanging or
// allocating without bound, whatever the file holds and whatever its name says.
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>

#include "host/readers/docreader.h"

namespace {

// The name matters only where the content says nothing (or an OLE file's streams do
// not): the last byte picks it, so that every seed is tried under a name of its own kind
// and of others.
constexpr std::array<const char*, 8> kExtensions = {".odt", ".docx", ".pdf", ".fodt", ".rtf", ".doc", ".xls", ".bin"};

std::string FuzzDir()
{
    static const std::string dir = [] {
        std::string pattern = "/tmp/fuzz_readers.XXXXXX";
        const char* made = ::mkdtemp(pattern.data());
        if (!made)
            std::abort();
        return std::string(made);
    }();
    return dir;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const char* extension = kExtensions[size == 0 ? 0 : data[size - 1] % kExtensions.size()];
    const std::string path = FuzzDir() + "/doc" + extension;
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), std::streamsize(size));
    }
    const DocReading reading = ReadDocument(path);
    if (reading.info && reading.info->entry != path)
        std::abort();
    ::unlink(path.c_str());
    return 0;
}
