#include "host/app/documenthandoff.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace {

QString Q(const std::string& s)
{
    return QString::fromStdString(s);
}

// A folder for the copies that outlives this process: the application that opens a copy
// reads it after docmanager has ended.
QString NewCopyFolder()
{
    QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/docmanager-readonly-XXXXXX"));
    if (!dir.isValid())
        return {};
    dir.setAutoRemove(false);
    return dir.path();
}

}  // namespace

std::vector<std::string> MakeReadOnlyCopies(const std::vector<std::string>& paths,
                                            std::string& error)
{
    std::vector<std::string> copies;
    const QString folder = NewCopyFolder();
    if (folder.isEmpty()) {
        error = "no folder for read-only copies could be made in " + QDir::tempPath().toStdString();
        return copies;
    }
    for (size_t i = 0; i < paths.size(); ++i) {
        const QString source = Q(paths[i]);
        // Documents of the same name from different folders each get a folder of their own.
        QString target = folder + QLatin1Char('/') + QFileInfo(source).fileName();
        if (QFileInfo::exists(target)) {
            const QString sub = folder + QLatin1Char('/') + QString::number(i + 1);
            QDir().mkpath(sub);
            target = sub + QLatin1Char('/') + QFileInfo(source).fileName();
        }
        if (!QFile::copy(source, target)) {
            error += "the file " + paths[i] + " could not be copied\n";
            continue;
        }
        QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup
                                          | QFile::ReadOther);
        copies.push_back(target.toStdString());
    }
    return copies;
}

int OpenDocuments(const std::vector<std::string>& paths, std::string& error)
{
    int status = 0;
    for (const std::string& path : paths) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)))) {
            error += "no application could be started to open " + path + "\n";
            status = 1;
        }
    }
    return status;
}

std::string FindPrintCommand()
{
    for (const char* name : {"lp", "lpr"}) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(name));
        if (!program.isEmpty())
            return program.toStdString();
    }
    return {};
}

int PrintDocuments(const std::vector<std::string>& paths, std::string& error)
{
    if (paths.empty())
        return 0;
    const std::string command = FindPrintCommand();
    if (command.empty()) {
        error = "the documents cannot be printed: this system has no print command (neither lp "
                "nor lpr was found). Install a print system such as CUPS (package cups-client).";
        return 1;
    }
    QStringList args;
    for (const std::string& path : paths)
        args << Q(path);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(Q(command), args);
    if (!process.waitForStarted() || !process.waitForFinished(-1)) {
        error = "the print command " + command + " could not be run";
        return 1;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        error = "the print command " + command + " failed (exit status "
            + std::to_string(process.exitCode()) + ")";
        return 1;
    }
    return 0;
}
