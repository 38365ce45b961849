// The 728-byte record image of a DocInfo and its way back.
#include <gtest/gtest.h>

#include "docmgr/records/docrecord.h"
#include "tests/support/indeximage.h"

using namespace indeximage;

namespace {

std::string Image(const DocInfo& info)
{
    std::string bytes(DocRecord::SIZE, '\0');
    DocRecord(info).ToBytes(bytes.data());
    return bytes;
}

DocInfo FromImage(const std::string& bytes)
{
    DocInfo back;
    DocRecord::FromBytes(bytes.data()).FillDocInfo(back);
    return back;
}

}  // namespace

TEST(DocRecord, ImageMatchesTheLayoutReadsBackCutsLongTextWithoutSplittingACharacter)
{
    DocInfo info;
    info.entry = "/some/dir/report.odt";
    info.size = 0;  // a document, however small
    info.title = "Quarterly report";
    info.topic = "  inner  blanks  ";
    info.createdDate = Date(31, 12, 1999);
    info.createdTime = Time(13, 45, 27, 89);
    info.author = std::string(31, 'A');  // exactly the width
    info.modifiedDate = Date(1, 1, 2000);
    info.modifiedTime = Time(-int32_t(Time(8, 5, 3).GetTime()));
    info.printedDate = Date(15, 6, 2156);  // past 2155: shifted by 256 years
    info.keywords = "alpha, beta";
    info.info = {"i0", "i1", "i2", "i3"};

    Record expected("report.odt");
    expected.Text(TITLE, 63, "Quarterly report")
        .Text(TOPIC, 63, "  inner  blanks  ")
        .Triple(CREATED_DATE, 31, 12, 99)
        .Triple(CREATED_TIME, 13, 45, 27)
        .Text(AUTHOR, 31, std::string(31, 'A'))
        .Triple(MODIFIED_DATE, 1, 1, 100)
        .Triple(MODIFIED_TIME, 8, 5, 3)
        .Triple(PRINTED_DATE, 15, 6, 0)
        .Text(KEYWORDS, 127, "alpha, beta");
    for (size_t i = 0; i < 4; ++i)
        expected.Text(INFO0 + i * INFO_STEP, 19, "i" + std::to_string(i));
    ASSERT_EQ(Image(info), expected.Bytes());

    const DocInfo back = FromImage(expected.Bytes());
    EXPECT_EQ(back.topic, "  inner  blanks");
    EXPECT_EQ(back.author, info.author);
    EXPECT_EQ(back.comment, "");
    EXPECT_EQ(back.createdDate.GetDate(), 19991231u);
    EXPECT_EQ(back.createdTime.GetTime(), Time(13, 45, 27).GetTime());  // hundredths lost
    EXPECT_EQ(back.modifiedTime.GetTime(), Time(8, 5, 3).GetTime());    // sign lost
    EXPECT_EQ(back.printedDate.GetDate(), 19000615u);
    EXPECT_EQ(back.info[3], "i3");

    // The unset date is stored as 0, 0, 148 and comes back as 2048-00-00.
    DocInfo empty;
    empty.size = NO_DOC_INFO;
    EXPECT_EQ(Image(empty), Record("", false).Bytes());
    EXPECT_EQ(FromImage(Image(empty)).modifiedDate.GetDate(), 20480000u);

    // Long text is cut without splitting a character.
    DocInfo cut;
    cut.entry = "/d/" + std::string(40, 'n');
    cut.title = std::string(70, 'T');
    cut.topic = std::string(62, 'x') + "\xC3\xA9";             // ends inside the é
    cut.info[0] = std::string(17, 'y') + "\xF0\x9F\x93\x84z";  // inside a 4-byte character
    cut.info[1] = std::string(17, 'w') + "\xC3\xA9more";       // é ends at the width
    cut.comment = std::string(300, '\x80');                    // no UTF-8: cut at the width
    const std::string image = Image(cut);

    EXPECT_EQ(image.substr(NAME, 32), std::string(32, 'n'));
    EXPECT_EQ(image.substr(TITLE, 63), std::string(63, 'T'));
    EXPECT_EQ(image.substr(TOPIC, 63), std::string(62, 'x') + " ");
    EXPECT_EQ(image.substr(INFO0, 19), std::string(17, 'y') + "  ");
    EXPECT_EQ(image.substr(INFO0 + 19, 19), std::string(17, 'w') + "\xC3\xA9");
    EXPECT_EQ(image.substr(COMMENT, 255), std::string(255, '\x80'));

    DocInfo large;
    large.createdTime = Time(300, 0, 0);  // hours cut to 8 bits
    EXPECT_EQ(uint8_t(Image(large)[CREATED_TIME]), 300 % 256);

    // Read back, control bytes of the comment (only) read as blanks.
    Record record("a.odt");
    record.Text(COMMENT, 255, std::string("one\ntwo\tthree\x1F") + '\0' + "\x7F" + "end");
    record.Text(TITLE, 63, "keep\nbreak");
    const DocInfo cleaned = FromImage(record.Bytes());
    EXPECT_EQ(cleaned.comment, std::string("one two three ") + '\0' + "\x7F" + "end");
    EXPECT_EQ(cleaned.title, "keep\nbreak");
}
