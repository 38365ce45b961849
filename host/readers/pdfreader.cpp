// Document information of a PDF, from its Info dictionary.
#include "host/readers/filehead.h"
#include "host/readers/formatreaders.h"
#include "host/readers/metadates.h"
#include "host/readers/pdfinfo.h"
#include "host/readers/pdfxmp.h"

namespace {

// A damaged file is read again with qpdf's repair only when it is small enough for the
// repair's full scan to stay cheap: the scan costs about half a second per megabyte, so
// a larger damaged file would stall a listing for seconds.
constexpr uint64_t kMaxRepairSize = 1u << 20;

void FillFrom(QPDFObjectHandle dict, DocInfo& info)
{
    using pdfinfo::TextOf;
    info.title = TextOf(dict, "/Title");
    info.topic = TextOf(dict, "/Subject");
    info.author = TextOf(dict, "/Author");
    info.keywords = TextOf(dict, "/Keywords");
    metadates::ParsePdf(TextOf(dict, "/CreationDate"), info.createdDate, info.createdTime);
    metadates::ParsePdf(TextOf(dict, "/ModDate"), info.modifiedDate, info.modifiedTime);
    const std::vector<std::string> keys = pdfinfo::InfoFieldKeys(dict);
    for (size_t i = 0; i < keys.size() && i < info.info.size(); ++i)
        info.info[i] = TextOf(dict, keys[i]);
}

bool TryRead(const DocBytes& doc, bool repair, DocInfo& info, bool& passwordNeeded)
{
    try {
        QPDF pdf;
        pdfinfo::Open(pdf, doc, repair);
        QPDFObjectHandle dict = pdf.getTrailer().getKey("/Info");
        if (dict.isDictionary())
            FillFrom(dict, info);
        pdfxmp::FillMissing(pdf, info);
        return true;
    } catch (const QPDFExc& e) {
        passwordNeeded = e.getErrorCode() == qpdf_e_password;
    } catch (...) {
        // Any other failure of a damaged file: what was filled stays.
    }
    return false;
}

}  // namespace

ReadProblem ReadPdfInfo(const DocBytes& doc, uint64_t fileSize, DocInfo& info)
{
    bool passwordNeeded = false;
    if (TryRead(doc, false, info, passwordNeeded))
        return ReadProblem::None;
    if (passwordNeeded)
        return ReadProblem::Encrypted;
    if (fileSize > kMaxRepairSize)
        return ReadProblem::Damaged;
    DocInfo repaired = info;
    if (!TryRead(doc, true, repaired, passwordNeeded))
        return ReadProblem::Damaged;
    info = repaired;
    return ReadProblem::None;
}
