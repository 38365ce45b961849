// Page layout of the printed list, read back from real PDF files.
#include <cmath>

#include "tests/print/pdfwords.h"
#include "tests/print/printfixture.h"

namespace {

std::string DocName(long i)
{
    char name[32];
    std::snprintf(name, sizeof name, "doc%02ld.odt", i);
    return name;
}

TEST_F(PrintTest, PagesHoldAllButTheHeaderLineAndAnExactFitEndsWithAHeaderPage)
{
    if (!pdfwords::Available())
        GTEST_SKIP() << "poppler-utils not installed";
    long lines = 0;
    InManager([&] {
        auto dialog = MakeDialog(40);
        dialog->GetPrinter()->setPageMargins(QMarginsF(20, 15, 20, 15), QPageLayout::Millimeter);
        lines = LinesPerPage(*dialog);
        ASSERT_GT(lines, 2);
        ASSERT_LT(lines, 50) << "a page of 40 pt lines";
        MakeDocs(int(2 * (lines - 1)));
        SelectColumns(*dialog, {Title(15700)});
        EXPECT_EQ(PrintAll(*dialog), 3);
    });
    ASSERT_EQ(pdfwords::PageCount(pdf), 3);
    const auto words = pdfwords::Words(pdf);
    for (int page = 1; page <= 2; ++page) {
        std::vector<std::string> expected{"File name"};
        for (long r = (page - 1) * (lines - 1); r < page * (lines - 1); ++r)
            expected.push_back(DocName(r));
        EXPECT_EQ(pdfwords::Lines(words, page), expected) << "page " << page;
    }
    EXPECT_EQ(pdfwords::Lines(words, 3), std::vector<std::string>{"File name"});
    // The header starts in the top left corner of the printable area: 20 mm (56.7 pt)
    // from the left edge, 15 mm (42.5 pt) from the top.
    const pdfwords::Word* header = pdfwords::Find(words, 1, "File");
    ASSERT_NE(header, nullptr);
    EXPECT_NEAR(header->x, 56.7, 1.0);
    EXPECT_GT(header->y, 42.0);
    EXPECT_LT(header->y, 52.0);
}

TEST_F(PrintTest, AnEmptyListPrintsOnePageWithTheHeader)
{
    if (!pdfwords::Available())
        GTEST_SKIP() << "poppler-utils not installed";
    InManager([&] {
        auto dialog = MakeDialog(12);
        SelectColumns(*dialog, {Title(15700), Title(15703)});
        EXPECT_EQ(PrintAll(*dialog), 1);
    });
    ASSERT_EQ(pdfwords::PageCount(pdf), 1);
    EXPECT_EQ(pdfwords::Lines(pdfwords::Words(pdf), 1), std::vector<std::string>{"File name Title"});
}

TEST_F(PrintTest, ColumnsPrintInAscendingIdOrderWhateverTheListShows)
{
    if (!pdfwords::Available())
        GTEST_SKIP() << "poppler-utils not installed";
    double charWidth = 0;
    InManager([&] {
        MakeDocs(1);
        auto& ids = host.GetSettings()->WorkingGroup().columnId;
        ids = {5, 3, 1, 2, 4, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
        host.GetBrowser()->InsertColumns();
        auto dialog = MakeDialog(10);
        charWidth = CharWidthPt(*dialog);
        SelectColumns(*dialog, {Title(15705), Title(15703), Title(15700)});
        EXPECT_EQ(PrintAll(*dialog), 1);
    });
    const auto words = pdfwords::Words(pdf);
    const auto lines = pdfwords::Lines(words, 1);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0], "File name Title Created on");
    EXPECT_EQ(lines[1].rfind("doc00.odt doc00.odt ", 0), 0u) << lines[1];
    // Each column is as wide as its widest text in characters, with nothing in between:
    // "File name" and "doc00.odt" are 9 characters, so the title starts at character 9.
    const pdfwords::Word* title = pdfwords::Find(words, 1, "Title");
    ASSERT_NE(title, nullptr);
    EXPECT_NEAR(title->x, 9 * charWidth, 0.5);
}

TEST_F(PrintTest, ALongFieldWidensItsColumnOnEveryPage)
{
    if (!pdfwords::Available())
        GTEST_SKIP() << "poppler-utils not installed";
    const std::string longTitle(14, 'x');  // longer than any other title, yet on the sheet
    double charWidth = 0;
    long lines = 0;
    InManager([&] {
        auto dialog = MakeDialog(40);
        charWidth = CharWidthPt(*dialog);
        lines = LinesPerPage(*dialog);
        // The long title sorts last, onto the second page.
        DocInfo info;
        info.title = longTitle;
        info.author = "Longman";
        host.known["zz.odt"] = info;
        dir.MakeFile("docs/zz.odt", "x");
        MakeDocs(int(lines));
        SelectColumns(*dialog, {Title(15703), Title(15707)});
        EXPECT_EQ(PrintAll(*dialog), 2);
    });
    const auto words = pdfwords::Words(pdf);
    ASSERT_EQ(pdfwords::PageCount(pdf), 2);
    ASSERT_NE(pdfwords::Find(words, 2, longTitle), nullptr);
    ASSERT_EQ(pdfwords::Find(words, 1, longTitle), nullptr);
    for (int page = 1; page <= 2; ++page) {
        const pdfwords::Word* author = pdfwords::Find(words, page, "Author");
        ASSERT_NE(author, nullptr) << "page " << page;
        EXPECT_NEAR(author->x, 14 * charWidth, 0.5) << "page " << page;
    }
    const pdfwords::Word* tester = pdfwords::Find(words, 1, "Tester");
    ASSERT_NE(tester, nullptr);
    EXPECT_NEAR(tester->x, 14 * charWidth, 0.5);
}

TEST_F(PrintTest, NothingIsPrintedWithoutAJobOrOnAPageTooSmallForTwoLines)
{
    InManager([&] {
        MakeDocs(3);
        auto dialog = MakeDialog(10);
        EXPECT_FALSE(dialog->PrintPage(1)) << "no job running";
        EXPECT_TRUE(dialog->StartJob("list"));
        EXPECT_FALSE(dialog->PrintPage(0));
        EXPECT_TRUE(dialog->PrintPage(1));
        EXPECT_FALSE(dialog->PrintPage(2));
        dialog->EndJob();
        EXPECT_FALSE(dialog->PrintPage(1)) << "the job has ended";

        QFont huge = dialog->GetPrintFont();
        huge.setPointSize(600);
        dialog->SetPrintFont(huge);
        ASSERT_LE(LinesPerPage(*dialog), 1);
        EXPECT_TRUE(dialog->StartJob("list"));
        EXPECT_FALSE(dialog->PrintPage(1));
        dialog->EndJob();
    });
}

}  // namespace
