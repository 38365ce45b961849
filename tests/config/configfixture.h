#pragma once
// A configuration file in a fresh temporary directory, with the module's English texts.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>
#include <sstream>
#include <string>

#include "docmgr/tools/resmgr.h"

class ConfigFileTest : public testing::Test {
protected:
    std::string Path() const { return dir_.filePath("docmgr.cfg").toStdString(); }

    void WriteFile(const std::string& bytes) const
    {
        std::ofstream(Path(), std::ios::binary) << bytes;
    }

    std::string FileText() const
    {
        std::ifstream in(Path(), std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

private:
    ResModule module_{Language::English};
    QTemporaryDir dir_;
};
