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
