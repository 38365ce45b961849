// Reading document information from each format, through files the sample writer and
// the tests build.
#include <gtest/gtest.h>

#include <algorithm>

#include "host/readers/docreader.h"
#include "host/readers/oleuserorder.h"
#include "host/readers/readahead.h"
#include "host/readers/samplewriter.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/tempdir.h"

using namespace readertest;

namespace {

using Infos = std::array<std::string, 4>;

}  // namespace

TEST(ReadersFormats, EachFormatGivesItsFields)
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
        bool neverPrinted;
        bool hasModifiedByAndComment;
        const char* printedBy;
    } cases[] = {
        {"full.odt", false, true, "Jörg Müller"}, {"full.fodt", false, true, "Jörg Müller"},
        {"full.docx", false, true, ""},           {"full.rtf", false, true, ""},
        {"full.doc", false, true, ""},            {"full.pdf", true, false, "Zoë Martin"},
        {"never.odt", true, true, "Zoë Martin"},  {"never.docx", true, true, "Zoë Martin"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string name = c.name;
        std::string error;
        if (name != "full.doc") {
            ASSERT_TRUE(WriteSample(dir.PathOf(name), name.starts_with("never") ? unprinted : full, error)) << error;
        }
        auto info = ReadDocInfo(dir.PathOf(name));
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->entry, dir.PathOf(name));
        EXPECT_EQ(info->size, dir.Size(name));
        EXPECT_EQ(info->title, full.title);
        EXPECT_EQ(info->topic, full.topic);
        EXPECT_EQ(info->author, full.author);
        EXPECT_EQ(info->keywords, "café, budget, 2019");
        EXPECT_EQ(info->createdDate, Date(6, 5, 2019));
        EXPECT_EQ(info->createdTime, Time(7, 8, 9));
        EXPECT_EQ(info->modifiedDate, Date(12, 11, 2020));
        EXPECT_EQ(info->modifiedTime, Time(13, 14, 15));
        EXPECT_EQ(info->modifiedBy, c.hasModifiedByAndComment ? full.modifiedBy : "");
        EXPECT_EQ(info->comment, c.hasModifiedByAndComment ? full.comment : "");
        EXPECT_EQ(info->NeverPrinted(), c.neverPrinted);
        EXPECT_EQ(info->printedDate, c.neverPrinted ? Date(6, 5, 2019) : Date(1, 12, 2020));
        EXPECT_EQ(info->printedTime, c.neverPrinted ? Time(7, 8, 9) : Time(16, 17, 18));
        EXPECT_EQ(info->printedBy, c.printedBy);
        // libgsf writes user-defined properties in an order of its own: only the values count.
        Infos infos = info->info, expected{"Crème", "ACME", "open", "Li Wei"};
        if (name == "full.doc") {
            std::sort(infos.begin(), infos.end());
            std::sort(expected.begin(), expected.end());
        }
        EXPECT_EQ(infos, expected);
    }
}

TEST(ReadersFormats, ContentDecidesWhetherAFileIsADocument)
{
    TempDir dir;
    std::string error;
    ASSERT_TRUE(WriteSamplePdf(dir.PathOf("pdf.bin"), FullSample(), error)) << error;
    ASSERT_TRUE(WriteSampleOdt(dir.PathOf("odf-without-extension"), FullSample(), error)) << error;
    ASSERT_TRUE(WriteSampleDocx(dir.PathOf("ooxml.odt"), FullSample(), error)) << error;
    for (const char* name : {"pdf.bin", "odf-without-extension", "ooxml.odt"}) {
        auto info = ReadDocInfo(dir.PathOf(name));
        ASSERT_NE(info, nullptr) << name;
        EXPECT_EQ(info->title, FullSample().title) << name;
    }

    dir.MakeFile("notes.txt", "Not a document.\n");
    dir.MakeFile("empty", "");
    WriteZip(dir.PathOf("archive.zip"), {{"readme.txt", "old files"}});
    dir.MakeDir("folder.odt");
    for (const char* name : {"notes.txt", "empty", "archive.zip", "folder.odt", "missing.pdf"})
        EXPECT_EQ(ReadDocInfo(dir.PathOf(name)), nullptr) << name;
}

