#include "tests/host/cli_fixture.h"

#include <unistd.h>

#include <QProcess>
#include <cstdlib>
#include <filesystem>

#include "host/samples/samplewriter.h"

namespace clitest {

std::string BinaryPath(const std::string& name)
{
    const char* dir = std::getenv("DOCMGR_BIN_DIR");
    return std::string(dir && *dir ? dir : ".") + "/" + name;
}

RunResult RunDocmanager(const QStringList& args, const std::string& configHome, bool unprivileged, const QStringList& extraEnv)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (!configHome.empty()) {
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), QString::fromStdString(configHome));
        env.insert(QStringLiteral("XDG_CACHE_HOME"), QString::fromStdString(configHome + "/cache"));
    }
    for (const QString& entry : extraEnv)
        env.insert(entry.section('=', 0, 0), entry.section('=', 1));

    QProcess process;
    process.setProcessEnvironment(env);
    if (unprivileged && geteuid() == 0) {
        process.setChildProcessModifier([] {
            if (setgid(65534) != 0 || setuid(65534) != 0)
                _exit(100);
        });
    }
    process.start(QString::fromStdString(BinaryPath("docmanager")), args);
    RunResult result;
    if (!process.waitForFinished(120000)) {
        process.kill();
        ADD_FAILURE() << "docmanager " << args.join(' ').toStdString() << " did not start or finish";
        return result;
    }
    result.out = process.readAllStandardOutput().toStdString();
    result.err = process.readAllStandardError().toStdString();
    result.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return result;
}

std::string ConfigText(const std::vector<GroupSpec>& groups, int actualGroup)
{
    std::string text = "[GENERAL]\nVIEWMODE=MULTI\nACTUALGROUP=" + std::to_string(actualGroup) + "\n[GROUPS]\n";
    for (size_t g = 0; g < groups.size(); ++g)
        text += std::to_string(g) + "=" + groups[g].name + "\n";
    for (size_t g = 0; g < groups.size(); ++g) {
        const GroupSpec& group = groups[g];
        text += "[" + std::to_string(g) + "]\nGROUPNAME=" + group.name + "\nSECTION=" + group.section +
                "\nFILTERTITLE=" + group.filterTitle + "\nFILTERTOPIC=\nFILTERAUTHOR=\nFILTERKEYWORDS=\nFILTERFILES=" + group.filterFiles +
                "\nFILTERSENSITIVE=FALSE\nFILTERFIELD0=65535\nFILLTERCONDITION0=0\nFILTERLINK0=0\n" +
                "SORTCOLUMNID=" + std::to_string(group.sortColumn) + "\nSORTORDER=" + (group.ascending ? "UP" : "DOWN") + "\n";
        for (size_t slot = 0; slot < 20; ++slot) {
            const size_t id = slot < group.columns.size() ? group.columns[slot] : group.columns.empty() ? slot + 1 : 0;
            text += "COLUMNID" + std::to_string(slot) + "=" + std::to_string(id) + "\nCOLUMNWIDTH" + std::to_string(slot) + "=65535\n";
        }
        text +=
            "FROZENCOLUMNS=1\nINFO0=Project\nINFO1=Client\nINFO2=Status\nINFO3=Ref\nPATHS=" + group.paths + "\nGUIS=" + group.guis + "\n";
    }
    return text;
}

std::string CliTest::WriteDoc(const std::string& relative, const std::string& title, const std::string& author, int day)
{
    const SampleDoc doc{title,
                        "",
                        author,
                        author,
                        {},
                        "",
                        QDateTime(QDate(2021, 3, day), QTime(9, 30, 0)),
                        QDateTime(QDate(2021, 3, day), QTime(17, 45, 10)),
                        std::nullopt,
                        "",
                        {},
                        "Some text."};
    const std::string path = dir.PathOf(relative);
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::string error;
    EXPECT_TRUE(WriteSample(path, doc, error)) << error;
    testfs::SetMTime(path, 1600000000 + day * 100);
    return path;
}

RunResult CliTest::List(const std::string& config, const QStringList& args, const QStringList& env)
{
    return RunDocmanager(QStringList{"--list", "--config", QString::fromStdString(config)} + args, ConfigHome(), false, env);
}

}  // namespace clitest
