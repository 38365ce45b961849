#include "host/cli/readersource.h"

ReaderDocSource::ReaderDocSource(bool useCache, DocCache::Warn warn)
{
    if (useCache)
        reader_.SetCache(std::make_unique<DocCache>(DocCache::DefaultFile(), std::move(warn)));
}

std::unique_ptr<DocInfo> ReaderDocSource::CreateDocInfo(const std::string& path)
{
    return reader_.Take(path);
}

void ReaderDocSource::ReadAhead(const std::vector<std::string>& paths)
{
    reader_.ReadAhead(paths);
}

void ReaderDocSource::ReadAheadKnown(const std::vector<std::string>& paths,
                                     const std::vector<const fsutil::DirItem*>& items)
{
    // Stamped now, after the listing's stat and before any read: a file counts as settled
    // only when its times are older than every read of it.
    const int64_t now = ClockNowNs();
    std::vector<FileIdentity> known(items.size());
    for (size_t i = 0; i < items.size(); ++i) {
        const fsutil::DirItem& item = *items[i];
        known[i] = {item.dev, item.ino, int64_t(item.size), item.mtimeNs, item.ctimeNs, now};
    }
    reader_.ReadAhead(paths, &known);
}
