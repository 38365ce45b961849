// docmanager's command line: bad arguments, and --list and --export-config on the user's
// configuration: groups, a new or empty configuration, where it lives.
#include <sys/stat.h>

#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

using CliConfigTest = CliTest;

TEST_F(CliConfigTest, BadArgumentsExitWithTwoAndTheUsage)
{
    const std::vector<QStringList> bad = {
        {"--list", "--format", "xml"},    {"--list", "--columns", "0"},     {"--list", "--columns", "21"},
        {"--list", "--columns", "3,,4"},  {"--list", "--columns", "title"}, {"--list", "--format"},
        {"--list", "--export-config"},    {"--list", "--bogus"},            {"--list", "--print-paths"},
        {"--list", "--index-name", "sub/idx"}, {"--list", "--list=yes"},    {"--group", "Standard"},
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
            const RunResult run = RunDocmanager({mode, "--config", QString::fromStdString(dir.PathOf(name))}, ConfigHome());
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

}  // namespace
}  // namespace clitest
