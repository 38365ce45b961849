// Document information of an RTF file, from its information group.
#include <fstream>

#include "host/readers/formatreaders.h"
#include "host/readers/rtfinfo.h"

namespace {

// Writers put the information group after the font, colour and style tables and before
// the text; pictures, which make RTF files large, come later.
constexpr size_t kMaxRtfHead = 4u << 20;

}  // namespace

ReadProblem ReadRtfInfo(const std::string& path, DocInfo& info)
{
    std::ifstream in(path, std::ios::binary);
    std::string head(kMaxRtfHead, '\0');
    in.read(head.data(), std::streamsize(head.size()));
    head.resize(size_t(in.gcount()));
    return ParseRtfInfo(head, info) ? ReadProblem::None : ReadProblem::Damaged;
}
