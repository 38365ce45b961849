// Texts of the filter dialog.
#include "resources/restable.h"

namespace {
constexpr ResEntry kTexts[] = {
    {ResKind::String, 0, 0, "", ""},  // placeholder until the area adds its texts
};
}  // namespace

std::span<const ResEntry> FilterTexts() { return kTexts; }
