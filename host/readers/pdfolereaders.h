#pragma once
// The PDF and legacy Office readers need qpdf and libgsf, which with what they pull in
// (glib, gnutls) cost a listing from the index most of its start-up. The other readers
// reach them through this table only: a program either has them linked in
// (pdfolelinked.cpp, the default taken from the readers' library) or defines
// GetPdfOleReaders itself and loads them from the docmanager-pdfole module on first use.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/docformat.h"
#include "host/readers/docwriter.h"
#include "host/readers/filehead.h"
#include "host/readers/readproblem.h"

struct PdfOleReaders {
    ReadProblem (*readPdf)(const DocBytes& doc, uint64_t fileSize, DocInfo& info);
    ReadProblem (*readOle)(const DocBytes& doc, DocFormat byName, DocInfo& info, bool& isDocument);
    // The PDF writer, for the same reason.
    bool (*writePdf)(const std::string& source, const std::string& target, const DocMeta& meta, std::string& error);
};

// The readers, or null when they cannot be had (the program said why on standard error).
// Safe to call from several threads.
const PdfOleReaders* GetPdfOleReaders();

// The readers compiled into this binary.
const PdfOleReaders& LinkedPdfOleReaders();

// What the module exports for the programs that load it.
extern "C" const PdfOleReaders* docmgr_pdfole_readers();
