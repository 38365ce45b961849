// docmanager --set: fields written from a script, the others kept.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/host/cli_fixture.h"

namespace clitest {
namespace {

class CliSetTest : public CliTest {
protected:
    RunResult Set(QStringList args, const std::vector<std::string>& files)
    {
        for (const std::string& file : files)
            args << QString::fromStdString(file);
        return RunDocmanager(args, ConfigHome());
    }
    // The listing's object of each file, by name.
    std::map<std::string, QJsonObject> Listed()
    {
        const RunResult run = RunDocmanager({"--list", "--format", "json", QString::fromStdString(dir.PathOf("d"))}, ConfigHome());
        std::map<std::string, QJsonObject> byName;
        for (const QJsonValue doc : QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).array())
            byName[doc["name"].toString().toStdString()] = doc.toObject();
        return byName;
    }
};

TEST_F(CliSetTest, WritesOdfOoxmlAndPdfKeepsTheOtherFieldsRefusesReadOnlyKindsAndDamagedFilesUntouched)
{
    const std::vector<std::string> writable = {WriteDoc("d/a.odt", "Alpha"), WriteDoc("d/b.docx", "Beta"), WriteDoc("d/c.pdf", "Gamma")};
    const std::string odt = dir.Read("d/a.odt");
    const std::vector<std::string> refused = {
        WriteDoc("d/d.rtf", "Delta"), WriteDoc("d/e.fodt", "Epsilon"),
        dir.MakeFile("d/f.doc", std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(1024, '\0')),
        dir.MakeFile("d/g.odt", odt.substr(0, odt.size() / 2))};  // cut off: damaged
    std::vector<std::string> refusedBytes;
    for (const std::string& file : refused)
        refusedBytes.push_back(testfs::ReadFile(file));
    std::vector<std::string> all = writable;
    all.insert(all.end(), refused.begin(), refused.end());

    // A dry run tells old and new values and writes nothing.
    RunResult run = Set({"--set", "title=New", "--set", "info2=Two", "--dry-run"}, {writable[0], refused[0]});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, writable[0] + "\n  title: \"Alpha\" -> \"New\"\n  info2: \"\" -> \"Two\"\n");
    EXPECT_NE(run.err.find(refused[0] + ": not written: "), std::string::npos) << run.err;
    EXPECT_EQ(dir.Read("d/a.odt"), odt);

    // Two runs: the second sets one information field and keeps the others in their places.
    run = Set({"--set", "info1=One", "--set", "info3=Three"}, writable);
    EXPECT_EQ(run.status, 0) << run.err;
    run = Set({"--set", "title=New", "--set", "author=Erika", "--set=info2=Two"}, all);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    for (size_t i = 0; i < refused.size(); ++i) {
        EXPECT_NE(run.err.find(refused[i] + ": not written: "), std::string::npos) << run.err;
        EXPECT_EQ(testfs::ReadFile(refused[i]), refusedBytes[i]) << refused[i];
    }
    const auto listed = Listed();
    for (const char* name : {"a.odt", "b.docx", "c.pdf"}) {
        const QJsonObject& doc = listed.at(name);
        EXPECT_EQ(doc["title"].toString(), "New") << name;
        EXPECT_EQ(doc["author"].toString(), "Erika") << name;
        EXPECT_EQ(doc["info"].toArray(), (QJsonArray{"One", "Two", "Three", ""})) << name;
    }
    EXPECT_EQ(listed.at("d.rtf")["title"].toString(), "Delta");

    // A bad field or option: usage on standard error, nothing written or printed.
    for (const QStringList& args :
         {QStringList{"--set", "colour=red"}, QStringList{"--set", "title"}, QStringList{"--set", "title=X", "--list"}}) {
        run = Set(args, {writable[0]});
        EXPECT_EQ(run.status, 2) << args.join(' ').toStdString();
        EXPECT_EQ(run.out, "");
        EXPECT_NE(run.err.find("Usage:"), std::string::npos);
    }
    EXPECT_EQ(Listed().at("a.odt")["title"].toString(), "New");
}

}  // namespace
}  // namespace clitest
