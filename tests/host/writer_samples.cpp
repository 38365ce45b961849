// The docmanager-samples tool, run as a separate process.
#include <filesystem>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include <QProcess>

#include "host/readers/docreader.h"
#include "tests/support/tempdir.h"

namespace {

std::string ToolPath()
{
    if (const char* dir = std::getenv("DOCMGR_BIN_DIR"); dir && *dir)
        return std::string(dir) + "/docmanager-samples";
    // Run by hand: the tool is built beside the tests folder.
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path() / "host/docmanager-samples")
        .string();
}

struct ToolRun {
    int exitCode = -1;
    std::string out, err;
};

ToolRun RunTool(const QStringList& args)
{
    QProcess process;
    process.start(QString::fromStdString(ToolPath()), args);
    ToolRun run;
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput().toStdString();
    run.err = process.readAllStandardError().toStdString();
    return run;
}

std::map<std::string, std::string> Contents(const TempDir& dir)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(dir.Path()))
        files[entry.path().filename().string()] = dir.Read(entry.path().filename().string());
    return files;
}

}  // namespace

TEST(WriterSamples, BadArgumentsExitWithUsage)
{
    TempDir dir;
    const QString d = QString::fromStdString(dir.PathOf("out"));
    for (const QStringList& args : {QStringList{}, QStringList{d, "many"}, QStringList{d, "3", "--seed"},
                                    QStringList{d, "--seed", "-1"}, QStringList{d, "--colour"},
                                    QStringList{d, "1", "2"}}) {
        SCOPED_TRACE(args.join(' ').toStdString());
        const ToolRun run = RunTool(args);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_NE(run.err.find("Usage: docmanager-samples DIR [COUNT] [--seed N]"), std::string::npos);
    }
    EXPECT_FALSE(dir.Exists("out"));
}

TEST(WriterSamples, TheSameSeedWritesTheSameLibrary)
{
    TempDir first, second, other;
    ASSERT_EQ(RunTool({QString::fromStdString(first.Path()), "9", "--seed", "42"}).exitCode, 0);
    ASSERT_EQ(RunTool({QString::fromStdString(second.Path()), "--seed", "42", "9"}).exitCode, 0);
    ASSERT_EQ(RunTool({QString::fromStdString(other.Path()), "9", "--seed", "43"}).exitCode, 0);
    EXPECT_EQ(Contents(first), Contents(second));
    EXPECT_NE(Contents(first), Contents(other));
}

TEST(WriterSamples, TheDefaultLibraryIsVaried)
{
    TempDir dir;
    const ToolRun run = RunTool({QString::fromStdString(dir.Path())});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    std::map<std::string, int> extensions;
    std::set<std::string> titles, authors, numbers;
    int documents = 0, neverPrinted = 0, withInfo = 0, nonAscii = 0;
    for (const auto& entry : std::filesystem::directory_iterator(dir.Path())) {
        const std::string path = entry.path().string();
        auto info = ReadDocInfo(path);
        if (!info)
            continue;
        ++documents;
        // Names like "report-007.docx": a kind, then the running number.
        const std::string stem = entry.path().stem().string();
        numbers.insert(stem.substr(stem.rfind('-') + 1));
        ++extensions[entry.path().extension().string()];
        titles.insert(info->title);
        authors.insert(info->author);
        EXPECT_FALSE(info->title.empty()) << path;
        EXPECT_FALSE(info->createdDate.IsUnset()) << path;
        neverPrinted += info->NeverPrinted();
        withInfo += !info->info[0].empty() || !info->info[1].empty();
        for (const std::string* text : {&info->title, &info->author, &info->topic})
            nonAscii += std::any_of(text->begin(), text->end(), [](char c) { return (unsigned char)(c) > 0x7F; });
    }
    EXPECT_EQ(documents, 24);
    EXPECT_EQ(extensions,
              (std::map<std::string, int>{{".docx", 5}, {".odt", 5}, {".pdf", 5}, {".fodt", 5}, {".rtf", 4}}));
    EXPECT_EQ(numbers.size(), 24u);
    EXPECT_TRUE(numbers.count("001") && numbers.count("024"));
    EXPECT_GT(titles.size(), 8u);
    EXPECT_GT(authors.size(), 3u);
    EXPECT_GT(neverPrinted, 5);  // every PDF, and some of the others
    EXPECT_LT(neverPrinted, 24);
    EXPECT_GT(withInfo, 0);
    EXPECT_GT(nonAscii, 0);
    for (const char* other : {"notes.txt", "image.png", "data.csv", "archive.zip"}) {
        EXPECT_TRUE(dir.Exists(other)) << other;
        EXPECT_EQ(ReadDocInfo(dir.PathOf(other)), nullptr) << other;
    }
    EXPECT_NE(run.out.find("Wrote 24 documents and 4 other files"), std::string::npos) << run.out;
}
