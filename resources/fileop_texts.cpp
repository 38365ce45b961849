// Texts of the copy, folder, rename and print dialogs.
#include "resources/restable.h"

namespace {
constexpr ResEntry kTexts[] = {
    {ResKind::String, 0, 0, "", ""},  // placeholder until the area adds its texts
};
}  // namespace

std::span<const ResEntry> FileOpTexts() { return kTexts; }
