#pragma once
// The host's own texts (host/translations/docmanager_*.ts) in the user's language, for as
// long as this object lives.
#include <memory>
#include <span>

#include "resources/qmcatalog.h"

class QTranslator;

// The host's catalogues, compiled in.
std::span<const QmCatalog> HostCatalogs();

class HostTexts {
public:
    HostTexts();
    ~HostTexts();
    HostTexts(const HostTexts&) = delete;
    HostTexts& operator=(const HostTexts&) = delete;

private:
    std::unique_ptr<QTranslator> translator_;
};
