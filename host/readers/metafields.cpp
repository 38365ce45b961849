#include "host/readers/metafields.h"

InfoFields InfoFieldsOf(const DocMeta& meta, bool documentHasFields)
{
    bool anyValue = false;
    for (const std::string& value : meta.info)
        anyValue = anyValue || !value.empty();
    InfoFields fields;
    if (!anyValue && !documentHasFields)
        return fields;
    for (size_t i = 0; i < meta.info.size(); ++i) {
        std::string name = meta.infoNames[i].empty() ? "Info " + std::to_string(i + 1) : meta.infoNames[i];
        fields.emplace_back(std::move(name), meta.info[i]);
    }
    return fields;
}

std::vector<std::string> SplitKeywords(std::string_view keywords)
{
    std::vector<std::string> items;
    size_t start = 0;
    while (start <= keywords.size()) {
        size_t end = keywords.find(',', start);
        if (end == std::string_view::npos)
            end = keywords.size();
        std::string_view item = keywords.substr(start, end - start);
        while (!item.empty() && (item.front() == ' ' || item.front() == '\t'))
            item.remove_prefix(1);
        while (!item.empty() && (item.back() == ' ' || item.back() == '\t'))
            item.remove_suffix(1);
        if (!item.empty())
            items.emplace_back(item);
        start = end + 1;
    }
    return items;
}
