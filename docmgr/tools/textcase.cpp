#include "docmgr/tools/textcase.h"

#include <QString>

namespace textcase {

std::string ToUpper(std::string_view utf8)
{
    bool ascii = true;
    for (unsigned char c : utf8)
        ascii = ascii && c < 0x80;
    if (ascii) {
        std::string upper(utf8);
        for (char& c : upper)
            if (c >= 'a' && c <= 'z')
                c = char(c - 'a' + 'A');
        return upper;
    }
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size())).toUpper().toStdString();
}

void AppendFolded(std::string& out, std::string_view utf8)
{
    const size_t start = out.size();
    out.append(utf8);
    bool ascii = true;
    for (size_t i = start; i < out.size(); ++i) {
        char& c = out[i];
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
        else if (static_cast<unsigned char>(c) >= 0x80)
            ascii = false;
    }
    if (ascii)
        return;
    out.resize(start);
    out += QString::fromUtf8(utf8.data(), qsizetype(utf8.size())).toCaseFolded().toStdString();
}

std::string EraseBlanks(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text)
        if (c != ' ')
            out.push_back(c);
    return out;
}

}  // namespace textcase
