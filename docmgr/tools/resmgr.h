#pragma once
// The module's resource texts, addressed by 16-bit ids and loaded per language.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "resources/qmcatalog.h"
#include "resources/restable.h"

class QTranslator;

// A language of the texts, named as the catalogues are ("de", "en", "pt_BR"). A language
// without a catalogue shows the English source texts.
struct Language {
    std::string code;
    static const Language English;
    static const Language German;
    friend bool operator==(const Language&, const Language&) = default;
};
inline const Language Language::English{"en"};
inline const Language Language::German{"de"};

// The language of the system locale (its first UI language).
Language SystemLanguage();

// A translator loaded with the catalogue of `language` among `catalogs` (the full name
// first, then the language without its country); null when there is none.
std::unique_ptr<QTranslator> LoadCatalog(std::span<const QmCatalog> catalogs, const Language& language);

class ResMgr {
public:
    // Opens the resources of module `name` (the module's is "qfw364") in `language`.
    static std::unique_ptr<ResMgr> CreateResMgr(std::string_view name, Language language);

    Language GetLanguage() const { return language_; }
    // Text of a string resource; empty when there is none.
    std::string String(uint16_t id) const;
    // Text of another resource: a dialog's title (local 0) or a control of it, a menu
    // item, a query or information box.
    std::string Text(ResKind kind, uint16_t id, uint16_t local = 0) const;

private:
    ResMgr(Language language, std::unique_ptr<QTranslator> translator);
    Language language_;
    std::unique_ptr<QTranslator> translator_;

public:
    ~ResMgr();
};

// Application-data slots of the process; slot 36 holds the module's resource manager.
constexpr unsigned short SHL_DOCMGR = 36;
void* GetAppData(unsigned short slot);
void SetAppData(unsigned short slot, void* data);

// The module's resource manager (slot 36), or null when no module object exists.
ResMgr* GetModuleResMgr();
// String resource through the module's resource manager; empty without one.
std::string ResString(uint16_t id);
std::string ResText(ResKind kind, uint16_t id, uint16_t local = 0);

// Creates the module's resource manager in slot 36 and deletes it again; what
// DocManagerDll does, usable without a window (headless mode, core tests).
class ResModule {
public:
    explicit ResModule(Language language = SystemLanguage());
    ~ResModule();
    ResModule(const ResModule&) = delete;
    ResModule& operator=(const ResModule&) = delete;
};
