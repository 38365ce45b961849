#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "docmgr/manager/docmanager.h"
#include "docmgr/tools/resmgr.h"

namespace {
// Qt's own texts (the print, font and file dialogs, the edit fields' menu) in the language
// of the module's texts, so that a German window does not offer English dialogs. One set
// for all module objects; the last one to go removes it.
std::unique_ptr<QTranslator>& QtTexts()
{
    static std::unique_ptr<QTranslator> translator;
    return translator;
}
int& ModuleObjects()
{
    static int count = 0;
    return count;
}
}  // namespace

// The resource manager of the module's texts ("qfw364") in the system's language sits in
// application-data slot 36 while this object lives.
DocManagerDll::DocManagerDll() : module_(std::make_unique<ResModule>(SystemLanguage()))
{
    if (ModuleObjects()++ == 0 && QCoreApplication::instance()) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(QLocale(QString::fromStdString(SystemLanguage().code)), QStringLiteral("qt"),
                             QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
            QCoreApplication::installTranslator(translator.get()))
            QtTexts() = std::move(translator);
    }
}

DocManagerDll::~DocManagerDll()
{
    if (--ModuleObjects() == 0 && QtTexts()) {
        QCoreApplication::removeTranslator(QtTexts().get());
        QtTexts().reset();
    }
}
