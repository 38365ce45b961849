#include "host/cli/setfields.h"

#include "host/readers/docedit.h"

namespace {

// A value quoted, so that an empty one and blanks at its ends show.
std::string Quoted(const std::string& value)
{
    std::string text = "\"";
    for (const char c : value) {
        if (c == '"' || c == '\\')
            text += '\\';
        if (c == '\n')
            text += "\\n";
        else
            text += c;
    }
    return text + "\"";
}

}  // namespace

int RunSetFields(const CommandLine& cmd, std::ostream& out, std::ostream& err)
{
    int status = 0;
    for (const std::string& path : cmd.startPaths) {
        DocInfo before, after;
        std::string error;
        // The information fields keep their places under their default names.
        if (!EditDocInfo(path, cmd.edit, {}, cmd.dryRun, before, after, error)) {
            err << "docmanager: " << path << ": not written: " << error << '\n';
            status = 1;
            continue;
        }
        if (!cmd.dryRun)
            continue;
        out << path << '\n';
        for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f)
            if (cmd.edit.values[f])
                out << "  " << EDIT_FIELD_NAMES[f] << ": " << Quoted(EditFieldText(before, f)) << " -> "
                    << Quoted(EditFieldText(after, f)) << '\n';
    }
    return status;
}
