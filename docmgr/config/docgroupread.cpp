// Reading one group from its section of the configuration file.
#include <algorithm>
#include <string>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/config/groupkeys.h"
#include "docmgr/tools/config.h"

// Every key defaults to empty text, so a missing key gives "", 0 or false rather than
// the default constructor's values; only a filter row's field code is raised to 1.
DocGroupConfig::DocGroupConfig(Config* config, uint16_t group)
{
    // Without a file every key is missing.
    if (config)
        config->SetGroup(std::to_string(group));
    groupkeys::ForEachValue([&](const groupkeys::GroupKey& key, unsigned element) {
        const std::string text =
            config ? config->ReadKey(groupkeys::KeyName(key, element), std::string()) : std::string();
        key.set(*this, element, groupkeys::FromFileText(key.kind, text));
    });
    for (uint16_t& field : filterField)
        field = std::max<uint16_t>(field, 1);
}
