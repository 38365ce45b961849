// Reading document information from each format, through files the sample writer and
// the tests build.
#include <QDateTime>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "host/readers/docreader.h"
#include "host/readers/filehead.h"
#include "host/readers/oleuserorder.h"
#include "host/readers/readahead.h"
#include "host/samples/samplewriter.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/tempdir.h"

using namespace readertest;

using Infos = std::array<std::string, 4>;

TEST(ReadersFormats, EachFormatGivesItsFieldsAlsoFromALargeDocument)
{
    TempDir dir;
    const SampleDoc full = FullSample();
    SampleDoc unprinted = full;
    unprinted.printed.reset();
    unprinted.printedBy.clear();
    WriteOle(dir.PathOf("full.doc"), full);
    // Never printed (a PDF has no printed stamp): the printed stamp is the created one,
    // by the author. Only ODF records who printed. User fields keep their recorded order.
    const struct {
        const char* name;
        bool neverPrinted, hasModifiedByAndComment;
        const char* printedBy;
    } cases[] = {
        {"full.odt", false, true, "Jörg Müller"},
        {"full.fodt", false, true, "Jörg Müller"},
        {"full.docx", false, true, ""},
        {"full.rtf", false, true, ""},
        {"full.doc", false, true, ""},
        {"full.pdf", true, false, "Zoë Martin"},
        {"never.odt", true, true, "Zoë Martin"},
        {"never.docx", true, true, "Zoë Martin"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string name = c.name;
        std::string error;
        ASSERT_TRUE(name == "full.doc" || WriteSample(dir.PathOf(name), name.starts_with("never") ? unprinted : full, error)) << error;
        auto info = ReadDocInfo(dir.PathOf(name));
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->size, dir.Size(name));
        EXPECT_EQ(info->title + "|" + info->topic + "|" + info->author + "|" + info->keywords,
                  full.title + "|" + full.topic + "|" + full.author + "|café, budget, 2019");
        EXPECT_EQ(std::tuple(info->createdDate, info->createdTime, info->modifiedDate, info->modifiedTime),
                  std::tuple(Date(6, 5, 2019), Time(7, 8, 9), Date(12, 11, 2020), Time(13, 14, 15)));
        EXPECT_EQ(info->modifiedBy + "|" + info->comment, c.hasModifiedByAndComment ? full.modifiedBy + "|" + full.comment : "|");
        EXPECT_EQ(info->NeverPrinted(), c.neverPrinted);
        EXPECT_EQ(std::pair(info->printedDate, info->printedTime),
                  c.neverPrinted ? std::pair(Date(6, 5, 2019), Time(7, 8, 9)) : std::pair(Date(1, 12, 2020), Time(16, 17, 18)));
        EXPECT_EQ(info->printedBy, c.printedBy);
        // libgsf writes user-defined properties in an order of its own: only the values count.
        Infos infos = info->info, expected{"Crème", "ACME", "open", "Li Wei"};
        if (name == "full.doc") {
            std::sort(infos.begin(), infos.end());
            std::sort(expected.begin(), expected.end());
        }
        EXPECT_EQ(infos, expected);
    }

    // Office leaves a last-printed property of zero (FILETIME 0) in never-printed files: that
    // is no printed stamp, no more than an absent property.
    {
        SampleDoc doc = FullSample();
        const QDateTime printed(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
        doc.printed = printed;
        WriteOle(dir.PathOf("zero.doc"), doc);
        // The stamp as stored: 100 ns steps since 1601, little-endian; overwritten with zeros.
        uint64_t filetime = (uint64_t(printed.toSecsSinceEpoch()) + 11644473600u) * 10000000u;
        std::string stored;
        for (int i = 0; i < 8; ++i, filetime >>= 8)
            stored += char(filetime & 0xFF);
        std::string bytes = dir.Read("zero.doc");
        const size_t at = bytes.find(stored);
        ASSERT_NE(at, std::string::npos);
        bytes.replace(at, 8, std::string(8, '\0'));
        dir.MakeFile("zero.doc", bytes);
        auto info = ReadDocInfo(dir.PathOf("zero.doc"));
        ASSERT_NE(info, nullptr);
        EXPECT_TRUE(info->NeverPrinted());
        EXPECT_EQ(info->printedBy, doc.author);
    }

    // Past the size read whole, the readers take the file from its path, and the heads of
    // flat ODF and RTF past their own limits are cut after the information.
    SampleDoc doc = FullSample();
    std::mt19937 random(7);
    doc.body.resize(16u << 20);
    for (size_t i = 0; i < doc.body.size(); ++i)
        doc.body[i] = i % 80 == 79 ? '\n' : char('a' + random() % 26);
    for (const char* name : {"big.odt", "big.docx", "big.pdf", "big.fodt", "big.rtf"}) {
        SCOPED_TRACE(name);
        std::string error;
        ASSERT_TRUE(WriteSample(dir.PathOf(name), doc, error)) << error;
        ASSERT_GT(dir.Size(name), kWholeReadLimit);
        const DocReading reading = ReadDocument(dir.PathOf(name));
        ASSERT_NE(reading.info, nullptr);
        EXPECT_EQ(reading.problem, ReadProblem::None);
        EXPECT_EQ(std::tie(reading.info->title, reading.info->author), std::tie(doc.title, doc.author));
    }
}

TEST(ReadersFormats, ContentDecidesWhetherAFileIsADocumentAndOoxmlPartsAreFoundThroughTheRelationships)
{
    TempDir dir;
    std::string error;
    ASSERT_TRUE(WriteSamplePdf(dir.PathOf("pdf.bin"), FullSample(), error)) << error;
    ASSERT_TRUE(WriteSampleOdt(dir.PathOf("odf-without-extension"), FullSample(), error)) << error;
    ASSERT_TRUE(WriteSampleDocx(dir.PathOf("ooxml.odt"), FullSample(), error)) << error;
    for (const char* name : {"pdf.bin", "odf-without-extension", "ooxml.odt"}) {
        auto info = ReadDocInfo(dir.PathOf(name));
        EXPECT_EQ(info ? info->title : "no document", FullSample().title) << name;
    }

    dir.MakeFile("notes.txt", "Not a document.\n");
    dir.MakeFile("empty", "");
    WriteZip(dir.PathOf("archive.zip"), {{"readme.txt", "old files"}});
    dir.MakeDir("folder.odt");
    for (const char* name : {"notes.txt", "empty", "archive.zip", "folder.odt", "missing.pdf"})
        EXPECT_EQ(ReadDocInfo(dir.PathOf(name)), nullptr) << name;

    const std::string rels = "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
                             "<Relationship Id=\"a\" Type=\"http://schemas.openxmlformats.org/package/2006/relationships/"
                             "metadata/core-properties\" Target=\"/meta/props.xml\"/>"
                             "<Relationship Id=\"b\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
                             "custom-properties\" Target=\"meta/user.xml\"/></Relationships>";
    // Other prefixes than the usual ones, keywords per language, typed custom values.
    const std::string core = "<p:coreProperties xmlns:p=\"http://schemas.openxmlformats.org/package/2006/metadata/core-properties\" "
                             "xmlns:e=\"http://purl.org/dc/elements/1.1/\"><e:title>Moved</e:title>"
                             "<p:keywords><p:value xml:lang=\"en\">alpha</p:value><p:value xml:lang=\"de\">Äpfel</p:value></p:keywords>"
                             "<title>not in a namespace</title></p:coreProperties>";
    const std::string custom = "<Properties xmlns=\"http://schemas.openxmlformats.org/officeDocument/2006/custom-properties\" "
                               "xmlns:vt=\"http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes\">"
                               "<property fmtid=\"x\" pid=\"2\" name=\"Count\"><vt:i4>42</vt:i4></property>"
                               "<property fmtid=\"x\" pid=\"3\" name=\"Done\"><vt:bool>true</vt:bool></property></Properties>";
    WriteZip(dir.PathOf("moved.docx"), {{"[Content_Types].xml", "<Types/>"},
                                        {"_rels/.rels", rels},
                                        {"meta/props.xml", core},
                                        {"meta/user.xml", custom},
                                        {"docProps/core.xml", "<wrong/>"}});
    // One bad part does not lose the others.
    WriteZip(dir.PathOf("halfbroken.docx"), {{"[Content_Types].xml", "<Types/>"},
                                             {"_rels/.rels", rels},
                                             {"meta/props.xml", "<p:coreProperties><e:title>no namespaces"},
                                             {"meta/user.xml", custom}});
    for (const auto& [name, title, keywords] : {std::tuple{"moved.docx", "Moved", "alpha, Äpfel"}, {"halfbroken.docx", "", ""}}) {
        auto info = ReadDocInfo(dir.PathOf(name));
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->title + "|" + info->keywords, std::string(title) + "|" + keywords) << name;
        EXPECT_EQ(info->info, (Infos{"42", "true", "", ""})) << name;
    }
}

