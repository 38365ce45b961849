// docmanager --list: the output formats, the group's options, the index and which paths are read.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>
#include <filesystem>
#include <sys/stat.h>

#include "tests/host/cli_fixture.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/indeximage.h"

namespace clitest {
namespace {

class CliListTest : public CliTest {
protected:
    // b.docx "Alpha memo", a.odt "Beta plan", c.pdf "Gamma", and a file that is no document.
    void MakeLibrary()
    {
        WriteDoc("lib/a.odt", "Beta plan", "Ann Author", 3);
        WriteDoc("lib/b.docx", "Alpha memo", "Bob Builder", 2);
        WriteDoc("lib/c.pdf", "Gamma", "Zoë Ünal", 1);
        dir.MakeFile("lib/notes.txt", "not a document");
    }
    std::string Lib() const { return dir.PathOf("lib"); }
    static QJsonArray Rows(const RunResult& run)
    {
        EXPECT_EQ(run.status, 0) << run.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).array();
    }
};

TEST_F(CliListTest, TsvTextAndJsonShowTheSameSortedRows)
{
    MakeLibrary();
    const std::string config = WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 3, .columns = {1, 3, 7}}}));
    // Text: the same cells, each column starting at the same character on every line. CSV:
    // comma-separated records ended by CR LF.
    const std::pair<const char*, std::string> formats[] = {
        {"tsv", "File name\tTitle\tAuthor\nb.docx\tAlpha memo\tBob Builder\na.odt\tBeta plan\tAnn Author\nc.pdf\tGamma\tZoë Ünal\n"},
        {"text",
         "File name Title      Author\nb.docx    Alpha memo Bob Builder\na.odt     Beta plan  Ann Author\nc.pdf     Gamma      Zoë Ünal\n"},
        {"csv", "File name,Title,Author\r\nb.docx,Alpha memo,Bob Builder\r\na.odt,Beta plan,Ann Author\r\nc.pdf,Gamma,Zoë Ünal\r\n"}};
    for (const auto& [format, out] : formats) {
        const RunResult run = List(config, {"--format", format});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out, out) << format;
    }
    // Other columns by --columns, an information field under the group's caption; options
    // take their value either way: "--option value" or "--option=value".
    const std::string lib = Lib();
    EXPECT_EQ(List(config, {"--format=tsv", "--columns=1,20,16"}).out,
              "File name\tDirectory\tProject\nb.docx\t" + lib + "\t\na.odt\t" + lib + "\t\nc.pdf\t" + lib + "\t\n");

    // JSON: raw values in list order; never printed, the printed stamp is the created one.
    const QJsonArray array = Rows(List(config, {"--format", "json"}));
    ASSERT_EQ(array.size(), 3);
    const QJsonObject first = array[0].toObject();
    EXPECT_EQ(first["path"].toString().toStdString(), dir.PathOf("lib/b.docx"));
    EXPECT_EQ(first["directory"].toString().toStdString(), Lib());
    EXPECT_EQ(first["size"].toInteger(), qint64(dir.Size("lib/b.docx")));
    for (const auto& [key, value] : std::map<QString, QString>{{"name", "b.docx"},
                                                               {"title", "Alpha memo"},
                                                               {"author", "Bob Builder"},
                                                               {"created", "2021-03-02T09:30:00"},
                                                               {"modified", "2021-03-02T17:45:10"},
                                                               {"printed", "2021-03-02T09:30:00"},
                                                               {"comment", ""}})
        EXPECT_EQ(first[key].toString(), value) << key.toStdString();
    EXPECT_EQ(first["info"].toArray().size(), 4);
    EXPECT_EQ(array[2].toObject()["author"].toString(), QString::fromUtf8("Zoë Ünal"));
}

