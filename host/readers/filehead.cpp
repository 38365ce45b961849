#include "host/readers/filehead.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool ReadFileHead(const std::string& path, size_t limit, std::string& out, bool& whole)
{
    out.clear();
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct stat st {};
    // Sized by the file, not by the limit: most documents are far smaller than it.
    const size_t expected = fstat(fd, &st) == 0 && st.st_size > 0 ? size_t(st.st_size) : 0;
    out.resize(std::min(expected, limit));
    size_t done = 0;
    while (done < out.size()) {
        const ssize_t got = read(fd, out.data() + done, out.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += size_t(got);
    }
    out.resize(done);
    // One byte more tells whether the file goes on past what was read.
    char more = 0;
    ssize_t extra;
    do
        extra = read(fd, &more, 1);
    while (extra < 0 && errno == EINTR);
    whole = extra == 0;
    close(fd);
    return true;
}

bool ReadDocBytes(const std::string& path, uint64_t fileSize, DocBytes& doc)
{
    doc.path = path;
    // A file that grew since it was seen is not whole: its readers take the path.
    return ReadFileHead(path, fileSize <= kWholeReadLimit ? kWholeReadLimit : kSignatureBytes, doc.bytes, doc.whole);
}
