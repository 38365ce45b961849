// The index under faults and unusual folders: many records, a full disk, folders and
// indexes the user cannot use, a document replaced during a listing, and something other
// than a file under the index's name.
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

}  // namespace

TEST_F(IndexTest, ManyRecordsMatchInAnyOrderVanishedOnesAndATemporaryFileLeftBehindAreDropped)
{
    constexpr int COUNT = 2000;
    std::vector<Record> records;
    for (int i = COUNT - 1; i >= 0; --i) {
        const std::string name = "d" + std::to_string(i) + ".odt";
        Doc(name);
        source.known[name] = Named(name);
        records.push_back(SampleRecord(name)
                              .Text(indeximage::COMMENT, 255, name)
                              .Text(indeximage::KEYWORDS, 127, name)
                              .Text(indeximage::INFO0 + 3 * indeximage::INFO_STEP, 19, name));
        if (i % 1000 == 0)  // vanished documents force a full rewrite
            records.push_back(SampleRecord("gone" + std::to_string(i) + ".odt"));
    }
    WriteIndex(Image(records));
    dir.MakeFile(".docindex.tmp-1073741000-0-77", "what a killed rewrite left");
    ReadDir();
    ASSERT_EQ(rows.GetRowCount(), COUNT);
    EXPECT_EQ(source.TotalCalls(), 0);
    EXPECT_EQ(RowNames().front(), "d" + std::to_string(COUNT - 1) + ".odt") << "record order";
    for (const auto& row : rows.Rows()) {
        const std::string name = fsutil::FileName(row->entry);
        ASSERT_EQ(row->comment + "|" + row->info[3], name + "|" + name);
    }
    EXPECT_EQ(dir.Size(INDEX), indeximage::RecordOffset(COUNT)) << "vanished records dropped";
    EXPECT_FALSE(dir.Exists(".docindex.tmp-1073741000-0-77")) << "no document, and gone with the rewrite";
}

TEST_F(IndexTest, FullDiskLeavesThePreviousIndexOrNone)
{
    Docs({"a.odt", "b.odt", "c.odt"});
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

TEST_F(IndexTest, FoldersAndIndexesThatCannotBeUsed)
{
    Docs({"current.odt", "changed.odt", "new.odt", "closed/b.odt"});
    chmod(dir.PathOf("closed").c_str(), 0);
    const std::string original = Image({SampleRecord("current.odt"), SampleRecord("changed.odt"), SampleRecord("gone.odt")});
    source.known["changed.odt"] = Named("changed.odt");
    const Names all = {"changed.odt", "current.odt", "new.odt"};
    // Modes of the folder and of the index; the listing runs as an ordinary user.
    const struct {
        const char* what;
        mode_t folder, index;
        int reads;
        Names rows;
        bool kept;
    } cases[] = {
        {"read-only folder: its index is used, a closed subfolder skipped", 0555, 0644, 1, all, true},
        {"neither readable nor deletable index: the files are read", 0555, 0, 2, all, true},
        {"unreadable index: nothing listed once, and deleted", 0777, 0, 1, {}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        chmod(dir.Path().c_str(), 0755);
        WriteIndex(original);
        dir.SetMTime("changed.odt", NEWER + 1);
        chmod(dir.PathOf(INDEX).c_str(), c.index);
        chmod(dir.Path().c_str(), c.folder);
        const int status = InChild(
            [&] {
                if (c.folder == 0555 && access(dir.Path().c_str(), W_OK) == 0)
                    return 100;
                for (int i = 0; i < c.reads; ++i)
                    ReadDir(c.index != 0);
                Names names = RowNames();
                std::sort(names.begin(), names.end());
                if (names != c.rows)
                    return 1;
                // A readable index: the current record is used, the changed one read again.
                return c.index == 0 || (source.CallsFor(dir.PathOf("current.odt")) == 0 && rows.Row(1).comment == "changed.odt") ? 0 : 2;
            },
            true);
        chmod(dir.Path().c_str(), 0755);
        if (status == 100)
            GTEST_SKIP() << "permissions do not apply here";
        EXPECT_EQ(status, 0);
        EXPECT_EQ(dir.Exists(INDEX) ? Index() : "", c.kept ? original : "");
    }
}

TEST_F(IndexTest, DocumentReplacedDuringAListingIsReadAgainNextTime)
{
    // A full rewrite (no index), an update in place (a stale record) and an append (a
    // new file): each leaves an index that is not younger than the replaced document.
    const std::vector<std::string> indexes = {"", Image({SampleRecord("a.odt")}), Image({SampleRecord("z.odt")})};
    for (const std::string& index : indexes) {
        dir.Remove(INDEX);
        Docs({"a.odt", "z.odt"});
        if (!index.empty())
            WriteIndex(index, OLD - 10);
        if (index == indexes[2])
            dir.SetMTime("z.odt", OLD - 20);
        source.known.clear();
        source.onRead = [&](const std::string& path) {
            if (fsutil::FileName(path) != "a.odt")
                return;
            source.onRead = nullptr;
            dir.MakeFile("a.odt", "replaced");
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        };
        ReadDir();
        source.known["a.odt"] = Named("a.odt");  // what the replaced file holds
        ReadDir();
        const Names names = RowNames();
        const long a = std::find(names.begin(), names.end(), "a.odt") - names.begin();
        EXPECT_EQ(a < long(names.size()) ? rows.Row(a).comment : "", "a.odt") << index.size() << " bytes";
    }
}

TEST_F(IndexTest, AnythingButAPlainFileUnderTheIndexNameIsLeftAlone)
{
    Doc("a.odt");
    const std::string valid = Image({SampleRecord("a.odt")});
    dir.MakeFile("real-index", valid, NEWER);
    const std::vector<std::function<void()>> makers = {
        [&] { dir.MakeFile(std::string(INDEX) + "/inside", "x"); },      // a non-empty folder
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
