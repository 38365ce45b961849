// The entry of the docmanager-pdfole module.
#include "host/readers/pdfolereaders.h"

extern "C" __attribute__((visibility("default"))) const PdfOleReaders* docmgr_pdfole_readers()
{
    return &LinkedPdfOleReaders();
}
