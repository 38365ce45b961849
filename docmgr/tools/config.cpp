#include "docmgr/tools/config.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

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

// A line of a section: an entry ("KEY=value") or anything else kept verbatim.
struct Config::Line {
    std::string key;    // empty for comments, blank and unknown lines
    std::string text;   // the value of an entry, else the whole line
    bool isEntry = false;
};

struct Config::Section {
    std::string name;
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
    Section* current = sections_.front().get();
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string_view line(text.data() + start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        start = end + 1;

        const std::string trimmed = Trim(line);
        const size_t close = trimmed.find(']');
        if (!trimmed.empty() && trimmed.front() == '[' && close != std::string::npos) {
            auto section = std::make_unique<Section>();
            section->name = trimmed.substr(1, close - 1);
            current = section.get();
            sections_.push_back(std::move(section));
            continue;
        }
        Line entry;
        const size_t equals = line.find('=');
        const bool comment = !trimmed.empty() && (trimmed.front() == ';' || trimmed.front() == '#');
        if (!comment && equals != std::string_view::npos && !Trim(line.substr(0, equals)).empty()) {
            entry.key = Trim(line.substr(0, equals));
            entry.text = std::string(line.substr(equals + 1));
            entry.isEntry = true;
            current->keys.emplace(entry.key, current->lines.size());
        } else {
            entry.text = std::string(line);
        }
        current->lines.push_back(std::move(entry));
    }
}

Config::Section* Config::Find(const std::string& name)
{
    // Entries before the first header belong to the section without a name.
    for (size_t i = name.empty() ? 0 : 1; i < sections_.size(); ++i)
        if (sections_[i]->name == name)
            return sections_[i].get();
    return nullptr;
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
    return it == section->keys.end() ? defaultValue : section->lines[it->second].text;
}

void Config::WriteKey(const std::string& key, const std::string& value)
{
    Section* section = Find(group_);
    if (!section) {
        auto created = std::make_unique<Section>();
        created->name = group_;
        section = created.get();
        sections_.push_back(std::move(created));
    }
    std::string text = value;
    for (char& c : text)
        if (c == '\n' || c == '\r')
            c = ' ';
    auto it = section->keys.find(key);
    if (it != section->keys.end()) {
        if (section->lines[it->second].text == text)
            return;
        section->lines[it->second].text = std::move(text);
    } else {
        // New keys go after the last entry, so trailing comments stay at the end.
        size_t at = section->lines.size();
        while (at > 0 && !section->lines[at - 1].isEntry && Trim(section->lines[at - 1].text).empty())
            --at;
        section->lines.insert(section->lines.begin() + ptrdiff_t(at), Line{key, std::move(text), true});
        section->keys.clear();
        for (size_t i = 0; i < section->lines.size(); ++i)
            if (section->lines[i].isEntry)
                section->keys.emplace(section->lines[i].key, i);
    }
    dirty_ = true;
}

void Config::DeleteGroup(const std::string& section)
{
    for (size_t i = 1; i < sections_.size();) {
        if (sections_[i]->name == section) {
            sections_.erase(sections_.begin() + ptrdiff_t(i));
            dirty_ = true;
        } else {
            ++i;
        }
    }
}

std::string Config::Serialise() const
{
    std::string out;
    auto writeLines = [&out](const Section& section) {
        for (const Line& line : section.lines) {
            if (line.isEntry)
                out += line.key + "=" + line.text + "\n";
            else
                out += line.text + "\n";
        }
    };
    writeLines(*sections_.front());
    for (size_t i = 1; i < sections_.size(); ++i) {
        out += "[" + sections_[i]->name + "]\n";
        writeLines(*sections_[i]);
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
    const std::string text = Serialise();
    std::string temp = path_ + ".XXXXXX";
    const int fd = mkstemp(temp.data());
    if (fd < 0) {
        saveError_ = "cannot write beside " + path_ + ": " + std::strerror(errno);
        return false;
    }
    struct stat st {};
    mode_t mode = 0644;
    if (stat(path_.c_str(), &st) == 0)
        mode = st.st_mode & 07777;
    int error = 0;
    for (size_t done = 0; done < text.size() && !error;) {
        const ssize_t put = write(fd, text.data() + done, text.size() - done);
        if (put < 0 && errno != EINTR)
            error = errno;
        else if (put > 0)
            done += size_t(put);
    }
    if (!error && fchmod(fd, mode) != 0)
        error = errno;
    if (!error && fsync(fd) != 0 && errno != EINVAL)
        error = errno;
    if (close(fd) != 0 && !error)
        error = errno;
    if (!error && rename(temp.c_str(), path_.c_str()) != 0)
        error = errno;
    if (error) {
        unlink(temp.c_str());
        saveError_ = "cannot save " + path_ + ": " + std::strerror(error);
        return false;
    }
    saveError_.clear();
    dirty_ = false;
    return true;
}
