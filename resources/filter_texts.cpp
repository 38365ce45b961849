// Texts of the filter dialog 15702.
#include "resources/restable.h"

#include "resources/resids.h"

namespace {
constexpr ResKind D = ResKind::Dialog;

constexpr ResEntry kTexts[] = {
    {D, DLG_FILTER, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Filter", "dialog 15702.0")},
    {D, DLG_FILTER, FILTER_TITLE_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Title:", "dialog 15702.1")},
    {D, DLG_FILTER, FILTER_TOPIC_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "T&opic:", "dialog 15702.2")},
    {D, DLG_FILTER, FILTER_AUTHOR_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Author:", "dialog 15702.3")},
    {D, DLG_FILTER, FILTER_KEYWORDS_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Keywords:", "dialog 15702.4")},
    {D, DLG_FILTER, FILTER_FILES_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "File &names:", "dialog 15702.5")},
    {D, DLG_FILTER, FILTER_SENSITIVE, QT_TRANSLATE_NOOP3("DocMgr", "Match &case", "dialog 15702.6")},
    {D, DLG_FILTER, FILTER_TEXT_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Text", "dialog 15702.7")},
    {D, DLG_FILTER, FILTER_CONDITION_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Conditions", "dialog 15702.8")},
    {D, DLG_FILTER, FILTER_NO_CONDITION, QT_TRANSLATE_NOOP3("DocMgr", "(no condition)", "dialog 15702.9")},
    // Conditions by code.
    {D, DLG_FILTER, FILTER_EQUAL, QT_TRANSLATE_NOOP3("DocMgr", "equal to", "dialog 15702.20")},
    {D, DLG_FILTER, FILTER_AT_LEAST, QT_TRANSLATE_NOOP3("DocMgr", "not less than", "dialog 15702.21")},
    {D, DLG_FILTER, FILTER_AT_MOST, QT_TRANSLATE_NOOP3("DocMgr", "not greater than", "dialog 15702.22")},
    {D, DLG_FILTER, FILTER_GREATER, QT_TRANSLATE_NOOP3("DocMgr", "greater than", "dialog 15702.23")},
    {D, DLG_FILTER, FILTER_LESS, QT_TRANSLATE_NOOP3("DocMgr", "less than", "dialog 15702.24")},
    {D, DLG_FILTER, FILTER_NOT_EQUAL, QT_TRANSLATE_NOOP3("DocMgr", "not equal to", "dialog 15702.25")},
    {D, DLG_FILTER, FILTER_PATTERN, QT_TRANSLATE_NOOP3("DocMgr", "matches pattern", "dialog 15702.26")},
    // Links by code.
    {D, DLG_FILTER, FILTER_LINK_END, QT_TRANSLATE_NOOP3("DocMgr", "(end)", "dialog 15702.30")},
    {D, DLG_FILTER, FILTER_LINK_AND, QT_TRANSLATE_NOOP3("DocMgr", "and", "dialog 15702.31")},
    {D, DLG_FILTER, FILTER_LINK_OR, QT_TRANSLATE_NOOP3("DocMgr", "or", "dialog 15702.32")},
    {D, DLG_FILTER, FILTER_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15702.40")},
    {D, DLG_FILTER, FILTER_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15702.41")},
    {D, DLG_FILTER, FILTER_WILDCARD_HINT,
     QT_TRANSLATE_NOOP3("DocMgr", "Wildcards: * any text, ? one character", "dialog 15702.42")},
};
}  // namespace

std::span<const ResEntry> FilterTexts()
{
    return kTexts;
}
