// The listing program loads the PDF and legacy Office readers on the first document that
// needs them, so that a listing from the index never loads qpdf, libgsf and glib. This
// definition takes the place of the linked-in one in the readers' library.
#include <cstdio>
#include <dlfcn.h>

#include "host/launcher/installedfiles.h"
#include "host/readers/pdfolereaders.h"

namespace {

const char* LoadError()
{
    const char* error = dlerror();
    return error ? error : "no readers in the module";
}

const PdfOleReaders* LoadModule()
{
    const std::string path = PdfOleModule();
    void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    auto* entry =
        module ? reinterpret_cast<decltype(&docmgr_pdfole_readers)>(dlsym(module, "docmgr_pdfole_readers")) : nullptr;
    if (!entry) {
        std::fprintf(stderr,
                     "docmanager: the PDF and legacy Office readers could not be loaded (%s); "
                     "such documents are listed without their information\n",
                     LoadError());
        return nullptr;
    }
    return entry();
}

}  // namespace

const PdfOleReaders* GetPdfOleReaders()
{
    static const PdfOleReaders* const readers = LoadModule();
    return readers;
}
