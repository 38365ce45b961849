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

TEST(HostHandoff, ReadOnlyCopiesKeepTheOriginalsAndPrintingUsesLpElseLpr)
{
    TempDir dir;
    const std::string a = dir.MakeFile("one/report.odt", "first");
    std::string error;
    const auto copies = MakeReadOnlyCopies({a, dir.MakeFile("two/report.odt", "second"), dir.PathOf("missing.pdf")}, error);
    ASSERT_EQ(copies.size(), 2u);
    EXPECT_NE(error.find("missing.pdf"), std::string::npos) << error;
    for (size_t i = 0; i < copies.size(); ++i) {
        EXPECT_TRUE(copies[i].ends_with("/report.odt")) << copies[i];
        EXPECT_EQ(testfs::ReadFile(copies[i]), i == 0 ? "first" : "second");
        EXPECT_EQ(std::filesystem::status(copies[i]).permissions() & std::filesystem::perms(0222),
                  std::filesystem::perms::none) << copies[i];
    }
    EXPECT_NE(std::filesystem::status(a).permissions() & std::filesystem::perms::owner_write, std::filesystem::perms::none);
    // The copies outlive the program on purpose; the test tidies them away.
    std::filesystem::remove_all(copies[0].substr(0, copies[0].rfind('/')));

    // Printing uses lp, else lpr, and says when there is none.
    const std::string bin = dir.MakeDir("bin"), log = dir.PathOf("printed.txt");
    const auto makeCommand = [&](const std::string& name, int status) {
        chmod(dir.MakeFile("bin/" + name, "#!/bin/sh\necho " + name + " \"$@\" >> " + log + "\nexit "
                                              + std::to_string(status) + "\n").c_str(), 0755);
    };
    const std::string savedPath = std::getenv("PATH") ? std::getenv("PATH") : "";
    setenv("PATH", bin.c_str(), 1);

    EXPECT_EQ(FindPrintCommand(), "");
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf"}, error), 1);
    EXPECT_NE(error.find("no print command"), std::string::npos) << error;

    makeCommand("lpr", 0);
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf", "/docs/b c.odt"}, error), 0) << error;
    EXPECT_EQ(testfs::ReadFile(log), "lpr /docs/a.pdf /docs/b c.odt\n");

    makeCommand("lp", 3);
    EXPECT_EQ(FindPrintCommand(), bin + "/lp");
    EXPECT_EQ(PrintDocuments({"/docs/a.pdf"}, error), 1);
    EXPECT_NE(error.find("exit status 3"), std::string::npos) << error;
    EXPECT_EQ(PrintDocuments({}, error), 0) << "nothing chosen, nothing run";
    setenv("PATH", savedPath.c_str(), 1);
}

}  // namespace
