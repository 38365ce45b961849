#include "host/readers/pdfinfo.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "host/readers/namespaces.h"

namespace pdfinfo {

void Open(QPDF& pdf, const std::string& path, bool repair)
{
    Open(pdf, DocBytes{path, {}, false}, repair);
}

void Open(QPDF& pdf, const DocBytes& doc, bool repair)
{
    pdf.setSuppressWarnings(true);
    pdf.setAttemptRecovery(repair);
    if (doc.whole)
        pdf.processMemoryFile(doc.path.c_str(), doc.bytes.data(), doc.bytes.size());
    else
        pdf.processFile(doc.path.c_str());
}

namespace {

// An array of texts (as some producers store several authors or keywords) reads as its
// texts joined; an array holding anything else stays in PDF syntax.
std::string JoinedTexts(QPDFObjectHandle array)
{
    std::string joined;
    for (QPDFObjectHandle item : array.aitems()) {
        if (!item.isString())
            return array.unparseResolved();
        const std::string text = item.getUTF8Value();
        if (text.empty())
            continue;
        if (!joined.empty())
            joined += ", ";
        joined += text;
    }
    return joined;
}

}  // namespace

bool IsStandardKey(const std::string& key)
{
    static constexpr std::array<std::string_view, 9> standard = {
        "/Title", "/Author", "/Subject", "/Keywords", "/Creator", "/Producer", "/CreationDate", "/ModDate", "/Trapped"};
    return key == pdfkeys::infoOrder || std::find(standard.begin(), standard.end(), key) != standard.end();
}

std::vector<std::string> InfoFieldKeys(QPDFObjectHandle info)
{
    std::vector<std::string> keys;
    if (!info.isDictionary())
        return keys;
    QPDFObjectHandle order = info.getKey(pdfkeys::infoOrder);
    if (order.isArray()) {
        for (QPDFObjectHandle item : order.aitems()) {
            if (!item.isString())
                continue;
            const std::string key = "/" + item.getUTF8Value();
            if (!IsStandardKey(key) && std::find(keys.begin(), keys.end(), key) == keys.end())
                keys.push_back(key);
        }
    }
    // getKeys is sorted by name.
    for (const std::string& key : info.getKeys()) {
        if (!IsStandardKey(key) && std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.push_back(key);
    }
    return keys;
}

std::string TextOf(QPDFObjectHandle info, const std::string& key)
{
    if (!info.isDictionary() || !info.hasKey(key))
        return {};
    QPDFObjectHandle value = info.getKey(key);
    if (value.isString())
        return value.getUTF8Value();
    if (value.isName())
        return value.getName().substr(1);
    if (value.isNull())
        return {};
    if (value.isArray())
        return JoinedTexts(value);
    return value.unparseResolved();
}

void SetText(QPDFObjectHandle info, const std::string& key, const std::string& value)
{
    if (value.empty())
        info.removeKey(key);
    else
        info.replaceKey(key, QPDFObjectHandle::newUnicodeString(value));
}

void SetFields(QPDFObjectHandle info, const InfoFields& fields)
{
    if (fields.empty())
        return;
    QPDFObjectHandle old = info.getKey(pdfkeys::infoOrder);
    QPDFObjectHandle names = QPDFObjectHandle::newArray();
    for (const auto& [name, value] : fields) {
        info.replaceKey("/" + name, QPDFObjectHandle::newUnicodeString(value));
        names.appendItem(QPDFObjectHandle::newUnicodeString(name));
    }
    // Fields listed before but not written now keep their places after the new ones.
    if (old.isArray()) {
        for (QPDFObjectHandle item : old.aitems()) {
            if (!item.isString())
                continue;
            const std::string name = item.getUTF8Value();
            bool written = false;
            for (const auto& field : fields)
                written = written || field.first == name;
            if (!written && info.hasKey("/" + name))
                names.appendItem(QPDFObjectHandle::newUnicodeString(name));
        }
    }
    info.replaceKey(pdfkeys::infoOrder, names);
}

QPDFObjectHandle InfoDictionary(QPDF& pdf)
{
    QPDFObjectHandle trailer = pdf.getTrailer();
    QPDFObjectHandle info = trailer.getKey("/Info");
    if (info.isDictionary())
        return info;
    info = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    trailer.replaceKey("/Info", info);
    return info;
}

}  // namespace pdfinfo
