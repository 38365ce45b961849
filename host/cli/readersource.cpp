#include "host/cli/readersource.h"

std::unique_ptr<DocInfo> ReaderDocSource::CreateDocInfo(const std::string& path)
{
    return readAhead_.Take(path);
}

void ReaderDocSource::ReadAhead(const std::vector<std::string>& paths)
{
    readAhead_.Start(paths);
}
