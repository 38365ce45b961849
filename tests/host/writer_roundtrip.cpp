// Writing the editable fields back and reading them again; the sample tool's documents
// read back too.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include <QProcess>

#include "host/readers/docreader.h"
#include "host/readers/docwriter.h"
#include "host/readers/samplewriter.h"
#include "host/readers/qpdfapi.h"
#include "host/readers/xmppacket.h"
#include "host/readers/ziparchive.h"
#include "tests/host/cli_fixture.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/tempdir.h"

using namespace readertest;

namespace {

using Infos = std::array<std::string, 4>;

DocMeta EditedMeta()
{
    DocMeta meta;
    meta.title = "Neuer Titel – überarbeitet";
    meta.topic = "Planung";
    meta.keywords = "eins, zwei, drei";
    meta.comment = "Kommentar mit <Zeichen> & \"Anführung\"";
    meta.info = {"Nordlicht", "", "done", "Zoë"};
    meta.infoNames = {"Project", "Client", "Status", "Reviewer"};
    return meta;
}

void ExpectEdited(const DocInfo& info, bool hasComment)
{
    const DocMeta meta = EditedMeta();
    EXPECT_EQ(info.title, meta.title);
    EXPECT_EQ(info.topic, meta.topic);
    EXPECT_EQ(info.keywords, meta.keywords);
    EXPECT_EQ(info.comment, hasComment ? meta.comment : "");
    EXPECT_EQ(info.info, meta.info);
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
    for (const auto& entry : std::filesystem::directory_iterator(dir.Path())) {
        const std::string name = entry.path().filename().string();
        if (std::find(expected.begin(), expected.end(), name) == expected.end())
            stray.push_back(name);
    }
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
              {"META-INF/manifest.xml",
               "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\">"
               "<manifest:file-entry manifest:full-path=\"/\" manifest:media-type=\"x\"/></manifest:manifest>"},
              {"content.xml", "<c/>"}});
    WritePdf(dir.PathOf("noinfo.pdf"), "<< >>");
    const std::vector<RawEntry> before = RawEntries(dir.PathOf("doc.odt"));
    const std::vector<std::string> names = {"doc.odt", "doc.docx", "doc.pdf", "nocustom.docx", "nometa.odt", "noinfo.pdf"};
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const std::string path = dir.PathOf(name);
        ::chmod(path.c_str(), 0640);
        ASSERT_TRUE(WriteDocMeta(path, EditedMeta(), error)) << error;
        EXPECT_EQ(error, "");
        auto info = ReadDocInfo(path);
        ASSERT_NE(info, nullptr);
        ExpectEdited(*info, !name.ends_with(".pdf"));
        // Fields the writer does not touch stay as they were.
        if (name.starts_with("doc.")) {
            EXPECT_EQ(info->author, FullSample().author);
            EXPECT_EQ(info->createdDate, Date(6, 5, 2019));
            EXPECT_EQ(info->modifiedTime, Time(13, 14, 15));
        }
        struct stat st;
        ASSERT_EQ(::stat(path.c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 07777, 0640u);
    }
    // The created parts are registered in the package.
    EXPECT_NE(Entry(dir.PathOf("nocustom.docx"), "[Content_Types].xml").find("/docProps/custom.xml"), std::string::npos);
    EXPECT_NE(Entry(dir.PathOf("nocustom.docx"), "_rels/.rels").find("custom-properties"), std::string::npos);
    EXPECT_NE(Entry(dir.PathOf("nometa.odt"), "META-INF/manifest.xml").find("manifest:full-path=\"meta.xml\""),
              std::string::npos);
    EXPECT_EQ(StrayFiles(dir, names), std::vector<std::string>{});

    // The other entries of a package stay byte-identical; the mimetype entry stays first
    // and stored, so the package type is still found by offset.
    const std::vector<RawEntry> after = RawEntries(dir.PathOf("doc.odt"));
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(dir.Read("doc.odt").substr(30, 8), "mimetype");
    EXPECT_EQ(after[0].method, 0);
    for (size_t i = 0; i < after.size(); ++i) {
        SCOPED_TRACE(after[i].name);
        EXPECT_EQ(after[i].name, before[i].name);
        if (after[i].name != "meta.xml") {
            EXPECT_EQ(after[i].method, before[i].method);
            EXPECT_EQ(after[i].crc, before[i].crc);
            EXPECT_EQ(after[i].raw, before[i].raw);
        }
    }
}

