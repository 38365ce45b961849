#include "docmgr/view/docfolderwatch.h"

#include <QStringList>
#include <utility>

#include "docmgr/tools/fsutil.h"

namespace {
// The folder's modification time, or -1 when it is gone.
int64_t FolderTime(const std::string& dir)
{
    uint64_t size = 0;
    int64_t mtimeNs = 0;
    return fsutil::Stat(dir, size, mtimeNs) ? mtimeNs : -1;
}
}  // namespace

DocFolderWatch::DocFolderWatch(QObject* parent) : QObject(parent)
{
    settle_.setSingleShot(true);
    settle_.setInterval(SETTLE_MS);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &DocFolderWatch::DirectoryChanged);
    connect(&settle_, &QTimer::timeout, this, &DocFolderWatch::Settled);
}

void DocFolderWatch::Watch(const std::vector<std::string>& dirs)
{
    settle_.stop();
    changed_.clear();
    std::map<std::string, int64_t> stamps;
    for (const std::string& dir : dirs)
        stamps.emplace(dir, FolderTime(dir));
    // Folders watched already stay watched; only the difference goes to the system.
    std::set<std::string> watched;
    QStringList gone;
    for (const QString& dir : watcher_.directories()) {
        watched.insert(dir.toStdString());
        if (!stamps.count(dir.toStdString()))
            gone << dir;
    }
    if (!gone.isEmpty())
        watcher_.removePaths(gone);
    QStringList added;
    for (const auto& [dir, time] : stamps)
        if (!watched.count(dir))
            added << QString::fromStdString(dir);
    stamps_ = std::move(stamps);
    if (!added.isEmpty() && !watcher_.addPaths(added).isEmpty())
        Stop();  // more folders than the system allows: a list half watched would mislead
}

void DocFolderWatch::Stop()
{
    settle_.stop();
    changed_.clear();
    stamps_.clear();
    const QStringList watched = watcher_.directories();
    if (!watched.isEmpty())
        watcher_.removePaths(watched);
}

void DocFolderWatch::DirectoryChanged(const QString& dir)
{
    changed_.insert(dir.toStdString());
    settle_.start();  // every change restarts the wait
}

void DocFolderWatch::Settled()
{
    bool moved = false;
    for (const std::string& dir : std::exchange(changed_, {})) {
        const auto stamp = stamps_.find(dir);
        moved = moved || stamp == stamps_.end() || FolderTime(dir) != stamp->second;
    }
    if (moved)
        emit foldersChanged();
}
