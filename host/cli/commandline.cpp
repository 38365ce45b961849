#include "host/cli/commandline.h"

#include <iostream>
#include <optional>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/tokens.h"

namespace {

// Options that take a value, as "--name VALUE" or "--name=VALUE".
bool TakesValue(const std::string& name)
{
    return name == "--config" || name == "--group" || name == "--index-name"
        || name == "--columns" || name == "--format";
}

bool IsDigits(const std::string& s)
{
    if (s.empty())
        return false;
    for (char c : s)
        if (c < '0' || c > '9')
            return false;
    return true;
}

bool ParseColumns(const std::string& value, std::vector<uint16_t>& columns, std::string& error)
{
    columns.clear();
    for (const std::string& item : tokens::Split(value, ',')) {
        // Up to 5 digits keeps the number well inside 16 bits before the range check.
        if (!IsDigits(item) || item.size() > 5 || tokens::ToNumber(item) < 1
            || tokens::ToNumber(item) > COLUMN_COUNT) {
            error = "--columns takes column ids from 1 to 20 separated by commas, not \"" + item
                + "\"";
            return false;
        }
        columns.push_back(uint16_t(tokens::ToNumber(item)));
    }
    if (columns.empty()) {
        error = "--columns needs at least one column id";
        return false;
    }
    return true;
}

std::optional<ListFormat> ParseFormat(const std::string& value)
{
    if (value == "text")
        return ListFormat::Text;
    if (value == "tsv")
        return ListFormat::Tsv;
    if (value == "json")
        return ListFormat::Json;
    if (value == "csv")
        return ListFormat::Csv;
    return std::nullopt;
}

// The index lies in every listed directory under this name, so it must be a plain name.
bool ValidIndexName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos
        && name.find('\0') == std::string::npos;
}

bool SetMode(CommandLine& out, RunMode mode, bool& modeGiven, std::string& error)
{
    if (modeGiven && out.mode != mode) {
        error = "--list and --export-config cannot be combined";
        return false;
    }
    out.mode = mode;
    modeGiven = true;
    return true;
}

// Options that belong to one mode only.
bool CheckModeOptions(const CommandLine& out, bool formatGiven, std::string& error)
{
    const bool list = out.mode == RunMode::List;
    if (!list && out.groupGiven)
        error = "--group is only used with --list";
    else if (!list && !out.columns.empty())
        error = "--columns is only used with --list";
    else if (!list && formatGiven)
        error = "--format is only used with --list";
    else if (out.mode != RunMode::Window && out.printPaths)
        error = "--print-paths is only used when the window is opened";
    else if (out.mode == RunMode::ExportConfig && !out.indexName.empty())
        error = "--index-name is not used with --export-config";
    else if (out.mode == RunMode::ExportConfig && !out.startPaths.empty())
        error = "--export-config takes no paths";
    return error.empty();
}

}  // namespace

bool ParseCommandLine(const std::vector<std::string>& args, CommandLine& out, std::string& error)
{
    out = CommandLine{};
    error.clear();
    bool modeGiven = false;
    bool formatGiven = false;
    bool optionsEnded = false;

    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (optionsEnded || arg.empty() || arg[0] != '-' || arg == "-") {
            out.startPaths.push_back(arg);
            continue;
        }
        if (arg == "--") {
            optionsEnded = true;
            continue;
        }
        if (arg == "--help" || arg == "-h") {
            out.mode = RunMode::Help;
            return true;
        }

        std::string name = arg;
        std::string value;
        bool hasValue = false;
        if (const size_t eq = arg.find('='); eq != std::string::npos && arg.rfind("--", 0) == 0) {
            name = arg.substr(0, eq);
            value = arg.substr(eq + 1);
            hasValue = true;
        }
        if (TakesValue(name) && !hasValue) {
            if (i + 1 >= args.size()) {
                error = name + " needs a value";
                return false;
            }
            value = args[++i];
            hasValue = true;
        } else if (!TakesValue(name) && hasValue) {
            error = name + " takes no value";
            return false;
        }

        if (name == "--list") {
            if (!SetMode(out, RunMode::List, modeGiven, error))
                return false;
        } else if (name == "--export-config") {
            if (!SetMode(out, RunMode::ExportConfig, modeGiven, error))
                return false;
        } else if (name == "--print-paths") {
            out.printPaths = true;
        } else if (name == "--config") {
            if (value.empty()) {
                error = "--config needs a file name";
                return false;
            }
            out.configPath = value;
        } else if (name == "--group") {
            out.groupName = value;
            out.groupGiven = true;
        } else if (name == "--index-name") {
            if (!ValidIndexName(value)) {
                error = "--index-name needs a plain file name, not \"" + value + "\"";
                return false;
            }
            out.indexName = value;
        } else if (name == "--columns") {
            if (!ParseColumns(value, out.columns, error))
                return false;
        } else if (name == "--format") {
            const auto format = ParseFormat(value);
            if (!format) {
                error = "--format is one of text, tsv, json, csv, not \"" + value + "\"";
                return false;
            }
            out.format = *format;
            formatGiven = true;
        } else {
            error = "unknown option " + name;
            return false;
        }
    }
    return CheckModeOptions(out, formatGiven, error);
}

std::string UsageText()
{
    return "Usage:\n"
           "  docmanager [--config FILE] [--index-name NAME] [--print-paths] [START_PATH...]\n"
           "  docmanager --list [--config FILE] [--group NAME] [--index-name NAME]\n"
           "                    [--columns ID,ID,...] [--format text|tsv|json|csv] [START_PATH...]\n"
           "  docmanager --export-config [--config FILE]\n"
           "\n"
           "Without --list or --export-config the document manager window opens.\n"
           "A START_PATH ending in \"/**\" includes its subdirectories; the paths are used\n"
           "when the group in force has no active directory.\n"
           "Column ids: 1 file name, 2 size, 3 title, 4 topic, 5/6 created date/time,\n"
           "7 author, 8/9/10 modified date/time/by, 11/12/13 printed date/time/by,\n"
           "14 comment, 15 keywords, 16-19 information fields, 20 directory.\n";
}

bool ParseProgramArguments(int argc, char** argv, CommandLine& out)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    std::string error;
    if (ParseCommandLine(args, out, error))
        return true;
    std::cerr << "docmanager: " << error << "\n\n" << UsageText();
    return false;
}
