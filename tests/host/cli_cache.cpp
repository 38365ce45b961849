// The per-user cache of document readings: hits read nothing, a replaced file is read at
// once, and a damaged, locked or refused cache changes neither the rows nor the exit.
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "host/cache/cachedreader.h"
#include "tests/host/cli_fixture.h"

using namespace clitest;

namespace {

// The cache keeps no reading of a file changed within the clock's last tick or so.
void LetTimesSettle()
{
    usleep(200000);
}

class CacheTest : public CliTest {
protected:
    std::string Lib() const { return dir.PathOf("lib"); }
    std::string CacheFile() const { return ConfigHome() + "/cache/docmanager/docinfo.sqlite"; }
    // Documents whose names the folder index cannot hold.
    std::vector<std::string> LongNamedDocs(int count)
    {
        std::vector<std::string> paths;
        for (int i = 0; i < count; ++i)
            paths.push_back(
                WriteDoc("lib/a-name-longer-than-an-index-record-holds-" + std::to_string(i) + ".odt", "Title " + std::to_string(i)));
        LetTimesSettle();
        return paths;
    }
    std::string Config() { return WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 1, .columns = {1, 3, 7}}})); }

    // What a listing does: the folder's documents planned, then taken in order.
    std::vector<std::string> ListThrough(const std::vector<std::string>& paths)
    {
        CachedReader reader(std::make_unique<DocCache>(CacheFile(), nullptr));
        reader.ReadAhead(paths);
        std::vector<std::string> titles;
        for (const std::string& path : paths)
            titles.push_back(reader.Take(path)->title);
        reader.Flush();
        return titles;
    }
};

TEST_F(CacheTest, AHitReadsNothingAndAReplacedDocumentIsReadAgain)
{
    const std::vector<std::string> paths = LongNamedDocs(5);
    size_t before = DocumentsRead();
    const std::vector<std::string> titles = ListThrough(paths);
    EXPECT_EQ(DocumentsRead() - before, paths.size());
    struct stat st {};
    ASSERT_EQ(::stat(CacheFile().c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);
    ASSERT_EQ(::stat(std::filesystem::path(CacheFile()).parent_path().c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0700u);

    before = DocumentsRead();
    EXPECT_EQ(ListThrough(paths), titles);
    EXPECT_EQ(DocumentsRead(), before);

    // A copy of another document of the same size renamed over it, with the same times:
    // only the inode and the change time tell.
    ASSERT_EQ(std::filesystem::file_size(paths[3]), std::filesystem::file_size(paths[2]));
    std::filesystem::copy_file(paths[3], dir.PathOf("copy.odt"));
    testfs::SetMTime(dir.PathOf("copy.odt"), dir.MTimeNs("lib/" + std::filesystem::path(paths[2]).filename().string()) / 1000000000);
    std::filesystem::rename(dir.PathOf("copy.odt"), paths[2]);
    before = DocumentsRead();
    std::vector<std::string> expected = titles;
    expected[2] = titles[3];
    EXPECT_EQ(ListThrough(paths), expected);
    EXPECT_EQ(DocumentsRead() - before, 1u);
}

// A folder the user may only read keeps no index: the cache holds its documents, and a
// document replaced there is shown at once.
TEST_F(CacheTest, AReplacedDocumentInAReadOnlyFolderIsShownAtOnce)
{
    const std::vector<std::string> paths = LongNamedDocs(3);
    const std::string config = Config();
    chmod(dir.Path().c_str(), 0755);
    chmod(Lib().c_str(), 0555);
    std::filesystem::create_directories(ConfigHome() + "/cache");
    chmod(ConfigHome().c_str(), 0777);
    chmod((ConfigHome() + "/cache").c_str(), 0777);
    chmod(config.c_str(), 0666);
    const auto list = [&] {
        return RunDocmanager({"--list", "--config", QString::fromStdString(config), "--format", "tsv"}, ConfigHome(), true);
    };
    const RunResult first = list();
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_TRUE(std::filesystem::exists(CacheFile()));
    EXPECT_FALSE(dir.Exists("lib/.docindex"));

    const std::string fresh = WriteDoc("fresh.odt", "Retitle");
    std::filesystem::rename(fresh, paths[1]);
    const RunResult second = list();
    EXPECT_NE(second.out.find("\tRetitle\t"), std::string::npos) << second.out;
    EXPECT_EQ(second.out.find("\tTitle 1\t"), std::string::npos) << second.out;
    chmod(Lib().c_str(), 0755);
}

TEST_F(CacheTest, ADamagedLockedOrRefusedCacheGivesTheSameRows)
{
    LongNamedDocs(20);
    const std::string config = Config();
    const std::string rows = List(config, {"--no-cache"}).out;
    EXPECT_FALSE(std::filesystem::exists(ConfigHome() + "/cache/docmanager"));

    // Damaged: moved aside with one line, and rebuilt.
    std::filesystem::create_directories(std::filesystem::path(CacheFile()).parent_path());
    testfs::WriteFile(CacheFile(), std::string(8192, 'x'));
    RunResult run = List(config, {});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, rows);
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_NE(run.err.find("moved aside"), std::string::npos) << run.err;
    EXPECT_TRUE(std::filesystem::exists(CacheFile() + ".corrupt"));
    run = List(config, {});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, rows);

    // Locked by another process's exclusive transaction: listed without waiting on it.
    std::filesystem::remove(Lib() + "/.docindex");
    WriteDoc("lib/another-name-longer-than-an-index-record-holds.odt", "Late");
    LetTimesSettle();
    const std::string withLate = List(config, {"--no-cache"}).out;
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(CacheFile().c_str(), &db), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto start = std::chrono::steady_clock::now();
    run = List(config, {});
    const auto took = std::chrono::steady_clock::now() - start;
    sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, withLate);
    EXPECT_EQ(run.err, "");
    EXPECT_LT(took, std::chrono::seconds(1));
}

}  // namespace
