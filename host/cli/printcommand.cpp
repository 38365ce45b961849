#include "host/cli/printcommand.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

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
        error = QCoreApplication::translate("docmanager",
                                            "The documents cannot be printed: this system has no print command "
                                            "(neither lp nor lpr was found). Install a print system such as "
                                            "CUPS (package cups-client).")
                    .toStdString();
        return 1;
    }
    QStringList args;
    for (const std::string& path : paths)
        args << QString::fromStdString(path);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QString::fromStdString(command), args);
    if (!process.waitForStarted() || !process.waitForFinished(-1)) {
        error = QCoreApplication::translate("docmanager", "The print command %1 could not be run.")
                    .arg(QString::fromStdString(command))
                    .toStdString();
        return 1;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        error = QCoreApplication::translate("docmanager", "The print command %1 failed (exit status %2).")
                    .arg(QString::fromStdString(command))
                    .arg(process.exitCode())
                    .toStdString();
        return 1;
    }
    return 0;
}
