#pragma once
// A list box that shows the file system as an indented, expandable tree of directories.
#include <QElapsedTimer>
#include <QListWidget>
#include <string>

class ImplDocConfig;

// Entry 0 is the root "/"; every other entry is 2 x depth spaces, "+" (open) or "-"
// (closed), a space and the directory's name. Siblings are ordered without regard to
// letter case; directories on the configuration's exception list are left out. Hidden
// ones (a name starting with ".") are listed like the others unless the user hides them
// from the tree's context menu.
class DocDirBox : public QListWidget {
    Q_OBJECT
public:
    // `config` may be null (no exception list); it is not owned. Reads the root at once.
    DocDirBox(QWidget* parent, const ImplDocConfig* config);
    ~DocDirBox() override;

    // Clears the tree, inserts the root and opens it.
    void ReadDirs();
    // Opens a closed entry or closes an open one; the root is opened, never closed.
    void ToggleDir(unsigned short pos);
    // Full path of the entry at `pos`, without a trailing delimiter; empty for an empty tree.
    std::string GetDir(unsigned short pos) const;
    // Opens the tree down to `path` and selects its entry; call it on a freshly read tree.
    void SelectDir(const std::string& path);
    // Position of the selected entry; 0xFFFF when none is selected.
    unsigned short GetSelectedPos() const;
    // Toggles the selected entry unless it is the root (double click).
    void DoubleClick();
    // Shows or hides the hidden directories; the tree is read again and the selected
    // directory stays selected (the context menu offers this).
    void SetShowHidden(bool show);
    bool ShowsHidden() const { return showHidden_; }
    // Whether Enter opens and closes entries (true) or is left to the dialog's default
    // button, where picking the entry is what confirms the dialog (the copy dialog).
    void SetEnterOpens(bool opens) { enterOpens_ = opens; }

signals:
    // The selected entry changed; `pos` as GetSelectedPos gives it.
    void DirSelected(unsigned short pos);

protected:
    // Enter toggles the selected entry (unless SetEnterOpens(false)), Right/Plus opens it,
    // Left/Minus closes it or moves to its parent.
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

public:
    // Typing a directory's first letters selects the next entry of that name.
    void keyboardSearch(const QString& search) override;

private:
    const ImplDocConfig* config_;
    bool showHidden_ = true;
    bool enterOpens_ = true;
    QString typed_;
    QElapsedTimer typedTimer_;
};
