#pragma once
// What the document list and the summary pane ask of the dialog that holds them: the host
// application's document information (the row list reads it straight from here, as its
// DocSource), its editing, and the file commands of the list's context menu.
#include <string>

#include "docmgr/records/docsource.h"

class DocListHost : public DocSource {
public:
    // Lets the user edit the information of `path`; true when it changed.
    virtual bool ChangeDocInfo(const std::string& path) = 0;
    // Runs file command `id` (CMD_DELETE ... CMD_PRINTLIST) on the selected rows.
    virtual void Command(unsigned short id) = 0;
};
