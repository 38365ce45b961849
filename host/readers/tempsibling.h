#pragma once
// A temporary file beside a target, which replaces the target only on Commit: a failure
// at any step leaves the target as it was and the temporary file removed.
#include <string>

class TempSibling {
public:
    explicit TempSibling(std::string target) : target_(std::move(target)) {}
    ~TempSibling();
    TempSibling(const TempSibling&) = delete;
    TempSibling& operator=(const TempSibling&) = delete;

    // Creates the empty temporary file; false with a message if the folder refuses it.
    bool Create(std::string& error);
    // Fills the temporary file with a copy of the target.
    bool CopyTarget(std::string& error);
    const std::string& Path() const { return path_; }
    // Gives the temporary file the target's permissions (and owner, where allowed),
    // flushes it to disk and renames it over the target.
    bool Commit(std::string& error);

private:
    std::string target_;
    std::string path_;
    bool committed_ = false;
};
