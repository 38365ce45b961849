// What the host does with the chosen documents besides opening them: read-only copies
// and the system's print command.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "host/cli/printcommand.h"
#include "host/cli/readonlycopies.h"
#include "tests/support/tempdir.h"

namespace {

TEST(HostHandoff, ReadOnlyCopiesKeepTheOriginalsAndTheirNames)
{
    TempDir dir;
    const std::string a = dir.MakeFile("one/report.odt", "first");
    const std::string b = dir.MakeFile("two/report.odt", "second");
    std::string error;
    const auto copies = MakeReadOnlyCopies({a, b, dir.PathOf("missing.pdf")}, error);
    ASSERT_EQ(copies.size(), 2u);
    EXPECT_NE(error.find("missing.pdf"), std::string::npos) << error;
    EXPECT_NE(copies[0], copies[1]);
    for (size_t i = 0; i < copies.size(); ++i) {
        EXPECT_EQ(copies[i].substr(copies[i].size() - 11), "/report.odt");
        EXPECT_EQ(testfs::ReadFile(copies[i]), i == 0 ? "first" : "second");
        struct stat st {};
        ASSERT_EQ(stat(copies[i].c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 0222, 0u) << copies[i];
    }
    struct stat original {};
    ASSERT_EQ(stat(a.c_str(), &original), 0);
    EXPECT_NE(original.st_mode & 0200, 0u);
    // The copies outlive the program on purpose; the test tidies them away.
    std::filesystem::remove_all(copies[0].substr(0, copies[0].rfind('/')));
}

// PATH pointing at a folder of our own, restored afterwards.
class PathGuard {
public:
    explicit PathGuard(const std::string& path) : saved_(std::getenv("PATH") ? std::getenv("PATH") : "")
    {
        setenv("PATH", path.c_str(), 1);
    }
    ~PathGuard() { setenv("PATH", saved_.c_str(), 1); }

private:
    std::string saved_;
};

TEST(HostHandoff, PrintingUsesLpElseLprAndSaysWhenThereIsNone)
{
    TempDir dir;
    const std::string bin = dir.MakeDir("bin");
    const std::string log = dir.PathOf("printed.txt");
    const auto makeCommand = [&](const std::string& name, int status) {
        const std::string path = dir.MakeFile("bin/" + name, "#!/bin/sh\necho " + name
                                              + " \"$@\" >> " + log + "\nexit "
                                              + std::to_string(status) + "\n");
        chmod(path.c_str(), 0755);
    };
    PathGuard path(bin);
    std::string error;

    EXPECT_EQ(FindPrintCommand(), "");
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf"}, error), 1);
    EXPECT_NE(error.find("no print command"), std::string::npos) << error;

    makeCommand("lpr", 0);
    error.clear();
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf", "/docs/b c.odt"}, error), 0) << error;
    EXPECT_EQ(testfs::ReadFile(log), "lpr /docs/a.pdf /docs/b c.odt\n");

    makeCommand("lp", 3);
    EXPECT_EQ(FindPrintCommand(), bin + "/lp");
    error.clear();
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf"}, error), 1);
    EXPECT_NE(error.find("exit status 3"), std::string::npos) << error;
    EXPECT_EQ(PrintDocuments({}, error), 0) << "nothing chosen, nothing run";
}

}  // namespace
