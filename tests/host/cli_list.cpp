// docmanager --list: the output formats, the group's options, the index and which paths are read.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

#include "tests/host/cli_fixture.h"
#include "tests/host/readers_fixtures.h"

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
};

TEST_F(CliListTest, TsvTextAndJsonShowTheSameSortedRows)
{
    MakeLibrary();
    GroupSpec group{.name = "Lib", .paths = Lib(), .sortColumn = 3, .columns = {1, 3, 7}};
    const std::string config = WriteConfig(ConfigText({group}));

    const RunResult tsv = List(config, {"--format", "tsv"});
    ASSERT_EQ(tsv.status, 0) << tsv.err;
    EXPECT_EQ(tsv.out, "File name\tTitle\tAuthor\nb.docx\tAlpha memo\tBob Builder\n"
                       "a.odt\tBeta plan\tAnn Author\nc.pdf\tGamma\tZoë Ünal\n");

    // Text: the same cells, each column starting at the same character on every line.
    const RunResult text = List(config, {"--format", "text"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_EQ(text.out, "File name Title      Author\nb.docx    Alpha memo Bob Builder\n"
                        "a.odt     Beta plan  Ann Author\nc.pdf     Gamma      Zoë Ünal\n");

    // JSON: raw values in list order.
    const RunResult json = List(config, {"--format", "json"});
    ASSERT_EQ(json.status, 0) << json.err;
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(QByteArray::fromStdString(json.out), &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << json.out;
    const QJsonArray array = doc.array();
    ASSERT_EQ(array.size(), 3);
    const QJsonObject first = array[0].toObject();
    EXPECT_EQ(first["path"].toString().toStdString(), dir.PathOf("lib/b.docx"));
    EXPECT_EQ(first["name"].toString(), "b.docx");
    EXPECT_EQ(first["directory"].toString().toStdString(), Lib());
    EXPECT_EQ(first["size"].toInteger(), qint64(dir.Size("lib/b.docx")));
    EXPECT_EQ(first["title"].toString(), "Alpha memo");
    EXPECT_EQ(first["author"].toString(), "Bob Builder");
    EXPECT_EQ(first["created"].toString(), "2021-03-02T09:30:00");
    EXPECT_EQ(first["modified"].toString(), "2021-03-02T17:45:10");
    // Never printed: the printed stamp is the created one.
    EXPECT_EQ(first["printed"].toString(), "2021-03-02T09:30:00");
    EXPECT_EQ(first["info"].toArray().size(), 4);
    for (const char* key : {"topic", "modifiedBy", "printedBy", "comment", "keywords"})
        EXPECT_TRUE(first[key].isString()) << key;
    EXPECT_EQ(array[2].toObject()["author"].toString(), QString::fromUtf8("Zoë Ünal"));

    // CSV: the same cells, comma-separated records ended by CR LF.
    const RunResult csv = List(config, {"--format", "csv"});
    ASSERT_EQ(csv.status, 0) << csv.err;
    EXPECT_EQ(csv.out, "File name,Title,Author\r\nb.docx,Alpha memo,Bob Builder\r\n"
                       "a.odt,Beta plan,Ann Author\r\nc.pdf,Gamma,Zoë Ünal\r\n");
}

TEST_F(CliListTest, TheGroupsSortAndFilterReachTheListing)
{
    WriteDoc("lib/1.odt", "Project PLAN 2021", "A", 1);
    WriteDoc("lib/2.docx", "Budget", "A", 2);
    WriteDoc("lib/3.pdf", "plan", "A", 3);
    GroupSpec group{.name = "Plans", .paths = Lib(), .filterTitle = "*plan*", .sortColumn = 3,
                    .ascending = false, .columns = {3}};
    const RunResult run = List(WriteConfig(ConfigText({group})), {"--format", "tsv"});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "Title\nplan\nProject PLAN 2021\n");
    // The file pattern acts on the listing: only the PDF is read.
    group.filterTitle.clear();
    group.filterFiles = "*.PDF";
    EXPECT_EQ(List(WriteConfig(ConfigText({group})), {"--format", "tsv"}).out, "Title\nplan\n");
}

TEST_F(CliListTest, TheIndexIsWrittenOnceThenUsedInsteadOfTheDocuments)
{
    WriteDoc("lib/a.odt", "Alpha", "Ann", 1);
    readertest::WritePdf(dir.PathOf("lib/locked.pdf"), "<< /Title (Secret) >>", "user-password");
    dir.MakeFile("lib/broken.docx", "plain text under an OOXML name");
    GroupSpec group{.name = "Lib", .paths = Lib(), .sortColumn = 1, .columns = {1}};
    const std::string config = WriteConfig(ConfigText({group}));
    int64_t written = 0;
    // The second listing comes from the index (under the name given): the document may
    // have turned to rubbish without its file time changing. The index keeps no reason why
    // a document shows no information: it is found again.
    for (int pass = 0; pass < 2; ++pass) {
        SCOPED_TRACE(pass);
        const RunResult json = List(config, {"--format", "json", "--index-name", "my.idx"});
        ASSERT_EQ(json.status, 0) << json.err;
        const QJsonArray rows = QJsonDocument::fromJson(QByteArray::fromStdString(json.out)).array();
        ASSERT_EQ(rows.size(), 3) << json.out;
        EXPECT_EQ(rows[0].toObject()["title"].toString(), "Alpha");
        EXPECT_TRUE(rows[0].toObject()["problem"].isNull());
        EXPECT_EQ(rows[1].toObject()["problem"].toString(), "not a zip");
        EXPECT_EQ(rows[2].toObject()["problem"].toString(), "encrypted");
        if (pass == 0) {
            ASSERT_TRUE(dir.Exists("lib/my.idx"));
            written = dir.MTimeNs("lib/my.idx");
            dir.MakeFile("lib/a.odt", "rubbish", 1600000000 + 100);
        }
    }
    EXPECT_EQ(dir.MTimeNs("lib/my.idx"), written) << "an index in use is not rewritten";
    EXPECT_FALSE(dir.Exists("lib/.docindex"));
}

TEST_F(CliListTest, StartPathsAreReadWhenTheGroupHasNoActivePath)
{
    WriteDoc("lib/top.odt", "Top", "A", 1);
    WriteDoc("lib/sub/deep.docx", "Deep", "A", 2);
    WriteDoc("other/else.pdf", "Elsewhere", "A", 3);
    GroupSpec group{.name = "NoPaths", .sortColumn = 3, .columns = {3}};
    const std::string noPaths = WriteConfig(ConfigText({group}), "nopaths.cfg");

    const QString lib = QString::fromStdString(Lib()), other = QString::fromStdString(dir.PathOf("other"));
    const std::vector<std::pair<QStringList, std::string>> cases = {
        {{lib}, "Title\nTop\n"}, {{lib + "/**"}, "Title\nDeep\nTop\n"}, {{lib, other}, "Title\nElsewhere\nTop\n"}};
    for (const auto& [paths, out] : cases)
        EXPECT_EQ(List(noPaths, QStringList{"--format", "tsv"} + paths).out, out) << paths.join(' ').toStdString();

    // A relative start path is taken from the current directory.
    const std::string saved = std::filesystem::current_path();
    std::filesystem::current_path(dir.Path());
    RunResult run = List(noPaths, {"--format", "tsv", "other"});
    std::filesystem::current_path(saved);
    EXPECT_EQ(run.out, "Title\nElsewhere\n");

    // An active path of the group wins over the start paths; an inactive one does not.
    group.paths = dir.PathOf("other") + ";" + Lib();
    group.guis = "01";
    EXPECT_EQ(List(WriteConfig(ConfigText({group})), {"--format", "tsv", other}).out, "Title\nTop\n");
    group.guis = "00";
    EXPECT_EQ(List(WriteConfig(ConfigText({group})), {"--format", "tsv", other}).out, "Title\nElsewhere\n");

    // A path that is no directory lists nothing and is named on standard error.
    run = List(noPaths, {"--format", "tsv", QString::fromStdString(dir.PathOf("missing"))});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "Title\n");
    EXPECT_NE(run.err.find(dir.PathOf("missing")), std::string::npos) << run.err;

    // So is a folder that cannot be read, also below a listed one.
    dir.MakeDir("lib/sub/locked");
    chmod(dir.PathOf("lib/sub/locked").c_str(), 0);
    chmod(dir.Path().c_str(), 0755);
    for (const std::string& path : {dir.PathOf("lib/sub/locked"), Lib() + "/**"}) {
        run = RunDocmanager({"--list", "--config", QString::fromStdString(noPaths), "--format", "tsv",
                             QString::fromStdString(path)}, ConfigHome(), true);
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_NE(run.err.find(dir.PathOf("lib/sub/locked") + " cannot be read"), std::string::npos)
            << run.err;
    }
    chmod(dir.PathOf("lib/sub/locked").c_str(), 0755);
}

TEST_F(CliListTest, ColumnsOptionAndTheGroupsSlotsChooseTheColumns)
{
    WriteDoc("lib/a.odt", "Alpha", "Ann", 1);
    GroupSpec group{.name = "Lib", .paths = Lib(), .columns = {7, 3}};
    const std::string config = WriteConfig(ConfigText({group}));
    RunResult run = List(config, {"--format", "tsv"});
    EXPECT_EQ(run.out, "Author\tTitle\nAnn\tAlpha\n");
    // Options take their value either way: "--option value" or "--option=value".
    run = RunDocmanager({"--list", "--config=" + QString::fromStdString(config), "--format=tsv", "--columns=1,20,16"},
                        ConfigHome());
    EXPECT_EQ(run.out, "File name\tDirectory\tProject\na.odt\t" + Lib() + "\t\n");

    // Without column slots in the configuration: the 20 columns of a new group.
    GroupSpec all{.name = "All", .paths = Lib()};
    run = List(WriteConfig(ConfigText({all})), {"--format", "tsv"});
    const std::string header = run.out.substr(0, run.out.find('\n'));
    EXPECT_EQ(std::count(header.begin(), header.end(), '\t'), 19) << header;
    EXPECT_TRUE(header.ends_with("\tDirectory")) << header;
}

TEST_F(CliListTest, AwkwardTextsKeepTheFormatsIntact)
{
    WriteDoc("lib/q.odt", "Say \"hi\" \\ then\ttab", "Ann", 1);
    GroupSpec group{.name = "Lib", .paths = Lib(), .columns = {3, 7}};
    const std::string config = WriteConfig(ConfigText({group}));

    const RunResult tsv = List(config, {"--format", "tsv"});
    EXPECT_EQ(tsv.out, "Title\tAuthor\nSay \"hi\" \\ then tab\tAnn\n");

    const RunResult json = List(config, {"--format", "json"});
    const QJsonDocument doc = QJsonDocument::fromJson(QByteArray::fromStdString(json.out));
    ASSERT_TRUE(doc.isArray()) << json.out;
    EXPECT_EQ(doc.array()[0].toObject()["title"].toString(), "Say \"hi\" \\ then\ttab");
    EXPECT_FALSE(doc.array()[0].toObject().contains("pathBase64"));

    // A name that is not UTF-8: its exact bytes can be had back.
    dir.Remove("lib/q.odt");
    const std::string odd = dir.PathOf("lib/r\xff.odt");
    std::filesystem::rename(WriteDoc("lib/r.odt", "Odd", "Ann", 1), odd);
    const QJsonDocument oddDoc = QJsonDocument::fromJson(
        QByteArray::fromStdString(List(config, {"--format", "json"}).out));
    const QJsonObject row = oddDoc.array()[0].toObject();
    EXPECT_EQ(QByteArray::fromBase64(row["pathBase64"].toString().toLatin1()).toStdString(), odd);
}

TEST_F(CliListTest, AnEmptyListIsStillWellFormed)
{
    dir.MakeDir("empty");
    GroupSpec group{.name = "Empty", .paths = dir.PathOf("empty"), .columns = {1, 3}};
    const std::string config = WriteConfig(ConfigText({group}));
    EXPECT_EQ(List(config, {"--format", "json"}).out, "[]\n");
    EXPECT_EQ(List(config, {"--format", "tsv"}).out, "File name\tTitle\n");
    EXPECT_EQ(List(config, {}).out, "File name Title\n");
    EXPECT_FALSE(dir.Exists("empty/.docindex"));
}

}  // namespace
}  // namespace clitest
