#pragma once
// The rows of a listing, packed: a row's texts lie one after the other in large shared
// blocks (each with its length in front), its stamps and size in a fixed slot, its folder
// once for all the rows of that folder. A row costs what it holds, and emptying the store
// frees a handful of blocks, not a million objects. DocInfos are made only when someone
// asks for one.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "docmgr/records/docinfo.h"

class RowStore {
public:
    using Id = uint32_t;

    // The texts of a row in the order they are stored.
    enum Text : uint8_t {
        NAME,
        TITLE,
        TOPIC,
        AUTHOR,
        MODIFIED_BY,
        PRINTED_BY,
        COMMENT,
        KEYWORDS,
        INFO0,
        TEXT_COUNT = 12
    };

    // A row as handed in: the entry split at its last "/" (the folder keeps the "/"),
    // the other texts as views, stamps as numbers.
    struct Fields {
        std::string_view folder;
        std::string_view texts[TEXT_COUNT];
        uint32_t size = 0;
        uint32_t dates[3] = {};  // created, modified, printed
        int32_t times[3] = {};
    };

    RowStore();
    ~RowStore();
    RowStore(const RowStore&) = delete;
    RowStore& operator=(const RowStore&) = delete;

    Id Add(const Fields& fields);
    Id Add(const DocInfo& info);
    // Frees every row at once.
    void Clear();
    size_t Size() const { return slots_.size(); }

    std::string_view TextOf(Id row, Text text) const;
    std::string_view FolderOf(Id row) const { return folders_[slots_[row].folder]; }
    uint32_t SizeOf(Id row) const { return slots_[row].size; }
    uint32_t DateOf(Id row, int which) const { return slots_[row].dates[which]; }
    int32_t TimeOf(Id row, int which) const { return slots_[row].times[which]; }
    // The full path of the row's file, as it was handed in.
    std::string EntryOf(Id row) const;
    // Every field of `out` from the row; `out`'s strings keep their room, so filling one
    // DocInfo again and again allocates nothing once it has grown.
    void Fill(Id row, DocInfo& out) const;

private:
    struct Slot {
        uint64_t text;  // block << 32 | offset of the row's first text
        uint32_t folder;
        uint32_t size;
        uint32_t dates[3];
        int32_t times[3];
    };
    char* Room(size_t bytes, uint64_t& at);

    std::vector<Slot> slots_;
    std::vector<std::unique_ptr<char[]>> blocks_;
    size_t used_ = 0;  // bytes taken in the last block
    std::vector<std::string> folders_;
};

// Entry split into the folder part (with its last "/") and the name.
std::string_view FolderPart(std::string_view entry);
