// Texts of the filter dialog 15702.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;

constexpr ResEntry kTexts[] = {
    {D, 15702, 0, QT_TRANSLATE_NOOP3("DocMgr", "Filter", "dialog 15702.0")},
    {D, 15702, 1, QT_TRANSLATE_NOOP3("DocMgr", "&Title:", "dialog 15702.1")},
    {D, 15702, 2, QT_TRANSLATE_NOOP3("DocMgr", "T&opic:", "dialog 15702.2")},
    {D, 15702, 3, QT_TRANSLATE_NOOP3("DocMgr", "&Author:", "dialog 15702.3")},
    {D, 15702, 4, QT_TRANSLATE_NOOP3("DocMgr", "&Keywords:", "dialog 15702.4")},
    {D, 15702, 5, QT_TRANSLATE_NOOP3("DocMgr", "File &names:", "dialog 15702.5")},
    {D, 15702, 6, QT_TRANSLATE_NOOP3("DocMgr", "Match &case", "dialog 15702.6")},
    {D, 15702, 7, QT_TRANSLATE_NOOP3("DocMgr", "Text", "dialog 15702.7")},
    {D, 15702, 8, QT_TRANSLATE_NOOP3("DocMgr", "Conditions", "dialog 15702.8")},
    {D, 15702, 9, QT_TRANSLATE_NOOP3("DocMgr", "(no condition)", "dialog 15702.9")},
    // Conditions by code.
    {D, 15702, 20, QT_TRANSLATE_NOOP3("DocMgr", "equal to", "dialog 15702.20")},
    {D, 15702, 21, QT_TRANSLATE_NOOP3("DocMgr", "not less than", "dialog 15702.21")},
    {D, 15702, 22, QT_TRANSLATE_NOOP3("DocMgr", "not greater than", "dialog 15702.22")},
    {D, 15702, 23, QT_TRANSLATE_NOOP3("DocMgr", "greater than", "dialog 15702.23")},
    {D, 15702, 24, QT_TRANSLATE_NOOP3("DocMgr", "less than", "dialog 15702.24")},
    {D, 15702, 25, QT_TRANSLATE_NOOP3("DocMgr", "not equal to", "dialog 15702.25")},
    {D, 15702, 26, QT_TRANSLATE_NOOP3("DocMgr", "matches pattern", "dialog 15702.26")},
    // Links by code.
    {D, 15702, 30, QT_TRANSLATE_NOOP3("DocMgr", "(end)", "dialog 15702.30")},
    {D, 15702, 31, QT_TRANSLATE_NOOP3("DocMgr", "and", "dialog 15702.31")},
    {D, 15702, 32, QT_TRANSLATE_NOOP3("DocMgr", "or", "dialog 15702.32")},
    {D, 15702, 40, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15702.40")},
    {D, 15702, 41, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15702.41")},
    {D, 15702, 42, QT_TRANSLATE_NOOP3("DocMgr", "Wildcards: * any text, ? one character", "dialog 15702.42")},
};
}  // namespace

std::span<const ResEntry> FilterTexts() { return kTexts; }