TEST(ReadersFormats, RtfEscapesCodePagesAndGroupsAndLegacyUserPropertiesComeInFileOrder)
{
    TempDir dir;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"{\\rtf1{\\info{\\title Caf\\'e9 \\{x\\} \\\\}}}", "Café {x} \\"},
        {"{\\rtf1\\ansi\\ansicpg1251{\\info{\\title \\'cf\\'f0\\'e8}}}", "При"},
        {"{\\rtf1{\\info{\\title A\\uc1\\u8364?B\\u-3913?}}}", "A€B\uF0B7"},
        {"{\\rtf1{\\info{\\title {\\b Bold} part}{\\*\\company X}}}", "Bold part"},
        {"{\\rtf1{\\info{\\title Unclosed", "Unclosed"},
        {"{\\rtf1{\\title Outside}{\\*\\info{\\title Inside}}}", "Inside"},
        {"{\\rtf1{\\info{\\title Real}}{\\pict\\bin20 {\\info{\\title Fake}}}}", "Real"},
        {"{\\rtf1" + std::string(100000, '{') + "{\\info{\\title Deep}}", ""},
    };
    for (const auto& [rtf, title] : cases) {
        SCOPED_TRACE(rtf.substr(0, 60));
        dir.MakeFile("case.rtf", rtf);
        auto info = ReadDocInfo(dir.PathOf("case.rtf"));
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->title, title);
    }

    auto u32 = [](uint32_t v) { return std::string{char(v), char(v >> 8), char(v >> 16), char(v >> 24)}; };
    // One user-defined section listing property 3 before property 2, and its dictionary.
    const std::string dictionary = u32(2) + u32(3) + u32(5) + std::string("Zulu", 5) + u32(2) + u32(6) + std::string("Alpha", 6);
    const std::string section = u32(0) + u32(3) + u32(0) + u32(32) + u32(3) + u32(0) + u32(2) + u32(0) + dictionary;
    const std::string stream = std::string("\xFE\xFF\0\0", 4) + u32(0) + std::string(16, '\0') + u32(1) +
                               std::string("\x05\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16) + u32(48) + section;
    EXPECT_EQ(UserPropertyOrder(stream), (std::vector<std::string>{"Zulu", "Alpha"}));
    // Cut anywhere, it gives what it can and never reads past the end.
    for (size_t size = 0; size < stream.size(); ++size)
        EXPECT_LE(UserPropertyOrder(stream.substr(0, size)).size(), 2u);
}

TEST(ReadersFormats, ReadingAheadGivesWhatReadingGives)
{
    TempDir dir;
    std::vector<std::string> paths;
    std::string error;
    for (const char* name : {"0.odt", "1.docx", "2.pdf", "3.odt", "4.docx", "5.pdf"})
        ASSERT_TRUE(WriteSample(paths.emplace_back(dir.PathOf(name)), FullSample(), error)) << error;
    paths.push_back(dir.MakeFile("notes.txt", "plain"));
    DocReadAhead ahead;
    ahead.Start(paths);
    // Taken out of order, twice, and one never planned: each as a read of its own gives it.
    std::vector<std::string> asked(paths.rbegin(), paths.rend());
    asked.push_back(paths[3]);
    asked.push_back(dir.MakeFile("late.odt", "not a package"));
    for (const std::string& path : asked) {
        const std::unique_ptr<DocInfo> expected = ReadDocInfo(path), got = ahead.Take(path);
        EXPECT_EQ(got ? got->entry + " " + got->title : path + " none",
                  expected ? expected->entry + " " + expected->title : path + " none");
    }
    ahead.Start(paths);  // dropped untaken, and gone cleanly with the object
}
