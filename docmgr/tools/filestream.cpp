#include "docmgr/tools/filestream.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

KxFileStream::~KxFileStream()
{
    Close();
}

bool KxFileStream::Open(const std::string& path, Mode mode)
{
    Close();
    int flags = O_CLOEXEC;
    switch (mode) {
    case Mode::Read: flags |= O_RDONLY; break;
    case Mode::ReadWrite: flags |= O_RDWR; break;
    }
    fd_ = open(path.c_str(), flags, 0666);
    position_ = 0;
    return fd_ >= 0;
}

void KxFileStream::Close()
{
    if (fd_ < 0)
        return;
    Unlock();
    close(fd_);
    fd_ = -1;
    position_ = 0;
}

size_t KxFileStream::Read(void* buffer, size_t n)
{
    size_t done = 0;
    while (fd_ >= 0 && done < n) {
        const ssize_t got = pread(fd_, static_cast<char*>(buffer) + done, n - done, off_t(position_ + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += size_t(got);
    }
    position_ += done;
    return done;
}

size_t KxFileStream::Write(const void* buffer, size_t n)
{
    size_t done = 0;
    while (fd_ >= 0 && done < n) {
        const ssize_t put = pwrite(fd_, static_cast<const char*>(buffer) + done, n - done, off_t(position_ + done));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            break;
        done += size_t(put);
    }
    position_ += done;
    return done;
}

void KxFileStream::Seek(uint64_t position)
{
    position_ = position;
}

uint64_t KxFileStream::Size() const
{
    struct stat st {};
    return fd_ >= 0 && fstat(fd_, &st) == 0 ? uint64_t(st.st_size) : 0;
}

bool KxFileStream::Status(uint64_t& size, int64_t& mtimeNs) const
{
    struct stat st {};
    if (fd_ < 0 || fstat(fd_, &st) != 0)
        return false;
    size = uint64_t(st.st_size);
    mtimeNs = int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
    return true;
}

bool KxFileStream::IsFileAt(const std::string& path) const
{
    struct stat open {};
    struct stat named {};
    return fd_ >= 0 && fstat(fd_, &open) == 0 && lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

bool KxFileStream::LockExclusive(int waitMs)
{
    if (fd_ < 0)
        return false;
    if (locked_)
        return true;
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(waitMs);
    for (;;) {
        if (fcntl(fd_, F_OFD_SETLK, &lock) == 0) {
            locked_ = true;
            return true;
        }
        // A read-only descriptor cannot hold a write lock; take a shared one instead.
        if (errno == EBADF && lock.l_type == F_WRLCK) {
            lock.l_type = F_RDLCK;
            continue;
        }
        // A file system without record locks (some FUSE and SMB mounts) cannot coordinate
        // writers at all; refusing would leave its indexes never written.
        if (errno == ENOLCK || errno == EINVAL || errno == EOPNOTSUPP)
            return true;
        if ((errno != EAGAIN && errno != EACCES && errno != EINTR) || std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void KxFileStream::Unlock()
{
    if (!locked_ || fd_ < 0)
        return;
    struct flock lock {};
    lock.l_type = F_UNLCK;
    lock.l_whence = SEEK_SET;
    fcntl(fd_, F_OFD_SETLK, &lock);
    locked_ = false;
}

uint32_t GetSystemCharSet()
{
    return 106;
}
