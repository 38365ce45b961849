// docmanager --list and --export-config on the user's configuration: groups, a new or
// empty configuration, where it lives.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

using CliConfigTest = CliTest;

TEST_F(CliConfigTest, GroupOptionChoosesANamedGroup)
{
    WriteDoc("first/1.odt", "In first", "A", 1);
    WriteDoc("second/2.odt", "In second", "A", 2);
    const std::string text = ConfigText({{.name = "First", .paths = dir.PathOf("first"), .columns = {3}},
                                         {.name = "Second Group", .paths = dir.PathOf("second"), .columns = {3}}});
    const std::string config = WriteConfig(text);

    EXPECT_EQ(List(config, {"--format", "tsv"}).out, "Title\nIn first\n");
    const RunResult second = List(config, {"--format", "tsv", "--group", "Second Group"});
    EXPECT_EQ(second.status, 0) << second.err;
    EXPECT_EQ(second.out, "Title\nIn second\n");

    // Names match exactly; an unknown one is a usage error naming the known groups.
    const RunResult unknown = List(config, {"--group", "second group"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(unknown.out, "");
    EXPECT_NE(unknown.err.find("second group"), std::string::npos) << unknown.err;
    EXPECT_NE(unknown.err.find("\"First\""), std::string::npos) << unknown.err;
    EXPECT_NE(unknown.err.find("\"Second Group\""), std::string::npos) << unknown.err;

    // Listing leaves the configuration as it was.
    EXPECT_EQ(dir.Read("docmanager.cfg"), text);
}

TEST_F(CliConfigTest, AMissingOrEmptyConfigurationGetsItsFirstGroup)
{
    WriteDoc("lib/a.docx", "Alpha", "A", 1);
    const QStringList args{"--list", "--format", "tsv", "--columns", "3", QString::fromStdString(dir.PathOf("lib"))};
    // None yet: it is made under the user's configuration directory.
    ASSERT_FALSE(dir.Exists("xdg"));
    RunResult run = RunDocmanager(args, ConfigHome());
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "Title\nAlpha\n");
    EXPECT_NE(run.err.find("No document manager settings were found"), std::string::npos) << run.err;
    const std::string saved = dir.Read("xdg/docmanager/docmanager.cfg");
    EXPECT_NE(saved.find("[GROUPS]\n0=Standard\n"), std::string::npos) << saved;
    EXPECT_NE(saved.find("FILLTERCONDITION0="), std::string::npos);

    // The next run finds the group and says nothing.
    run = RunDocmanager(args + QStringList{"--group", "Standard"}, ConfigHome());
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "Title\nAlpha\n");

    // An empty file is filled alike; for a missing one the folder is made too.
    const std::string empty = WriteConfig("", "empty.cfg");
    EXPECT_EQ(List(empty, {"--format", "tsv", "--columns", "3", args.last()}).out, "Title\nAlpha\n");
    EXPECT_NE(dir.Read("empty.cfg").find("[GROUPS]\n0=Standard\n"), std::string::npos);
    const RunResult exported =
        RunDocmanager({"--export-config", "--config", QString::fromStdString(dir.PathOf("a/b/c.cfg"))}, ConfigHome());
    EXPECT_EQ(exported.status, 0) << exported.err;
    EXPECT_TRUE(dir.Exists("a/b/c.cfg"));
}

TEST_F(CliConfigTest, ExportConfigPrintsTheOneLineImage)
{
    const std::string config =
        WriteConfig(ConfigText({{.name = "Reports", .section = "Work", .paths = "/data/reports/**", .guis = "1"}}, 0));
    const RunResult run = RunDocmanager({"--export-config", "--config", QString::fromStdString(config)}, ConfigHome());
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out.rfind("@DocManager[2.1][F][0][2][", 0), 0u) << run.out;
    EXPECT_EQ(run.out.substr(run.out.size() - 3), "}!\n");
    EXPECT_NE(run.out.find("[Reports;Work;"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("[/data/reports/**][1]}"), std::string::npos) << run.out;
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 1);
}

TEST_F(CliConfigTest, AConfigurationThatCannotBeReadIsLeftAlone)
{
    dir.MakeDir("a-directory.cfg");
    RunResult run = List(dir.PathOf("a-directory.cfg"), {});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("a-directory.cfg"), std::string::npos) << run.err;

    // A file that holds something but no configuration (a PDF given by mistake) is not
    // given a first group, by either mode.
    const std::string pdf = "%PDF-1.4\r\n1 0 obj\r\n<< /Kids [3 0 R] >>\r\nendobj\r\n%%EOF\r\n";
    const std::string foreign = WriteConfig(pdf, "paper.pdf");
    for (const QStringList& mode : {QStringList{"--list"}, QStringList{"--export-config"}}) {
        run = RunDocmanager(mode + QStringList{"--config", QString::fromStdString(foreign)},
                            ConfigHome());
        EXPECT_EQ(run.status, 1) << run.err;
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("paper.pdf"), std::string::npos) << run.err;
        EXPECT_EQ(dir.Read("paper.pdf"), pdf);
    }

    const std::string config = WriteConfig(ConfigText({{.name = "Kept"}}), "locked.cfg");
    chmod(config.c_str(), 0);
    if (access(config.c_str(), R_OK) == 0)
        GTEST_SKIP() << "running with rights that read any file";
    run = RunDocmanager({"--export-config", "--config", QString::fromStdString(config)},
                        ConfigHome());
    chmod(config.c_str(), 0644);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(dir.Read("locked.cfg"), ConfigText({{.name = "Kept"}}));
}

}  // namespace
}  // namespace clitest
