#include "host/cli/userconfig.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "docmgr/config/configcheck.h"
#include "docmgr/tools/config.h"

std::string DefaultConfigPath()
{
    QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    if (base.isEmpty())
        base = QDir::homePath() + QStringLiteral("/.config");
    return (base + QStringLiteral("/docmanager/docmanager.cfg")).toStdString();
}

bool EnsureConfigDirectory(const std::string& path, std::string& error)
{
    const QFileInfo file(QString::fromStdString(path));
    const QString dir = file.absolutePath();
    if (QFileInfo(dir).isDir())
        return true;
    if (QDir().mkpath(dir))
        return true;
    error = "the directory " + dir.toStdString() + " for the configuration could not be created";
    return false;
}

std::unique_ptr<Config> OpenUserConfig(const std::string& path, std::string& error)
{
    const std::string file = path.empty() ? DefaultConfigPath() : path;
    if (!EnsureConfigDirectory(file, error))
        return nullptr;
    if (QFileInfo(QString::fromStdString(file)).isDir()) {
        error = "the configuration " + file + " is a directory, not a file";
        return nullptr;
    }
    auto config = std::make_unique<Config>(file);
    if (!config->GetLoadError().empty()) {
        error = "the configuration " + file + " could not be read: " + config->GetLoadError();
        return nullptr;
    }
    if (!HoldsDocConfig(*config)) {
        error = "the configuration " + file +
                " is not empty but holds no [GENERAL], [GROUPS] or [0] section; it is left as it is";
        return nullptr;
    }
    return config;
}
