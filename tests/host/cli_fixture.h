#pragma once
// Driving the docmanager binary as a user would: real sample documents, real
// configuration files, a private configuration home, no display.
#include <QStringList>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/groupspec.h"
#include "tests/support/tempdir.h"

namespace clitest {

struct RunResult {
    int status = -1;
    std::string out, err;
};

// Path of a program built next to docmanager ($DOCMGR_BIN_DIR).
std::string BinaryPath(const std::string& name);

// Runs docmanager with `args`; DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM are removed
// from its environment, XDG_CONFIG_HOME is `configHome` and XDG_CACHE_HOME its
// folder `cache` (when not empty). With
// `unprivileged` a run as root runs as the user nobody, so that permissions apply.
// `env` adds "NAME=value" entries. A run ended by a signal has the status -1.
RunResult RunDocmanager(const QStringList& args, const std::string& configHome, bool unprivileged = false, const QStringList& env = {});

// A whole configuration file: GENERAL (ACTUALGROUP as given), GROUPS and the sections.
std::string ConfigText(const std::vector<GroupSpec>& groups, int actualGroup = 1);

class CliTest : public ::testing::Test {
protected:
    // A document written by the sample writer (format by extension) with this title and
    // author, created and modified on 2021-03-`day`, its file time set in the past so that
    // an index written now is younger than it.
    std::string WriteDoc(const std::string& relative, const std::string& title, const std::string& author = "Ann Author", int day = 1);
    // Writes `text` as the configuration file `relative`; returns its path.
    std::string WriteConfig(const std::string& text, const std::string& relative = "docmanager.cfg")
    {
        return dir.MakeFile(relative, text);
    }
    // docmanager --list --config CONFIG ARGS...
    RunResult List(const std::string& config, const QStringList& args, const QStringList& env = {});
    std::string ConfigHome() const { return dir.PathOf("xdg"); }

    TempDir dir;
};

}  // namespace clitest
