// Writing the editable fields back and reading them again; the sample tool's libraries.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>

#include <QProcess>

#include "host/readers/docreader.h"
#include "host/readers/docwriter.h"
#include "host/readers/qpdfapi.h"
#include "host/readers/xmppacket.h"
#include "host/readers/ziparchive.h"
#include "tests/host/cli_fixture.h"
#include "tests/host/readers_fixtures.h"

using namespace readertest;

namespace {

DocMeta EditedMeta()
{
    return {"Neuer Titel – überarbeitet",
            "Planung",
            "eins, zwei, drei",
            "Kommentar mit <Zeichen> & \"Anführung\"",
            {"Nordlicht", "", "done", "Zoë"},
            {"Project", "Client", "Status", "Reviewer"},
            std::nullopt};
}

std::unique_ptr<DocInfo> WriteAndRead(const std::string& path, const DocMeta& meta)
{
    std::string error;
    EXPECT_TRUE(WriteDocMeta(path, meta, error) && error.empty()) << error;
    return ReadDocInfo(path);
}

std::string Entry(const std::string& path, const std::string& name)
{
    ZipArchive zip;
    std::string bytes;
    EXPECT_TRUE(zip.Open(path, ZipArchive::Mode::Read));
    EXPECT_EQ(zip.Read(name, kMaxXmlPart, bytes), ZipRead::Ok) << name;
    return bytes;
}

// Files in the directory other than the expected ones: left-over temporary files.
std::vector<std::string> StrayFiles(const TempDir& dir, const std::vector<std::string>& expected)
{
    std::vector<std::string> stray;
    for (const auto& entry : std::filesystem::directory_iterator(dir.Path()))
        if (std::find(expected.begin(), expected.end(), entry.path().filename()) == expected.end())
            stray.push_back(entry.path().filename());
    return stray;
}

}  // namespace

TEST(WriterRoundTrip, EachFormatReadsBackWhatWasWritten)
{
    TempDir dir;
    std::string error;
    for (const char* name : {"doc.odt", "doc.docx", "doc.pdf"})
        ASSERT_TRUE(WriteSample(dir.PathOf(name), FullSample(), error)) << error;
    // Property parts that are missing are created: a DOCX without custom part, an ODF
    // package without meta.xml, a PDF without Info dictionary.
    SampleDoc noInfo = FullSample();
    noInfo.info.clear();
    ASSERT_TRUE(WriteSampleDocx(dir.PathOf("nocustom.docx"), noInfo, error)) << error;
    WriteZip(dir.PathOf("nometa.odt"),
             {{"mimetype", "application/vnd.oasis.opendocument.text"},
              {"META-INF/manifest.xml", "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\">"
                                        "<manifest:file-entry manifest:full-path=\"/\" manifest:media-type=\"x\"/></manifest:manifest>"},
              {"content.xml", "<c/>"}});
    WritePdf(dir.PathOf("noinfo.pdf"), "<< >>");
    const std::vector<RawEntry> before = RawEntries(dir.PathOf("doc.odt"));
    const std::vector<std::string> names = {"doc.odt", "doc.docx", "doc.pdf", "nocustom.docx", "nometa.odt", "noinfo.pdf"};
    const DocMeta meta = EditedMeta();
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const std::string path = dir.PathOf(name);
        ::chmod(path.c_str(), 0640);
        const auto info = WriteAndRead(path, meta);
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->title + "|" + info->topic + "|" + info->keywords, meta.title + "|" + meta.topic + "|" + meta.keywords);
        EXPECT_EQ(info->comment, name.ends_with(".pdf") ? "" : meta.comment);
        EXPECT_EQ(info->info, meta.info);
        // Fields the writer does not touch stay as they were.
        if (name.starts_with("doc.")) {
            EXPECT_EQ(info->author, FullSample().author);
            EXPECT_EQ(info->createdDate, Date(6, 5, 2019));
        }
        EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
    }
    // The created parts are registered in the package.
    EXPECT_NE(Entry(dir.PathOf("nocustom.docx"), "[Content_Types].xml").find("/docProps/custom.xml"), std::string::npos);
    EXPECT_NE(Entry(dir.PathOf("nocustom.docx"), "_rels/.rels").find("custom-properties"), std::string::npos);
    EXPECT_NE(Entry(dir.PathOf("nometa.odt"), "META-INF/manifest.xml").find("manifest:full-path=\"meta.xml\""), std::string::npos);
    EXPECT_EQ(StrayFiles(dir, names), std::vector<std::string>{});

    // The other entries of a package stay byte-identical; the mimetype entry stays first
    // and stored, so the package type is still found by offset.
    const std::vector<RawEntry> after = RawEntries(dir.PathOf("doc.odt"));
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(dir.Read("doc.odt").substr(30, 8), "mimetype");
    EXPECT_EQ(after[0].method, 0);
    for (size_t i = 0; i < after.size(); ++i) {
        EXPECT_EQ(after[i].name, before[i].name);
        EXPECT_TRUE(after[i].name == "meta.xml" ||
                    (after[i].method == before[i].method && after[i].crc == before[i].crc && after[i].raw == before[i].raw))
            << after[i].name;
    }
}

