// The per-user cache of document readings: hits read nothing, a replaced file is read at
// once, and a damaged, locked or refused cache changes neither the rows nor the exit.
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "host/cache/cachedreader.h"
#include "host/cache/packedreading.h"
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

// Thousands of readings in one listing: they read back whole, every field in its place, and
// the log is folded in and emptied, so that the next process neither reads it page by page
// nor finds it grown.
TEST_F(CacheTest, ALargeWriteReadsBackWholeAndLeavesNoLog)
{
    const std::string folder = "/no/such/folder";
    const auto readingOf = [](int i) {
        DocReading reading;
        reading.problem = i % 3 == 0 ? ReadProblem::Damaged : ReadProblem::None;
        if (i % 5 == 4)
            return reading;  // not a document
        reading.info = std::make_unique<DocInfo>();
        DocInfo& info = *reading.info;
        info.size = uint32_t(1000 + i);
        info.title = "Title " + std::to_string(i) + std::string(size_t(i % 70), 'x');
        info.author = i % 2 ? "Zoë" : "";
        info.info[3] = "fourth " + std::to_string(i);
        info.createdDate = Date(uint32_t(20190506 + i % 20));
        info.printedTime = Time(int32_t(i * 7));
        return reading;
    };
    constexpr int kCount = 8000;  // some 340 pages
    {
        DocCache cache(CacheFile(), nullptr);
        for (int i = 0; i < kCount; ++i)
            cache.Store(folder + "/doc" + std::to_string(i), {1, uint64_t(i), i, i, i, 0}, PackReading(readingOf(i)));
        cache.Flush();
    }
    EXPECT_EQ(std::filesystem::file_size(CacheFile() + "-wal"), 0u);

    DocCache cache(CacheFile(), nullptr);
    int hits = 0;
    cache.Folder(
        folder, [](std::string_view, const FileIdentity&) { return true; },
        [&](std::string_view name, DocCache::Entry&& entry) {
            const int i = std::stoi(std::string(name.substr(3)));
            const DocReading expected = readingOf(i);
            EXPECT_EQ(entry.id, (FileIdentity{1, uint64_t(i), i, i, i, 0}));
            EXPECT_EQ(entry.reading.problem, expected.problem);
            ASSERT_EQ(entry.reading.info != nullptr, expected.info != nullptr) << i;
            if (expected.info) {
                const DocInfo &got = *entry.reading.info, &want = *expected.info;
                EXPECT_EQ(std::tie(got.size, got.title, got.author, got.info, got.createdDate, got.printedTime),
                          std::tie(want.size, want.title, want.author, want.info, want.createdDate, want.printedTime));
            }
            ++hits;
        });
    EXPECT_EQ(hits, kCount);
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
