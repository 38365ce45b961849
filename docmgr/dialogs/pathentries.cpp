#include "docmgr/dialogs/pathentries.h"

#include "docmgr/tools/tokens.h"

namespace pathentries {

Entries Split(const std::string& paths, const std::string& guis)
{
    Entries entries;
    const unsigned short count = tokens::Count(paths, ';');
    for (unsigned short i = 0; i < count; ++i) {
        std::string path = tokens::Get(paths, i, ';');
        // A missing flag is "0": the entry is inactive, as the list collection reads it.
        const char flag = i < guis.size() ? guis[i] : '0';
        if (flag == '1') {
            entries.shown.push_back(std::move(path));
        } else {
            entries.hidden.push_back(std::move(path));
            entries.hiddenFlags += flag;
        }
    }
    return entries;
}

Stored Join(const Entries& entries)
{
    Stored stored;
    auto add = [&stored](const std::string& path, char flag) {
        if (!stored.paths.empty())
            stored.paths += ';';
        stored.paths += path;
        stored.guis += flag;
    };
    for (const std::string& path : entries.shown)
        add(path, '1');
    for (const std::string& path : entries.hidden)
        add(path, entries.hiddenFlags[0]);
    return stored;
}

}  // namespace pathentries