TEST(WriterRoundTrip, UserFieldsGoFirstAndReplaceTheirNamesakesPdfXmpFillsWhatInfoLacksAndFollowsIt)
{
    TempDir dir;
    const std::string path = dir.PathOf("fields.odt");
    WriteOdfMeta(path, "<meta:generator>Kept</meta:generator>"
                       "<meta:user-defined meta:name=\"Other\">stays</meta:user-defined>"
                       "<meta:user-defined meta:name=\"Status\" meta:value-type=\"float\">1</meta:user-defined>"
                       "<dc:title>Old</dc:title><dc:title>Duplicate</dc:title><meta:keyword>old</meta:keyword>");
    DocMeta meta = EditedMeta();
    meta.infoNames[1] = "";  // an unnamed field gets a name of its own
    const auto info = WriteAndRead(path, meta);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->info, meta.info);
    EXPECT_EQ(info->title + "|" + info->keywords, meta.title + "|" + meta.keywords);
    const std::string xml = Entry(path, "meta.xml");
    for (const char* kept : {"<meta:generator>Kept</meta:generator>", "meta:name=\"Info 2\"", "meta:name=\"Other\">stays<"})
        EXPECT_NE(xml.find(kept), std::string::npos) << kept;
    for (const char* gone : {"Duplicate", "float"})
        EXPECT_EQ(xml.find(gone), std::string::npos) << gone;
    // The remaining field follows the four written ones.
    EXPECT_LT(xml.find("\"Reviewer\""), xml.find("\"Other\""));

    // Empty values remove the fields; user fields are not added where there were none.
    const std::string docx = dir.PathOf("plain.docx");
    SampleDoc doc = FullSample();
    doc.info.clear();
    std::string error;
    ASSERT_TRUE(WriteSampleDocx(docx, doc, error)) << error;
    const auto cleared = WriteAndRead(docx, DocMeta{});
    ASSERT_NE(cleared, nullptr);
    EXPECT_EQ(cleared->title + "|" + cleared->keywords + "|" + cleared->author, "||" + doc.author);
    ZipArchive zip;
    ASSERT_TRUE(zip.Open(docx, ZipArchive::Mode::Read));
    EXPECT_FALSE(zip.Has("docProps/custom.xml"));

    // The XMP packet of a PDF fills what the Info dictionary lacks, and follows it when written.
    const std::string packet = "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
                               "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
                               "<rdf:Description rdf:about=\"\" xmlns:d=\"http://purl.org/dc/elements/1.1/\" "
                               "xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" pdf:Keywords=\"old keys\">"
                               "<d:title><rdf:Alt><rdf:li xml:lang=\"de\">Titel</rdf:li><rdf:li xml:lang=\"x-default\">XMP title</rdf:li>"
                               "</rdf:Alt></d:title><d:creator><rdf:Seq><rdf:li>Ann</rdf:li><rdf:li>Bob</rdf:li></rdf:Seq></d:creator>"
                               "<d:description><rdf:Alt><rdf:li xml:lang=\"en\">Topic</rdf:li></rdf:Alt></d:description>"
                               "<d:format>application/pdf</d:format></rdf:Description>"
                               "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
                               "xmp:CreateDate=\"2021-03-04T05:06:07\"><xmp:ModifyDate>2022-01-02T03:04:05</xmp:ModifyDate>"
                               "<xmp:CreatorTool>Some Tool</xmp:CreatorTool></rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>";
    WritePdf(dir.PathOf("xmp.pdf"), "<< /Producer (x) >>", nullptr, nullptr, packet);
    const auto xmp = ReadDocInfo(dir.PathOf("xmp.pdf"));
    ASSERT_NE(xmp, nullptr);
    EXPECT_EQ(xmp->title + "|" + xmp->author + "|" + xmp->topic + "|" + xmp->keywords, "XMP title|Ann, Bob|Topic|old keys");
    EXPECT_EQ(std::tuple(xmp->createdDate, xmp->createdTime, xmp->modifiedDate),
              std::tuple(Date(4, 3, 2021), Time(5, 6, 7), Date(2, 1, 2022)));

    // Written, the packet takes the new texts and keeps everything else.
    ASSERT_NE(WriteAndRead(dir.PathOf("xmp.pdf"), EditedMeta()), nullptr);
    QPDF pdf;
    pdf.processFile(dir.PathOf("xmp.pdf").c_str());
    const std::shared_ptr<Buffer> data = pdf.getRoot().getKey("/Metadata").getStreamData();
    const std::string written(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
    xmp::Fields fields;
    ASSERT_TRUE(xmp::Read(written, fields)) << written;
    const DocMeta edited = EditedMeta();
    EXPECT_EQ(fields.title + "|" + fields.description + "|" + fields.keywords + "|" + fields.subject,
              edited.title + "|" + edited.topic + "|" + edited.keywords + "|" + edited.keywords);
    for (const char* kept :
         {"<d:format>application/pdf</d:format>", "<xmp:CreatorTool>Some Tool</xmp:CreatorTool>", "<?xpacket end=\"w\"?>"})
        EXPECT_NE(written.find(kept), std::string::npos) << kept;
    EXPECT_EQ(written.find("XMP title"), std::string::npos);
    EXPECT_EQ(written.find("old keys"), std::string::npos);
}

