#pragma once
// Writing the editable document information back into ODF, OOXML and PDF files.
#include <array>
#include <optional>
#include <string>

// The fields a user edits. `info[i]` is stored under the name `infoNames[i]` (an empty
// name becomes "Info 1" ... "Info 4"); the four fields are stored first, in this order,
// so that reading the file gives them back at the same places. `keywords` is a
// ", "-separated list.
struct DocMeta {
    std::string title, topic, keywords, comment;
    std::array<std::string, 4> info;
    std::array<std::string, 4> infoNames;
    std::optional<std::string> author;  // kept as it is when not given
};

// Writes `meta` into the document at `path` through a temporary file beside it that
// replaces the original only when complete, keeping the file's permissions; every other
// part of the document is kept. False with a message in `error` when the file or its
// folder is read-only, the document is encrypted, damaged or of a format that cannot be
// edited; the original is then untouched.
bool WriteDocMeta(const std::string& path, const DocMeta& meta, std::string& error);

// Whether WriteDocMeta can change documents of the kind at `path` at all: ODF and OOXML
// packages and PDF; legacy Office, RTF and flat ODF are read-only.
bool IsEditableKind(const std::string& path);
