// The command line of `docmanager`, read with QCommandLineParser.
#include "host/cli/commandline.h"

#include <QCommandLineParser>
#include <QStringList>
#include <algorithm>
#include <iostream>
#include <map>
#include <optional>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/tokens.h"

namespace {

// Arguments pass through Qt as Latin-1, one character per byte, so that a path that is
// not UTF-8 comes back byte for byte.
QString FromBytes(const std::string& bytes)
{
    return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
}

std::string ToBytes(const QString& text)
{
    return text.toLatin1().toStdString();
}

const char* const kSwitches[] = {"list", "export-config", "print-paths", "no-cache", "dry-run"};  // and -h, --help
const char* const kValueOptions[] = {"config", "group", "index-name", "columns", "format", "find", "set"};

template <size_t N>
bool IsOneOf(const QString& name, const char* const (&names)[N])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool TakesValue(const QString& name)
{
    return IsOneOf(name, kValueOptions);
}

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption(QCommandLineOption(QStringList{"h", "help"}));
    for (const char* name : kSwitches)
        parser.addOption(QCommandLineOption(name));
    for (const char* name : kValueOptions)
        parser.addOption(QCommandLineOption(name, QString(), "value"));
}

// The first word that is not an option as this program spells them (the parser alone
// would take --h and -hh for -h), and why: an unknown option, or a value given to an
// option that takes none. -1 when every word is good.
qsizetype FirstRefused(const QStringList& words, std::string& fault)
{
    for (qsizetype i = 0; i < words.size() && words[i] != "--"; ++i) {
        const QString& word = words[i];
        const QString name = word.mid(2).section('=', 0, 0);
        if (!word.startsWith("--")) {
            if (word.startsWith('-') && word != "-" && word != "-h")
                fault = "unknown option " + ToBytes(word);
        } else if (TakesValue(name)) {
            i += word.contains('=') ? 0 : 1;  // its value is the next word
        } else if (word.contains('=')) {
            fault = "--" + ToBytes(name) + " takes no value";
        } else if (name != "help" && !IsOneOf(name, kSwitches)) {
            fault = "unknown option " + ToBytes(word);
        }
        if (!fault.empty())
            return i;
    }
    return -1;
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
        if (!IsDigits(item) || item.size() > 5 || tokens::ToNumber(item) < 1 || tokens::ToNumber(item) > COLUMN_COUNT) {
            error = "--columns takes column ids from 1 to 20 separated by commas, not \"" + item + "\"";
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
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

std::string FieldNames()
{
    std::string names;
    for (const std::string_view name : EDIT_FIELD_NAMES)
        names += (names.empty() ? "" : ", ") + std::string(name);
    return names;
}

// FIELD=VALUE of --set; the value may be empty (clearing the field) and hold "=".
bool ParseSet(const std::string& value, DocInfoEdit& edit, std::string& error)
{
    const size_t equals = value.find('=');
    const std::optional<size_t> field =
        equals == std::string::npos ? std::nullopt : EditFieldByName(std::string_view(value).substr(0, equals));
    if (!field) {
        error = "--set takes FIELD=VALUE with FIELD one of " + FieldNames() + ", not \"" + value + "\"";
        return false;
    }
    edit.values[*field] = value.substr(equals + 1);
    return true;
}

// Options that belong to one mode only.
bool CheckModeOptions(const CommandLine& out, bool formatGiven, std::string& error)
{
    const bool list = out.mode == RunMode::List;
    const bool set = out.mode == RunMode::SetFields;
    if (set && (out.groupGiven || out.findGiven || !out.columns.empty() || formatGiven || !out.indexName.empty() ||
                !out.configPath.empty() || out.noCache))
        error = "--set takes only --dry-run and the files";
    else if (set && out.startPaths.empty())
        error = "--set needs at least one FILE";
    else if (!set && out.dryRun)
        error = "--dry-run is only used with --set";
    else if (!list && out.groupGiven)
        error = "--group is only used with --list";
    else if (!list && out.findGiven)
        error = "--find is only used with --list";
    else if (!list && !out.columns.empty())
        error = "--columns is only used with --list";
    else if (!list && formatGiven)
        error = "--format is only used with --list";
    else if (out.mode != RunMode::Window && out.printPaths)
        error = "--print-paths is only used when the window is opened";
    else if (out.mode == RunMode::ExportConfig && !out.indexName.empty())
        error = "--index-name is not used with --export-config";
    else if (out.mode == RunMode::ExportConfig && out.noCache)
        error = "--no-cache is not used with --export-config";
    else if (out.mode == RunMode::ExportConfig && !out.startPaths.empty())
        error = "--export-config takes no paths";
    return error.empty();
}

// What the options have said so far.
struct Reading {
    CommandLine& out;
    bool modeGiven = false;
    bool formatGiven = false;
};

// One option with its value, as the user meant it: a later value replaces an earlier
// one, and a bad value is an error.
bool TakeOption(const QString& name, const std::string& value, Reading& reading, std::string& error)
{
    CommandLine& out = reading.out;
    if (name == "list" || name == "export-config" || name == "set") {
        const RunMode mode = name == "list"            ? RunMode::List
                             : name == "export-config" ? RunMode::ExportConfig
                                                       : RunMode::SetFields;
        if (reading.modeGiven && out.mode != mode) {
            error = "--list, --export-config and --set cannot be combined";
            return false;
        }
        out.mode = mode;
        reading.modeGiven = true;
        if (mode == RunMode::SetFields)
            return ParseSet(value, out.edit, error);
    } else if (name == "dry-run") {
        out.dryRun = true;
    } else if (name == "print-paths") {
        out.printPaths = true;
    } else if (name == "no-cache") {
        out.noCache = true;
    } else if (name == "config") {
        if (value.empty()) {
            error = "--config needs a file name";
            return false;
        }
        out.configPath = value;
    } else if (name == "group") {
        out.groupName = value;
        out.groupGiven = true;
    } else if (name == "index-name") {
        if (!ValidIndexName(value)) {
            error = "--index-name needs a plain file name, not \"" + value + "\"";
            return false;
        }
        out.indexName = value;
    } else if (name == "find") {
        out.findText = value;
        out.findGiven = true;
    } else if (name == "columns") {
        return ParseColumns(value, out.columns, error);
    } else if (name == "format") {
        const auto format = ParseFormat(value);
        if (!format) {
            error = "--format is one of text, tsv, json, csv, not \"" + value + "\"";
            return false;
        }
        out.format = *format;
        reading.formatGiven = true;
    }
    return true;
}

// The options in the order given; --help ends the reading there.
bool TakeOptions(const QCommandLineParser& parser, Reading& reading, std::string& error)
{
    std::map<QString, qsizetype> used;  // values of each option taken so far
    for (const QString& name : parser.optionNames()) {
        if (name == "h" || name == "help") {
            reading.out.mode = RunMode::Help;
            return true;
        }
        QString value;
        if (TakesValue(name)) {
            const QStringList values = parser.values(name);
            const qsizetype index = used[name]++;
            // The parser stops at an option without its value, the last word.
            if (index >= values.size()) {
                error = "--" + ToBytes(name) + " needs a value";
                return false;
            }
            value = values[index];
        }
        if (!TakeOption(name, ToBytes(value), reading, error))
            return false;
    }
    return true;
}

}  // namespace

bool ParseCommandLine(const std::vector<std::string>& args, CommandLine& out, std::string& error)
{
    out = CommandLine{};
    error.clear();
    const QString program = "docmanager";  // the parser skips the first word
    QStringList words;
    for (const std::string& arg : args)
        words << FromBytes(arg);
    QCommandLineParser parser;
    AddOptions(parser);
    // The words before a refused one are read first, as if the line ended there: --help
    // or a bad value among them is what counts. The parser can then fail only for a value
    // missing at the end, which TakeOptions tells in its place.
    std::string fault;
    const qsizetype refused = FirstRefused(words, fault);
    parser.parse(QStringList(program) + words.mid(0, refused));
    Reading reading{out};
    if (!TakeOptions(parser, reading, error))
        return false;
    if (out.mode == RunMode::Help)
        return true;
    if (!fault.empty()) {
        error = fault;
        return false;
    }
    for (const QString& path : parser.positionalArguments())
        out.startPaths.push_back(ToBytes(path));
    return CheckModeOptions(out, reading.formatGiven, error);
}

std::string UsageText()
{
    return "Usage:\n"
           "  docmanager [--config FILE] [--index-name NAME] [--no-cache] [--print-paths] [START_PATH...]\n"
           "  docmanager --list [--config FILE] [--group NAME] [--index-name NAME] [--no-cache]\n"
           "                    [--columns ID,ID,...] [--format text|tsv|json|csv] [--find TEXT]\n"
           "                    [START_PATH...]\n"
           "  docmanager --export-config [--config FILE]\n"
           "  docmanager --set FIELD=VALUE [--set FIELD=VALUE ...] [--dry-run] FILE...\n"
           "\n"
           "Without --list or --export-config the document manager window opens.\n"
           "A START_PATH ending in \"/**\" includes its subdirectories; the paths are used\n"
           "when the group in force has no active directory.\n"
           "--find lists only the rows that show TEXT in one of their columns, ignoring case.\n"
           "--no-cache reads the documents without the per-user cache (~/.cache/docmanager).\n"
           "Column ids: 1 file name, 2 size, 3 title, 4 topic, 5/6 created date/time,\n"
           "7 author, 8/9/10 modified date/time/by, 11/12/13 printed date/time/by,\n"
           "14 comment, 15 keywords, 16-19 information fields, 20 directory.\n"
           "--set FIELD: title, topic, author, keywords, comment, info1 to info4; each FILE is\n"
           "written through a temporary file; --dry-run shows old and new values only.\n"
           "Exit status: 0 success, 1 a file was not written, 2 bad arguments.\n";
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
