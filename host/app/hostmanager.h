#pragma once
// The reference host's document manager: document information comes from the readers,
// and is edited in the document properties dialog.
#include "docmgr/manager/docmanager.h"

class HostManager : public DocManager {
    Q_OBJECT
public:
    using DocManager::DocManager;

    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) override;
    // Shows the properties dialog for `file`; true when the changes were written.
    bool ChangeDocInfo(QWidget* parent, const std::string& file) override;
};
