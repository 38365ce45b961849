#include "host/app/documentopener.h"

#include <QDesktopServices>
#include <QString>
#include <QUrl>

int OpenDocuments(const std::vector<std::string>& paths, std::string& error)
{
    int status = 0;
    for (const std::string& path : paths) {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)))) {
            error += "no application could be started to open " + path + "\n";
            status = 1;
        }
    }
    return status;
}
