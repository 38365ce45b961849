// The directory tree: indented lines, sibling order, exception paths, opening and closing
// on real directories.
#include <filesystem>

#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/tools/textcase.h"
#include "tests/support/managerfixture.h"

class DirBoxTest : public ManagerTest {
protected:
    void SetUp() override
    {
        StartWith({});
        for (const char* sub : {"b", "A/x/y", "A/w", "A/deep", "c", ".hidden"})
            tree.MakeDir(sub);
        tree.MakeFile("z.txt", "not a directory");
        tree.MakeFile("A/file.odt", "");
    }

    static int Indent(const std::string& line) { return int(line.find_first_not_of(' ')); }

    // Opens the tree down to the temporary directory and opens that too, with the hidden
    // folders shown (as the tests' positions count them) unless told otherwise; its position.
    int OpenTemp(DocDirBox& box, bool showHidden = true)
    {
        box.SetShowHidden(showHidden);
        box.SelectDir(tree.Path());
        const int pos = box.GetSelectedPos();
        EXPECT_EQ(box.GetDir(uint16_t(pos)), tree.Path());
        box.ToggleDir(uint16_t(pos));
        return pos;
    }

    // Lines directly below `pos` that are indented deeper than it.
    static std::vector<std::string> Subtree(const DocDirBox& box, int pos)
    {
        const auto texts = Texts(&box);
        std::vector<std::string> lines;
        const int indent = Indent(texts[pos]);
        for (size_t i = pos + 1; i < texts.size() && Indent(texts[i]) > indent; ++i)
            lines.push_back(texts[i]);
        return lines;
    }

    // A line of the tree `extraDepth` below the temporary directory, which is indented by
    // two blanks for each of its path's elements.
    std::string Line(int extraDepth, char state, const std::string& name) const
    {
        return std::string(2 * (std::ranges::count(tree.Path(), '/') + extraDepth), ' ') + state + ' ' + name;
    }

    TempDir tree;  // apart from the manager's files
};

TEST_F(DirBoxTest, SiblingsAreSortedWithoutCaseHiddenOnRequestPathsFoundWithoutCaseKeysToggleEntries)
{
    DocDirBox box(nullptr, &Settings());
    EXPECT_EQ(box.item(0)->text().toStdString(), "/");
    EXPECT_EQ(Subtree(box, OpenTemp(box, false)), (std::vector<std::string>{Line(1, '-', "A"), Line(1, '-', "b"), Line(1, '-', "c")}));
    // A hidden folder that is asked for by its path is shown, and so are the others.
    box.SetShowHidden(false);
    box.SelectDir(tree.PathOf(".hidden"));
    EXPECT_TRUE(box.ShowsHidden());
    EXPECT_EQ(box.GetDir(box.GetSelectedPos()), tree.PathOf(".hidden"));

    box.ReadDirs();
    const int pos = OpenTemp(box);
    EXPECT_EQ(box.item(pos)->text().toStdString(), Line(0, '+', fsutil::FileName(tree.Path())));
    EXPECT_EQ(Subtree(box, pos),
              (std::vector<std::string>{Line(1, '-', ".hidden"), Line(1, '-', "A"), Line(1, '-', "b"), Line(1, '-', "c")}));
    EXPECT_EQ(box.GetDir(9999), "");

    // A path is opened down to without regard to case; a missing element stops at the last
    // directory found.
    box.SelectDir(tree.Path() + "/a/X");
    EXPECT_EQ(box.item(box.GetSelectedPos())->text().toStdString(), Line(2, '-', "x"));
    box.ReadDirs();
    box.SelectDir(tree.PathOf("A/nothing/y"));
    EXPECT_EQ(box.GetDir(box.GetSelectedPos()), tree.PathOf("A"));

    // Keys toggle entries but never the root, and typing finds a name.
    DocDirBox keys(nullptr, &Settings());
    const int rootChildren = keys.count() - 1;
    keys.setCurrentRow(0);
    QTest::keyClick(&keys, Qt::Key_Left);
    keys.DoubleClick();
    EXPECT_EQ(keys.count() - 1, rootChildren);

    const int at = OpenTemp(keys);
    keys.setCurrentRow(at + 2);
    for (const auto& [key, open] : {std::pair{Qt::Key_Return, 3u}, {Qt::Key_Return, 0u}, {Qt::Key_Right, 3u}, {Qt::Key_Left, 0u}}) {
        QTest::keyClick(&keys, key);
        EXPECT_EQ(Subtree(keys, at + 2).size(), open) << key;
    }
    QTest::keyClick(&keys, Qt::Key_Left);  // closed: goes to the parent
    EXPECT_EQ(keys.GetSelectedPos(), at);

    // Typed letters match the names, not the indented lines.
    keys.setCurrentRow(at + 2);
    QTest::keyClick(&keys, Qt::Key_Right);
    keys.setCurrentRow(at);
    QTest::keyClicks(&keys, "DE");
    EXPECT_EQ(keys.GetDir(keys.GetSelectedPos()), tree.PathOf("A/deep"));
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(&keys, "w");
    EXPECT_EQ(keys.GetDir(keys.GetSelectedPos()), tree.PathOf("A/w"));
}

TEST_F(DirBoxTest, ExceptionPathsAreLeftOutClosingRemovesTheWholeSubtreeVanishedDirectoriesOpenEmpty)
{
    // Exception paths and what is below them are left out.
    Settings().SetExceptionPaths(textcase::ToUpper(tree.PathOf("b") + ";" + tree.PathOf("a/DEEP")));
    DocDirBox excepting(nullptr, &Settings());
    const int at = OpenTemp(excepting);
    EXPECT_EQ(Subtree(excepting, at), (std::vector<std::string>{Line(1, '-', ".hidden"), Line(1, '-', "A"), Line(1, '-', "c")}));
    excepting.ToggleDir(uint16_t(at + 2));
    EXPECT_EQ(Subtree(excepting, at + 2), (std::vector<std::string>{Line(2, '-', "w"), Line(2, '-', "x")}));

    // Without a configuration only "." and ".." are left out.
    DocDirBox plain(nullptr, nullptr);
    EXPECT_EQ(Subtree(plain, OpenTemp(plain)).size(), 4u);
    Settings().SetExceptionPaths("");

    DocDirBox box(nullptr, &Settings());
    const int pos = OpenTemp(box);
    const int a = pos + 2;
    box.ToggleDir(uint16_t(a));
    box.ToggleDir(uint16_t(a + 3));  // A/x, after deep and w
    EXPECT_EQ(Subtree(box, a), (std::vector<std::string>{Line(2, '-', "deep"), Line(2, '-', "w"), Line(2, '+', "x"), Line(3, '-', "y")}));
    EXPECT_EQ(box.GetDir(uint16_t(a + 4)), tree.PathOf("A/x/y"));

    box.ToggleDir(uint16_t(a));
    EXPECT_EQ(box.item(a)->text().toStdString(), Line(1, '-', "A"));

    // Vanished directories open empty, and the current directory stays.
    const auto cwd = std::filesystem::current_path();
    std::filesystem::remove_all(tree.PathOf("c"));
    box.ToggleDir(uint16_t(pos + 4));
    EXPECT_EQ(box.item(pos + 4)->text().toStdString(), Line(1, '+', "c"));
    EXPECT_TRUE(Subtree(box, pos + 4).empty());
    EXPECT_EQ(std::filesystem::current_path(), cwd);

    const int count = box.count();
    box.ToggleDir(uint16_t(pos));
    EXPECT_EQ(box.count(), count - 4);
    EXPECT_TRUE(Subtree(box, pos).empty());
}
