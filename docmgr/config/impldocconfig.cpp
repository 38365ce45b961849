// Reading the whole configuration and keeping its list of groups.
#include "docmgr/config/impldocconfig.h"

#include <algorithm>

#include "docmgr/config/configkeys.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/textcase.h"
#include "docmgr/tools/tokens.h"
#include "resources/resids.h"

namespace {

std::string ReadText(Config* config, const char* key)
{
    return config ? config->ReadKey(key, std::string()) : std::string();
}
}  // namespace

ImplDocConfig::ImplDocConfig(Config* config, const std::string& defaultFilter, const Inform& inform) : config_(config)
{
    using namespace configkeys;
    if (config_)
        config_->SetGroup(General);
    singleView = textcase::ToUpper(ReadText(config_, ViewMode)) == Single;
    actualGroup = uint16_t(tokens::ToNumber(ReadText(config_, ActualGroup)));

    // A right is withheld only by an explicit "OFF"; no key grants it.
    const std::pair<const char*, uint16_t> rights[] = {
        {AccessCopy, ACCESS_FILECOPY},
        {AccessDelete, ACCESS_FILEDELETE},
        {AccessPrint, ACCESS_FILEPRINT},
        {AccessRename, ACCESS_FILERENAME},
    };
    for (const auto& [key, bit] : rights) {
        if (textcase::ToUpper(ReadText(config_, key)) != Off)
            access |= bit;
    }
    SetExceptionPaths(exceptionPaths_);

    auto working = std::make_shared<DocGroupConfig>();
    working->filterFiles = defaultFilter;
    groups_.push_back(std::move(working));

    // Groups run without a gap from "0"; the first missing number ends the list. Group
    // number 65535 means the working group, so it can never be a user group.
    for (unsigned n = 0; config_ && n < WORKING_GROUP; ++n) {
        config_->SetGroup(Groups);
        if (config_->ReadKey(std::to_string(n), std::string()).empty())
            break;
        groups_.push_back(std::make_shared<DocGroupConfig>(config_, uint16_t(n)));
    }

    if (groups_.size() > 1) {
        // A stored 0 gives 65535: the working group stays as it is.
        if (actualGroup > groups_.size() - 1)
            SetCurGroup(0);
        else
            SetCurGroup(uint16_t(actualGroup - 1));
    } else {
        MakeFirstGroup(defaultFilter, inform);
    }
}

ImplDocConfig::~ImplDocConfig() = default;

void ImplDocConfig::MakeFirstGroup(const std::string& defaultFilter, const Inform& inform)
{
    if (inform)
        inform(ResString(STR_NEW_CONFIG));
    singleView = false;
    auto first = std::make_shared<DocGroupConfig>();
    first->filterFiles = defaultFilter;
    first->groupName = ResString(STR_FIRST_GROUP);
    first->section = ResString(STR_DEFAULT_SECTION);
    groups_.push_back(std::move(first));
    SaveConfig();
    SetCurGroup(0);
}

ImplDocConfig& ImplDocConfig::operator=(const ImplDocConfig& other)
{
    singleView = other.singleView;
    actualGroup = other.actualGroup;
    groups_ = other.groups_;
    return *this;
}

void ImplDocConfig::SetCurGroup(uint16_t group)
{
    const size_t element = Element(group);
    if (element >= groups_.size())
        return;
    actualGroup = uint16_t(element);
    *groups_[0] = *groups_[element];
}

void ImplDocConfig::SetCurGroup(const std::string& name)
{
    for (uint16_t g = 0; g < GroupCount(); ++g) {
        if (groups_[Element(g)]->groupName == name) {
            SetCurGroup(g);
            return;
        }
    }
}

// The group takes every setting of the working group but keeps its own identity.
void ImplDocConfig::SetGroupByExample(uint16_t group)
{
    const size_t element = Element(group);
    if (element >= groups_.size())
        return;
    DocGroupConfig& target = *groups_[element];
    std::string name = target.groupName;
    std::string section = target.section;
    target = *groups_[0];
    target.groupName = std::move(name);
    target.section = std::move(section);
}

void ImplDocConfig::InsertGroup(uint16_t group)
{
    if (groups_.size() > WORKING_GROUP)
        return;  // every number below 65535 is taken; 65535 means the working group
    const size_t element = std::min(Element(group), groups_.size());
    auto created = std::make_shared<DocGroupConfig>(DocGroupConfig::LookOf(*groups_[0]));
    groups_.insert(groups_.begin() + ptrdiff_t(element), std::move(created));
}

void ImplDocConfig::RemoveGroup(uint16_t group)
{
    const size_t element = Element(group);
    if (element == 0 || element >= groups_.size())
        return;  // the working group is never removed
    const uint16_t count = GroupCount();
    if (config_) {
        config_->DeleteGroup(configkeys::Groups);
        // Renumbering leaves the highest section stale; SaveConfig rewrites the others.
        config_->DeleteGroup(std::to_string(count - 1));
    }
    groups_.erase(groups_.begin() + ptrdiff_t(element));
    SaveConfig();
}

void ImplDocConfig::MoveGroup(uint16_t from, uint16_t to)
{
    const size_t source = Element(from);
    if (source >= groups_.size())
        return;
    auto moved = groups_[source];
    groups_.erase(groups_.begin() + ptrdiff_t(source));
    const size_t target = std::min(Element(to), groups_.size());
    groups_.insert(groups_.begin() + ptrdiff_t(target), std::move(moved));
}
