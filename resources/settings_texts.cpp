// Texts of the columns, sort, groups, paths and filter dialogs.
#include "resources/restable.h"

namespace {
constexpr ResEntry kTexts[] = {
    {ResKind::String, 0, 0, "", ""},  // placeholder until the area adds its texts
};
}  // namespace

std::span<const ResEntry> SettingsTexts() { return kTexts; }
