// Document information of a flat ODF file (.fodt .fods .fodp .fodg): one XML document
// whose root <office:document> holds the <office:meta> element of a package's meta.xml.
#include "host/readers/filehead.h"
#include "host/readers/formatreaders.h"
#include "host/readers/namespaces.h"
#include "host/readers/odffields.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

// Producers write the information first; a larger file (embedded pictures) is cut
// after it and closed, so that only its head is parsed.
constexpr size_t kMaxFlatHead = kMaxXmlPart;
static_assert(kWholeReadLimit <= kMaxFlatHead);

// The head up to the end of the meta element, with the root closed after it.
bool CutAfterMeta(std::string& bytes)
{
    static const std::string end = "</office:meta>";
    const size_t at = bytes.find(end);
    if (at == std::string::npos)
        return false;
    bytes.resize(at + end.size());
    bytes += "</office:document>";
    return true;
}

}  // namespace

ReadProblem ReadFlatOdfInfo(const DocBytes& file, DocInfo& info)
{
    std::string head;
    if (!file.whole) {
        bool whole = false;
        if (!ReadFileHead(file.path, kMaxFlatHead, head, whole) || (!whole && !CutAfterMeta(head)))
            return ReadProblem::Damaged;
    }
    const std::string& bytes = file.whole ? file.bytes : head;
    pugi::xml_document doc;
    if (!xmlutil::Parse(bytes, doc))
        return ReadProblem::Damaged;
    const pugi::xml_node root = doc.document_element();
    if (!xmlutil::Is(root, ns::office, "document"))
        return ReadProblem::Damaged;
    ReadOdfMetaFields(xmlutil::Child(root, ns::office, "meta"), info);
    return ReadProblem::None;
}
