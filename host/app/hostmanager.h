#pragma once
// The reference host's document manager: document information comes from the readers,
// and is edited in the document properties dialog.
#include "docmgr/manager/docmanager.h"
#include "host/cache/cachedreader.h"

class HostManager : public DocManager {
    Q_OBJECT
public:
    using DocManager::DocManager;
    ~HostManager() override;

    // Reads documents through the per-user cache (see CachedReader).
    void UseCache();
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) override;
    // Reads a directory's new and changed documents on every core.
    void ReadAhead(const std::vector<std::string>& files) override;
    // Shows the properties dialog for `file`; true when the changes were written.
    bool ChangeDocInfo(QWidget* parent, const std::string& file) override;
    // Writes an edit of several documents with the properties dialog's writers.
    DocWriteResult WriteDocInfo(const std::string& file, const DocInfoEdit& edit, bool checkOnly,
                                std::string& reason) override;

private:
    CachedReader reader_;
};
