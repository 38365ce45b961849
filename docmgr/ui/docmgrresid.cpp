#include "docmgr/ui/docmgrresid.h"

DocMgrResId::DocMgrResId(uint16_t id) : id_(id), resMgr_(GetModuleResMgr())
{}

std::string DocMgrResId::String() const
{
    return resMgr_ ? resMgr_->String(id_) : std::string();
}

QString DocMgrResId::Text(ResKind kind, uint16_t local) const
{
    return resMgr_ ? QString::fromStdString(resMgr_->Text(kind, id_, local)) : QString();
}
