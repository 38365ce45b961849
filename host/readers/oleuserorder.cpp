#include "host/readers/oleuserorder.h"

#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <cstdint>
#include <map>

namespace {

// Format id of the user-defined section, as stored (little-endian fields).
constexpr std::string_view kUserSection("\x05\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16);
constexpr uint32_t kDictionary = 0;
constexpr uint32_t kCodepage = 1;
constexpr uint32_t kMaxEntries = 4096;

bool U32(std::string_view bytes, size_t at, uint32_t& value)
{
    if (at > bytes.size() || bytes.size() - at < 4)
        return false;
    value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes[at + size_t(i)]);
    return true;
}

std::string Decode(std::string_view raw, uint32_t codepage)
{
    QString text;
    if (codepage == 1200) {
        for (size_t i = 0; i + 1 < raw.size(); i += 2)
            text += QChar(char16_t(static_cast<unsigned char>(raw[i]) | static_cast<unsigned char>(raw[i + 1]) << 8));
    } else if (codepage == 65001) {
        text = QString::fromUtf8(raw.data(), qsizetype(raw.size()));
    } else {
        QStringDecoder decoder(("windows-" + std::to_string(codepage)).c_str());
        text = decoder.isValid() ? decoder.decode(QByteArrayView(raw.data(), qsizetype(raw.size())))
                                 : QString::fromLatin1(raw.data(), qsizetype(raw.size()));
    }
    while (text.endsWith(QChar(0)))
        text.chop(1);
    return text.toStdString();
}

// The dictionary property: id -> name.
std::map<uint32_t, std::string> Dictionary(std::string_view section, size_t at, uint32_t codepage)
{
    std::map<uint32_t, std::string> names;
    uint32_t count = 0;
    if (!U32(section, at, count))
        return names;
    at += 4;
    for (uint32_t i = 0; i < count && i < kMaxEntries; ++i) {
        uint32_t id = 0, length = 0;
        if (!U32(section, at, id) || !U32(section, at + 4, length))
            break;
        at += 8;
        const size_t bytes = codepage == 1200 ? size_t(length) * 2 : size_t(length);
        if (bytes > section.size() - std::min(at, section.size()))
            break;
        names[id] = Decode(section.substr(at, bytes), codepage);
        at += bytes;
        if (codepage == 1200)
            at = (at + 3) & ~size_t(3);  // Unicode names are padded to four bytes
    }
    return names;
}

}  // namespace

std::vector<std::string> UserPropertyOrder(std::string_view stream)
{
    std::vector<std::string> order;
    uint32_t sections = 0;
    if (!U32(stream, 24, sections))
        return order;
    size_t sectionAt = 0;
    for (uint32_t i = 0; i < sections && i < 16; ++i) {
        const size_t entry = 28 + size_t(i) * 20;
        uint32_t offset = 0;
        if (!U32(stream, entry + 16, offset))
            return order;
        if (stream.substr(entry, 16) == kUserSection)
            sectionAt = offset;
    }
    if (sectionAt == 0 || sectionAt >= stream.size())
        return order;
    const std::string_view section = stream.substr(sectionAt);
    uint32_t count = 0;
    if (!U32(section, 4, count))
        return order;
    std::vector<uint32_t> ids;
    size_t dictionaryAt = 0;
    uint32_t codepage = 1252;
    for (uint32_t i = 0; i < count && i < kMaxEntries; ++i) {
        uint32_t id = 0, offset = 0;
        if (!U32(section, 8 + size_t(i) * 8, id) || !U32(section, 12 + size_t(i) * 8, offset))
            break;
        if (id == kDictionary) {
            dictionaryAt = offset;
        } else if (id == kCodepage) {
            uint32_t typed = 0;
            if (U32(section, size_t(offset) + 4, typed))
                codepage = typed & 0xFFFF;
        } else if (id < 0x80000000u) {
            ids.push_back(id);
        }
    }
    if (dictionaryAt == 0)
        return order;
    const std::map<uint32_t, std::string> names = Dictionary(section, dictionaryAt, codepage);
    for (uint32_t id : ids)
        if (auto it = names.find(id); it != names.end())
            order.push_back(it->second);
    return order;
}

bool ZeroFileTime(std::string_view stream, uint32_t id)
{
    constexpr uint32_t kFileTimeType = 64;  // VT_FILETIME
    uint32_t sectionAt = 0, count = 0;
    if (!U32(stream, 28 + 16, sectionAt) || sectionAt >= stream.size())
        return false;
    const std::string_view section = stream.substr(sectionAt);
    if (!U32(section, 4, count))
        return false;
    for (uint32_t i = 0; i < count && i < kMaxEntries; ++i) {
        uint32_t entryId = 0, offset = 0, type = 0, low = 0, high = 0;
        if (!U32(section, 8 + size_t(i) * 8, entryId) || !U32(section, 12 + size_t(i) * 8, offset))
            return false;
        if (entryId == id)
            return U32(section, offset, type) && (type & 0xFFFF) == kFileTimeType &&
                   U32(section, size_t(offset) + 4, low) && U32(section, size_t(offset) + 8, high) && low == 0 &&
                   high == 0;
    }
    return false;
}
