#pragma once
// The fixture of every widget test: a configuration file with chosen groups in a
// temporary directory, documents beside it, a TestHost on that configuration, and answers
// for the message boxes. Header only: the core test programs, which link no widgets,
// never include it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <cstdlib>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/view/docbrowser.h"
#include "tests/support/groupspec.h"
#include "tests/support/tempdir.h"
#include "tests/support/testhost.h"

class ManagerTest : public ::testing::Test {
protected:
    ~ManagerTest() override { SetDocBoxAnswerer({}); }

    // Writes the configuration file: `groups` (names, sections and paths) as user groups
    // 0..n-1, `actual` as the stored ACTUALGROUP.
    void WriteConfig(const std::vector<GroupSpec>& groups, uint16_t actual = 1, bool singleView = false)
    {
        Config file(configPath);
        ImplDocConfig settings(&file, "*", [](const std::string&) {});
        for (size_t i = 0; i < groups.size(); ++i) {
            if (i > 0)
                settings.InsertGroup(uint16_t(i));
            DocGroupConfig& group = settings.Group(uint16_t(i));
            group.groupName = groups[i].name;
            group.section = groups[i].section;
            group.paths = groups[i].paths;
            group.guis = groups[i].paths.empty() ? "" : groups[i].guis;
        }
        settings.actualGroup = actual;
        settings.singleView = singleView;
        settings.SaveConfig();
        settings.SaveGeneralSection();
        ASSERT_TRUE(file.Flush());
    }

    // One group "Docs" in section "Main" showing the documents directory.
    void WriteDefaultConfig(bool singleView = false) { WriteConfig({{"Docs", "Main", docs, "1"}}, 1, singleView); }

    // Documents of these names in the documents directory.
    void MakeDocs(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            dir.MakeFile(std::string("docs/") + name, "x");
    }

    // The default configuration, these documents and the manager started on them.
    void StartWith(std::initializer_list<const char*> names)
    {
        WriteDefaultConfig();
        MakeDocs(names);
        Start();
    }

    template <class Host = TestHost>
    Host& MakeHost(bool openMode = true, const std::string& startPaths = {})
    {
        config = std::make_unique<Config>(configPath);
        auto made = std::make_unique<Host>(nullptr, config.get(), startPaths, openMode);
        Host& result = *made;
        host = std::move(made);
        return result;
    }

    // Reads the settings and collects, as the first Execute does, without its modal loop.
    template <class Host = TestHost>
    void Start(bool openMode = true, const std::string& starts = {})
    {
        MakeHost<Host>(openMode, starts).Inside().Init();
    }

    DocManagerImpl& Impl() { return host->Inside(); }
    DocBrowser& Browser() { return *Impl().browser; }
    ImplDocConfig& Settings() { return *Impl().settings; }
    DocGroupConfig& Working() { return Settings().WorkingGroup(); }

    // Selects exactly the rows whose file names are in `names`; how many it selected.
    int Select(const std::set<std::string>& names)
    {
        QItemSelection selection;
        const std::vector<std::string> rows = RowNames();
        for (int row = 0; row < int(rows.size()); ++row)
            if (names.count(rows[size_t(row)]))
                selection.select(Browser().model()->index(row, 0), Browser().model()->index(row, 0));
        Browser().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return int(selection.size());
    }

    // The value of `key` in `section` of the configuration file as it is on disk now.
    std::string Stored(const std::string& section, const std::string& key) const
    {
        Config file(configPath);
        file.SetGroup(section);
        return file.ReadKey(key);
    }

    std::vector<std::string> RowNames()
    {
        std::vector<std::string> names;
        for (const auto& row : Browser().GetRowList().Rows())
            names.push_back(fsutil::FileName(row->entry));
        return names;
    }

    template <class W>
    W* Child(const char* name)
    {
        return In<W>(*host, name);
    }

    // The child `name` of a dialog or other widget.
    template <class W>
    static W* In(const QObject& parent, const QString& name)
    {
        W* widget = parent.findChild<W*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }

    static std::vector<std::string> Texts(const QListWidget* list)
    {
        std::vector<std::string> texts;
        for (int i = 0; list && i < list->count(); ++i)
            texts.push_back(list->item(i)->text().toStdString());
        return texts;
    }

    // Answers every query with `answer` and records the texts of all boxes.
    void AnswerBoxes(int answer)
    {
        SetDocBoxAnswerer([this, answer](const QString& text, bool query) {
            (query ? queries : infos).push_back(text.toStdString());
            return answer;
        });
    }

    // Runs `action` once the next modal dialog is up, then ends the dialog with `result`
    // unless the action ended it.
    static void OnNextModal(std::function<void(QDialog&)> action, int result = 1)
    {
        QTimer::singleShot(0, [action = std::move(action), result] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            action(*dialog);
            if (dialog->isVisible())
                dialog->done(result);
        });
    }

    static std::string PrivateDataHome(const std::string& path)
    {
        setenv("XDG_DATA_HOME", path.c_str(), 1);
        return path;
    }

    ResModule resources{Language::English};
    TempDir dir;
    std::string configPath = dir.PathOf("manager.cfg");
    std::string docs = dir.MakeDir("docs");
    // The desktop's trash of these tests is their own (deleted documents go there), never the user's.
    std::string dataHome = PrivateDataHome(dir.PathOf("data"));
    std::vector<std::string> queries;
    std::vector<std::string> infos;
    std::unique_ptr<Config> config;
    std::unique_ptr<TestHost> host;
};
