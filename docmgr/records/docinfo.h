#pragma once
// One file's document information in memory; a row of the list owns one.
#include <array>
#include <cstdint>
#include <string>

#include "docmgr/tools/datetime.h"

// `size` of a file that has no document information (not a document).
constexpr uint32_t NO_DOC_INFO = 0xFFFFFFFF;

struct DocInfo {
    std::string entry;  // absolute path of the file
    uint32_t size = 0;  // bytes, from the file system; NO_DOC_INFO: not a document
    std::string title;
    std::string topic;
    Date createdDate;
    Time createdTime;
    std::string author;
    Date modifiedDate;
    Time modifiedTime;
    std::string modifiedBy;
    Date printedDate;
    Time printedTime;
    std::string printedBy;
    std::string comment;
    std::string keywords;
    std::array<std::string, 4> info;

    bool HasInfo() const { return size != NO_DOC_INFO; }
    // Never printed: the printed stamp is the created stamp.
    bool NeverPrinted() const { return printedDate == createdDate && printedTime == createdTime; }
};
