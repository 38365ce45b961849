// Document information of an RTF file, from its information group.
#include "host/readers/filehead.h"
#include "host/readers/formatreaders.h"
#include "host/readers/rtfinfo.h"

namespace {

// Writers put the information group after the font, colour and style tables and before
// the text; pictures, which make RTF files large, come later.
constexpr size_t kMaxRtfHead = 4u << 20;

}  // namespace

ReadProblem ReadRtfInfo(const DocBytes& doc, DocInfo& info)
{
    static_assert(kWholeReadLimit <= kMaxRtfHead);
    if (doc.whole)
        return ParseRtfInfo(doc.bytes, info) ? ReadProblem::None : ReadProblem::Damaged;
    std::string head;
    bool whole = false;
    if (!ReadFileHead(doc.path, kMaxRtfHead, head, whole))
        return ReadProblem::Damaged;
    return ParseRtfInfo(head, info) ? ReadProblem::None : ReadProblem::Damaged;
}
