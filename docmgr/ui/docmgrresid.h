#pragma once
// A resource id of the module: texts load through the module's resource manager
// (application-data slot 36), never through the host's.
#include <QString>
#include <cstdint>
#include <string>

#include "docmgr/tools/resmgr.h"
#include "resources/resids.h"

class DocMgrResId {
public:
    explicit DocMgrResId(uint16_t id);

    uint16_t GetId() const { return id_; }
    // The module's resource manager when the id was made; null without a module object.
    ResMgr* GetResMgr() const { return resMgr_; }

    // The string resource of this id; empty when there is none.
    std::string String() const;
    // Title (local 0) or control text of the dialog, item of the menu, text of the box.
    QString Text(ResKind kind, uint16_t local = 0) const;
    QString DialogText(uint16_t local = CTL_TITLE) const { return Text(ResKind::Dialog, local); }

private:
    uint16_t id_;
    ResMgr* resMgr_;
};

// Qt text of string resource `id`.
inline QString DocResString(uint16_t id)
{
    return QString::fromStdString(DocMgrResId(id).String());
}
