#pragma once
// Resource texts of the file operation and printing dialogs as Qt strings.
#include <QString>
#include <cstdint>
#include <string>

#include "docmgr/tools/resmgr.h"

// Title (local 0) or control text of dialog resource `dialog`.
inline QString DialogText(uint16_t dialog, uint16_t local = 0)
{
    return QString::fromStdString(ResText(ResKind::Dialog, dialog, local));
}

// A failure message: string `before`, `middle` and string `after` joined directly.
inline std::string JoinedMessage(uint16_t before, const std::string& middle, uint16_t after)
{
    return ResString(before) + middle + ResString(after);
}
