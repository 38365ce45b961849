#pragma once
// A file stream on a POSIX descriptor: raw reads and writes at a position,
// and an exclusive advisory record lock (fcntl, also honoured on NFS and SMB).
#include <cstddef>
#include <cstdint>
#include <string>

class KxFileStream {
public:
    enum class Mode { Read, ReadWrite };

    KxFileStream() = default;
    ~KxFileStream();
    KxFileStream(const KxFileStream&) = delete;
    KxFileStream& operator=(const KxFileStream&) = delete;

    bool Open(const std::string& path, Mode mode);
    void Close();
    bool IsOpen() const { return fd_ >= 0; }

    // Reads or writes up to n bytes at the current position; returns the count moved.
    size_t Read(void* buffer, size_t n);
    size_t Write(const void* buffer, size_t n);

    void Seek(uint64_t position);
    uint64_t Tell() const { return position_; }
    uint64_t Size() const;
    // Size and modification time of the open file (not of whatever its name holds now).
    bool Status(uint64_t& size, int64_t& mtimeNs) const;

    // True while `path` still names the open file (it was not replaced or removed).
    bool IsFileAt(const std::string& path) const;
    // Exclusive lock on the whole file, waiting at most `waitMs`; false if not had.
    // It is an open-file-description lock: it conflicts with every other opener, in this
    // process too, and lasts until Unlock or Close of this stream.
    bool LockExclusive(int waitMs);
    void Unlock();

    void SetCharSet(uint32_t charSet) { charSet_ = charSet; }
    uint32_t GetCharSet() const { return charSet_; }

private:
    int fd_ = -1;
    uint64_t position_ = 0;
    uint32_t charSet_ = 0;
    bool locked_ = false;
};

// The character set new index files carry: 106, the IANA number of UTF-8.
uint32_t GetSystemCharSet();
