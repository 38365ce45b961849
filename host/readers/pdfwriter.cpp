// Writes the editable fields into a PDF's Info dictionary.
#include "host/readers/formatwriters.h"
#include "host/readers/pdfinfo.h"
#include "host/readers/pdfxmp.h"

#include <qpdf/QPDFWriter.hh>

bool WritePdfMeta(const std::string& source, const std::string& target, const DocMeta& meta, std::string& error)
{
    try {
        QPDF pdf;
        // Never write back a repaired guess of a damaged file.
        pdfinfo::Open(pdf, source, false);
        if (pdf.isEncrypted()) {
            error = writeerrors::encrypted;
            return false;
        }
        QPDFObjectHandle info = pdfinfo::InfoDictionary(pdf);
        pdfinfo::SetText(info, "/Title", meta.title);
        pdfinfo::SetText(info, "/Subject", meta.topic);
        pdfinfo::SetText(info, "/Keywords", meta.keywords);
        if (meta.author)
            pdfinfo::SetText(info, "/Author", *meta.author);
        pdfinfo::SetFields(info, InfoFieldsOf(meta, !pdfinfo::InfoFieldKeys(info).empty()));
        // Newer readers prefer the XMP packet; it must not keep the old texts.
        pdfxmp::Update(pdf, meta);
        QPDFWriter writer(pdf, target.c_str());
        writer.write();
        return true;
    } catch (const QPDFExc& e) {
        if (e.getErrorCode() == qpdf_e_password)
            error = writeerrors::encrypted;
        else
            error = std::string(writeerrors::damaged) + ": " + e.getMessageDetail();
    } catch (const std::exception& e) {
        error = std::string(writeerrors::damaged) + ": " + e.what();
    }
    return false;
}
