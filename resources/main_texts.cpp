// Texts of the main dialog 15700, its commands menu and query boxes.
#include "resources/restable.h"

namespace {
constexpr ResEntry kTexts[] = {
    {ResKind::String, 0, 0, "", ""},  // placeholder until the area adds its texts
};
}  // namespace

std::span<const ResEntry> MainTexts() { return kTexts; }
