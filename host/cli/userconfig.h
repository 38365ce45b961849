#pragma once
// Where the user's document manager configuration lives, and opening it.
#include <memory>
#include <string>

class Config;

// docmanager/docmanager.cfg under the user's configuration directory
// (XDG_CONFIG_HOME, usually ~/.config).
std::string DefaultConfigPath();

// Creates the directory that will hold the configuration file `path` when it is missing.
// False with `error` set when it cannot be created.
bool EnsureConfigDirectory(const std::string& path, std::string& error);

// Opens the configuration at `path` (the default one when empty), creating its directory.
// Null with `error` set when the file cannot be used: its directory cannot be made, it is
// a directory, it exists but cannot be read, or it holds something other than a
// configuration (it is then left alone, never overwritten).
std::unique_ptr<Config> OpenUserConfig(const std::string& path, std::string& error);
