#include "host/app/documentopener.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QString>
#include <QUrl>

int OpenDocuments(const std::vector<std::string>& paths, std::string& error)
{
    int status = 0;
    for (const std::string& path : paths) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)))) {
            error += QCoreApplication::translate("docmanager", "No application could be started to open %1.")
                         .arg(QString::fromStdString(path))
                         .toStdString() +
                     "\n";
            status = 1;
        }
    }
    return status;
}
