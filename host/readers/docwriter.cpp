#include "host/readers/docwriter.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/replacefile.h"

#include "host/readers/docformat.h"
#include "host/readers/formatwriters.h"
#include "host/readers/pdfolereaders.h"
#include "host/readers/ziparchive.h"

namespace {

// A file without any write permission counts as read-only even for a process that
// could write it anyway.
bool IsReadOnly(const std::string& path, const struct stat& st)
{
    return (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || ::access(path.c_str(), W_OK) != 0;
}

// The new version of a document is written beside it and replaces it only when whole:
// any failure leaves the document as it was.
bool CreateBeside(replacefile::SiblingFile& temp, const std::string& path, std::string& error)
{
    const int failed = temp.Create();
    if (failed == 0)
        return true;
    const std::string dir = fsutil::DirName(path);
    error = failed == EACCES || failed == EPERM || failed == EROFS
                ? "The folder " + dir + " is read-only."
                : "Cannot create a file in " + dir + ": " + std::strerror(failed);
    return false;
}

bool CopyInto(const replacefile::SiblingFile& temp, const std::string& path, std::string& error)
{
    std::error_code ec;
    std::filesystem::copy_file(path, temp.Path(), std::filesystem::copy_options::overwrite_existing, ec);
    if (ec)
        error = "Cannot copy " + path + ": " + ec.message();
    return !ec;
}

// The new version keeps the document's permissions, and its owner where allowed.
bool ReplaceWithNew(replacefile::SiblingFile& temp, const std::string& path, std::string& error)
{
    struct stat st;
    if (::stat(path.c_str(), &st) != 0) {
        error = "The file " + path + " has disappeared.";
        return false;
    }
    replacefile::Options options;
    options.uid = st.st_uid;
    options.gid = st.st_gid;
    if (const int failed = temp.ReplaceTarget(options)) {
        error = "Cannot replace " + path + ": " + std::strerror(failed);
        return false;
    }
    return true;
}

bool WritePackage(const std::string& path, DocFormat byName, const DocMeta& meta, std::string& error)
{
    replacefile::SiblingFile temp(path);
    if (!CreateBeside(temp, path, error) || !CopyInto(temp, path, error))
        return false;
    ZipArchive zip;
    if (!zip.Open(temp.Path(), ZipArchive::Mode::Modify)) {
        error = std::string(writeerrors::damaged) + ": " + zip.Error();
        return false;
    }
    DocFormat format = FormatOfPackage(zip);
    if (format == DocFormat::None)
        format = byName;
    bool written = false;
    if (format == DocFormat::Odf)
        written = WriteOdfMeta(zip, meta, error);
    else if (format == DocFormat::Ooxml)
        written = WriteOoxmlMeta(zip, meta, error);
    else
        error = writeerrors::unsupported;
    if (!written)
        return false;
    if (!zip.Commit()) {
        error = "Cannot write " + path + ": " + zip.Error();
        return false;
    }
    return ReplaceWithNew(temp, path, error);
}

bool WritePdf(const std::string& path, const DocMeta& meta, std::string& error)
{
    // Through the table, so that a program loading the PDF module on demand keeps doing so.
    const PdfOleReaders* pdf = GetPdfOleReaders();
    if (!pdf) {
        error = "The PDF writer could not be loaded.";
        return false;
    }
    replacefile::SiblingFile temp(path);
    return CreateBeside(temp, path, error) && pdf->writePdf(path, temp.Path(), meta, error) &&
           ReplaceWithNew(temp, path, error);
}

}  // namespace

bool WriteDocMeta(const std::string& path, const DocMeta& meta, std::string& error)
{
    error.clear();
    try {
        struct stat st;
        if (::stat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) {
            error = "The file " + path + " does not exist.";
            return false;
        }
        if (IsReadOnly(path, st)) {
            error = "The file " + path + " is read-only.";
            return false;
        }
        const DocFormat byName = FormatByExtension(path);
        switch (ReadSignature(path)) {
        case Signature::Pdf: return WritePdf(path, meta, error);
        case Signature::Zip: return WritePackage(path, byName, meta, error);
        case Signature::Cfb:
            error = byName == DocFormat::Ooxml ? writeerrors::encrypted : writeerrors::readOnlyKind;
            return false;
        case Signature::Rtf:
        case Signature::FlatOdf: error = writeerrors::readOnlyKind; return false;
        case Signature::Other:
            if (byName != DocFormat::None && !IsWritableFormat(byName)) {
                error = writeerrors::readOnlyKind;
                return false;
            }
            break;
        }
        error = byName == DocFormat::None ? writeerrors::unsupported
                                          : std::string(writeerrors::damaged) + ": it is not a readable " +
                                                (byName == DocFormat::Pdf ? "PDF file." : "package.");
    } catch (const std::exception& e) {
        error = std::string("Cannot change the document information: ") + e.what();
    }
    return false;
}

bool IsEditableKind(const std::string& path)
{
    try {
        switch (ReadSignature(path)) {
        case Signature::Pdf:
        case Signature::Zip: return true;
        case Signature::Cfb:
            // Office's encrypted OOXML: editable once the password is removed.
            return FormatByExtension(path) == DocFormat::Ooxml;
        case Signature::Rtf:
        case Signature::FlatOdf: return false;
        case Signature::Other: break;
        }
        const DocFormat byName = FormatByExtension(path);
        return byName == DocFormat::None || IsWritableFormat(byName);
    } catch (...) {
        return true;  // the writer will say what is wrong
    }
}
