#include "host/readers/docreader.h"

#include <algorithm>
#include <filesystem>

#include "host/readers/docformat.h"
#include "host/readers/formatreaders.h"
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

// Content decides when it is recognisable; the name decides otherwise.
void ReadByContent(const std::string& path, uint64_t fileSize, DocFormat byName, DocInfo& info, bool& isDocument)
{
    isDocument = byName != DocFormat::None;
    const Signature signature = ReadSignature(path);
    if (signature == Signature::Pdf) {
        isDocument = true;
        ReadPdfInfo(path, fileSize, info);
        return;
    }
    if (signature != Signature::Zip)
        return;
    ZipArchive zip;
    if (!zip.Open(path, ZipArchive::Mode::Read))
        return;
    DocFormat format = FormatOfPackage(zip);
    if (format == DocFormat::None)
        format = byName;
    if (format == DocFormat::Odf) {
        isDocument = true;
        ReadOdfInfo(zip, info);
    } else if (format == DocFormat::Ooxml) {
        isDocument = true;
        ReadOoxmlInfo(zip, info);
    }
}

}  // namespace

std::unique_ptr<DocInfo> ReadDocInfo(const std::string& path)
{
    try {
        std::error_code ec;
        if (!std::filesystem::is_regular_file(path, ec))
            return nullptr;
        const uint64_t fileSize = std::filesystem::file_size(path, ec);
        if (ec)
            return nullptr;
        auto info = std::make_unique<DocInfo>();
        bool isDocument = false;
        try {
            ReadByContent(path, fileSize, FormatByExtension(path), *info, isDocument);
        } catch (...) {
            // Whatever went wrong inside a document, it is still listed.
        }
        if (!isDocument)
            return nullptr;
        info->entry = path;
        info->size = uint32_t(std::min<uint64_t>(fileSize, NO_DOC_INFO - 1));
        ApplyNeverPrinted(*info);
        return info;
    } catch (...) {
        return nullptr;  // out of memory while setting up: treated as unreadable
    }
}
