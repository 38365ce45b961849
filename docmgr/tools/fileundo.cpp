#include "docmgr/tools/fileundo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QString>
#include <cerrno>
#include <filesystem>

#include "docmgr/tools/docfileops.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/replacefile.h"

namespace fileundo {

namespace {

bool IsAt(const std::string& path, const Stamp& stamp)
{
    const std::optional<Stamp> now = StampOf(path);
    return now && *now == stamp;
}

// The new contents come from `source` through a file beside `path`, so that a failure
// leaves `path` as it is.
int ReplaceContents(const std::string& path, const std::string& source)
{
    replacefile::SiblingFile temp(path);
    if (const int error = temp.Create())
        return error;
    std::error_code ec;
    std::filesystem::copy_file(source, temp.Path(), std::filesystem::copy_options::overwrite_existing, ec);
    if (ec)
        return ec.value() ? ec.value() : EIO;
    return temp.ReplaceTarget({});
}

// The trash keeps a note beside each file (files/NAME, info/NAME.trashinfo); a file
// taken out goes without it.
void RemoveTrashNote(const std::string& trashPath)
{
    const std::string trash = fsutil::DirName(fsutil::DirName(trashPath));
    fsutil::Remove(fsutil::Join(fsutil::Join(trash, "info"), fsutil::FileName(trashPath) + ".trashinfo"));
}

bool CanUndo(const Action& a)
{
    switch (a.kind) {
    case ActionKind::Move:
    case ActionKind::Trash: return IsAt(a.to, a.stamp) && !fsutil::Exists(a.from);
    // Removing a copy is safe only while the original is still there.
    case ActionKind::Copy: return IsAt(a.to, a.stamp) && fsutil::IsFile(a.from);
    case ActionKind::Content: return IsAt(a.from, a.stamp) && fsutil::IsFile(a.before);
    }
    return false;
}

bool CanRedo(const Action& a)
{
    switch (a.kind) {
    case ActionKind::Move: return IsAt(a.from, a.stamp) && !fsutil::Exists(a.to);
    case ActionKind::Trash: return IsAt(a.from, a.stamp);
    case ActionKind::Copy: return fsutil::IsFile(a.from) && !fsutil::Exists(a.to);
    case ActionKind::Content: return IsAt(a.from, a.stamp) && fsutil::IsFile(a.after);
    }
    return false;
}

// Takes `a` back; 0 or an errno value. The stamp becomes that of the file as it is now.
int UndoAction(Action& a)
{
    switch (a.kind) {
    case ActionKind::Move: return docfileops::MoveTo(a.to, a.from);
    case ActionKind::Trash: {
        const int error = fsutil::MoveFile(a.to, a.from);
        if (error == 0)
            RemoveTrashNote(a.to);
        return error;
    }
    case ActionKind::Copy: return fsutil::Remove(a.to);
    case ActionKind::Content: {
        const int error = ReplaceContents(a.from, a.before);
        if (error == 0)
            a.stamp = StampOf(a.from).value_or(Stamp{});
        return error;
    }
    }
    return EINVAL;
}

int RedoAction(Action& a)
{
    switch (a.kind) {
    case ActionKind::Move: return docfileops::MoveTo(a.from, a.to);
    case ActionKind::Trash: return MoveToTrash(a.from, a.to) ? 0 : EIO;
    case ActionKind::Copy: {
        const int error = fsutil::CopyFile(a.from, a.to);
        if (error == 0)
            a.stamp = StampOf(a.to).value_or(Stamp{});
        return error;
    }
    case ActionKind::Content: {
        const int error = ReplaceContents(a.from, a.after);
        if (error == 0)
            a.stamp = StampOf(a.from).value_or(Stamp{});
        return error;
    }
    }
    return EINVAL;
}

// Where the action's file is after an undo (or a redo); empty when it is in the trash.
std::string PlaceAfter(const Action& a, bool undo)
{
    if (undo)
        return a.from;
    return a.kind == ActionKind::Trash ? std::string() : a.kind == ActionKind::Content ? a.from : a.to;
}

// Checks every action first, so that a step with one changed file does nothing, then
// runs them (an undo from the last action back). A refusal midway drops the step, since
// its files are then partly back.
Result Run(std::vector<Step>& from, std::vector<Step>& to, bool undo)
{
    Result result;
    if (from.empty())
        return result;
    Step step = std::move(from.back());
    from.pop_back();
    for (const Action& a : step.actions) {
        if (!(undo ? CanUndo(a) : CanRedo(a))) {
            result.outcome = Outcome::Stale;
            result.path = a.kind == ActionKind::Content || !undo || (a.kind == ActionKind::Copy && IsAt(a.to, a.stamp))
                              ? a.from
                              : a.to;
            return result;  // the step can no longer be taken; it is dropped
        }
    }
    const size_t n = step.actions.size();
    for (size_t i = 0; i < n; ++i) {
        Action& a = step.actions[undo ? n - 1 - i : i];
        if (const int error = undo ? UndoAction(a) : RedoAction(a)) {
            result.outcome = Outcome::Failed;
            result.path = a.from;
            result.error = error;
            return result;
        }
        if (std::string place = PlaceAfter(a, undo); !place.empty())
            result.paths.push_back(std::move(place));
    }
    result.outcome = Outcome::Done;
    to.push_back(std::move(step));
    return result;
}

}  // namespace

std::optional<Stamp> StampOf(const std::string& path)
{
    Stamp stamp;
    if (!fsutil::IsPlainFile(path) || !fsutil::Stat(path, stamp.size, stamp.mtimeNs))
        return std::nullopt;
    return stamp;
}

bool MoveToTrash(const std::string& path, std::string& trashPath)
{
    // Qt falls back on the user's trash, and where that cannot be made it moves the file
    // into "files" below the current directory and calls that the trash. So the user's
    // trash is made first, as the desktop would, and without it no file goes anywhere.
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString trash = dataHome + QStringLiteral("/Trash");
    if (dataHome.isEmpty())
        return false;
    if (!QFileInfo(trash).isDir()) {
        if (!QDir().mkpath(trash))
            return false;
        QFile::setPermissions(trash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString inTrash;
    if (!QFile::moveToTrash(QString::fromStdString(path), &inTrash))
        return false;
    trashPath = inTrash.toStdString();
    return true;
}

UndoStack::UndoStack() = default;
UndoStack::~UndoStack() = default;

void UndoStack::Push(Step step)
{
    if (step.actions.empty())
        return;
    done_.push_back(std::move(step));
    undone_.clear();
}

Result UndoStack::Undo()
{
    return Run(done_, undone_, true);
}

Result UndoStack::Redo()
{
    return Run(undone_, done_, false);
}

std::string UndoStack::KeepCopy(const std::string& path)
{
    if (!copies_)
        copies_ = std::make_unique<QTemporaryDir>();
    if (!copies_->isValid())
        return {};
    const std::string copy = fsutil::Join(copies_->path().toStdString(), std::to_string(++copyCount_));
    return fsutil::CopyFile(path, copy) == 0 ? copy : std::string();
}

}  // namespace fileundo
