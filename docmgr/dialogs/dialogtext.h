#pragma once
// Texts of the module's dialogs as Qt strings.
#include <QString>
#include <cstdint>
#include <string>

#include "docmgr/tools/resmgr.h"

// Title (local 0) or control text of dialog `dialog`.
inline QString DialogText(uint16_t dialog, uint16_t local)
{
    return QString::fromStdString(ResText(ResKind::Dialog, dialog, local));
}

inline QString MenuText(uint16_t menu, uint16_t item)
{
    return QString::fromStdString(ResText(ResKind::Menu, menu, item));
}

inline QString StringText(uint16_t id) { return QString::fromStdString(ResString(id)); }
