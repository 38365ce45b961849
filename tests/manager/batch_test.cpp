// Editing the information of several real documents at once, in a host that writes them
// with the reference host's writers.
#include <QTreeWidget>
#include <algorithm>

#include "host/readers/docedit.h"
#include "host/readers/docreader.h"
#include "host/samples/samplewriter.h"
#include "tests/support/managerfixture.h"

namespace {

class ReaderHost : public TestHost {
public:
    using TestHost::TestHost;
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) override { return ReadDocInfo(file); }
    DocWriteResult WriteDocInfo(const std::string& file, const DocInfoEdit& edit, bool checkOnly, std::string& reason) override
    {
        return WriteDocEdit(file, edit, GetInfoLabels(), checkOnly, reason) ? DocWriteResult::Written : DocWriteResult::Refused;
    }
};

class BatchTest : public ManagerTest {
protected:
    void SetUp() override
    {
        WriteDefaultConfig();
        for (const char* name : {"a.odt", "b.docx", "c.pdf", "d.rtf", "e.fodt"}) {
            SampleDoc doc{std::string("Title ") + name, "Topic", "Ann Author", "Ann Author", {"one"}, "", {}, {}, std::nullopt, "",
                          {{"Project", "Atlas"}},       "Text."};
            std::string error;
            ASSERT_TRUE(WriteSample(docs + "/" + name, doc, error)) << error;
            bytes[name] = dir.Read(std::string("docs/") + name);
        }
        Start<ReaderHost>();
        host->show();
    }
    std::map<std::string, std::string> bytes;
};

TEST_F(BatchTest, SharedValuesShowOnlyChangedFieldsArePreviewedAndWrittenReadOnlyKindsAreLeftAndItIsOneUndoStep)
{
    Select({"a.odt", "b.docx", "c.pdf", "d.rtf", "e.fodt"});
    AnswerBoxes(RET_YES);
    std::vector<QStringList> previewRows;
    OnNextModal([&previewRows](QDialog& fields) {
        EXPECT_EQ(In<QLineEdit>(fields, "title")->text(), "");
        EXPECT_EQ(In<QLineEdit>(fields, "title")->placeholderText(), "(various)");
        EXPECT_EQ(In<QLineEdit>(fields, "author")->text(), "Ann Author");
        EXPECT_EQ(In<QLineEdit>(fields, "info1")->text(), "Atlas");
        In<QLineEdit>(fields, "topic")->selectAll();
        QTest::keyClicks(In<QLineEdit>(fields, "topic"), "Shared");
        OnNextModal([&previewRows](QDialog& preview) {
            auto* table = In<QTreeWidget>(preview, "previewTable");
            for (int i = 0; i < table->topLevelItemCount(); ++i) {
                QStringList row;
                for (int c = 0; c < 4; ++c)
                    row << table->topLevelItem(i)->text(c);
                previewRows.push_back(row);
            }
            In<QPushButton>(preview, "okButton")->click();
        });
        In<QPushButton>(fields, "okButton")->click();
    });
    Impl().Command(CMD_BATCHINFO);
    std::sort(previewRows.begin(), previewRows.end());  // in list order, which the index decides

    const QString readOnly = "not written: Documents of this kind (legacy Office, RTF, flat ODF) are read-only here; "
                             "their information cannot be changed.";
    EXPECT_EQ(previewRows, (std::vector<QStringList>{{"a.odt", "Topic", "Topic", "Shared"},
                                                     {"b.docx", "Topic", "Topic", "Shared"},
                                                     {"c.pdf", "Topic", "Topic", "Shared"},
                                                     {"d.rtf", "", "", readOnly},
                                                     {"e.fodt", "", "", readOnly}}));
    EXPECT_EQ(infos, std::vector<std::string>{"These documents were left as they were:"});
    EXPECT_TRUE(AnsweredDocBox().detail.contains("d.rtf: Documents of this kind"));
    EXPECT_TRUE(AnsweredDocBox().detail.contains("e.fodt: Documents of this kind"));
    for (const char* name : {"a.odt", "b.docx", "c.pdf"}) {
        const auto info = ReadDocInfo(docs + "/" + name);
        EXPECT_EQ(info->topic, "Shared") << name;
        EXPECT_EQ(info->title, std::string("Title ") + name);  // untouched fields stay
        EXPECT_EQ(info->info[0], "Atlas") << name;
    }
    EXPECT_EQ(dir.Read("docs/d.rtf"), bytes["d.rtf"]);
    EXPECT_EQ(dir.Read("docs/e.fodt"), bytes["e.fodt"]);

    Impl().Command(CMD_UNDO);  // the whole edit at once
    for (const auto& [name, content] : bytes)
        EXPECT_EQ(dir.Read("docs/" + name), content) << name;
}

}  // namespace
