#pragma once
// A directory, a document source and a row list for the index tests.
#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docrowlist.h"
#include "tests/support/indeximage.h"
#include "tests/support/tempdir.h"
#include "tests/support/testsource.h"

class IndexTest : public ::testing::Test {
protected:
    // Documents are written dated OLD, hand-made indexes dated NEWER: the index is
    // younger, also than the moment the files were made (their change time).
    static inline const int64_t OLD = time(nullptr) - 100000;
    static inline const int64_t NEWER = time(nullptr) + 1000;
    static constexpr const char* INDEX = ".docindex";

    void SetUp() override { rows.SetConfig(&config); }
    // Every directory pass names the documents it reads, in the order it reads them.
    void TearDown() override { EXPECT_EQ(source.PlanMisses(), 0); }

    // Reads the test directory alone into an empty list.
    void ReadDir(bool withSubdirs = false)
    {
        testfs::WaitForFileClock();
        rows.Clear();
        rows.ReadWriteDocInfos(dir.Path(), withSubdirs);
    }

    std::string Doc(const std::string& name, const std::string& contents = "content") { return dir.MakeFile(name, contents, OLD); }
    void Docs(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            Doc(name);
    }

    void WriteIndex(const std::string& bytes, int64_t seconds = NEWER, long ns = 0) { dir.MakeFile(INDEX, bytes, seconds, ns); }

    std::string Index() const { return dir.Read(INDEX); }

    // File names of the rows, in row order.
    std::vector<std::string> RowNames() const
    {
        std::vector<std::string> names;
        for (const auto& row : rows.Rows())
            names.push_back(row->entry.substr(row->entry.find_last_of('/') + 1));
        return names;
    }

    // The index a full rewrite makes of these records, in this order.
    static std::string Image(const std::vector<indeximage::Record>& records)
    {
        std::string bytes = indeximage::Header();
        for (const auto& record : records)
            bytes += record.Bytes();
        return bytes;
    }

    TempDir dir;
    TestSource source;
    ImplDocConfig config{nullptr, "*"};
    DocRowList rows{source, &source};
};