TEST(WriterRoundTrip, RefusalsLeaveTheOriginalUntouched)
{
    TempDir dir;
    std::string error;
    ASSERT_TRUE(WriteSampleOdt(dir.PathOf("readonly.odt"), FullSample(), error)) << error;
    ::chmod(dir.PathOf("readonly.odt").c_str(), 0444);
    WritePdf(dir.PathOf("locked.pdf"), "<< /Title (Secret) >>", "user-password");
    WritePdf(dir.PathOf("owner.pdf"), "<< /Title (Guarded) >>", "", "owner-password");
    dir.MakeFile("locked.docx", std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(504, '\0'));
    for (const auto& [name, bytes] :
         {std::pair{"notes.txt", "plain text"}, {"broken.pdf", "%PDF-1.4\nnothing else"}, {"broken.odt", "not a zip"}})
        dir.MakeFile(name, bytes);
    WriteOdfMeta(dir.PathOf("malformed.odt"), "<dc:title>x</dc:titel>");
    WriteOle(dir.PathOf("legacy.doc"), FullSample());
    ASSERT_TRUE(WriteSample(dir.PathOf("text.rtf"), FullSample(), error)) << error;

    std::vector<std::pair<std::string, std::string>> cases = {
        {"readonly.odt", "read-only"},      {"locked.pdf", "encrypted"},    {"owner.pdf", "encrypted"},  {"locked.docx", "encrypted"},
        {"notes.txt", "cannot be changed"}, {"broken.pdf", "damaged"},      {"broken.odt", "damaged"},   {"malformed.odt", "damaged"},
        {"missing.odt", "does not exist"},  {"legacy.doc", "of this kind"}, {"text.rtf", "of this kind"}};
    if (::geteuid() != 0) {  // the superuser writes into read-only folders
        ASSERT_TRUE(WriteSampleDocx(dir.MakeDir("sub") + "/doc.docx", FullSample(), error)) << error;
        ::chmod(dir.PathOf("sub").c_str(), 0555);
        cases.emplace_back("sub/doc.docx", "read-only");
    }
    std::vector<std::string> names;
    for (const auto& [name, reason] : cases) {
        SCOPED_TRACE(name);
        const std::string before = dir.Exists(name) ? dir.Read(name) : "";
        EXPECT_FALSE(WriteDocMeta(dir.PathOf(name), EditedMeta(), error));
        EXPECT_NE(error.find(reason), std::string::npos) << error;
        if (dir.Exists(name)) {
            EXPECT_EQ(dir.Read(name), before);
            names.push_back(name.substr(0, name.find('/')));
        }
    }
    EXPECT_EQ(StrayFiles(dir, names), std::vector<std::string>{});
}

TEST(WriterRoundTrip, TheSampleToolWritesDocumentsThatReadBack)
{
    TempDir dir;
    const auto run = [](const QStringList& args) {
        QProcess process;
        process.start(QString::fromStdString(clitest::BinaryPath("docmanager-samples")), args);
        EXPECT_TRUE(process.waitForFinished(120000)) << args.join(' ').toStdString();
        return std::pair{process.exitCode(), process.readAll().toStdString() + process.readAllStandardError().toStdString()};
    };
    const QString out = QString::fromStdString(dir.PathOf("out"));
    for (const QStringList& args : {QStringList{}, QStringList{out, "many"}, QStringList{out, "3", "--seed"}, QStringList{out, "--colour"},
                                    QStringList{out, "1", "2"}}) {
        const auto [status, output] = run(args);
        EXPECT_TRUE(status == 2 && output.find("Usage: docmanager-samples DIR [COUNT] [--seed N]") != std::string::npos)
            << args.join(' ').toStdString() << ": " << output;
    }
    EXPECT_FALSE(dir.Exists("out"));

    // The default library, and the same again from the same seed given explicitly.
    const auto [status, output] = run({out});
    ASSERT_EQ(status, 0) << output;
    EXPECT_NE(output.find("Wrote 24 documents and 4 other files"), std::string::npos) << output;
    ASSERT_EQ(run({QString::fromStdString(dir.PathOf("again")), "--seed", "1", "24"}).first, 0);
    for (const auto& entry : std::filesystem::directory_iterator(dir.PathOf("out")))
        EXPECT_EQ(dir.Read("out/" + entry.path().filename().string()), dir.Read("again/" + entry.path().filename().string()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.PathOf("again")), {}), 28);
}
