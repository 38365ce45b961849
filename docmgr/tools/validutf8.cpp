#include "docmgr/tools/validutf8.h"

#include <QString>
#include <algorithm>

void AppendValidUtf8(std::string& out, std::string_view text)
{
    const bool plain =
        std::all_of(text.begin(), text.end(), [](char c) { return c != '\0' && static_cast<unsigned char>(c) < 0x80; });
    if (plain) {
        out += text;
        return;
    }
    std::string kept;
    kept.reserve(text.size());
    for (char c : text)
        if (c != '\0')
            kept += c;
    out += QString::fromUtf8(kept.data(), qsizetype(kept.size())).toStdString();
}

std::string ValidUtf8(std::string_view text)
{
    std::string out;
    AppendValidUtf8(out, text);
    return out;
}
