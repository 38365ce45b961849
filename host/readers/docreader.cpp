#include "host/readers/docreader.h"

#include <algorithm>
#include <atomic>
#include <filesystem>

#include "host/readers/docformat.h"
#include "host/readers/filehead.h"
#include "host/readers/formatreaders.h"
#include "host/readers/pdfolereaders.h"
#include "host/readers/ziparchive.h"

namespace {

// A never-printed document shows its created stamp as printed, by its author.
void ApplyNeverPrinted(DocInfo& info)
{
    if (!info.printedDate.IsUnset())
        return;
    info.printedDate = info.createdDate;
    info.printedTime = info.createdTime;
    info.printedBy = info.author;
}

ReadProblem ReadPackage(const DocBytes& doc, DocFormat byName, DocInfo& info, bool& isDocument)
{
    ZipArchive zip;
    if (!zip.Open(doc))
        return ReadProblem::Damaged;
    DocFormat format = FormatOfPackage(zip);
    if (format == DocFormat::None)
        format = byName;
    if (format == DocFormat::Odf) {
        isDocument = true;
        return ReadOdfInfo(zip, info);
    }
    if (format == DocFormat::Ooxml) {
        isDocument = true;
        return ReadOoxmlInfo(zip, info);
    }
    return ReadProblem::Damaged;
}

// A file whose first bytes say nothing: only its name made it a document.
ReadProblem ReadByName(const DocBytes& doc, DocFormat byName, DocInfo& info)
{
    switch (byName) {
    case DocFormat::FlatOdf:
        // Its root element may stand past the first kilobyte; the parser decides.
        return ReadFlatOdfInfo(doc, info);
    case DocFormat::Odf:
    case DocFormat::Ooxml: return ReadProblem::NotZip;
    default: return ReadProblem::Damaged;
    }
}

// Content decides when it is recognisable; the name decides otherwise. The file is
// opened and read once for all of it.
ReadProblem ReadByContent(const std::string& path, uint64_t fileSize, DocFormat byName, DocInfo& info, bool& isDocument)
{
    isDocument = byName != DocFormat::None;
    DocBytes doc;
    if (!ReadDocBytes(path, fileSize, doc))
        return ReadProblem::Damaged;
    switch (SignatureOf(doc.bytes)) {
    case Signature::Pdf:
        isDocument = true;
        if (const PdfOleReaders* readers = GetPdfOleReaders())
            return readers->readPdf(doc, fileSize, info);
        return ReadProblem::NoReader;
    case Signature::Zip: return ReadPackage(doc, byName, info, isDocument);
    case Signature::Cfb:
        if (const PdfOleReaders* readers = GetPdfOleReaders())
            return readers->readOle(doc, byName, info, isDocument);
        return isDocument ? ReadProblem::NoReader : ReadProblem::None;
    case Signature::Rtf: isDocument = true; return ReadRtfInfo(doc, info);
    case Signature::FlatOdf: isDocument = true; return ReadFlatOdfInfo(doc, info);
    case Signature::Other: break;
    }
    return isDocument ? ReadByName(doc, byName, info) : ReadProblem::None;
}

}  // namespace

bool HoldsNoInformation(const DocInfo& info)
{
    const bool noText = info.title.empty() && info.topic.empty() && info.author.empty() && info.modifiedBy.empty() &&
                        info.printedBy.empty() && info.comment.empty() && info.keywords.empty() &&
                        std::all_of(info.info.begin(), info.info.end(), [](const std::string& s) { return s.empty(); });
    return noText && info.createdDate.IsUnset() && info.modifiedDate.IsUnset() && info.printedDate.IsUnset();
}

std::string_view ProblemText(ReadProblem problem)
{
    switch (problem) {
    case ReadProblem::None: return {};
    case ReadProblem::Encrypted: return "encrypted";
    case ReadProblem::Damaged: return "damaged";
    case ReadProblem::NotZip: return "not a zip";
    case ReadProblem::NoInformation: return "no information";
    case ReadProblem::NoReader: return "no reader";
    }
    return {};
}

namespace {
std::atomic<size_t> documentsRead{0};
}  // namespace

size_t DocumentsRead()
{
    return documentsRead.load();
}

DocReading ReadDocument(const std::string& path)
{
    documentsRead.fetch_add(1, std::memory_order_relaxed);
    DocReading reading;
    try {
        std::error_code ec;
        if (!std::filesystem::is_regular_file(path, ec))
            return reading;
        const uint64_t fileSize = std::filesystem::file_size(path, ec);
        if (ec)
            return reading;
        auto info = std::make_unique<DocInfo>();
        bool isDocument = false;
        try {
            reading.problem = ReadByContent(path, fileSize, FormatByExtension(path), *info, isDocument);
        } catch (...) {
            // Whatever went wrong inside a document, it is still listed.
            reading.problem = ReadProblem::Damaged;
        }
        if (!isDocument) {
            reading.problem = ReadProblem::None;
            return reading;
        }
        if (reading.problem == ReadProblem::None && HoldsNoInformation(*info))
            reading.problem = ReadProblem::NoInformation;
        info->entry = path;
        info->size = uint32_t(std::min<uint64_t>(fileSize, NO_DOC_INFO - 1));
        ApplyNeverPrinted(*info);
        reading.info = std::move(info);
    } catch (...) {
        // Out of memory while setting up: treated as unreadable.
        reading = DocReading();
    }
    return reading;
}

std::unique_ptr<DocInfo> ReadDocInfo(const std::string& path)
{
    return ReadDocument(path).info;
}
