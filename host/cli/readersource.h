#pragma once
// Document information for the row list from the host's readers (ODF, OOXML, PDF), through
// the per-user cache unless it is turned off.
#include "docmgr/records/docsource.h"
#include "host/cache/cachedreader.h"

class ReaderDocSource : public DocSource {
public:
    // `warn` hears of a damaged cache that was moved aside.
    explicit ReaderDocSource(bool useCache = false, DocCache::Warn warn = {});
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    // Reads the directory's new and changed documents on every core.
    void ReadAhead(const std::vector<std::string>& paths) override;
    // The same, telling the cache's files by the listing's own stat.
    void ReadAheadKnown(const std::vector<std::string>& paths,
                        const std::vector<const fsutil::DirItem*>& items) override;
    // Why a document holds no information (see ReadProblem).
    ReadProblem Problem(const std::string& path) { return reader_.Problem(path); }
    // Writes the listing's readings into the cache.
    void Flush() { reader_.Flush(); }

private:
    CachedReader reader_;
};
