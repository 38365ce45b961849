#include "host/cli/readonlycopies.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

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

std::vector<std::string> MakeReadOnlyCopies(const std::vector<std::string>& paths, std::string& error)
{
    std::vector<std::string> copies;
    if (paths.empty())
        return copies;
    const QString folder = NewCopyFolder();
    if (folder.isEmpty()) {
        error = QCoreApplication::translate("docmanager", "No folder for read-only copies could be made in %1.")
                    .arg(QDir::tempPath())
                    .toStdString() +
                "\n";
        return copies;
    }
    for (size_t i = 0; i < paths.size(); ++i) {
        const QString source = QString::fromStdString(paths[i]);
        const QString name = QFileInfo(source).fileName();
        // Documents of the same name from different folders each get a folder of their own.
        QString target = folder + QLatin1Char('/') + name;
        if (QFileInfo::exists(target)) {
            const QString sub = folder + QLatin1Char('/') + QString::number(i + 1);
            QDir().mkpath(sub);
            target = sub + QLatin1Char('/') + name;
        }
        if (!QFile::copy(source, target)) {
            error += QCoreApplication::translate("docmanager", "The file %1 could not be copied.")
                         .arg(source)
                         .toStdString() +
                     "\n";
            continue;
        }
        QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther);
        copies.push_back(target.toStdString());
    }
    return copies;
}
