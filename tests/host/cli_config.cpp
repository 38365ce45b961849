// docmanager's command line: bad arguments, and --list and --export-config on the user's
// configuration: groups, a new or empty configuration, where it lives; and what the host
// does with the chosen documents besides opening them: read-only copies and printing.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "host/cli/printcommand.h"
#include "host/cli/readonlycopies.h"
#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

using CliConfigTest = CliTest;

TEST_F(CliConfigTest, BadArgumentsExitWithTwoAndTheUsage)
{
    const std::vector<QStringList> bad = {
        {"--list", "--format", "xml"},     {"--list", "--columns", "0"},
        {"--list", "--columns", "21"},     {"--list", "--columns", "3,,4"},
        {"--list", "--columns", "title"},  {"--list", "--format"},
        {"--list", "--export-config"},     {"--list", "--bogus"},
        {"--list", "--print-paths"},       {"--list", "--index-name", "sub/idx"},
        {"--list", "--list=yes"},          {"--group", "Standard"},
        {"--export-config", "/some/path"}, {"--config="},
    };
    for (const QStringList& args : bad) {
        const RunResult run = RunDocmanager(args, ConfigHome());
        EXPECT_EQ(run.status, 2) << args.join(' ').toStdString();
        EXPECT_EQ(run.out, "") << args.join(' ').toStdString();
        EXPECT_NE(run.err.find("Usage:"), std::string::npos) << run.err;
    }
    // Nothing was read or written for them.
    EXPECT_FALSE(dir.Exists("xdg"));
}

TEST_F(CliConfigTest, GroupOptionChoosesANamedGroup)
{
    WriteDoc("first/1.odt", "In first", "A", 1);
    WriteDoc("second/2.odt", "In second", "A", 2);
    const std::string text = ConfigText({{.name = "First", .paths = dir.PathOf("first"), .columns = {3}},
                                         {.name = "Second Group", .paths = dir.PathOf("second"), .columns = {3}}});
    const std::string config = WriteConfig(text);

    EXPECT_EQ(List(config, {"--format", "tsv"}).out, "Title\nIn first\n");
    EXPECT_EQ(List(config, {"--format", "tsv", "--group", "Second Group"}).out, "Title\nIn second\n");

    // Names match exactly; an unknown one is a usage error naming the known groups.
    const RunResult unknown = List(config, {"--group", "second group"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.out, "");
    for (const char* named : {"second group", "\"First\"", "\"Second Group\""})
        EXPECT_NE(unknown.err.find(named), std::string::npos) << unknown.err;

    // Listing leaves the configuration as it was.
    EXPECT_EQ(dir.Read("docmanager.cfg"), text);
}

TEST_F(CliConfigTest, AMissingOrEmptyConfigurationGetsItsFirstGroupOneThatCannotBeReadIsLeftAlone)
{
    WriteDoc("lib/a.docx", "Alpha", "A", 1);
    const QStringList args{"--list", "--format", "tsv", "--columns", "3", QString::fromStdString(dir.PathOf("lib"))};
    // None yet: it is made under the user's configuration directory.
    RunResult run = RunDocmanager(args, ConfigHome());
    EXPECT_EQ(run.out, "Title\nAlpha\n");
    EXPECT_NE(run.err.find("No document manager settings were found"), std::string::npos) << run.err;
    const std::string saved = dir.Read("xdg/docmanager/docmanager.cfg");
    EXPECT_NE(saved.find("[GROUPS]\n0=Standard\n"), std::string::npos) << saved;
    // The next run finds the group and says nothing.
    run = RunDocmanager(args + QStringList{"--group", "Standard"}, ConfigHome());
    EXPECT_EQ(run.out + run.err, "Title\nAlpha\n");

    // An empty file is filled alike; for a missing one the folder is made too.
    EXPECT_EQ(List(WriteConfig("", "empty.cfg"), {"--format", "tsv", "--columns", "3", args.last()}).out, "Title\nAlpha\n");
    EXPECT_NE(dir.Read("empty.cfg").find("[GROUPS]\n0=Standard\n"), std::string::npos);
    run = RunDocmanager({"--export-config", "--config", QString::fromStdString(dir.PathOf("a/b/c.cfg"))}, ConfigHome());
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(dir.Exists("a/b/c.cfg"));

    // Neither a folder nor a file that holds something but no configuration (a PDF given by
    // mistake) is given a first group, by either mode.
    dir.MakeDir("a-directory.cfg");
    const std::string before =
        testfs::ReadFile(WriteConfig("%PDF-1.4\r\n1 0 obj\r\n<< /Kids [3 0 R] >>\r\nendobj\r\n%%EOF\r\n", "paper.pdf"));
    for (const std::string name : {"a-directory.cfg", "paper.pdf"})
        for (const char* mode : {"--list", "--export-config"}) {
            run = RunDocmanager({mode, "--config", QString::fromStdString(dir.PathOf(name))}, ConfigHome());
            EXPECT_EQ(run.status, 1) << run.err;
            EXPECT_EQ(run.out, "");
            EXPECT_NE(run.err.find(name), std::string::npos) << run.err;
        }
    EXPECT_EQ(dir.Read("paper.pdf"), before);

    const std::string config = WriteConfig(ConfigText({{.name = "Kept"}}), "locked.cfg");
    chmod(config.c_str(), 0);
    chmod(dir.Path().c_str(), 0755);
    run = RunDocmanager({"--export-config", "--config", QString::fromStdString(config)}, ConfigHome(), true);
    chmod(config.c_str(), 0644);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(dir.Read("locked.cfg"), ConfigText({{.name = "Kept"}}));
}

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
        EXPECT_EQ(std::filesystem::status(copies[i]).permissions() & std::filesystem::perms(0222), std::filesystem::perms::none)
            << copies[i];
    }
    EXPECT_NE(std::filesystem::status(a).permissions() & std::filesystem::perms::owner_write, std::filesystem::perms::none);
    // The copies outlive the program on purpose; the test tidies them away.
    std::filesystem::remove_all(copies[0].substr(0, copies[0].rfind('/')));

    // Printing uses lp, else lpr, and says when there is none.
    const std::string bin = dir.MakeDir("bin"), log = dir.PathOf("printed.txt");
    const auto makeCommand = [&](const std::string& name, int status) {
        chmod(dir.MakeFile("bin/" + name, "#!/bin/sh\necho " + name + " \"$@\" >> " + log + "\nexit " + std::to_string(status) + "\n")
                  .c_str(),
              0755);
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
}  // namespace clitest
