#pragma once
// The command line of `docmanager`: which mode to run and its options.
#include <cstdint>
#include <string>
#include <vector>

#include "docmgr/records/docinfoedit.h"

enum class RunMode { Window, List, ExportConfig, SetFields, Help };
enum class ListFormat { Text, Tsv, Json, Csv };

struct CommandLine {
    RunMode mode = RunMode::Window;
    std::string configPath;  // empty: the user's default configuration
    std::string groupName;   // --group; empty: the group in force
    bool groupGiven = false;
    std::string indexName;          // --index-name; empty: the module's default
    std::vector<uint16_t> columns;  // --columns; empty: the working group's slots
    ListFormat format = ListFormat::Text;
    std::string findText;  // --find: only the rows showing it in a listed column, ignoring case
    bool findGiven = false;
    bool noCache = false;                 // --no-cache: read documents without the per-user cache
    bool printPaths = false;              // window: print the chosen paths instead of opening
    std::vector<std::string> startPaths;  // START_PATH arguments (FILEs of --set) in the order given
    DocInfoEdit edit;                     // --set FIELD=VALUE; a later value of a field wins
    bool dryRun = false;                  // --set: tell the changes, write nothing
};

// Parses the arguments after the program name. On a bad argument returns false and sets
// `error` to one line naming the fault (the caller adds the usage text).
bool ParseCommandLine(const std::vector<std::string>& args, CommandLine& out, std::string& error);

// The usage text, one line per form, ending with a line break.
std::string UsageText();
// The program's own arguments parsed; a mistake is told with the usage on standard error,
// and false returned.
bool ParseProgramArguments(int argc, char** argv, CommandLine& out);
