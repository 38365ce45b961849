#pragma once
// A change of the editable fields of document information: which fields to set and to
// what, the others kept. The window's edit of several documents and the command line's
// --set both speak it, and a host writes it. Header only: hosts use it through the
// module's public header.
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "docmgr/records/docinfo.h"

// The editable fields, in the order they are shown and named on the command line:
// title, topic, author, keywords, comment, info1 to info4.
inline constexpr size_t EDIT_FIELD_COUNT = 9;
inline constexpr std::array<std::string_view, EDIT_FIELD_COUNT> EDIT_FIELD_NAMES = {
    "title", "topic", "author", "keywords", "comment", "info1", "info2", "info3", "info4"};
// Their column ids (3 title ... 16 to 19 the information fields).
inline constexpr std::array<uint16_t, EDIT_FIELD_COUNT> EDIT_FIELD_COLUMNS = {3, 4, 7, 15, 14, 16, 17, 18, 19};

inline std::optional<size_t> EditFieldByName(std::string_view name)
{
    for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f)
        if (name == EDIT_FIELD_NAMES[f])
            return f;
    return std::nullopt;
}

inline std::string& EditFieldText(DocInfo& info, size_t field)
{
    switch (field) {
    case 0: return info.title;
    case 1: return info.topic;
    case 2: return info.author;
    case 3: return info.keywords;
    case 4: return info.comment;
    default: return info.info[(field - 5) % info.info.size()];
    }
}

inline const std::string& EditFieldText(const DocInfo& info, size_t field)
{
    return EditFieldText(const_cast<DocInfo&>(info), field);
}

struct DocInfoEdit {
    std::array<std::optional<std::string>, EDIT_FIELD_COUNT> values;

    bool Empty() const
    {
        for (const auto& value : values)
            if (value)
                return false;
        return true;
    }
    // `info` with the set fields changed.
    void ApplyTo(DocInfo& info) const
    {
        for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f)
            if (values[f])
                EditFieldText(info, f) = *values[f];
    }
};
