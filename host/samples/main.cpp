// docmanager-samples: writes a library of sample documents for the demo, the tests and
// the benchmarks.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "host/samples/samplelibrary.h"

namespace {

int Usage(const char* message)
{
    if (message && *message)
        std::fprintf(stderr, "docmanager-samples: %s\n", message);
    std::fprintf(stderr, "Usage: docmanager-samples DIR [COUNT] [--seed N]\n"
                         "Writes COUNT sample documents (default 24: ODF text, DOCX, PDF with XMP,\n"
                         "flat ODF text and RTF in turn) and a few files that are not documents into DIR.\n"
                         "Legacy Office files are not written: their document body is beyond this tool.\n");
    return 2;
}

bool ParseNumber(const std::string& text, unsigned long limit, unsigned long& value)
{
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    errno = 0;
    value = std::strtoul(text.c_str(), nullptr, 10);
    return errno == 0 && value <= limit;
}

}  // namespace

int main(int argc, char** argv)
{
    std::string dir;
    unsigned long count = 24;
    unsigned long seed = 1;
    bool haveCount = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            Usage(nullptr);
            return 0;
        }
        if (arg == "--seed") {
            if (i + 1 >= argc || !ParseNumber(argv[++i], 0xFFFFFFFFul, seed))
                return Usage("--seed needs a number from 0 to 4294967295");
        } else if (arg.size() > 1 && arg[0] == '-') {
            return Usage(("unknown option " + arg).c_str());
        } else if (dir.empty()) {
            dir = arg;
        } else if (!haveCount) {
            if (!ParseNumber(arg, 100000, count))
                return Usage("COUNT must be a number from 0 to 100000");
            haveCount = true;
        } else {
            return Usage(("unexpected argument " + arg).c_str());
        }
    }
    if (dir.empty())
        return Usage("no directory given");

    std::error_code ec;
    std::filesystem::create_directories(dir, ec);
    if (ec || !std::filesystem::is_directory(dir)) {
        std::fprintf(stderr, "docmanager-samples: cannot create %s: %s\n", dir.c_str(), ec.message().c_str());
        return 1;
    }
    const SampleLibraryResult result = WriteSampleLibrary(dir, int(count), uint32_t(seed));
    if (!result.error.empty()) {
        std::fprintf(stderr, "docmanager-samples: %s\n", result.error.c_str());
        return 1;
    }
    std::printf("Wrote %d documents and %d other files to %s\n", result.documents, result.others, dir.c_str());
    return 0;
}
