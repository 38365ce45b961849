// Reading, updating and rewriting the index of one directory.
#include <sys/stat.h>
#include <unistd.h>

#include "docmgr/tools/filestream.h"
#include "docmgr/tools/fsutil.h"
#include "tests/records/indextestbase.h"

using indeximage::Record;
using indeximage::SampleRecord;
using Names = std::vector<std::string>;
using namespace std::string_literals;

namespace {

// Names of the listed files other than the index, in the order the file system gives.
Names Listed(const std::string& dir)
{
    Names names;
    for (const auto& item : fsutil::List(dir, "*", fsutil::Kind::Files)) {
        if (item.name != ".docindex")
            names.push_back(item.name);
    }
    return names;
}

Record RecordFor(const std::string& name)
{
    return name == "junk.bin" ? Record(name, false) : SampleRecord(name);
}

}  // namespace

TEST_F(IndexTest, MissingIndexIsWrittenAndNonDocumentsAreNotAskedAgain)
{
    Doc("a.odt");
    Doc("b.odt", "longer content");
    Doc("junk.bin");
    source.notDocuments.insert("junk.bin");

    ReadDir();
    const Names listed = Listed(dir.Path());
    Names documents;
    std::vector<Record> expected;
    for (const auto& name : listed) {
        expected.push_back(RecordFor(name));
        if (name != "junk.bin")
            documents.push_back(name);
    }
    EXPECT_EQ(RowNames(), documents);
    EXPECT_EQ(source.TotalCalls(), 3);
    EXPECT_EQ(Index(), Image(expected));
    EXPECT_EQ(rows.Row(0).size, dir.Size(documents[0]));

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
    Doc("a.odt");
    Doc("b.odt");
    Doc("c.odt");
    const std::string original = Image({SampleRecord("c.odt"), SampleRecord("b.odt"), SampleRecord("a.odt")});
    WriteIndex(original);
    // b changed after the index was written; a was saved in the same nanosecond as the
    // index, which does not make the index younger.
    dir.SetMTime("b.odt", NEWER + 50);
    dir.SetMTime("a.odt", NEWER);
    DocInfo changed = TestSource::Sample("b.odt");
    changed.title = "New title";
    source.known["b.odt"] = changed;

    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"c.odt", "b.odt", "a.odt"})) << "record order";
    EXPECT_EQ(rows.Row(1).title, "New title");
    EXPECT_EQ(source.CallsFor(dir.PathOf("b.odt")), 1);
    EXPECT_EQ(source.CallsFor(dir.PathOf("a.odt")), 1);
    EXPECT_EQ(source.CallsFor(dir.PathOf("c.odt")), 0);

    std::string expected = original;
    const size_t b = indeximage::RecordOffset(1);
    expected.replace(b, indeximage::RECORD_SIZE,
                     SampleRecord("b.odt").Text(indeximage::TITLE, 63, "New title").Bytes());
    EXPECT_EQ(Index(), expected) << "same length, only record 1 changed";

    source.ResetCalls();
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_EQ(rows.Row(1).title, "New title");
}

TEST_F(IndexTest, IndexOlderByOneNanosecondIsNotCurrent)
{
    Doc("a.odt");
    dir.SetMTime("a.odt", NEWER, 500);
    WriteIndex(Image({SampleRecord("a.odt")}), NEWER, 499);
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 1);

    source.ResetCalls();
    dir.SetMTime("a.odt", NEWER, 498);
    dir.SetMTime(INDEX, NEWER, 499);
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 0);
}

TEST_F(IndexTest, ChangedDocumentThatIsNoLongerReadableIsProbedAgainAndNotListed)
{
    Doc("a.odt");
    Doc("x.odt");
    const std::string original = Image({SampleRecord("a.odt"), SampleRecord("x.odt")});
    WriteIndex(original);
    dir.SetMTime("x.odt", NEWER + 1);
    source.notDocuments.insert("x.odt");

    ReadDir();
    EXPECT_EQ(RowNames(), Names{"a.odt"});
    EXPECT_EQ(source.CallsFor(dir.PathOf("x.odt")), 2) << "asked for the record, then as a new file";
    EXPECT_EQ(Index(), original) << "a non-document is never appended";
}

TEST_F(IndexTest, TruncatedLastRecordIsLeftAndNewDocumentAppended)
{
    Doc("a.odt");
    Doc("b.odt");
    const std::string partial = SampleRecord("b.odt").Bytes().substr(0, 727);
    const std::string original = Image({SampleRecord("a.odt")}) + partial;
    WriteIndex(original);

    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
    EXPECT_EQ(source.CallsFor(dir.PathOf("a.odt")), 0);
    EXPECT_EQ(source.CallsFor(dir.PathOf("b.odt")), 1);
    EXPECT_EQ(Index(), original + SampleRecord("b.odt").Bytes());
}

TEST_F(IndexTest, ShortIndexListsNothingOnceAndIsDeleted)
{
    Doc("a.odt");
    WriteIndex("KIDX\0\xFF"s);  // 6 bytes: short of magic and version

    ReadDir();
    EXPECT_TRUE(RowNames().empty());
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_FALSE(dir.Exists(INDEX));

    ReadDir();
    EXPECT_EQ(RowNames(), Names{"a.odt"});
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));
}