TEST_F(CliListTest, FindKeepsTheRowsShowingTheTextInAListedColumn)
{
    MakeLibrary();
    const std::string config = WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 3, .columns = {1, 3, 7}}}));
    // Case folded beyond ASCII, in any listed column, in every format.
    EXPECT_EQ(List(config, {"--format", "tsv", "--find", "ZOË"}).out, "File name\tTitle\tAuthor\nc.pdf\tGamma\tZoë Ünal\n");
    EXPECT_EQ(List(config, {"--format=tsv", "--find=A.OD"}).out, "File name\tTitle\tAuthor\na.odt\tBeta plan\tAnn Author\n");
    EXPECT_EQ(Rows(List(config, {"--format", "json", "--find", "b"})).size(), 2);  // "b.docx", "Beta", "Bob"
    // A column not listed is not searched; an empty text keeps every row.
    EXPECT_EQ(List(config, {"--format", "tsv", "--columns", "1", "--find", "gamma"}).out, "File name\n");
    EXPECT_EQ(Rows(List(config, {"--format", "json", "--find", ""})).size(), 3);
    const RunResult outsideList = RunDocmanager({"--export-config", "--find", "x"}, ConfigHome());
    EXPECT_EQ(outsideList.status, 2);
    EXPECT_NE(outsideList.err.find("--find is only used with --list"), std::string::npos) << outsideList.err;
}

TEST_F(CliListTest, TheIndexIsWrittenOnceThenUsedInsteadOfTheDocuments)
{
    WriteDoc("lib/a.odt", "Alpha", "Ann", 1);
    readertest::WritePdf(dir.PathOf("lib/locked.pdf"), "<< /Title (Secret) >>", "user-password");
    dir.MakeFile("lib/broken.docx", "plain text under an OOXML name");
    const std::string config = WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 1, .columns = {1}}}));
    int64_t written = 0;
    testfs::WaitForFileClock();
    // The second listing comes from the index (under the name given), which is not
    // written again. The index keeps no reason why a document shows no information: it
    // is found again. A document replaced by one with an older file time (a copy that
    // kept its time, a restored backup) is read again all the same.
    for (int pass = 0; pass < 3; ++pass) {
        SCOPED_TRACE(pass);
        const QJsonArray rows = Rows(List(config, {"--format", "json", "--index-name", "my.idx"}));
        ASSERT_EQ(rows.size(), 3);
        EXPECT_EQ(rows[0].toObject()["title"].toString() + rows[0].toObject()["problem"].toString(), pass < 2 ? "Alpha" : "not a zip");
        EXPECT_EQ(rows[1].toObject()["problem"].toString() + "|" + rows[2].toObject()["problem"].toString(), "not a zip|encrypted");
        if (pass == 0) {
            ASSERT_TRUE(dir.Exists("lib/my.idx"));
            written = dir.MTimeNs("lib/my.idx");
        } else if (pass == 1) {
            EXPECT_EQ(dir.MTimeNs("lib/my.idx"), written) << "an index in use is not rewritten";
            dir.MakeFile("lib/a.odt", "rubbish", 1600000000 + 100);
        }
    }
    EXPECT_FALSE(dir.Exists("lib/.docindex"));
}

