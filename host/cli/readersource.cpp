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
