// Reading, updating and rewriting the index of one directory.
#include <unistd.h>

#include "docmgr/tools/filestream.h"
#include "docmgr/tools/fsutil.h"
#include "tests/records/indextestbase.h"

using indeximage::Record;
using indeximage::SampleRecord;
using Names = std::vector<std::string>;
using namespace std::string_literals;

TEST_F(IndexTest, MissingIndexIsWrittenAndNonDocumentsAreNotAskedAgain)
{
    Doc("a.odt");
    Doc("b.odt", "longer content");
    Doc("junk.bin");
    source.notDocuments.insert("junk.bin");

    ReadDir();
    // Records follow the order the file system lists the files in.
    Names documents;
    std::vector<Record> expected;
    for (const auto& item : fsutil::List(dir.Path(), "*", fsutil::Kind::Files)) {
        if (item.name == INDEX)
            continue;
        expected.push_back(item.name == "junk.bin" ? Record(item.name, false) : SampleRecord(item.name));
        if (item.name != "junk.bin")
            documents.push_back(item.name);
    }
    EXPECT_EQ(RowNames(), documents);
    EXPECT_EQ(source.TotalCalls(), 3);
    EXPECT_EQ(Index(), Image(expected));

    source.ResetCalls();
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 0) << "all records are current, junk.bin included";
    EXPECT_EQ(RowNames(), documents);
    EXPECT_EQ(rows.Row(1).title, documents[1]);
    EXPECT_EQ(rows.Row(1).size, dir.Size(documents[1])) << "size comes from the file system";
    EXPECT_EQ(Index(), Image(expected));
}

TEST_F(IndexTest, ChangedDocumentIsOverwrittenInPlace)
{
    Docs({"a.odt", "b.odt", "c.odt", "x.odt"});
    const std::string original = Image({SampleRecord("c.odt"), SampleRecord("b.odt"), SampleRecord("a.odt"), SampleRecord("x.odt")});
    WriteIndex(original, NEWER, 499);
    // b changed after the index was written; a was saved in the same nanosecond as the
    // index, which does not make the index younger; x changed and is no document now.
    dir.SetMTime("b.odt", NEWER + 50);
    dir.SetMTime("a.odt", NEWER, 499);
    dir.SetMTime("x.odt", NEWER + 1);
    source.notDocuments.insert("x.odt");
    DocInfo changed = TestSource::Sample("b.odt");
    changed.title = "New title";
    source.known["b.odt"] = changed;

    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"c.odt", "b.odt", "a.odt"})) << "record order";
    EXPECT_EQ(rows.Row(1).title, "New title");
    EXPECT_EQ(source.CallsFor(dir.PathOf("b.odt")), 1);
    EXPECT_EQ(source.CallsFor(dir.PathOf("a.odt")), 1);
    EXPECT_EQ(source.CallsFor(dir.PathOf("c.odt")), 0);
    EXPECT_EQ(source.CallsFor(dir.PathOf("x.odt")), 2) << "asked for the record, then as a new file";

    // Same length, only record 1 changed: a non-document is never appended.
    std::string expected = original;
    expected.replace(indeximage::RecordOffset(1), indeximage::RECORD_SIZE,
                     SampleRecord("b.odt").Text(indeximage::TITLE, 63, "New title").Bytes());
    EXPECT_EQ(Index(), expected);

    // One nanosecond older than the index is current.
    source.ResetCalls();
    dir.SetMTime(INDEX, NEWER + 60, 499);
    dir.SetMTime("a.odt", NEWER + 60, 498);
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_EQ(rows.Row(1).title, "New title");
}

TEST_F(IndexTest, DamagedForeignOrOversizedIndexes)
{
    Doc("a.odt");
    const std::string good = Image({SampleRecord("a.odt")});
    const std::string foreign = indeximage::Header(255, 106, std::string_view("KIDY\0", 5)) + SampleRecord("a.odt").Bytes();
    const std::string fifth = std::string(good).replace(4, 1, "!");
    const Names a = {"a.odt"};
    // An empty `after` means the index is deleted.
    const struct {
        const char* what;
        std::string bytes;
        const char* pattern;
        off_t size;
        Names rows;
        int calls;
        std::string after;
    } cases[] = {
        {"short of magic and version: nothing listed once", "KIDX\0\xFF"s, "*", 0, {}, 0, ""},
        {"foreign: probed and kept", foreign, "*", 0, a, 1, foreign},
        {"nothing listed: even a foreign file goes", foreign, "*.none", 0, {}, 0, ""},
        {"the fifth byte is not looked at", fifth, "*", 0, a, 0, fifth},
        {"wrong version: probed and rewritten", indeximage::Header(254, 4) + SampleRecord("a.odt").Bytes(), "*", 0, a, 1, good},
        // A sparse file of 64 GiB: reading it whole would not fit in memory.
        {"oversized: probed and rewritten", good, "*", off_t(64) << 30, a, 1, good},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        WriteIndex(c.bytes);
        if (c.size != 0) {
            ASSERT_EQ(truncate(dir.PathOf(INDEX).c_str(), c.size), 0);
        }
        config.WorkingGroup().filterFiles = c.pattern;
        source.ResetCalls();
        ReadDir();
        EXPECT_EQ(RowNames(), c.rows);
        EXPECT_EQ(source.TotalCalls(), c.calls);
        EXPECT_EQ(dir.Exists(INDEX) ? Index() : "", c.after);
    }
}

TEST_F(IndexTest, TruncatedLastRecordIsLeftDuplicateOrVanishedRecordsCauseOneRewriteALockedIndexIsOnlyRead)
{
    Docs({"a.odt", "b.odt"});
    Record firstA = SampleRecord("a.odt");
    firstA.Text(indeximage::TITLE, 63, "first");
    const std::string truncated = Image({SampleRecord("a.odt")}) + SampleRecord("b.odt").Bytes().substr(0, 727);
    const struct {
        std::string index;
        int calls;
        std::string after;
    } cases[] = {
        {truncated, 1, truncated + SampleRecord("b.odt").Bytes()},  // b read and appended
        {Image({firstA, SampleRecord("gone.odt"), SampleRecord("a.odt"), SampleRecord("b.odt")}), 0,
         Image({firstA, SampleRecord("b.odt")})},  // the first of two records counts
    };
    for (const auto& c : cases) {
        WriteIndex(c.index);
        source.ResetCalls();
        ReadDir();
        EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
        EXPECT_EQ(source.TotalCalls(), c.calls);
        EXPECT_EQ(Index(), c.after);
    }
    EXPECT_EQ(rows.Row(0).title, "first");

    // A locked index is read but not written.
    const std::string original = Image({SampleRecord("a.odt"), SampleRecord("gone.odt")});
    WriteIndex(original);
    dir.SetMTime("a.odt", NEWER + 1);

    KxFileStream other;
    ASSERT_TRUE(other.Open(dir.PathOf(INDEX), KxFileStream::Mode::ReadWrite));
    ASSERT_TRUE(other.LockExclusive(0));
    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
    EXPECT_EQ(Index(), original) << "no update, no append, no rewrite while locked";

    // A short index under someone else's lock is not deleted either.
    WriteIndex("KI");
    ReadDir();
    EXPECT_TRUE(dir.Exists(INDEX));

    other.Close();
    ReadDir();
    EXPECT_FALSE(dir.Exists(INDEX));
    ReadDir();
    EXPECT_EQ(Index().size(), indeximage::RecordOffset(2));
}
