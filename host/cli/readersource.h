#pragma once
// Document information for the row list from the host's readers (ODF, OOXML, PDF).
#include "docmgr/records/docsource.h"

class ReaderDocSource : public DocSource {
public:
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
};