TEST(WriterRoundTrip, UserFieldsGoFirstAndReplaceTheirNamesakes)
{
    TempDir dir;
    const std::string path = dir.PathOf("fields.odt");
    WriteOdfMeta(path, "<meta:generator>Kept</meta:generator>"
                       "<meta:user-defined meta:name=\"Other\">stays</meta:user-defined>"
                       "<meta:user-defined meta:name=\"Status\" meta:value-type=\"float\">1</meta:user-defined>"
                       "<dc:title>Old</dc:title><dc:title>Duplicate</dc:title><meta:keyword>old</meta:keyword>");
    std::string error;
    DocMeta meta = EditedMeta();
    meta.infoNames[1] = "";  // an unnamed field gets a name of its own
    ASSERT_TRUE(WriteDocMeta(path, meta, error)) << error;
    auto info = ReadDocInfo(path);
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->info, meta.info);
    EXPECT_EQ(info->title, meta.title);
    EXPECT_EQ(info->keywords, meta.keywords);
    const std::string xml = Entry(path, "meta.xml");
    EXPECT_NE(xml.find("<meta:generator>Kept</meta:generator>"), std::string::npos);
    EXPECT_NE(xml.find("meta:name=\"Info 2\""), std::string::npos);
    EXPECT_NE(xml.find("meta:name=\"Other\">stays<"), std::string::npos);
    EXPECT_EQ(xml.find("Duplicate"), std::string::npos);
    EXPECT_EQ(xml.find("float"), std::string::npos);
    // The remaining field follows the four written ones.
    EXPECT_LT(xml.find("\"Reviewer\""), xml.find("\"Other\""));

    // Empty values remove the fields; user fields are not added where there were none.
    const std::string docx = dir.PathOf("plain.docx");
    SampleDoc doc = FullSample();
    doc.info.clear();
    ASSERT_TRUE(WriteSampleDocx(docx, doc, error)) << error;
    ASSERT_TRUE(WriteDocMeta(docx, DocMeta{}, error)) << error;
    auto cleared = ReadDocInfo(docx);
    ASSERT_NE(cleared, nullptr);
    EXPECT_EQ(cleared->title, "");
    EXPECT_EQ(cleared->keywords, "");
    EXPECT_EQ(cleared->author, doc.author);
    ZipArchive zip;
    ASSERT_TRUE(zip.Open(docx, ZipArchive::Mode::Read));
    EXPECT_FALSE(zip.Has("docProps/custom.xml"));
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
    dir.MakeFile("notes.txt", "plain text");
    dir.MakeFile("broken.pdf", "%PDF-1.4\nnothing else");
    dir.MakeFile("broken.odt", "not a zip");
    WriteOdfMeta(dir.PathOf("malformed.odt"), "<dc:title>x</dc:titel>");
    WriteOle(dir.PathOf("legacy.doc"), FullSample());
    ASSERT_TRUE(WriteSample(dir.PathOf("text.rtf"), FullSample(), error)) << error;

    std::vector<std::pair<std::string, std::string>> cases = {
        {"readonly.odt", "read-only"}, {"locked.pdf", "encrypted"}, {"owner.pdf", "encrypted"},
        {"locked.docx", "encrypted"},  {"notes.txt", "cannot be changed"}, {"broken.pdf", "damaged"},
        {"broken.odt", "damaged"},     {"malformed.odt", "damaged"},  {"missing.odt", "does not exist"},
        {"legacy.doc", "of this kind"}, {"text.rtf", "of this kind"}};
    if (::geteuid() != 0) {  // the superuser writes into read-only folders
        dir.MakeDir("sub");
        ASSERT_TRUE(WriteSampleDocx(dir.PathOf("sub/doc.docx"), FullSample(), error)) << error;
        ::chmod(dir.PathOf("sub").c_str(), 0555);
        cases.emplace_back("sub/doc.docx", "read-only");
    }
    std::vector<std::string> names;
    for (const auto& [name, reason] : cases) {
        SCOPED_TRACE(name);
        const bool exists = dir.Exists(name);
        const std::string before = exists ? dir.Read(name) : "";
        EXPECT_FALSE(WriteDocMeta(dir.PathOf(name), EditedMeta(), error));
        EXPECT_NE(error.find(reason), std::string::npos) << error;
        if (exists) {
            EXPECT_EQ(dir.Read(name), before);
            names.push_back(name.substr(0, name.find('/')));
        }
    }
    EXPECT_EQ(StrayFiles(dir, names), std::vector<std::string>{});
}

