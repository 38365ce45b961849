#include "docmgr/tools/config.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

#include "docmgr/tools/replacefile.h"

namespace {
// A configuration is a small text file; anything larger is not one of ours.
constexpr off_t kMaxConfigBytes = 16 * 1024 * 1024;

std::string Trim(std::string_view text)
{
    const size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    const size_t last = text.find_last_not_of(" \t");
    return std::string(text.substr(first, last - first + 1));
}
}  // namespace

// A line of a section, kept as it was read (line end included) so that a save gives
// back every line it does not change byte for byte.
struct Config::Line {
    std::string key;  // empty for comments, blank and unknown lines
    std::string raw;
    size_t valueStart = 0;  // the value of an entry: raw[valueStart, valueEnd)
    size_t valueEnd = 0;
    bool isEntry = false;

    std::string Value() const { return raw.substr(valueStart, valueEnd - valueStart); }
};

struct Config::Section {
    std::string name;
    std::string header;  // the header line as read; empty before the first header
    std::vector<Line> lines;
    std::unordered_map<std::string, size_t> keys;  // first line of each key
};

Config::Config(std::string path) : path_(std::move(path))
{
    sections_.push_back(std::make_unique<Section>());
    struct stat st {};
    if (stat(path_.c_str(), &st) != 0) {
        if (errno != ENOENT)
            loadError_ = "cannot read " + path_ + ": " + std::strerror(errno);
        return;
    }
    if (!S_ISREG(st.st_mode)) {
        loadError_ = path_ + " is not a file";
        return;
    }
    if (st.st_size > kMaxConfigBytes) {
        loadError_ = path_ + " is too large to be a configuration file";
        return;
    }
    std::ifstream in(path_, std::ios::binary);
    if (!in) {
        loadError_ = "cannot read " + path_ + ": " + std::strerror(errno);
        return;
    }
    std::ostringstream text;
    text << in.rdbuf();
    Parse(text.str());
}

Config::~Config()
{
    Flush();
}

void Config::Parse(const std::string& text)
{
    blank_ = text.find_first_not_of(" \t\r\n") == std::string::npos;
    Section* current = sections_.front().get();
    size_t start = 0;
    bool firstLine = true;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        const size_t next = end == std::string::npos ? text.size() : end + 1;
        if (end == std::string::npos)
            end = text.size();
        std::string_view line(text.data() + start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        // New lines follow the file's own line ends.
        if (firstLine && end < text.size())
            eol_ = line.size() < end - start ? "\r\n" : "\n";
        firstLine = false;
        std::string raw = text.substr(start, next - start);
        start = next;

        const std::string trimmed = Trim(line);
        const size_t close = trimmed.find(']');
        if (!trimmed.empty() && trimmed.front() == '[' && close != std::string::npos) {
            auto section = std::make_unique<Section>();
            section->name = trimmed.substr(1, close - 1);
            section->header = std::move(raw);
            current = section.get();
            sectionIndex_.emplace(current->name, sections_.size());
            sections_.push_back(std::move(section));
            continue;
        }
        Line entry;
        const size_t equals = line.find('=');
        const bool comment = !trimmed.empty() && (trimmed.front() == ';' || trimmed.front() == '#');
        if (!comment && equals != std::string_view::npos && !Trim(line.substr(0, equals)).empty()) {
            entry.key = Trim(line.substr(0, equals));
            entry.valueStart = equals + 1;
            entry.valueEnd = line.size();
            entry.isEntry = true;
            current->keys.emplace(entry.key, current->lines.size());
        }
        entry.raw = std::move(raw);
        current->lines.push_back(std::move(entry));
    }
}

Config::Section* Config::Find(const std::string& name)
{
    // Entries before the first header belong to the section without a name.
    if (name.empty())
        return sections_.front().get();
    const auto found = sectionIndex_.find(name);
    return found == sectionIndex_.end() ? nullptr : sections_[found->second].get();
}

const Config::Section* Config::Find(const std::string& name) const
{
    return const_cast<Config*>(this)->Find(name);
}

void Config::SetGroup(const std::string& section)
{
    group_ = section;
}

bool Config::HasGroup(const std::string& section) const
{
    return Find(section) != nullptr;
}

std::string Config::ReadKey(const std::string& key, const std::string& defaultValue) const
{
    const Section* section = Find(group_);
    if (!section)
        return defaultValue;
    auto it = section->keys.find(key);
    return it == section->keys.end() ? defaultValue : section->lines[it->second].Value();
}

void Config::WriteKey(const std::string& key, const std::string& value)
{
    Section* section = Find(group_);
    if (!section) {
        auto created = std::make_unique<Section>();
        created->name = group_;
        created->header = "[" + group_ + "]" + eol_;
        section = created.get();
        sectionIndex_.emplace(group_, sections_.size());
        sections_.push_back(std::move(created));
    }
    std::string text = value;
    for (char& c : text)
        if (c == '\n' || c == '\r')
            c = ' ';
    auto it = section->keys.find(key);
    if (it != section->keys.end()) {
        Line& line = section->lines[it->second];
        if (line.Value() == text)
            return;
        line.raw.replace(line.valueStart, line.valueEnd - line.valueStart, text);
        line.valueEnd = line.valueStart + text.size();
    } else {
        // New keys go after the last entry, so trailing comments stay at the end. Only
        // blank lines follow that place, so no key's line number changes.
        size_t at = section->lines.size();
        while (at > 0 && !section->lines[at - 1].isEntry &&
               section->lines[at - 1].raw.find_first_not_of(" \t\r\n") == std::string::npos)
            --at;
        Line line;
        line.key = key;
        line.raw = key + "=" + text + eol_;
        line.valueStart = key.size() + 1;
        line.valueEnd = line.valueStart + text.size();
        line.isEntry = true;
        section->lines.insert(section->lines.begin() + ptrdiff_t(at), std::move(line));
        section->keys.emplace(key, at);
    }
    dirty_ = true;
}

void Config::DeleteGroup(const std::string& section)
{
    const size_t before = sections_.size();
    std::erase_if(sections_, [&](const auto& s) { return s != sections_.front() && s->name == section; });
    if (sections_.size() == before)
        return;
    dirty_ = true;
    sectionIndex_.clear();
    for (size_t i = sections_.size(); i-- > 1;)
        sectionIndex_.insert_or_assign(sections_[i]->name, i);
}

std::string Config::Serialise() const
{
    std::string out;
    auto append = [&](const std::string& raw) {
        // A last line without its line end gets one when something follows it.
        if (!out.empty() && out.back() != '\n')
            out += eol_;
        out += raw;
    };
    for (const auto& section : sections_) {
        if (section != sections_.front())
            append(section->header);
        for (const Line& line : section->lines)
            append(line.raw);
    }
    return out;
}

bool Config::Flush()
{
    if (!dirty_)
        return true;
    if (!loadError_.empty()) {
        // Never replace a file that could not be read: its contents would be lost.
        saveError_ = "not saved, the file was not read: " + loadError_;
        return false;
    }
    // A linked configuration is saved in its target; the link stays.
    std::string target = path_;
    if (char* resolved = realpath(path_.c_str(), nullptr)) {
        target = resolved;
        free(resolved);
    }
    if (const int error = replacefile::Replace(target, Serialise())) {
        saveError_ = "cannot save " + path_ + ": " + std::strerror(error);
        return false;
    }
    saveError_.clear();
    dirty_ = false;
    return true;
}
