#pragma once
// A sectioned key/value configuration file (INI syntax, UTF-8).
//
// "[SECTION]" headers, "KEY=value" lines with the value taken verbatim after the first
// "="; names are case-sensitive. A save gives back every line it does not change byte
// for byte (comments, unknown keys, blanks, CRLF line ends). Saving writes a temporary
// file beside the target and renames it over the target, so a crash or a full disk
// never leaves half a file; a linked file is saved in its link's target.
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <docmgr/docmgr_export.h>

class DOCMGR_EXPORT Config {
public:
    // Opens the file at `path`; a missing file is an empty configuration.
    explicit Config(std::string path);
    // Writes pending changes (see Flush).
    ~Config();
    Config(const Config&) = delete;
    Config& operator=(const Config&) = delete;

    const std::string& GetPath() const { return path_; }
    // Why the file could not be read, or empty when it was read (or did not exist).
    const std::string& GetLoadError() const { return loadError_; }
    // True when the file was missing or held nothing but blanks and line ends.
    bool IsBlank() const { return blank_; }

    void SetGroup(const std::string& section);
    const std::string& GetGroup() const { return group_; }
    bool HasGroup(const std::string& section) const;
    // Value of `key` in the selected section, or `defaultValue` when it is absent.
    std::string ReadKey(const std::string& key, const std::string& defaultValue = {}) const;
    // Sets `key` in the selected section (creating the section); a line break becomes a blank.
    void WriteKey(const std::string& key, const std::string& value);
    void DeleteGroup(const std::string& section);

    // Saves when something changed; true on success (or nothing to do).
    bool Flush();
    // Why the last save failed, or empty.
    const std::string& GetSaveError() const { return saveError_; }

private:
    struct Line;
    struct Section;
    Section* Find(const std::string& name);
    const Section* Find(const std::string& name) const;
    void Parse(const std::string& text);
    std::string Serialise() const;

    std::string path_;
    std::string group_;
    std::vector<std::unique_ptr<Section>> sections_;        // index 0: lines before the first header
    std::unordered_map<std::string, size_t> sectionIndex_;  // name -> first section of it
    std::string eol_ = "\n";
    bool blank_ = true;
    std::string loadError_;
    std::string saveError_;
    bool dirty_ = false;
};
