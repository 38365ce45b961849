// A folder's index under the faults of shared use: a listing killed at any step of its
// write, and listings running while other processes add and remove documents.
#include <atomic>
#include <mutex>
#include <cstdio>
#include <iostream>
#include <ctime>
#include <filesystem>
#include <thread>

#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

class SharedFolderTest : public CliTest {
protected:
    std::string Lib() const { return dir.PathOf("lib"); }
    std::string Config() { return WriteConfig(ConfigText({{.name = "Lib", .paths = Lib(), .sortColumn = 1, .columns = {1, 3}}})); }

    // "name<TAB>title" lines of a tab-separated listing, its header left out.
    static std::string Rows(const std::string& tsv) { return tsv.substr(std::min(tsv.size(), tsv.find('\n') + 1)); }
};

void TouchNow(const std::string& path)
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    testfs::SetMTime(path, now.tv_sec, now.tv_nsec);
}

}  // namespace

TEST_F(SharedFolderTest, AListingKilledAtAnyStepOfItsIndexWriteLeavesNoStaleRecordTrusted)
{
    const std::string config = Config();
    bool completed = false;
    int kills = 0;
    // Each run is killed one step later, until a run is no longer killed at all.
    for (int step = 1; step < 40 && !completed; ++step) {
        SCOPED_TRACE(step);
        std::string expected;
        for (int i = 0; i < 6; ++i)
            WriteDoc("lib/d" + std::to_string(i) + ".odt", "Old " + std::to_string(i));
        dir.Remove("lib/.docindex");
        testfs::WaitForFileClock();
        ASSERT_EQ(List(config, {"--format", "tsv"}).status, 0);
        testfs::WaitForFileClock();
        for (int i = 0; i < 6; ++i) {
            const std::string name = "d" + std::to_string(i) + ".odt";
            const std::string title = (i < 4 ? "New " : "Old ") + std::to_string(i);
            if (i < 4)
                TouchNow(WriteDoc("lib/" + name, title));
            expected += name + "\t" + title + "\n";
        }
        testfs::WaitForFileClock();
        const RunResult killed =
            List(config, {"--format", "tsv"},
                 {"LD_PRELOAD=" DOCMGR_KILL_SHIM, "DOCMGR_KILL_AFTER=" + QString::number(step), "DOCMGR_KILL_MATCH=.docindex"});
        completed = killed.status == 0;
        kills += !completed;
        EXPECT_EQ(Rows(List(config, {"--format", "tsv"}).out), expected);
    }
    EXPECT_TRUE(completed);
    // The temporary files of the killed writes went with the writes after them.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Lib()), {}), 7);
    std::cout << "listings killed at " << kills << " steps of the index write\n";
}

TEST_F(SharedFolderTest, ListingsWhileOtherProcessesAddAndRemoveDocumentsListEveryDocumentThatStays)
{
    const std::string config = Config();
    std::string expected;
    for (int i = 0; i < 20; ++i) {
        const std::string name = "s" + std::to_string(10 + i) + ".odt";
        WriteDoc("lib/" + name, "Stays");
        expected += name + "\tStays\n";
    }
    const std::string bytes = testfs::ReadFile(dir.PathOf("lib/s10.odt"));
    std::atomic<bool> stop = false;
    std::atomic<int> listings = 0;
    std::vector<std::string> wrong;
    std::mutex wrongLock;
    std::vector<std::thread> threads;
    for (int t = 0; t < 2; ++t) {
        threads.emplace_back([&, t] {
            for (int n = 0; !stop; ++n) {
                const std::string name = Lib() + "/t" + std::to_string(t) + "-" + std::to_string(n % 8) + ".odt";
                if (n % 16 < 8)
                    testfs::WriteFile(name, bytes);
                else
                    std::remove(name.c_str());
            }
        });
    }
    const std::string command =
        "env -u DISPLAY -u WAYLAND_DISPLAY '" + BinaryPath("docmanager") + "' --list --config '" + config + "' --format tsv 2>&1";
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            while (!stop) {
                FILE* pipe = popen(command.c_str(), "r");
                std::string out;
                char buffer[4096];
                for (size_t got; pipe && (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;)
                    out.append(buffer, got);
                const int status = pipe ? pclose(pipe) : -1;
                std::string staying;
                for (size_t at = 0, end; (end = out.find('\n', at)) != std::string::npos; at = end + 1)
                    if (out.compare(at, 1, "s") == 0)
                        staying += out.substr(at, end + 1 - at);
                ++listings;
                if (status != 0 || staying != expected) {
                    const std::lock_guard guard(wrongLock);
                    wrong.push_back(out);
                }
            }
        });
    }
    std::this_thread::sleep_for(std::chrono::seconds(4));
    stop = true;
    for (auto& thread : threads)
        thread.join();
    std::cout << listings << " listings beside two processes adding and removing documents\n";
    EXPECT_GT(listings, 20);
    EXPECT_TRUE(wrong.empty()) << wrong.size() << " of " << listings << " listings, first:\n" << wrong.front();
    EXPECT_TRUE(dir.Exists("lib/.docindex"));
}

}  // namespace clitest
