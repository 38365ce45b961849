#pragma once
// Document information for the row list from the host's readers (ODF, OOXML, PDF).
#include "docmgr/records/docsource.h"
#include "host/readers/readahead.h"

class ReaderDocSource : public DocSource {
public:
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    // Reads the directory's new and changed documents on every core.
    void ReadAhead(const std::vector<std::string>& paths) override;

private:
    DocReadAhead readAhead_;
};
