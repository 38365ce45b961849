// The index under faults and unusual folders: a crash during a rewrite, a full disk, a
// folder the user cannot write, a document replaced during a listing, a huge index, and
// something other than a file under the index's name.
#include <algorithm>
#include <csignal>
#include <chrono>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "docmgr/tools/fsutil.h"
#include "tests/records/indextestbase.h"

using indeximage::Record;
using indeximage::SampleRecord;
using Names = std::vector<std::string>;

namespace {

// Runs `body` in a child process (as an unprivileged user when the tests run as root, so
// that permissions apply) and returns its exit status, or -1 when it did not exit.
int InChild(const std::function<int()>& body, bool unprivileged = false)
{
    const pid_t child = fork();
    if (child == 0) {
        if (unprivileged && geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(100);
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A document whose every text field names it, so that a record mixing two documents
// shows.
DocInfo Named(const std::string& name)
{
    DocInfo info = TestSource::Sample(name);
    info.comment = info.keywords = info.info[3] = name;
    return info;
}

// A source that calls `onRead` before it answers, to change files during a listing.
struct HookedSource : TestSource {
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override
    {
        if (onRead)
            onRead(path);
        return TestSource::CreateDocInfo(path);
    }
    std::function<void(const std::string&)> onRead;
};

}  // namespace

TEST_F(IndexTest, KilledRewriteNeverLeavesAMixedIndex)
{
    constexpr int COUNT = 2000;
    std::vector<Record> records{SampleRecord("gone.odt")};  // forces a full rewrite
    for (int i = 0; i < COUNT; ++i) {
        const std::string name = "d" + std::to_string(i) + ".odt";
        Doc(name);
        source.known[name] = Named(name);
        records.push_back(SampleRecord(name).Text(indeximage::COMMENT, 255, name)
                              .Text(indeximage::KEYWORDS, 127, name)
                              .Text(indeximage::INFO0 + 3 * indeximage::INFO_STEP, 19, name));
    }
    const std::string original = Image(records);

    // Kill points spread over the second half of the time an undisturbed listing takes,
    // where the rewrite happens.
    WriteIndex(original);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(InChild([&] { ReadDir(); return 0; }), 0);
    const auto full = std::chrono::steady_clock::now() - start;
    constexpr int ROUNDS = 30;
    for (int round = 0; round < ROUNDS; ++round) {
        WriteIndex(original);
        const pid_t child = fork();
        if (child == 0) {
            ReadDir();
            _exit(0);
        }
        std::this_thread::sleep_for(full / 2 + full * round / (2 * ROUNDS));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        ReadDir();
        ASSERT_EQ(rows.GetRowCount(), COUNT) << "round " << round;
        for (const auto& row : rows.Rows()) {
            const std::string name = fsutil::FileName(row->entry);
            ASSERT_EQ(row->comment, name) << "round " << round;
            ASSERT_EQ(row->info[3], name) << "round " << round;
        }
    }
    // The temporary files of killed rewrites went with the next rewrite.
    EXPECT_EQ(fsutil::List(dir.Path(), "*", fsutil::Kind::Files).size(), size_t(COUNT) + 1);
}

TEST_F(IndexTest, FullDiskLeavesThePreviousIndexOrNone)
{
    Doc("a.odt");
    Doc("b.odt");
    Doc("c.odt");
    const std::string original = Image({SampleRecord("a.odt")});
    signal(SIGXFSZ, SIG_IGN);
    const int status = InChild([&] {
        // Writes beyond the limit fail as on a full disk.
        rlimit limit{5, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        int failed = 0;
        for (int listing = 0; listing < 2; ++listing) {
            ReadDir();
            failed |= RowNames().size() != 3 || dir.Exists(INDEX) ? 1 : 0;
        }
        // Appending b and c fails part way: the index keeps its length and its date.
        limit.rlim_cur = original.size() + 100;
        setrlimit(RLIMIT_FSIZE, &limit);
        WriteIndex(original);
        const int64_t written = dir.MTimeNs(INDEX);
        ReadDir();
        failed |= RowNames().size() != 3 || Index() != original ? 2 : 0;
        failed |= dir.MTimeNs(INDEX) != written ? 4 : 0;
        failed |= fsutil::List(dir.Path(), "*", fsutil::Kind::Files).size() != 4 ? 8 : 0;
        return failed;
    });
    signal(SIGXFSZ, SIG_DFL);
    EXPECT_EQ(status, 0);
}

TEST_F(IndexTest, ReadOnlyFolderUsesItsIndexAndWritesNothing)
{
    Doc("current.odt");
    Doc("changed.odt");
    Doc("new.odt");
    const std::string original = Image({SampleRecord("current.odt"), SampleRecord("changed.odt"),
                                        SampleRecord("gone.odt")});
    WriteIndex(original);
    dir.SetMTime("changed.odt", NEWER + 1);
    source.known["changed.odt"] = Named("changed.odt");
    chmod(dir.Path().c_str(), 0555);

    const int status = InChild([&] {
        if (access(dir.Path().c_str(), W_OK) == 0)
            return 99;
        ReadDir();
        const bool listed = RowNames() == Names{"current.odt", "changed.odt", "new.odt"} &&
                            rows.Row(1).comment == "changed.odt";
        return listed && source.CallsFor(dir.PathOf("current.odt")) == 0 ? 0 : 1;
    }, true);
    // An index that can be neither read nor deleted: the documents are read from the files.
    chmod(dir.PathOf(INDEX).c_str(), 0);
    const int unreadable = InChild([&] {
        ReadDir();
        ReadDir();
        return RowNames().size() == 3 ? 0 : 1;
    }, true);
    chmod(dir.PathOf(INDEX).c_str(), 0644);
    chmod(dir.Path().c_str(), 0755);
    if (status == 99)
        GTEST_SKIP() << "the folder cannot be made read-only here";
    EXPECT_EQ(status, 0);
    EXPECT_EQ(unreadable, 0);
    EXPECT_EQ(Index(), original);
}

TEST_F(IndexTest, DocumentReplacedDuringAListingIsReadAgainNextTime)
{
    HookedSource hooked;
    DocRowList list{hooked};
    list.SetConfig(&config);
    // A full rewrite (no index), an update in place (a stale record) and an append (a
    // new file): each leaves an index that is not younger than the replaced document.
    const std::vector<std::string> indexes = {"", Image({SampleRecord("a.odt")}),
                                              Image({SampleRecord("z.odt")})};
    for (const std::string& index : indexes) {
        dir.Remove(INDEX);
        Doc("a.odt");
        Doc("z.odt");
        if (!index.empty())
            WriteIndex(index, OLD - 10);
        if (index == indexes[2])
            dir.SetMTime("z.odt", OLD - 20);
        hooked.known.clear();
        hooked.onRead = [&](const std::string& path) {
            if (fsutil::FileName(path) != "a.odt")
                return;
            hooked.onRead = nullptr;
            dir.MakeFile("a.odt", "replaced");
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        };
        list.Clear();
        list.ReadWriteDocInfos(dir.Path(), false);
        hooked.known["a.odt"] = Named("a.odt");  // what the replaced file holds
        list.Clear();
        list.ReadWriteDocInfos(dir.Path(), false);
        for (const auto& row : list.Rows()) {
            if (fsutil::FileName(row->entry) == "a.odt") {
                EXPECT_EQ(row->comment, "a.odt") << "index " << index.size() << " bytes";
            }
        }
    }
}

TEST_F(IndexTest, OversizedIndexIsReprobedAndRewrittenInBoundedMemory)
{
    Doc("a.odt");
    WriteIndex(Image({SampleRecord("a.odt")}));
    // A sparse file of 64 GiB: reading it whole would not fit in memory.
    ASSERT_EQ(truncate(dir.PathOf(INDEX).c_str(), off_t(64) << 30), 0);
    ReadDir();
    EXPECT_EQ(RowNames(), Names{"a.odt"});
    EXPECT_EQ(source.TotalCalls(), 1);
    EXPECT_EQ(Index(), Image({SampleRecord("a.odt")}));
}

TEST_F(IndexTest, AnythingButAPlainFileUnderTheIndexNameIsLeftAlone)
{
    Doc("a.odt");
    const std::string valid = Image({SampleRecord("a.odt")});
    dir.MakeFile("real-index", valid, NEWER);
    const std::vector<std::function<void()>> makers = {
        [&] { dir.MakeFile(std::string(INDEX) + "/inside", "x"); },  // a non-empty folder
        [&] { ASSERT_EQ(mkfifo(dir.PathOf(INDEX).c_str(), 0600), 0); },  // a pipe would block a read
        [&] { dir.MakeLink(INDEX, dir.PathOf("real-index")); },
    };
    for (size_t i = 0; i < makers.size(); ++i) {
        makers[i]();
        ReadDir();
        Names names = RowNames();
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, (Names{"a.odt", "real-index"})) << "case " << i;
        EXPECT_TRUE(dir.Exists(INDEX)) << "case " << i;
        EXPECT_EQ(dir.Read("real-index"), valid) << "case " << i;
        dir.Remove(INDEX);
    }
}
