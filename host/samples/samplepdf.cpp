// Sample documents: a one-page PDF with the body text and an Info dictionary.
#include "host/readers/metadates.h"
#include "host/readers/pdfinfo.h"
#include "host/readers/pdfxmp.h"
#include "host/readers/xmppacket.h"
#include "host/samples/samplewriter.h"

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <QString>

#include <cstdio>

namespace {

constexpr int kLineChars = 80;

// The text as a PDF string in the standard font's WinAnsi encoding; characters it
// lacks become "?".
std::string PdfString(const std::string& utf8)
{
    std::string out = "(";
    for (const QChar c : QString::fromStdString(utf8)) {
        const char16_t u = c.unicode();
        const char byte = u < 0x20 || (u >= 0x7F && u < 0xA0) || u > 0xFF ? '?' : char(u);
        if (byte == '(' || byte == ')' || byte == '\\')
            out += '\\';
        out += byte;
    }
    return out + ")";
}

// Lines of at most kLineChars characters, broken between words.
std::vector<std::string> Lines(const std::string& body)
{
    std::vector<std::string> lines;
    for (const std::string& paragraph : SampleParagraphs(body)) {
        QString rest = QString::fromStdString(paragraph);
        do {
            int cut = rest.size() <= kLineChars ? int(rest.size()) : int(rest.lastIndexOf(' ', kLineChars));
            if (cut <= 0)
                cut = int(std::min<qsizetype>(rest.size(), kLineChars));
            lines.push_back(rest.left(cut).toStdString());
            rest = rest.mid(cut).trimmed();
        } while (!rest.isEmpty());
    }
    return lines;
}

std::string PageContent(const std::string& body)
{
    std::string content = "BT\n/F1 11 Tf\n14 TL\n56 780 Td\n";
    for (const std::string& line : Lines(body))
        content += PdfString(line) + " '\n";
    return content + "ET\n";
}

void AddPage(QPDF& pdf, const std::string& body)
{
    QPDFObjectHandle font = pdf.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>"));
    QPDFObjectHandle fonts = QPDFObjectHandle::newDictionary();
    fonts.replaceKey("/F1", font);
    QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/Font", fonts);
    QPDFObjectHandle page =
        pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Page /MediaBox [0 0 595 842] >>"));
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, PageContent(body)));
    page.replaceKey("/Resources", resources);
    QPDFPageDocumentHelper(pdf).addPage(page, false);
}

// The same information as the Info dictionary, as newer producers write it.
std::string XmpPacket(const SampleDoc& doc)
{
    std::string packet = xmp::NewPacket();
    const std::string keywords = JoinedKeywords(doc);
    xmp::Update(packet, {{xmp::title, doc.title},
                         {xmp::creator, doc.author},
                         {xmp::description, doc.topic},
                         {xmp::subject, keywords},
                         {xmp::keywords, keywords},
                         {xmp::createDate, metadates::IsoUtc(doc.created)},
                         {xmp::modifyDate, metadates::IsoUtc(doc.modified)}});
    return packet;
}

}  // namespace

bool WriteSamplePdf(const std::string& path, const SampleDoc& doc, std::string& error)
{
    try {
        QPDF pdf;
        pdf.emptyPDF();
        AddPage(pdf, doc.body);
        QPDFObjectHandle info = pdfinfo::InfoDictionary(pdf);
        pdfinfo::SetText(info, "/Title", doc.title);
        pdfinfo::SetText(info, "/Subject", doc.topic);
        pdfinfo::SetText(info, "/Author", doc.author);
        pdfinfo::SetText(info, "/Keywords", JoinedKeywords(doc));
        pdfinfo::SetText(info, "/Creator", "DocManager Samples");
        pdfinfo::SetText(info, "/CreationDate", metadates::PdfDate(doc.created));
        pdfinfo::SetText(info, "/ModDate", metadates::PdfDate(doc.modified));
        pdfinfo::SetFields(info, doc.info);
        pdfxmp::Attach(pdf, XmpPacket(doc));
        QPDFWriter writer(pdf, path.c_str());
        // The same sample twice gives the same bytes.
        writer.setDeterministicID(true);
        writer.write();
        return true;
    } catch (const std::exception& e) {
        std::remove(path.c_str());
        error = "Cannot write " + path + ": " + e.what();
        return false;
    }
}