TEST(WriterRoundTrip, PdfXmpFollowsTheInfoDictionary)
{
    TempDir dir;
    const std::string packet =
        "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
        "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
        "xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" pdf:Keywords=\"old keys\">"
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">Old title</rdf:li></rdf:Alt></dc:title>"
        "<dc:format>application/pdf</dc:format></rdf:Description>"
        "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">"
        "<xmp:CreatorTool>Some Tool</xmp:CreatorTool></rdf:Description></rdf:RDF></x:xmpmeta>"
        "<?xpacket end=\"w\"?>";
    WritePdf(dir.PathOf("xmp.pdf"), "<< /Title (Old title) >>", nullptr, nullptr, packet);
    std::string error;
    ASSERT_TRUE(WriteDocMeta(dir.PathOf("xmp.pdf"), EditedMeta(), error)) << error;

    QPDF pdf;
    pdf.processFile(dir.PathOf("xmp.pdf").c_str());
    const std::shared_ptr<Buffer> data = pdf.getRoot().getKey("/Metadata").getStreamData();
    const std::string written(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
    xmp::Fields fields;
    ASSERT_TRUE(xmp::Read(written, fields)) << written;
    const DocMeta meta = EditedMeta();
    EXPECT_EQ(fields.title, meta.title);
    EXPECT_EQ(fields.description, meta.topic);
    EXPECT_EQ(fields.keywords, meta.keywords);
    EXPECT_EQ(fields.subject, meta.keywords);
    // Everything else in the packet stays, and the old texts are gone.
    for (const char* kept : {"<dc:format>application/pdf</dc:format>", "<xmp:CreatorTool>Some Tool</xmp:CreatorTool>",
                             "<?xpacket end=\"w\"?>"})
        EXPECT_NE(written.find(kept), std::string::npos) << kept;
    EXPECT_EQ(written.find("Old title"), std::string::npos);
    EXPECT_EQ(written.find("old keys"), std::string::npos);
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
    for (const QStringList& args : {QStringList{}, QStringList{out, "many"}, QStringList{out, "3", "--seed"},
                                    QStringList{out, "--colour"}, QStringList{out, "1", "2"}}) {
        const auto [status, output] = run(args);
        EXPECT_EQ(status, 2) << args.join(' ').toStdString();
        EXPECT_NE(output.find("Usage: docmanager-samples DIR [COUNT] [--seed N]"), std::string::npos) << output;
    }
    EXPECT_FALSE(dir.Exists("out"));

    // The default library, and the same again from the same seed given explicitly.
    const auto [status, output] = run({out});
    ASSERT_EQ(status, 0) << output;
    EXPECT_NE(output.find("Wrote 24 documents and 4 other files"), std::string::npos) << output;
    ASSERT_EQ(run({QString::fromStdString(dir.PathOf("again")), "--seed", "1", "24"}).first, 0);
    std::map<std::string, int> documents;
    int others = 0;
    for (const auto& entry : std::filesystem::directory_iterator(dir.PathOf("out"))) {
        const std::string name = entry.path().filename().string();
        EXPECT_EQ(dir.Read("out/" + name), dir.Read("again/" + name)) << name;
        const auto info = ReadDocInfo(entry.path().string());
        others += !info;
        if (info) {
            EXPECT_FALSE(info->title.empty()) << name;
            ++documents[entry.path().extension().string()];
        }
    }
    EXPECT_EQ(documents, (std::map<std::string, int>{{".docx", 5}, {".odt", 5}, {".pdf", 5}, {".fodt", 5}, {".rtf", 4}}));
    EXPECT_EQ(others, 4);
}
