#pragma once
// Taking file commands back: each step records what it did to which files and how it left
// them, so that a later undo or redo acts only on files that are still as the step left
// them. A step that finds any of its files changed does nothing at all.
#include <QTemporaryDir>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fileundo {

// What tells a file's version apart: size and modification time.
struct Stamp {
    uint64_t size = 0;
    int64_t mtimeNs = 0;
    bool operator==(const Stamp&) const = default;
};
std::optional<Stamp> StampOf(const std::string& path);

enum class ActionKind {
    Move,     // `from` was renamed or moved to `to`
    Copy,     // `to` was made as a copy of `from`
    Trash,    // `from` went to the trash, where it is `to`
    Content,  // the contents of `from` changed from the copy `before` to the copy `after`
};

struct Action {
    ActionKind kind = ActionKind::Move;
    std::string from;
    std::string to;
    Stamp stamp;  // the file as the action left it: at `to`, or at `from` for Content
    std::string before, after;
};

struct Step {
    std::vector<Action> actions;
};

enum class Outcome {
    Nothing,  // nothing to take back or do again
    Done,
    Stale,   // a file changed meanwhile; nothing was done
    Failed,  // the file system refused; `error` says why
};

struct Result {
    Outcome outcome = Outcome::Nothing;
    std::string path;  // the file that was changed or that refused
    int error = 0;
    std::vector<std::string> paths;  // where the step's files are afterwards
};

// Moves `path` to the desktop's trash; its place there in `trashPath`. False where no
// trash can take it.
bool MoveToTrash(const std::string& path, std::string& trashPath);

class UndoStack {
public:
    UndoStack();
    ~UndoStack();

    // A step just done; what was taken back before can no longer be done again.
    void Push(Step step);
    bool CanUndo() const { return !done_.empty(); }
    bool CanRedo() const { return !undone_.empty(); }
    Result Undo();
    Result Redo();

    // A copy of `path` in the stack's private folder, for a Content action; empty when
    // it cannot be made.
    std::string KeepCopy(const std::string& path);

private:
    std::vector<Step> done_;
    std::vector<Step> undone_;
    std::unique_ptr<QTemporaryDir> copies_;
    unsigned copyCount_ = 0;
};

}  // namespace fileundo
