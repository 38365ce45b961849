#include "host/readers/docedit.h"

#include "docmgr/tools/fsutil.h"
#include "host/readers/docformat.h"
#include "host/readers/docreader.h"
#include "host/readers/docwriter.h"
#include "host/readers/formatwriters.h"

namespace {

// Office programs leave these beside a document they have open; writing it then would be
// overwritten by their next save, or lost to them.
bool IsOpenInOffice(const std::string& path)
{
    const std::string dir = fsutil::DirName(path);
    const std::string name = fsutil::FileName(path);
    return fsutil::Exists(fsutil::Join(dir, ".~lock." + name + "#")) || fsutil::Exists(fsutil::Join(dir, "~$" + name));
}

std::string ReadRefusal(const DocReading& reading)
{
    if (!reading.info)
        return "it is not a document this program can read";
    if (reading.problem != ReadProblem::None && reading.problem != ReadProblem::NoInformation)
        return "the document is " + std::string(ProblemText(reading.problem));
    return {};
}

DocMeta MetaOf(const DocInfo& info, const std::array<std::string, 4>& infoNames)
{
    DocMeta meta;
    meta.title = info.title;
    meta.topic = info.topic;
    meta.author = info.author;
    meta.keywords = info.keywords;
    meta.comment = info.comment;
    meta.info = info.info;
    meta.infoNames = infoNames;
    return meta;
}

}  // namespace

std::string EditRefusal(const std::string& path, const DocInfoEdit& edit)
{
    if (!fsutil::IsFile(path))
        return "the file does not exist";
    if (!IsEditableKind(path))
        return writeerrors::readOnlyKind;
    // Written, it would not be read back: a PDF keeps no comment this program reads.
    if (edit.values[4] && ReadSignature(path) == Signature::Pdf)
        return "a PDF document has no comment field";
    if (IsOpenInOffice(path))
        return "the document is locked: an office program has it open";
    return ReadRefusal(ReadDocument(path));
}

bool EditDocInfo(const std::string& path, const DocInfoEdit& edit, const std::array<std::string, 4>& infoNames,
                 bool dryRun, DocInfo& before, DocInfo& after, std::string& error)
{
    error = EditRefusal(path, edit);
    if (!error.empty())
        return false;
    const DocReading reading = ReadDocument(path);
    before = *reading.info;
    after = before;
    edit.ApplyTo(after);
    if (dryRun)
        return true;
    DocMeta meta = MetaOf(after, infoNames);
    // The author is written only when asked for: the dialog has no field for it.
    if (!edit.values[2])
        meta.author.reset();
    return WriteDocMeta(path, meta, error);
}

bool WriteDocEdit(const std::string& path, const DocInfoEdit& edit, const std::array<std::string, 4>& infoNames,
                  bool checkOnly, std::string& reason)
{
    if (checkOnly) {
        reason = EditRefusal(path, edit);
        return reason.empty();
    }
    DocInfo before, after;
    return EditDocInfo(path, edit, infoNames, false, before, after, reason);
}
