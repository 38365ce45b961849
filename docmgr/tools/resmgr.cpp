#include "docmgr/tools/resmgr.h"

#include <QLocale>
#include <QTranslator>
#include <array>

namespace {
std::array<void*, 64> appData{};
}  // namespace

Language SystemLanguage()
{
    const QStringList languages = QLocale::system().uiLanguages();
    QString name = languages.isEmpty() ? QLocale::system().name() : languages.front();
    name.replace(u'-', u'_');
    return Language{name.toStdString()};
}

std::unique_ptr<QTranslator> LoadCatalog(std::span<const QmCatalog> catalogs, const Language& language)
{
    const std::string& full = language.code;
    const std::string base = full.substr(0, full.find('_'));
    for (const std::string& wanted : {full, base}) {
        for (const QmCatalog& catalog : catalogs) {
            if (wanted != catalog.language)
                continue;
            auto translator = std::make_unique<QTranslator>();
            if (translator->load(catalog.data, int(catalog.size)))
                return translator;
        }
    }
    return nullptr;
}

ResMgr::ResMgr(Language language, std::unique_ptr<QTranslator> translator)
    : language_(std::move(language)), translator_(std::move(translator))
{}

ResMgr::~ResMgr() = default;

std::unique_ptr<ResMgr> ResMgr::CreateResMgr(std::string_view name, Language language)
{
    // The texts are compiled in; the name only says whose they are.
    if (name != "qfw364")
        return nullptr;
    auto translator = LoadCatalog(DocMgrCatalogs(), language);
    return std::unique_ptr<ResMgr>(new ResMgr(std::move(language), std::move(translator)));
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
    if (translator_) {
        const QString text = translator_->translate(RES_CONTEXT, entry->text.source, entry->text.key);
        if (!text.isEmpty())
            return text.toStdString();
    }
    return entry->text.source;
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
