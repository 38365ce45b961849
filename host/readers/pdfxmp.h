#pragma once
// The XMP packet of a PDF (the catalog's /Metadata stream) next to its Info dictionary:
// newer producers keep the information there only, and both must agree after an edit.
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/docwriter.h"
#include "host/readers/qpdfapi.h"

namespace pdfxmp {

// Fills the fields of `info` that are still empty (title, author, topic, keywords,
// created and modified stamps) from the packet, if the document has a readable one.
void FillMissing(QPDF& pdf, DocInfo& info);
// Sets title, topic, keywords and (when given) the author in the document's packet, where they stand, keeping
// everything else in it; a document without a packet is left without one.
void Update(QPDF& pdf, const DocMeta& meta);
// Makes `packet` the document's XMP packet.
void Attach(QPDF& pdf, const std::string& packet);

}  // namespace pdfxmp
