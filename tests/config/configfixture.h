#pragma once
// A configuration file in a fresh temporary directory, with the module's English texts.
#include <gtest/gtest.h>

#include <string>

#include "docmgr/tools/resmgr.h"
#include "tests/support/tempdir.h"

class ConfigFileTest : public testing::Test {
protected:
    std::string Path() const { return dir_.PathOf("docmgr.cfg"); }
    void WriteFile(const std::string& bytes) const { testfs::WriteFile(Path(), bytes); }
    std::string FileText() const { return testfs::ReadFile(Path()); }

private:
    ResModule module_{Language::English};
    TempDir dir_;
};
