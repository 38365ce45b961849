// docmanager's command line: bad arguments, help, and the window without a display.
#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

using CliArgsTest = CliTest;

TEST_F(CliArgsTest, BadArgumentsExitWithTwoAndTheUsage)
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
        const std::string shown = args.join(' ').toStdString();
        EXPECT_EQ(run.status, 2) << shown;
        EXPECT_EQ(run.out, "") << shown;
        EXPECT_NE(run.err.find("Usage:"), std::string::npos) << shown << "\n" << run.err;
    }
    // Nothing was read or written for them.
    EXPECT_FALSE(dir.Exists("xdg"));
}

TEST_F(CliArgsTest, HelpGoesToStandardOutput)
{
    const RunResult run = RunDocmanager({"--help"}, ConfigHome());
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out.rfind("Usage:", 0), 0u) << run.out;
    EXPECT_NE(run.out.find("--list"), std::string::npos);
}

TEST_F(CliArgsTest, TheWindowWithoutADisplaySuggestsTheList)
{
    const RunResult run = RunDocmanager({QString::fromStdString(dir.Path())}, ConfigHome());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("display"), std::string::npos) << run.err;
    EXPECT_NE(run.err.find("--list"), std::string::npos) << run.err;
    EXPECT_FALSE(dir.Exists("xdg")) << "no configuration is made for a window never shown";
}

}  // namespace
}  // namespace clitest