TEST(ReadersFormats, OoxmlPartsAreFoundThroughTheRelationships)
{
    TempDir dir;
    const std::string rels =
        "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
        "<Relationship Id=\"a\" Type=\"http://schemas.openxmlformats.org/package/2006/relationships/"
        "metadata/core-properties\" Target=\"/meta/props.xml\"/>"
        "<Relationship Id=\"b\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
        "custom-properties\" Target=\"meta/user.xml\"/></Relationships>";
    // Other prefixes than the usual ones, keywords per language, typed custom values.
    const std::string core =
        "<p:coreProperties xmlns:p=\"http://schemas.openxmlformats.org/package/2006/metadata/core-properties\" "
        "xmlns:e=\"http://purl.org/dc/elements/1.1/\"><e:title>Moved</e:title>"
        "<p:keywords><p:value xml:lang=\"en\">alpha</p:value><p:value xml:lang=\"de\">Äpfel</p:value></p:keywords>"
        "<title>not in a namespace</title></p:coreProperties>";
    const std::string custom =
        "<Properties xmlns=\"http://schemas.openxmlformats.org/officeDocument/2006/custom-properties\" "
        "xmlns:vt=\"http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes\">"
        "<property fmtid=\"x\" pid=\"2\" name=\"Count\"><vt:i4>42</vt:i4></property>"
        "<property fmtid=\"x\" pid=\"3\" name=\"Done\"><vt:bool>true</vt:bool></property></Properties>";
    WriteZip(dir.PathOf("moved.docx"), {{"[Content_Types].xml", "<Types/>"}, {"_rels/.rels", rels},
                                        {"meta/props.xml", core}, {"meta/user.xml", custom},
                                        {"docProps/core.xml", "<wrong/>"}});
    auto info = ReadDocInfo(dir.PathOf("moved.docx"));
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->title, "Moved");
    EXPECT_EQ(info->keywords, "alpha, Äpfel");
    EXPECT_EQ(info->info, (Infos{"42", "true", "", ""}));
}

TEST(ReadersFormats, OnlyTheFirstFourUserFieldsAreRead)
{
    TempDir dir;
    std::string children;
    for (int i = 1; i <= 6; ++i)
        children += "<meta:user-defined meta:name=\"F" + std::to_string(i) + "\">v" + std::to_string(i)
            + "</meta:user-defined>";
    WriteOdfMeta(dir.PathOf("six.odt"), "<meta:keyword>one</meta:keyword>" + children
                                            + "<meta:keyword>two</meta:keyword><meta:keyword></meta:keyword>");
    auto info = ReadDocInfo(dir.PathOf("six.odt"));
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->info, (Infos{"v1", "v2", "v3", "v4"}));
    // Keywords are joined wherever they stand; empty ones are left out.
    EXPECT_EQ(info->keywords, "one, two");
    // Without any stamp at all, the printed stamp stays unset like the created one.
    EXPECT_EQ(info->createdDate, Date());
    EXPECT_EQ(info->printedDate, Date());
    EXPECT_EQ(info->printedTime, Time());
    EXPECT_EQ(info->printedBy, "");
}

TEST(ReadersFormats, RtfEscapesCodePagesAndGroups)
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
}

