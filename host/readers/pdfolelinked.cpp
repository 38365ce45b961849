#include "host/readers/formatreaders.h"
#include "host/readers/formatwriters.h"
#include "host/readers/pdfolereaders.h"

const PdfOleReaders& LinkedPdfOleReaders()
{
    static const PdfOleReaders readers{&ReadPdfInfo, &ReadOleInfo, &WritePdfMeta};
    return readers;
}

const PdfOleReaders* GetPdfOleReaders()
{
    return &LinkedPdfOleReaders();
}
