#pragma once
// The records of an index, read block by block into one buffer: an index of any size
// costs the memory of one block, and each pass reads every byte once, straight into place.
#include <cstdint>
#include <memory>

#include "docmgr/records/docrecord.h"
#include "docmgr/tools/filestream.h"

class IndexBlocks {
public:
    // The whole records that lie between the byte offsets `first` and `end` of `stream`.
    IndexBlocks(KxFileStream& stream, uint64_t first, uint64_t end)
        : stream_(stream), first_(first), end_(end), block_(new char[BLOCK_RECORDS * DocRecord::SIZE])
    {}

    // Calls fn(offset, bytes) for each whole record in file order; a record the file no
    // longer holds ends the walk. `fn` may move the stream's position.
    template <class Fn>
    void ForEach(Fn&& fn)
    {
        for (uint64_t offset = first_; offset + DocRecord::SIZE <= end_;) {
            const uint64_t records = std::min<uint64_t>(BLOCK_RECORDS, (end_ - offset) / DocRecord::SIZE);
            stream_.Seek(offset);
            const size_t got = stream_.Read(block_.get(), size_t(records) * DocRecord::SIZE) / DocRecord::SIZE;
            for (size_t i = 0; i < got; ++i)
                fn(offset + i * DocRecord::SIZE, block_.get() + i * DocRecord::SIZE);
            if (got < records)
                return;
            offset += records * DocRecord::SIZE;
        }
    }

private:
    static constexpr size_t BLOCK_RECORDS = 1440;  // about 1 MiB

    KxFileStream& stream_;
    uint64_t first_;
    uint64_t end_;
    std::unique_ptr<char[]> block_;  // not zeroed: every byte used is read first
};
