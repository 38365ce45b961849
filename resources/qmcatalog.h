#pragma once
// A translation catalogue compiled into the program: the .qm file of one language.
#include <span>

struct QmCatalog {
    const char* language;  // "de", "en", "pt_BR": the part of the .ts file's name after the prefix
    const unsigned char* data;
    unsigned size;
};

// The module's catalogues (resources/translations/docmgr_*.ts).
std::span<const QmCatalog> DocMgrCatalogs();
