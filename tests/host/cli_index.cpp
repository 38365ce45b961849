// docmanager --list keeps the per-directory index as the window does: written on the
// first listing, used (not rewritten) while nothing changes, refreshed for a changed file.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/host/cli_fixture.h"
#include "tests/support/indeximage.h"

namespace clitest {
namespace {

using namespace indeximage;

class CliIndexTest : public CliTest {
protected:
    void SetUp() override
    {
        WriteDoc("lib/a.odt", "Alpha", "Ann", 1);
        WriteDoc("lib/b.docx", "Beta", "Bob", 2);
        dir.MakeFile("lib/readme.txt", "no document");
        config = WriteConfig(ConfigText({{.name = "Lib", .paths = dir.PathOf("lib"),
                                          .filterFiles = "*", .sortColumn = 3,
                                          .columns = {1, 3}}}));
    }
    // Record of `name` in the index image, or npos.
    static size_t RecordOf(const std::string& index, const std::string& name)
    {
        for (size_t at = HEADER_SIZE; at + RECORD_SIZE <= index.size(); at += RECORD_SIZE)
            if (index.compare(at, name.size(), name) == 0 && index[at + name.size()] == ' ')
                return at;
        return std::string::npos;
    }
    std::string config;
};

TEST_F(CliIndexTest, FirstListingWritesTheIndexAndTheNextOneUsesIt)
{
    const RunResult first = List(config, {"--format", "tsv"});
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_EQ(first.out, "File name\tTitle\na.odt\tAlpha\nb.docx\tBeta\n");

    // Header, then one record per file: the two documents and the file that is none.
    const std::string index = dir.Read("lib/.docindex");
    ASSERT_EQ(index.size(), HEADER_SIZE + 3 * RECORD_SIZE);
    EXPECT_EQ(index.substr(0, HEADER_SIZE), Header());
    const size_t alpha = RecordOf(index, "a.odt");
    const size_t readme = RecordOf(index, "readme.txt");
    ASSERT_NE(alpha, std::string::npos);
    ASSERT_NE(readme, std::string::npos);
    EXPECT_EQ(index.substr(alpha + TITLE, 6), "Alpha ");
    EXPECT_EQ(index[alpha + HAS_INFO], 1);
    EXPECT_EQ(index[readme + HAS_INFO], 0);
    EXPECT_EQ(index.substr(alpha + AUTHOR, 31), Record("x").Text(AUTHOR, 31, "Ann").Bytes().substr(AUTHOR, 31));

    // Nothing changed: the index is neither rewritten nor touched, the list is the same.
    const int64_t written = dir.MTimeNs("lib/.docindex");
    const RunResult second = List(config, {"--format", "tsv"});
    EXPECT_EQ(second.out, first.out);
    EXPECT_EQ(dir.Read("lib/.docindex"), index);
    EXPECT_EQ(dir.MTimeNs("lib/.docindex"), written);
}

TEST_F(CliIndexTest, AnUnchangedDocumentIsTakenFromItsRecord)
{
    ASSERT_EQ(List(config, {}).status, 0);
    std::string index = dir.Read("lib/.docindex");
    const size_t alpha = RecordOf(index, "a.odt");
    ASSERT_NE(alpha, std::string::npos);
    // Edited by hand: a new title and an unset created date (day 0, month 0).
    const Record edited = Record("a.odt").Text(TITLE, 63, "Edited by hand");
    index.replace(alpha + TITLE, 63, edited.Bytes().substr(TITLE, 63));
    index.replace(alpha + CREATED_DATE, 3, std::string("\0\0\x94", 3));
    testfs::WriteFile(dir.PathOf("lib/.docindex"), index);

    const RunResult run = List(config, {"--format", "json"});
    ASSERT_EQ(run.status, 0) << run.err;
    const QJsonArray rows = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).array();
    ASSERT_EQ(rows.size(), 2) << run.out;
    EXPECT_EQ(rows[1].toObject()["title"].toString(), "Edited by hand");
    EXPECT_TRUE(rows[1].toObject()["created"].isNull()) << run.out;
    EXPECT_EQ(rows[0].toObject()["title"].toString(), "Beta");

    // Once the document changes it is read again and its record replaced in place.
    testfs::SetMTime(dir.PathOf("lib/a.odt"), 4000000000);
    const RunResult reread = List(config, {"--format", "tsv"});
    EXPECT_EQ(reread.out, "File name\tTitle\na.odt\tAlpha\nb.docx\tBeta\n");
    const std::string refreshed = dir.Read("lib/.docindex");
    EXPECT_EQ(refreshed.size(), index.size());
    EXPECT_EQ(refreshed.substr(alpha + TITLE, 6), "Alpha ");
}

TEST_F(CliIndexTest, IndexNameOptionAndADamagedIndex)
{
    const RunResult named = List(config, {"--index-name", "my.idx", "--format", "tsv"});
    EXPECT_EQ(named.status, 0) << named.err;
    EXPECT_TRUE(dir.Exists("lib/my.idx"));
    EXPECT_FALSE(dir.Exists("lib/.docindex"));
    EXPECT_EQ(dir.Read("lib/my.idx").substr(0, HEADER_SIZE), Header());

    dir.Remove("lib/my.idx");  // else it is one more file of the directory

    // Too short for its header: the directory shows nothing once, then is read afresh.
    testfs::WriteFile(dir.PathOf("lib/.docindex"), "KID");
    const RunResult damaged = List(config, {"--format", "tsv"});
    EXPECT_EQ(damaged.status, 0) << damaged.err;
    EXPECT_EQ(damaged.out, "File name\tTitle\n");
    EXPECT_FALSE(dir.Exists("lib/.docindex"));
    const RunResult rebuilt = List(config, {"--format", "tsv"});
    EXPECT_EQ(rebuilt.out, "File name\tTitle\na.odt\tAlpha\nb.docx\tBeta\n");
    EXPECT_EQ(dir.Read("lib/.docindex").size(), HEADER_SIZE + 3 * RECORD_SIZE);
}

}  // namespace
}  // namespace clitest