TEST_F(IndexTest, UnopenableIndexListsNothingOnceAndIsDeleted)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root opens any file";
    Doc("a.odt");
    WriteIndex(Image({SampleRecord("a.odt")}));
    chmod(dir.PathOf(INDEX).c_str(), 0);
    ReadDir();
    EXPECT_TRUE(RowNames().empty());
    EXPECT_FALSE(dir.Exists(INDEX));
}

TEST_F(IndexTest, BadMagicProbesAllButKeepsTheForeignFile)
{
    Doc("a.odt");
    Doc("b.odt");
    const std::string foreign = indeximage::Header(255, 106, std::string_view("KIDY\0", 5)) +
                                SampleRecord("a.odt").Bytes();
    WriteIndex(foreign);

    ReadDir();
    EXPECT_EQ(RowNames(), Listed(dir.Path()));
    EXPECT_EQ(source.TotalCalls(), 2);
    EXPECT_EQ(Index(), foreign);

    // The fifth byte is not looked at: this one is good.
    WriteIndex(Image({SampleRecord("a.odt"), SampleRecord("b.odt")}).replace(4, 1, "!"));
    source.ResetCalls();
    ReadDir();
    EXPECT_EQ(source.TotalCalls(), 0);

    // With nothing listed, even a foreign file goes.
    dir.Remove("a.odt");
    dir.Remove("b.odt");
    WriteIndex(foreign);
    ReadDir();
    EXPECT_FALSE(dir.Exists(INDEX));
}

TEST_F(IndexTest, WrongVersionIsReprobedAndRewritten)
{
    Doc("a.odt");
    WriteIndex(indeximage::Header(254, 4) + SampleRecord("a.odt").Bytes());

    ReadDir();
    EXPECT_EQ(RowNames(), Names{"a.odt"});
    EXPECT_EQ(source.TotalCalls(), 1) << "its records are not trusted";
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));
}

TEST_F(IndexTest, LongNamesAreNeverKeptByARewrite)
{
    const std::string longName = std::string(36, 'L') + ".odt";
    Doc("a.odt");
    Doc(longName);

    ReadDir();
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));
    EXPECT_EQ(RowNames().size(), 2u);

    // No record: appended with its name cut to 32 bytes.
    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"a.odt", longName}));
    Record cut = SampleRecord(longName.substr(0, 32));
    cut.Text(indeximage::TITLE, 63, longName);
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt"), cut}));

    // The cut record matches no file: full rewrite without it.
    source.ResetCalls();
    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"a.odt", longName}));
    EXPECT_EQ(source.TotalCalls(), 1);
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));
}

TEST_F(IndexTest, DuplicateAndVanishedRecordsCauseOneRewrite)
{
    Doc("a.odt");
    Doc("b.odt");
    Record firstA = SampleRecord("a.odt");
    firstA.Text(indeximage::TITLE, 63, "first");
    WriteIndex(Image({firstA, SampleRecord("gone.odt"), SampleRecord("a.odt"), SampleRecord("b.odt")}));

    ReadDir();
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
    EXPECT_EQ(rows.Row(0).title, "first");
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_EQ(Index(), Image({firstA, SampleRecord("b.odt")}));
}

TEST_F(IndexTest, SwitchingThePatternRewritesTheIndex)
{
    Doc("a.odt");
    Doc("b.txt");
    config.WorkingGroup().filterFiles = "*.ODT;*.pdf";  // alternatives, any case

    ReadDir();
    EXPECT_EQ(RowNames(), Names{"a.odt"});
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));

    config.WorkingGroup().filterFiles = "*.txt";
    ReadDir();
    EXPECT_EQ(RowNames(), Names{"b.txt"});
    EXPECT_EQ(Index(), Image({SampleRecord("b.txt")}));

    config.WorkingGroup().filterFiles = "";  // empty means every file
    source.ResetCalls();
    ReadDir();
    EXPECT_EQ(RowNames().size(), 2u);
    EXPECT_EQ(source.CallsFor(dir.PathOf("a.odt")), 1);
    EXPECT_EQ(source.CallsFor(dir.PathOf("b.txt")), 0);

    config.WorkingGroup().filterFiles = "*.none";
    ReadDir();
    EXPECT_TRUE(RowNames().empty());
    EXPECT_FALSE(dir.Exists(INDEX)) << "nothing listed: no index";
}

TEST_F(IndexTest, EmptyDirectoryGetsNoIndex)
{
    ReadDir();
    EXPECT_TRUE(RowNames().empty());
    EXPECT_FALSE(dir.Exists(INDEX));
    EXPECT_EQ(source.progressCalls, 1u);
}

TEST_F(IndexTest, ManyFilesMatchTheirRecordsInAnyOrder)
{
    constexpr int COUNT = 3000;
    std::vector<Record> records;
    for (int i = COUNT - 1; i >= 0; --i) {
        const std::string name = "doc" + std::to_string(i) + ".odt";
        Doc(name);
        records.push_back(SampleRecord(name));
        if (i % 1000 == 0)
            records.push_back(SampleRecord("vanished" + std::to_string(i) + ".odt"));
    }
    WriteIndex(Image(records));

    ReadDir();
    ASSERT_EQ(rows.GetRowCount(), COUNT);
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_EQ(RowNames().front(), "doc" + std::to_string(COUNT - 1) + ".odt");
    EXPECT_EQ(RowNames().back(), "doc0.odt");
    EXPECT_EQ(dir.Size(INDEX), indeximage::RecordOffset(COUNT)) << "vanished records dropped";
}

TEST_F(IndexTest, LockedIndexIsReadButNotWritten)
{
    Doc("a.odt");
    Doc("b.odt");
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
