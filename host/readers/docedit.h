#pragma once
// Changing some fields of a document's information and keeping the rest: the document is
// read, the edit laid over what it holds, and the whole written as the properties dialog
// writes it (WriteDocMeta). The window's edit of several documents and `--set` use it.
#include <array>
#include <string>

#include "docmgr/records/docinfoedit.h"

// Why `path` cannot take `edit` (a read-only kind or file, a damaged or unreadable
// document, one open in an office program, a field its kind has no place for); empty
// when it can. Writes nothing.
std::string EditRefusal(const std::string& path, const DocInfoEdit& edit);

// Reads `path` into `before`, lays `edit` over it into `after` and, unless `dryRun`,
// writes `after` into the file (the information fields under `infoNames`). False with
// `error` when the file was left as it was.
bool EditDocInfo(const std::string& path, const DocInfoEdit& edit, const std::array<std::string, 4>& infoNames,
                 bool dryRun, DocInfo& before, DocInfo& after, std::string& error);

// A host's answer to the module's WriteDocInfo: with `checkOnly` EditRefusal, else
// EditDocInfo. True when the file is (or would be) written; else `reason` says why.
bool WriteDocEdit(const std::string& path, const DocInfoEdit& edit, const std::array<std::string, 4>& infoNames,
                  bool checkOnly, std::string& reason);
