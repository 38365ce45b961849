#pragma once
// The PDF Info dictionary as the host sees it: the standard entries, and the
// non-standard ones that carry the four information fields.
#include <string>
#include <vector>

#include "host/readers/filehead.h"
#include "host/readers/metafields.h"
#include "host/readers/qpdfapi.h"

namespace pdfinfo {

// Opens a PDF for reading its objects: no warnings on stderr, and damage is an
// exception rather than a repair, unless `repair` is set.
void Open(QPDF& pdf, const std::string& path, bool repair);
// The same for a document being read: from its bytes when they are the whole file.
void Open(QPDF& pdf, const DocBytes& doc, bool repair);
// True for entries the PDF format defines (Title, Author, ..., Trapped) and for the
// entry that records the order of the information fields.
bool IsStandardKey(const std::string& key);
// Names (with the leading "/") of the non-standard entries in field order: first those
// the order entry lists, then the rest by name.
std::vector<std::string> InfoFieldKeys(QPDFObjectHandle info);
// Text of an entry: strings decoded to UTF-8, other values as PDF syntax, "" if absent.
std::string TextOf(QPDFObjectHandle info, const std::string& key);

// Sets a text entry (PDFDocEncoding where it suffices, else UTF-16); "" removes it.
void SetText(QPDFObjectHandle info, const std::string& key, const std::string& value);
// Stores `fields` as entries named after them, replacing those of the same names, and
// records their order so they are read back first and in this order.
void SetFields(QPDFObjectHandle info, const InfoFields& fields);
// The Info dictionary of the file, created (indirect) if the trailer has none.
QPDFObjectHandle InfoDictionary(QPDF& pdf);

}  // namespace pdfinfo
