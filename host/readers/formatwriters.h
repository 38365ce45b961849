#pragma once
// The per-format halves of WriteDocMeta. Each changes the document copy it is given and
// reports failures in `error`; none throws.
#include <string>

#include "host/readers/docwriter.h"

class ZipArchive;

// Texts of the failures the user sees.
namespace writeerrors {
inline constexpr const char* encrypted =
    "The document is encrypted (password-protected); its information cannot be changed.";
inline constexpr const char* damaged = "The document is damaged";
inline constexpr const char* unsupported = "The information of this kind of file cannot be changed.";
inline constexpr const char* readOnlyKind =
    "Documents of this kind (legacy Office, RTF, flat ODF) are read-only here; their information cannot be changed.";
}  // namespace writeerrors

bool WriteOdfMeta(ZipArchive& zip, const DocMeta& meta, std::string& error);
bool WriteOoxmlMeta(ZipArchive& zip, const DocMeta& meta, std::string& error);
// Reads the PDF at `source` and writes the changed file to `target`.
bool WritePdfMeta(const std::string& source, const std::string& target, const DocMeta& meta, std::string& error);