TEST(ReadersFormats, PdfXmpFillsWhatTheInfoDictionaryLacks)
{
    TempDir dir;
    const std::string packet =
        "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
        "<rdf:Description rdf:about=\"\" xmlns:d=\"http://purl.org/dc/elements/1.1/\">"
        "<d:title><rdf:Alt><rdf:li xml:lang=\"de\">Titel</rdf:li><rdf:li xml:lang=\"x-default\">XMP title</rdf:li>"
        "</rdf:Alt></d:title><d:creator><rdf:Seq><rdf:li>Ann</rdf:li><rdf:li>Bob</rdf:li></rdf:Seq></d:creator>"
        "<d:description><rdf:Alt><rdf:li xml:lang=\"en\">Topic</rdf:li></rdf:Alt></d:description>"
        "<d:subject><rdf:Bag><rdf:li>a</rdf:li><rdf:li>b</rdf:li></rdf:Bag></d:subject></rdf:Description>"
        "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
        "xmp:CreateDate=\"2021-03-04T05:06:07\"><xmp:ModifyDate>2022-01-02T03:04:05</xmp:ModifyDate>"
        "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>";
    WritePdf(dir.PathOf("xmp.pdf"), "<< /Producer (x) >>", nullptr, nullptr, packet);
    WritePdf(dir.PathOf("both.pdf"), "<< /Title (Info title) /Keywords (k) >>", nullptr, nullptr, packet);
    auto xmp = ReadDocInfo(dir.PathOf("xmp.pdf"));
    ASSERT_NE(xmp, nullptr);
    EXPECT_EQ(xmp->title, "XMP title");
    EXPECT_EQ(xmp->author, "Ann, Bob");
    EXPECT_EQ(xmp->topic, "Topic");
    EXPECT_EQ(xmp->keywords, "a, b");
    EXPECT_EQ(xmp->createdDate, Date(4, 3, 2021));
    EXPECT_EQ(xmp->createdTime, Time(5, 6, 7));
    EXPECT_EQ(xmp->modifiedDate, Date(2, 1, 2022));
    // The Info dictionary comes first where it has a value.
    auto both = ReadDocInfo(dir.PathOf("both.pdf"));
    ASSERT_NE(both, nullptr);
    EXPECT_EQ(both->title, "Info title");
    EXPECT_EQ(both->keywords, "k");
    EXPECT_EQ(both->author, "Ann, Bob");
}

TEST(ReadersFormats, LegacyUserPropertiesComeInFileOrder)
{
    auto u32 = [](uint32_t v) { return std::string{char(v), char(v >> 8), char(v >> 16), char(v >> 24)}; };
    // One user-defined section listing property 3 before property 2, and its dictionary.
    const std::string dictionary = u32(2) + u32(3) + u32(5) + std::string("Zulu", 5) + u32(2) + u32(6)
        + std::string("Alpha", 6);
    const std::string section = u32(0) + u32(3) + u32(0) + u32(32) + u32(3) + u32(0) + u32(2) + u32(0) + dictionary;
    const std::string stream = std::string("\xFE\xFF\0\0", 4) + u32(0) + std::string(16, '\0') + u32(1)
        + std::string("\x05\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16) + u32(48) + section;
    EXPECT_EQ(UserPropertyOrder(stream), (std::vector<std::string>{"Zulu", "Alpha"}));
    // Cut anywhere, it gives what it can and never reads past the end.
    for (size_t size = 0; size < stream.size(); ++size)
        EXPECT_LE(UserPropertyOrder(stream.substr(0, size)).size(), 2u);
}

TEST(ReadersFormats, ReadingAheadGivesWhatReadingGives)
{
    TempDir dir;
    std::vector<std::string> paths;
    for (int i = 0; i < 12; ++i) {
        SampleDoc doc = FullSample();
        doc.title = "Doc " + std::to_string(i);
        paths.push_back(dir.PathOf(std::to_string(i) + (i % 3 == 0 ? ".odt" : i % 3 == 1 ? ".docx" : ".pdf")));
        std::string error;
        ASSERT_TRUE(WriteSample(paths.back(), doc, error)) << error;
    }
    paths.push_back(dir.MakeFile("notes.txt", "plain"));
    DocReadAhead ahead;
    ahead.Start(paths);
    // Taken out of order, twice, and one never planned: each as a read of its own gives it.
    std::vector<std::string> asked(paths.rbegin(), paths.rend());
    asked.push_back(paths[3]);
    asked.push_back(dir.MakeFile("late.odt", "not a package"));
    for (const std::string& path : asked) {
        const std::unique_ptr<DocInfo> expected = ReadDocInfo(path);
        const std::unique_ptr<DocInfo> got = ahead.Take(path);
        ASSERT_EQ(got == nullptr, expected == nullptr) << path;
        if (got) {
            EXPECT_EQ(got->entry + " " + got->title, expected->entry + " " + expected->title);
        }
    }
    ahead.Start(paths);  // dropped untaken, and gone cleanly with the object
}
