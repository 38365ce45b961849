#include "host/cli/readersource.h"

#include "host/readers/docreader.h"

std::unique_ptr<DocInfo> ReaderDocSource::CreateDocInfo(const std::string& path)
{
    return ReadDocInfo(path);
}
