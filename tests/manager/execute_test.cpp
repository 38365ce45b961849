// Running the manager: results, its path line and what the host gets back.
#include "tests/support/managerfixture.h"

TEST_F(ManagerTest, ExecuteEndsWithCloseOrOpenASecondRunKeepsTheSettingsAndThePathLineShowsWhatIsListed)
{
    WriteDefaultConfig();
    MakeDocs({"a.odt"});
    MakeHost();
    QTimer::singleShot(0, host.get(), [this] {
        EXPECT_EQ(RowNames(), std::vector<std::string>{"a.odt"});
        Child<QPushButton>("closeButton")->click();
    });
    EXPECT_EQ(host->Execute(), 0);

    // The file changes on disk; the running manager does not read it again.
    WriteConfig({{"Elsewhere", "Other", dir.MakeDir("other"), "1"}});
    dir.MakeFile("docs/b.odt", "x");
    QTimer::singleShot(0, host.get(), [this] {
        EXPECT_EQ(Impl().SelectedGroupName(), "Docs");
        EXPECT_EQ(Browser().GetRowCount(), 2);
        Select({"a.odt"});
        Child<QCheckBox>("readOnlyBox")->setChecked(true);
        Child<QPushButton>("openButton")->click();
    });
    EXPECT_EQ(host->Execute(), 1);
    EXPECT_TRUE(host->IsReadOnly());
    EXPECT_EQ(host->SelectedDocs(), std::vector<std::string>{docs + "/a.odt"});
    EXPECT_EQ(host->GetConfig().rfind("@DocManager[2.1]", 0), 0u);
    EXPECT_TRUE(host->IsAvailable());

    // The path line shows the active paths or the start paths.
    const std::string other = dir.PathOf("other");
    for (const char* file : {"other/b.odt", "other/c.odt"})
        dir.MakeFile(file, "x");
    WriteConfig({{"Both", "Main", docs + ";" + other + ";" + dir.Path(), "01"}});
    const struct {
        std::string startPaths;
        const char* guis;
        std::string line;
    } table[] = {
        {"", "01", "2 documents in " + other},  // flags shorter than the paths: the missing ones are off
        {"", "000", "0 documents in "},         // no active path: the start paths are read
        {docs, "", "2 documents in " + docs},
        {"/**", "", "0 documents in "},  // the bare subdirectory marker means no start path
    };
    for (const auto& row : table) {
        host.reset();
        Start(true, row.startPaths);
        Working().guis = row.guis;
        Impl().CollectFiles();
        EXPECT_EQ(Impl().pathLineText, row.line) << "'" << row.startPaths << "', flags " << row.guis;
    }
}
