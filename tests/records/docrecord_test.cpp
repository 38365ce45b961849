// The 728-byte record image of a DocInfo and its way back.
#include <gtest/gtest.h>

#include "docmgr/records/docrecord.h"
#include "tests/support/indeximage.h"

namespace {

std::string Image(const DocInfo& info)
{
    std::string bytes(DocRecord::SIZE, '\0');
    DocRecord(info).ToBytes(bytes.data());
    return bytes;
}

DocInfo RoundTrip(const DocInfo& info)
{
    const std::string bytes = Image(info);
    DocInfo back;
    DocRecord::FromBytes(bytes.data()).FillDocInfo(back);
    return back;
}

std::string Field(const std::string& image, size_t offset, size_t width)
{
    return image.substr(offset, width);
}

}  // namespace

TEST(DocRecord, ImageMatchesTheLayoutByteForByte)
{
    DocInfo info;
    info.entry = "/some/dir/report.odt";
    info.size = 1234;
    info.title = "Quarterly report";
    info.topic = "Finance";
    info.createdDate = Date(31, 12, 1999);
    info.createdTime = Time(13, 45, 27, 89);
    info.author = "Anna";
    info.modifiedDate = Date(1, 1, 2000);
    info.modifiedTime = Time(-int32_t(Time(8, 5, 3).GetTime()));
    info.modifiedBy = "Ben";
    info.printedBy = "Cleo";
    info.comment = "note";
    info.keywords = "alpha, beta";
    info.info = {"i0", "i1", "i2", "i3"};

    using namespace indeximage;
    Record expected("report.odt");
    expected.Text(TITLE, 63, "Quarterly report").Text(TOPIC, 63, "Finance")
        .Triple(CREATED_DATE, 31, 12, 99).Triple(CREATED_TIME, 13, 45, 27)
        .Text(AUTHOR, 31, "Anna")
        .Triple(MODIFIED_DATE, 1, 1, 100).Triple(MODIFIED_TIME, 8, 5, 3)  // sign dropped
        .Text(MODIFIED_BY, 31, "Ben").Text(PRINTED_BY, 31, "Cleo")
        .Text(COMMENT, 255, "note").Text(KEYWORDS, 127, "alpha, beta");
    for (size_t i = 0; i < 4; ++i)
        expected.Text(INFO0 + i * INFO_STEP, 19, "i" + std::to_string(i));
    EXPECT_EQ(Image(info), expected.Bytes());

    const DocInfo back = RoundTrip(info);
    EXPECT_EQ(back.title, "Quarterly report");
    EXPECT_EQ(back.createdDate.GetDate(), 19991231u);
    EXPECT_EQ(back.createdTime.GetTime(), Time(13, 45, 27).GetTime());  // hundredths lost
    EXPECT_EQ(back.modifiedDate.GetDate(), 20000101u);
    EXPECT_EQ(back.modifiedTime.GetTime(), Time(8, 5, 3).GetTime());    // sign lost
    EXPECT_EQ(back.info[3], "i3");
}

TEST(DocRecord, DatesKeepYearsModulo256AndTheUnsetDateComesBackAs2048)
{
    DocInfo info;  // every date 0
    const std::string image = Image(info);
    EXPECT_EQ(Field(image, indeximage::CREATED_DATE, 3), std::string("\0\0\x94", 3));
    EXPECT_EQ(RoundTrip(info).createdDate.GetDate(), 20480000u);

    info.modifiedDate = Date(15, 6, 2155);
    info.printedDate = Date(15, 6, 2156);  // one past the range: shifted by 256 years
    const DocInfo back = RoundTrip(info);
    EXPECT_EQ(back.modifiedDate.GetDate(), 21550615u);
    EXPECT_EQ(back.printedDate.GetDate(), 19000615u);

    DocInfo large;
    large.createdTime = Time(300, 0, 0);  // hours cut to 8 bits
    EXPECT_EQ(uint8_t(Image(large)[indeximage::CREATED_TIME]), 300 % 256);
}

TEST(DocRecord, StringsAreCutAndBlankPaddedAndLoseOnlyTrailingBlanks)
{
    DocInfo info;
    info.title = std::string(70, 'T');
    info.topic = "  inner  blanks  ";
    info.author = std::string(31, 'A');  // exactly the width: no blank, no terminator
    info.entry = "/d/" + std::string(40, 'n');
    const std::string image = Image(info);

    EXPECT_EQ(Field(image, indeximage::TITLE, 63), std::string(63, 'T'));
    EXPECT_EQ(Field(image, indeximage::AUTHOR, 31), std::string(31, 'A'));
    EXPECT_EQ(Field(image, indeximage::NAME, 32), std::string(32, 'n'));
    EXPECT_EQ(Field(image, indeximage::KEYWORDS, 127), std::string(127, ' '));

    const DocInfo back = RoundTrip(info);
    EXPECT_EQ(back.title, std::string(63, 'T'));
    EXPECT_EQ(back.topic, "  inner  blanks");
    EXPECT_EQ(back.keywords, "");
}

TEST(DocRecord, UTF8CharactersAreNeverCut)
{
    // 62 ASCII bytes then a two-byte character: the 63-byte title ends before it.
    DocInfo info;
    info.title = std::string(62, 'x') + "\xC3\xA9";
    // 17 bytes then a four-byte character: the 19-byte info field ends before it.
    info.info[0] = std::string(17, 'y') + "\xF0\x9F\x93\x84" + "z";
    // A character that ends exactly at the width is kept.
    info.info[1] = std::string(17, 'w') + "\xC3\xA9" + "more";
    const std::string image = Image(info);

    EXPECT_EQ(Field(image, indeximage::TITLE, 63), std::string(62, 'x') + " ");
    EXPECT_EQ(Field(image, indeximage::INFO0, 19), std::string(17, 'y') + "  ");
    EXPECT_EQ(Field(image, indeximage::INFO0 + 19, 19), std::string(17, 'w') + "\xC3\xA9");

    // Bytes that are no UTF-8 at all are cut at the width like ASCII.
    info.comment = std::string(300, '\x80');
    EXPECT_EQ(Field(Image(info), indeximage::COMMENT, 255), std::string(255, '\x80'));
}

TEST(DocRecord, HasInfoFlagsAndCommentControlBytes)
{
    DocInfo info;
    info.size = 0;
    EXPECT_EQ(Image(info)[indeximage::HAS_INFO], 1);
    info.size = NO_DOC_INFO;
    EXPECT_EQ(Image(info)[indeximage::HAS_INFO], 0);

    // Bytes 1..31 of a comment read back as blanks; NUL and bytes from 32 stay.
    indeximage::Record record("a.odt");
    record.Text(indeximage::COMMENT, 255, std::string("one\ntwo\tthree\x1F") + '\0' + "\x7F" + "end");
    record.Text(indeximage::TITLE, 63, "keep\nbreak");
    DocInfo back;
    DocRecord::FromBytes(record.Bytes().data()).FillDocInfo(back);
    EXPECT_EQ(back.comment, std::string("one two three ") + '\0' + "\x7F" + "end");
    EXPECT_EQ(back.title, "keep\nbreak") << "only the comment is cleaned";
}