TEST_F(CliListTest, StartPathsAreReadWhenTheGroupHasNoActivePath)
{
    WriteDoc("lib/top.odt", "Top", "A", 1);
    WriteDoc("lib/sub/deep.docx", "Deep", "A", 2);
    WriteDoc("other/else.pdf", "Elsewhere", "A", 3);
    GroupSpec group{.name = "NoPaths", .sortColumn = 3, .columns = {3}};
    const std::string noPaths = WriteConfig(ConfigText({group}), "nopaths.cfg");

    // A relative start path is taken from the current directory; a path that is no
    // directory lists nothing and is named on standard error.
    const QString lib = QString::fromStdString(Lib()), other = QString::fromStdString(dir.PathOf("other"));
    const QString missing = QString::fromStdString(dir.PathOf("missing"));
    const std::pair<QStringList, std::string> cases[] = {{{lib}, "Title\nTop\n"},
                                                         {{lib + "/**"}, "Title\nDeep\nTop\n"},
                                                         {{lib, other}, "Title\nElsewhere\nTop\n"},
                                                         {{"other"}, "Title\nElsewhere\n"},
                                                         {{missing}, "Title\n"}};
    const std::string saved = std::filesystem::current_path();
    std::filesystem::current_path(dir.Path());
    for (const auto& [paths, out] : cases) {
        const RunResult run = List(noPaths, QStringList{"--format", "tsv"} + paths);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, out) << paths.join(' ').toStdString();
        EXPECT_EQ(run.err.find(missing.toStdString()) != std::string::npos, paths[0] == missing) << run.err;
    }
    std::filesystem::current_path(saved);
    EXPECT_EQ(List(noPaths, {"--format", "json", missing}).out, "[]\n");

    // An active path of the group wins over the start paths; an inactive one does not.
    group.paths = dir.PathOf("other") + ";" + Lib();
    group.guis = "01";
    EXPECT_EQ(List(WriteConfig(ConfigText({group})), {"--format", "tsv", other}).out, "Title\nTop\n");
    group.guis = "00";
    EXPECT_EQ(List(WriteConfig(ConfigText({group})), {"--format", "tsv", other}).out, "Title\nElsewhere\n");

    // A folder that cannot be read is named too, also below a listed one.
    chmod(dir.MakeDir("lib/sub/locked").c_str(), 0);
    chmod(dir.Path().c_str(), 0755);
    for (const std::string& path : {dir.PathOf("lib/sub/locked"), Lib() + "/**"}) {
        const RunResult run = RunDocmanager(
            {"--list", "--config", QString::fromStdString(noPaths), "--format", "tsv", QString::fromStdString(path)}, ConfigHome(), true);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_NE(run.err.find(dir.PathOf("lib/sub/locked") + " cannot be read"), std::string::npos) << run.err;
    }
    chmod(dir.PathOf("lib/sub/locked").c_str(), 0755);
}

TEST_F(CliListTest, AwkwardTextsKeepTheFormatsIntact)
{
    WriteDoc("lib/q.odt", "Say \"hi\" \\ then\ttab", "Ann", 1);
    // A name that is not UTF-8: its exact bytes can be had back.
    const std::string odd = dir.PathOf("lib/r\xff.odt");
    std::filesystem::rename(WriteDoc("lib/r.odt", "Odd", "Ann", 1), odd);
    // A (hostile) index record with NUL bytes in its title.
    dir.MakeFile("lib/n.odt", "x", 1600000000);
    dir.MakeFile("lib/.docindex",
                 indeximage::Header() + indeximage::Record("n.odt")
                                            .Text(indeximage::TITLE, 63, std::string("Nul\0here", 8))
                                            .Text(indeximage::AUTHOR, 31, "Nia")
                                            .Bytes(),
                 time(nullptr) + 1000);
    const std::string config = WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 3, .columns = {1, 3, 7}}}));
    // Every format gives UTF-8: U+FFFD for what is not, and no NUL.
    EXPECT_EQ(List(config, {"--format", "tsv"}).out, "File name\tTitle\tAuthor\nn.odt\tNulhere\tNia\n"
                                                     "r\uFFFD.odt\tOdd\tAnn\nq.odt\tSay \"hi\" \\ then tab\tAnn\n");
    for (const char* format : {"text", "csv"}) {
        const std::string out = List(config, {"--format", format}).out;
        EXPECT_EQ(QString::fromUtf8(out).toStdString(), out) << format;
        EXPECT_NE(out.find("r\uFFFD.odt"), std::string::npos) << format;
        EXPECT_EQ(out.find('\0'), std::string::npos) << format;
    }
    const QJsonArray rows = Rows(List(config, {"--format", "json"}));
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(QByteArray::fromBase64(rows[1].toObject()["pathBase64"].toString().toLatin1()).toStdString(), odd);
    EXPECT_EQ(rows[2].toObject()["title"].toString(), "Say \"hi\" \\ then\ttab");
    EXPECT_FALSE(rows[2].toObject().contains("pathBase64"));
}

}  // namespace
}  // namespace clitest
