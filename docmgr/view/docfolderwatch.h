#pragma once
// The folders the list shows, watched: once their contents have settled after a change,
// foldersChanged asks for the list to be collected again. Where the system cannot watch
// them all, none is watched, without a word.
//
// A folder counts as changed only when its time moved since Watch: the list's own index
// writes, made while collecting and before Watch, never ask for another collection.
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

class DocFolderWatch : public QObject {
    Q_OBJECT
public:
    // How long the folders must stay quiet before the list is collected again.
    static constexpr int SETTLE_MS = 300;

    explicit DocFolderWatch(QObject* parent);

    // Watches exactly `dirs` (absolute paths) from now on; call after each collection.
    void Watch(const std::vector<std::string>& dirs);
    // Watches nothing.
    void Stop();
    bool IsWatching() const { return !stamps_.empty(); }

signals:
    void foldersChanged();

private:
    void DirectoryChanged(const QString& dir);
    void Settled();

    QFileSystemWatcher watcher_;
    QTimer settle_;
    std::map<std::string, int64_t> stamps_;  // each folder's time as Watch saw it
    std::set<std::string> changed_;          // folders reported since the last settling
};
