#pragma once
// A configuration on a real file in a temporary directory, with the module's English texts,
// for the settings dialogs.
#include <gtest/gtest.h>

#include <QListWidget>
#include <memory>
#include <string>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/tempdir.h"

class SettingsTest : public ::testing::Test {
protected:
    // An empty file: the configuration makes its first group (user group 0).
    ResModule resources{Language::English};
    TempDir dir;
    Config file{dir.PathOf("settings.cfg")};
    ImplDocConfig config{&file, "*.odt", [](const std::string&) {}};

    DocGroupConfig& Working() { return config.WorkingGroup(); }

    template <class W>
    static W* Child(const QObject& parent, const char* name)
    {
        W* widget = parent.findChild<W*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    static std::vector<std::string> Texts(const QListWidget& list)
    {
        std::vector<std::string> texts;
        for (int i = 0; i < list.count(); ++i)
            texts.push_back(list.item(i)->text().toStdString());
        return texts;
    }
};
