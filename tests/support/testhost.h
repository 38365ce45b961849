#pragma once
// A host for widget tests: its CreateDocInfo returns known information derived from
// the file name, counts its calls, and its ChangeDocInfo answers as the test says.
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "docmgr/view/docbrowser.h"
#include "docmgr/view/doccommandmenu.h"

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/tools/fsutil.h"

class TestHost : public DocManager {
public:
    using DocManager::DocManager;

    // The dialog's inside, through its private header: its steps and handlers, for tests
    // that drive it without a modal loop, and what it holds.
    DocManagerImpl& Inside() { return DocManagerImpl::Of(*this); }
    const DocManagerImpl& Inside() const { return DocManagerImpl::Of(*this); }

    // Paths of the selected rows in list order.
    std::vector<std::string> SelectedDocs() const
    {
        std::vector<std::string> docs;
        for (const std::string* doc = Inside().browser->GetFirstDoc(); doc; doc = Inside().browser->GetNextDoc())
            docs.push_back(*doc);
        return docs;
    }

    // Information returned for a file name; files not listed get a title equal to their
    // name, created 2020-01-02 10:00:00 and never printed.
    std::map<std::string, DocInfo> known;
    // File names that are not documents.
    std::map<std::string, bool> notDocuments;
    int createCalls = 0;
    bool changeResult = false;

    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) override
    {
        ++createCalls;
        const std::string name = fsutil::FileName(file);
        if (notDocuments.count(name))
            return nullptr;
        auto info = std::make_unique<DocInfo>();
        if (auto it = known.find(name); it != known.end()) {
            *info = it->second;
        } else {
            info->title = name;
            info->author = info->printedBy = "Tester";
            info->createdDate = info->modifiedDate = info->printedDate = Date(2, 1, 2020);
            info->createdTime = info->modifiedTime = info->printedTime = Time(10, 0, 0);
        }
        info->entry = file;
        return info;
    }

    // When set, the information edit: it may change the file, and its answer is the result.
    std::function<bool(const std::string&)> change;
    bool ChangeDocInfo(QWidget*, const std::string& file) override { return change ? change(file) : changeResult; }
};
