#include "host/app/hosttexts.h"

#include <QCoreApplication>
#include <QTranslator>

#include "docmgr/tools/resmgr.h"

HostTexts::HostTexts() : translator_(LoadCatalog(HostCatalogs(), SystemLanguage()))
{
    if (translator_)
        QCoreApplication::installTranslator(translator_.get());
}

HostTexts::~HostTexts()
{
    if (translator_)
        QCoreApplication::removeTranslator(translator_.get());
}
