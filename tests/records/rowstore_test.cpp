// The packed rows: every field comes back as it went in, from records and from DocInfos.
#include <gtest/gtest.h>

#include <string>

#include "docmgr/records/docrecord.h"
#include "docmgr/records/rowstore.h"

namespace {

bool Same(const DocInfo& a, const DocInfo& b)
{
    return a.entry == b.entry && a.size == b.size && a.title == b.title && a.topic == b.topic && a.createdDate == b.createdDate &&
           a.createdTime == b.createdTime && a.author == b.author && a.modifiedDate == b.modifiedDate && a.modifiedTime == b.modifiedTime &&
           a.modifiedBy == b.modifiedBy && a.printedDate == b.printedDate && a.printedTime == b.printedTime && a.printedBy == b.printedBy &&
           a.comment == b.comment && a.keywords == b.keywords && a.info == b.info;
}

// Every text as long as the index holds it, each of its own letter.
DocInfo Widest(const std::string& entry)
{
    DocInfo info;
    info.entry = entry;
    info.size = NO_DOC_INFO - 1;
    info.title = std::string(63, 't');
    info.topic = std::string(63, 'o');
    info.author = std::string(31, 'a');
    info.modifiedBy = std::string(31, 'm');
    info.printedBy = std::string(31, 'p');
    info.comment = std::string(255, 'c');
    info.keywords = std::string(127, 'k');
    for (size_t i = 0; i < info.info.size(); ++i)
        info.info[i] = std::string(19, char('0' + i));
    info.createdDate = Date(31, 12, 2155);
    info.createdTime = Time(23, 59, 59, 99);
    info.modifiedDate = Date(1, 1, 1900);
    info.modifiedTime = Time(-int32_t(Time(8, 5, 3, 7).GetTime()));
    info.printedDate = Date(0u);
    return info;
}

}  // namespace

TEST(RowStore, DocInfosComeBackWholeAtEveryLengthAndEveryFolder)
{
    RowStore store;
    DocInfo huge = Widest("relative-name.odt");  // no folder at all
    huge.comment = std::string(3 << 20, 'h');    // larger than a block of its own
    huge.title = "Zweite Übersicht";
    const DocInfo rows[] = {Widest("/docs/a/" + std::string(255, 'n')),
                            DocInfo(),
                            huge,
                            Widest("/root.odt"),
                            Widest("/docs/a/second.odt"),
                            Widest("/docs/b/third.odt")};
    std::vector<RowStore::Id> ids;
    for (const DocInfo& row : rows)
        ids.push_back(store.Add(row));
    ASSERT_EQ(store.Size(), std::size(rows));

    DocInfo back = Widest("/to/be/overwritten");  // filling again leaves nothing behind
    for (size_t i = 0; i < std::size(rows); ++i) {
        store.Fill(ids[i], back);
        EXPECT_TRUE(Same(back, rows[i])) << "row " << i;
        EXPECT_EQ(store.EntryOf(ids[i]), rows[i].entry);
        EXPECT_EQ(store.SizeOf(ids[i]), rows[i].size);
    }
    EXPECT_EQ(store.FolderOf(ids[0]), "/docs/a/");
    EXPECT_EQ(store.FolderOf(ids[2]), "");
    EXPECT_EQ(store.FolderOf(ids[3]), "/");
    EXPECT_EQ(store.TextOf(ids[0], RowStore::NAME), std::string(255, 'n'));
    EXPECT_EQ(store.TextOf(ids[2], RowStore::COMMENT).size(), size_t(3 << 20));
    EXPECT_EQ(store.TextOf(ids[4], RowStore::KEYWORDS), std::string(127, 'k'));
    EXPECT_EQ(store.TimeOf(ids[0], 1), rows[0].modifiedTime.GetTime());
    EXPECT_EQ(store.DateOf(ids[0], 0), rows[0].createdDate.GetDate());

    store.Clear();
    EXPECT_EQ(store.Size(), 0u);
    const RowStore::Id again = store.Add(rows[5]);
    store.Fill(again, back);
    EXPECT_TRUE(Same(back, rows[5])) << "a store emptied takes rows again";
}

TEST(RowStore, ARecordGoesInAsTheIndexReadsIt)
{
    DocInfo widest = Widest("/docs/report-with-a-name-of-32-b.odt");
    widest.comment[7] = '\n';               // comes back as a blank, as from the index
    widest.createdTime = Time(23, 59, 59);  // hundredths are not kept
    widest.modifiedTime = Time(8, 5, 3);    // nor the sign
    char bytes[DocRecord::SIZE];
    DocRecord(widest).ToBytes(bytes);
    const DocRecord record = DocRecord::FromBytes(bytes);

    DocInfo expected;
    expected.entry = widest.entry;
    expected.size = 1234;
    record.FillDocInfo(expected);
    EXPECT_EQ(expected.comment[7], ' ');

    RowStore store;
    RowStore::Fields fields = record.Fields(DocRecord::NameView(bytes));
    fields.folder = "/docs/";
    fields.size = 1234;
    DocInfo back;
    store.Fill(store.Add(fields), back);
    EXPECT_TRUE(Same(back, expected));
}
