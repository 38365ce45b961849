#pragma once
// The module's resource texts, addressed by 16-bit ids and loaded per language.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "resources/restable.h"

enum class Language { English, German };

// The language of the system locale; anything but German falls back to English.
Language SystemLanguage();

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
    explicit ResMgr(Language language) : language_(language) {}
    Language language_;
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
