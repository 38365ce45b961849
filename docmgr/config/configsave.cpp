// Writing the configuration back: the group list, the group sections and "GENERAL".
// Each public save ends with a flush, so the file on disk is always current.
#include <string>
#include <string_view>

#include "docmgr/config/configkeys.h"
#include "docmgr/config/groupkeys.h"
#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"

using namespace configkeys;

void ImplDocConfig::SaveConfig()
{
    if (!config_)
        return;
    // Nothing is deleted here: sections of groups that no longer exist go only by RemoveGroup.
    for (uint16_t g = 0; g < GroupCount(); ++g) {
        config_->SetGroup(Groups);
        config_->WriteKey(std::to_string(g), Group(g).groupName);
        WriteGroup(g);
    }
    config_->Flush();
}

namespace {
using groupkeys::GroupKey;

// The saved time of a row is its date number; files in use depend on it. Reading takes
// the time back as it stands.
groupkeys::Value SavedValue(const GroupKey& key, const DocGroupConfig& group, unsigned element)
{
    const bool time = std::string_view(key.name) == "FILTERTIME";
    return (time ? groupkeys::KeyNamed("FILTERDATE") : key).get(group, element);
}

void WriteValue(Config& out, const GroupKey& key, const DocGroupConfig& group, unsigned element)
{
    out.WriteKey(groupkeys::KeyName(key, element), groupkeys::FileText(key.kind, SavedValue(key, group, element)));
}
}  // namespace

void ImplDocConfig::WriteGroup(uint16_t group)
{
    const DocGroupConfig& grp = Group(group);
    config_->SetGroup(std::to_string(group));
    groupkeys::ForEachValue([&](const GroupKey& key, unsigned element) { WriteValue(*config_, key, grp, element); });
}

void ImplDocConfig::WriteColumnWidths(uint16_t group)
{
    const DocGroupConfig& grp = Group(group);
    const GroupKey& widths = groupkeys::KeyNamed("COLUMNWIDTH");
    config_->SetGroup(std::to_string(group));
    for (unsigned element = 0; element < widths.count; ++element)
        WriteValue(*config_, widths, grp, element);
}

// With no group in force the widths go to section "65535", which nothing reads.
void ImplDocConfig::SaveGroupColumnWidth(uint16_t group)
{
    if (!config_ || Element(group) >= groups_.size())
        return;
    WriteColumnWidths(group);
    config_->Flush();
}

void ImplDocConfig::SaveGeneralSection()
{
    if (!config_)
        return;
    config_->SetGroup(General);
    config_->WriteKey(ViewMode, singleView ? Single : Multi);
    config_->WriteKey(ActualGroup, std::to_string(actualGroup));
    config_->Flush();
}
