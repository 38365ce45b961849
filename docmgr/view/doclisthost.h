#pragma once
// What the document list and the summary pane ask of the dialog that holds them: the host
// application's document information, and the file commands of the list's context menu.
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"

class DocListHost {
public:
    // A new DocInfo for `path`, or null when it is not a document.
    virtual std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) = 0;
    // The files asked for next, in that order; the host may start reading them.
    virtual void ReadAhead(const std::vector<std::string>& /*paths*/) {}
    // Lets the user edit the information of `path`; true when it changed.
    virtual bool ChangeDocInfo(const std::string& path) = 0;
    // Runs file command `id` (CMD_DELETE ... CMD_PRINTLIST) on the selected rows.
    virtual void Command(unsigned short id) = 0;

protected:
    ~DocListHost() = default;
};
