#pragma once
// The whole configuration of one document manager: general settings, access rights
// and the list of groups, read from and written to a Config.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/config/docgroupconfig.h"

class Config;

// Access rights: a set bit grants the command.
constexpr uint16_t ACCESS_FILECOPY = 0x01;
constexpr uint16_t ACCESS_FILEDELETE = 0x02;
constexpr uint16_t ACCESS_FILEPRINT = 0x04;
constexpr uint16_t ACCESS_FILERENAME = 0x08;

constexpr uint16_t WORKING_GROUP = 0xFFFF;  // group number of the settings in force

class ImplDocConfig {
public:
    // Called with the text of STR_NEW_CONFIG when a configuration without groups was read.
    using Inform = std::function<void(const std::string& message)>;

    // Reads `config`; `defaultFilter` becomes the file pattern of the working group and
    // of a first group made for an empty configuration.
    ImplDocConfig(Config* config, const std::string& defaultFilter, const Inform& inform = {});
    ~ImplDocConfig();
    // Shallow on purpose: copies view mode, actual group and shares the group objects.
    ImplDocConfig& operator=(const ImplDocConfig& other);
    ImplDocConfig(const ImplDocConfig&) = delete;

    // Element of group number g: g + 1 for a user group, 0 (the working group) for 65535.
    static size_t Element(uint16_t group) { return group < WORKING_GROUP ? size_t(group) + 1 : 0; }
    DocGroupConfig& Group(uint16_t group) { return *groups_[Element(group)]; }
    const DocGroupConfig& Group(uint16_t group) const { return *groups_[Element(group)]; }
    DocGroupConfig& WorkingGroup() { return *groups_[0]; }
    const DocGroupConfig& WorkingGroup() const { return *groups_[0]; }
    // Number of user groups (list elements less the working group).
    uint16_t GroupCount() const { return uint16_t(groups_.size() - 1); }
    // List elements, the working group included.
    size_t ElementCount() const { return groups_.size(); }

    void SetCurGroup(uint16_t group);
    void SetCurGroup(const std::string& name);
    void SetGroupByExample(uint16_t group);
    void InsertGroup(uint16_t group);
    void RemoveGroup(uint16_t group);
    void MoveGroup(uint16_t from, uint16_t to);

    void SaveConfig();
    void SaveGeneralSection();
    void SaveGroupColumnWidth(uint16_t group);
    std::string Export() const;
    bool IsExceptionPath(const std::string& path) const;

    bool singleView = false;
    uint16_t actualGroup = 0;  // 1-based position of the group in force, 0 for none
    uint16_t access = 0;
    // Upper-cased ";"-separated directories never descended into; the count kept with it.
    void SetExceptionPaths(const std::string& paths);
    const std::string& GetExceptionPaths() const { return exceptionPaths_; }
    uint16_t GetExceptionCount() const { return exceptionCount_; }
    Config* GetConfigFile() const { return config_; }

    // Current position among the user groups: actualGroup - 1, 65535 for none.
    uint16_t CurrentPosition() const { return uint16_t(actualGroup - 1); }

private:
    // Writes the section of user group `group` (no flush).
    void WriteGroup(uint16_t group);
    // Writes the 20 column widths of the group addressed by `group` (no flush).
    void WriteColumnWidths(uint16_t group);
    // Makes the first group of a configuration that had none, and saves it.
    void MakeFirstGroup(const std::string& defaultFilter, const Inform& inform);

    std::vector<std::shared_ptr<DocGroupConfig>> groups_;  // element 0: working group
    Config* config_ = nullptr;
    std::string exceptionPaths_;
    uint16_t exceptionCount_ = 0;
};
