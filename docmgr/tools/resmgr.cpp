#include "docmgr/tools/resmgr.h"

#include <QLocale>
#include <array>

namespace {
std::array<void*, 64> appData{};
}  // namespace

Language SystemLanguage()
{
    return QLocale::system().language() == QLocale::German ? Language::German : Language::English;
}

std::unique_ptr<ResMgr> ResMgr::CreateResMgr(std::string_view name, Language language)
{
    // The texts are compiled in; the name only says whose they are.
    if (name != "qfw364")
        return nullptr;
    return std::unique_ptr<ResMgr>(new ResMgr(language));
}

std::string ResMgr::String(uint16_t id) const
{
    return Text(ResKind::String, id, 0);
}

std::string ResMgr::Text(ResKind kind, uint16_t id, uint16_t local) const
{
    const ResEntry* entry = FindResEntry(kind, id, local);
    if (!entry)
        return {};
    return language_ == Language::German ? entry->de : entry->en;
}

void* GetAppData(unsigned short slot)
{
    return slot < appData.size() ? appData[slot] : nullptr;
}

void SetAppData(unsigned short slot, void* data)
{
    if (slot < appData.size())
        appData[slot] = data;
}

ResMgr* GetModuleResMgr()
{
    return static_cast<ResMgr*>(GetAppData(SHL_DOCMGR));
}

std::string ResString(uint16_t id)
{
    const ResMgr* manager = GetModuleResMgr();
    return manager ? manager->String(id) : std::string();
}

std::string ResText(ResKind kind, uint16_t id, uint16_t local)
{
    const ResMgr* manager = GetModuleResMgr();
    return manager ? manager->Text(kind, id, local) : std::string();
}

ResModule::ResModule(Language language)
{
    // Overwrites the slot as a second module object would; the first is not deleted.
    SetAppData(SHL_DOCMGR, ResMgr::CreateResMgr("qfw364", language).release());
}

ResModule::~ResModule()
{
    delete GetModuleResMgr();
    SetAppData(SHL_DOCMGR, nullptr);
}
