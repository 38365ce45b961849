#pragma once
// Failure messages of the file operation dialogs.
#include <cstdint>
#include <string>

#include "docmgr/ui/dialogtext.h"

// A failure message: string `before`, `middle` and string `after` joined directly.
inline std::string JoinedMessage(uint16_t before, const std::string& middle, uint16_t after)
{
    return ResString(before) + middle + ResString(after);
}
