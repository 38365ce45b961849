#include "host/readers/formatreaders.h"
#include "host/readers/pdfolereaders.h"

const PdfOleReaders& LinkedPdfOleReaders()
{
    static const PdfOleReaders readers{&ReadPdfInfo, &ReadOleInfo};
    return readers;
}

const PdfOleReaders* GetPdfOleReaders()
{
    return &LinkedPdfOleReaders();
}
