#pragma once
// The collected rows as text for standard output: a padded table, tab-separated values
// or a JSON array.
#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "docmgr/records/docrows.h"
#include "host/cli/commandline.h"
#include "host/readers/readproblem.h"

class DocGroupConfig;

// The columns to show: `chosen` when given, else the group's slots in slot order without
// the slots that hold no column id (all 20 ids when no slot holds one).
std::vector<uint16_t> ListColumns(const DocGroupConfig& group, const std::vector<uint16_t>& chosen);

// Where a listing goes: its text is gathered a row at a time and handed on in large
// pieces, so that the whole listing is never held beside the rows.
class ListSink {
public:
    // Why a document could not be read; without it the document is read again to tell.
    using ProblemOf = std::function<ReadProblem(const std::string& path)>;
    explicit ListSink(std::ostream& out, ProblemOf problemOf = {}) : out_(out), problemOf_(std::move(problemOf)) {}
    ~ListSink() { Flush(); }
    ListSink(const ListSink&) = delete;
    ListSink& operator=(const ListSink&) = delete;

    std::string& Text() { return text_; }
    const ProblemOf& Problems() const { return problemOf_; }
    // A row is complete: what has gathered goes on once it is large.
    void RowDone()
    {
        if (text_.size() >= 1 << 16)
            Flush();
    }
    void Flush()
    {
        out_.write(text_.data(), std::streamsize(text_.size()));
        text_.clear();
    }

private:
    std::ostream& out_;
    ProblemOf problemOf_;
    std::string text_;
};

// A header of column titles and one line per row, each column as wide as its widest text
// in characters, one blank between columns.
void WriteTextList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                   const DocGroupConfig& group);
// A header line of titles and one line per row, texts separated by tabs.
void WriteTsvList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                  const DocGroupConfig& group);
// The same texts as comma-separated values, as the window exports them.
void WriteCsvList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                  const DocGroupConfig& group);
// One array of objects in list order with the raw values of every row.
void WriteJsonList(ListSink& sink, const DocRows& rows);

void WriteList(ListFormat format, ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
               const DocGroupConfig& group);

// "YYYY-MM-DDTHH:MM:SS", or empty when the date is unset (or no calendar date).
std::string IsoStamp(const Date& date, const Time& time);
