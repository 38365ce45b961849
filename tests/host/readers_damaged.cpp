// Damaged, encrypted and hostile files: still documents when they look like one, never
// a crash, a hang or an unbounded allocation; the host's properties dialog says why a
// document could not be read, and shows read-only formats.
#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "host/app/docpropertiesdialog.h"
#include "host/readers/docreader.h"
#include "host/samples/samplewriter.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/tempdir.h"

using namespace readertest;

namespace {

// Read as a document that carries no information at all.
void ExpectEmptyDocument(const std::string& path)
{
    auto info = ReadDocInfo(path);
    ASSERT_NE(info, nullptr) << path;
    EXPECT_EQ(std::tuple(info->HasInfo(), info->title + info->author, info->createdDate, info->info),
              std::tuple(true, std::string(), Date(), std::array<std::string, 4>{}))
        << path;
}

}  // namespace

TEST(ReadersDamaged, DamagedFilesAreDocumentsWithoutInformationAZipBombStopsAtTheCapPdfTextsAreDecoded)
{
    TempDir dir;
    std::string error;
    ASSERT_TRUE(WriteSampleOdt(dir.PathOf("whole.odt"), FullSample(), error)) << error;
    const std::string whole = dir.Read("whole.odt");
    dir.MakeFile("truncated.odt", whole.substr(0, whole.size() / 2));
    for (const auto& [name, bytes] :
         std::vector<std::pair<const char*, std::string>>{{"garbage.docx", "PK\3\4 this is not really a zip"},
                                                          {"text.xlsx", "plain text with an office name"},
                                                          {"garbage.pdf", "%PDF-1.7\n\x01\x02 not objects at all \xff\xfe"},
                                                          {"header-only.bin", "%PDF-"},
                                                          {"empty.pdf", ""},
                                                          {"garbage.doc", "not an OLE file"},
                                                          {"notxml.fodt", "<office:document"},
                                                          {"empty.rtf", "{\\rtf1 no information group}"}})
        dir.MakeFile(name, bytes);
    WriteZip(dir.PathOf("nometa.odt"),
             {{"mimetype", "application/vnd.oasis.opendocument.text"}, {"content.xml", "<office:document-content/>"}});
    WriteOdfMeta(dir.PathOf("malformed.odt"), "<dc:title>Unclosed</dc:titel>");
    WritePdf(dir.PathOf("locked.pdf"), "<< /Title (Secret) >>", "user-password");
    // Encrypted only against changes: anyone may open it, so its information is read.
    WritePdf(dir.PathOf("owner.pdf"), "<< /Title (Open Book) >>", "", "owner-password");
    WriteOle(dir.PathOf("locked.doc"), FullSample(), std::string("\0\1", 2));
    // The head of an OLE compound file, as Office keeps a password-protected document.
    dir.MakeFile("locked.docx", std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(504, '\0'));
    // No header at all under a PDF name: a document that is not even opened. Sparse past
    // 4 GiB (where the file system allows), its size is capped below the "no information" mark.
    std::error_code ec;
    std::filesystem::resize_file(dir.MakeFile("noheader.pdf"), 5ull << 30, ec);
    WritePdf(dir.PathOf("bare.pdf"), "<< /Producer (x) >>");
    // A wrong cross-reference offset: qpdf's repair finds the objects and the trailer, also
    // behind a header late in the first kilobyte; beyond a megabyte the full scan is not tried.
    WritePdf(dir.PathOf("whole.pdf"), "<< /Title (Recovered) >>");
    std::string moved = dir.Read("whole.pdf");
    const size_t offset = moved.rfind("startxref\n") + 10;
    moved.replace(offset, moved.find('\n', offset) - offset, "12");
    dir.MakeFile("moved.pdf", moved);
    dir.MakeFile("late.bin", std::string(1000, 'x') + moved);
    const size_t firstLine = moved.find('\n') + 1;
    dir.MakeFile("large-moved.pdf", moved.substr(0, firstLine) + "%" + std::string(1u << 20, 'x') + "\n" + moved.substr(firstLine));
    const std::string title = FullSample().title;
    // An empty title: no information at all.
    const struct {
        const char* name;
        ReadProblem problem;
        std::string title;
    } cases[] = {
        {"whole.odt", ReadProblem::None, title},
        {"truncated.odt", ReadProblem::Damaged, ""},
        {"garbage.docx", ReadProblem::Damaged, ""},
        {"text.xlsx", ReadProblem::NotZip, ""},
        {"nometa.odt", ReadProblem::NoInformation, ""},
        {"malformed.odt", ReadProblem::Damaged, ""},
        {"locked.pdf", ReadProblem::Encrypted, ""},
        {"owner.pdf", ReadProblem::None, "Open Book"},
        // An encrypted Word file still shows the properties it keeps in the clear.
        {"locked.doc", ReadProblem::Encrypted, title},
        {"locked.docx", ReadProblem::Damaged, ""},
        {"garbage.pdf", ReadProblem::Damaged, ""},
        {"header-only.bin", ReadProblem::Damaged, ""},
        {"empty.pdf", ReadProblem::Damaged, ""},
        {"noheader.pdf", ReadProblem::Damaged, ""},
        {"garbage.doc", ReadProblem::Damaged, ""},
        {"notxml.fodt", ReadProblem::Damaged, ""},
        {"empty.rtf", ReadProblem::NoInformation, ""},
        {"bare.pdf", ReadProblem::NoInformation, ""},
        {"moved.pdf", ReadProblem::None, "Recovered"},
        {"late.bin", ReadProblem::None, "Recovered"},
        {"large-moved.pdf", ReadProblem::Damaged, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const DocReading reading = ReadDocument(dir.PathOf(c.name));
        ASSERT_NE(reading.info, nullptr);
        EXPECT_EQ(ProblemText(reading.problem), ProblemText(c.problem));
        EXPECT_EQ(reading.info->size, std::min<uint64_t>(dir.Size(c.name), 0xFFFFFFFE));
        EXPECT_EQ(reading.info->title, c.title);
        if (c.title.empty())
            ExpectEmptyDocument(dir.PathOf(c.name));
    }
    // A truncated zip under a name that says nothing is not a document.
    dir.MakeFile("truncated.dat", whole.substr(0, whole.size() / 2));
    EXPECT_EQ(ReadDocInfo(dir.PathOf("truncated.dat")), nullptr);

    // 40 MiB of blanks inside meta.xml deflate to a few kilobytes: a part past the cap is
    // not parsed at all, but the file is still a document.
    WriteOdfMeta(dir.PathOf("bomb.odt"), "<dc:title>Bomb</dc:title>" + std::string(40u << 20, ' '));
    ASSERT_LT(dir.Size("bomb.odt"), 1u << 20);
    ExpectEmptyDocument(dir.PathOf("bomb.odt"));

    // PDFDocEncoding, UTF-16BE with byte order mark, a date without zone, a broken date.
    WritePdf(dir.PathOf("enc.pdf"), "<< /Title (Caf\\351) /Subject <FEFF005A006F00EB> /Keywords (a, b) /CreationDate (D:20010203040506) "
                                    "/ModDate (D:2001xx) /Zeta (last) /Alpha (first) /Mid 7 /Trapped /False "
                                    "/Author [(Ann) <FEFF005A006F00EB>] /Beta [(x) 1] >>");
    auto info = ReadDocInfo(dir.PathOf("enc.pdf"));
    ASSERT_NE(info, nullptr);
    // An array of texts reads as the texts; any other array as PDF.
    EXPECT_EQ(info->title + "|" + info->topic + "|" + info->keywords + "|" + info->author, "Café|Zoë|a, b|Ann, Zoë");
    EXPECT_EQ(std::tuple(info->createdDate, info->createdTime, info->modifiedDate), std::tuple(Date(3, 2, 2001), Time(4, 5, 6), Date()));
    // Without a recorded order, the non-standard entries come by name.
    EXPECT_EQ(info->info, (std::array<std::string, 4>{"first", "[ (x) 1 ]", "7", "last"}));
}

TEST(AppProperties, NotesAndReadOnlyFormats)
{
    TempDir dir;
    std::string error;
    for (const char* name : {"text.odt", "text.rtf"})
        ASSERT_TRUE(WriteSample(dir.PathOf(name), FullSample(), error)) << error;
    WriteOle(dir.PathOf("legacy.doc"), FullSample());
    WritePdf(dir.PathOf("locked.pdf"), "<< /Title (Secret) >>", "user-password");
    // `note`: a part of the note shown; empty: no note.
    const struct {
        const char* name;
        bool editable;
        const char* note;
    } cases[] = {
        {"text.odt", true, ""}, {"text.rtf", false, "read-only"}, {"legacy.doc", false, "read-only"}, {"locked.pdf", true, "encrypted"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        DocPropertiesDialog dialog(nullptr, dir.PathOf(c.name), {});
        ASSERT_TRUE(dialog.IsLoaded());
        EXPECT_EQ(dialog.IsEditable(), c.editable);
        auto* note = dialog.findChild<QLabel*>("noteLabel");
        ASSERT_NE(note, nullptr);
        EXPECT_EQ(note->isVisibleTo(&dialog), *c.note != '\0');
        EXPECT_TRUE(note->text().contains(QLatin1String(c.note))) << note->text().toStdString();
        EXPECT_EQ(dialog.findChild<QPushButton*>("okButton")->isVisibleTo(&dialog), c.editable);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("titleEdit")->isReadOnly(), !c.editable);
    }
}
