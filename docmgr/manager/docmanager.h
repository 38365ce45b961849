#pragma once
// The document manager module's public interface: the host derives from DocManager,
// supplies CreateDocInfo and ChangeDocInfo, creates a DocManagerDll around its use,
// runs Execute and walks the chosen documents with GetFirstDoc / GetNextDoc.
#include <QDialog>
#include <memory>
#include <string>

#include "docmgr/records/docinfo.h"

class Config;
class ImplDocConfig;
class DocBrowser;
class DocSummaryWindow;
class QLabel;
class QListWidget;
class QCheckBox;
class QPushButton;
class QToolButton;
class QMenu;
class QAction;
class ResModule;

// Results of Execute besides 0 (closed) and 1 (open).
constexpr int RET_PRINTDOCS = 10;

// Command ids of the commands menu and of the list's context menu.
enum DocCommand : unsigned short {
    CMD_DELETE = 20, CMD_DOCINFO = 21, CMD_COPY = 22, CMD_RENAME = 23,
    CMD_PRINTDOCS = 24, CMD_PRINTLIST = 25
};

class DocManager : public QDialog {
    Q_OBJECT
public:
    // `name` is kept but the configuration file is "dmgdump.cfg" in the current directory.
    DocManager(QWidget* parent, const std::string& name, const std::string& startPaths, bool openMode);
    // The settings are read from and written to the host's `config` (not owned).
    DocManager(QWidget* parent, Config* config, const std::string& startPaths, bool openMode);
    ~DocManager() override;

    // Host: a new DocInfo for `file`, or null when it is not a document.
    virtual std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) = 0;
    // Host: lets the user edit the information of `file`; true when it changed.
    virtual bool ChangeDocInfo(QWidget* parent, const std::string& file) = 0;

    void SetDirFileName(const std::string& name);
    const std::string& GetDirFileName() const;
    void SetDefExtensions(const std::string& extensions);
    const std::string& GetDefExtensions() const;

    // First call: reads the settings and collects; later calls collect again. Then runs
    // the dialog modally: 0 closed, 1 open, RET_PRINTDOCS print the chosen documents.
    short Execute();
    // The chosen documents' absolute paths one by one; null after the last.
    const std::string* GetFirstDoc();
    const std::string* GetNextDoc();
    bool IsReadOnly() const;
    // One-line text of the whole configuration ("@DocManager[2.1]...").
    std::string GetConfig() const;
    bool IsAvailable() const { return true; }

    // For the module's own views and dialogs.
    ImplDocConfig* GetSettings() const;
    DocBrowser* GetBrowser() const;
    DocSummaryWindow* GetSummaryWindow() const;
    bool IsOpenMode() const;
    bool IsSingleView() const;          // the single-view box is checked
    QString GetSelectedGroupName() const;  // selected entry of the group list
    QListWidget* GetGroupList() const;
    void Command(unsigned short id);
    void WatchControls();
    void CollectFiles();
    // Path list for collecting: the path line's text (active paths) or the start paths.
    std::string GetCollectPaths() const;
    void SetPathLine(const std::string& text);
    std::string GetPathLine() const;
    QPushButton* GetOpenButton() const;
    // Escape and the window's close box act as the close button.
    void reject() override;
    // Whether a confirmed settings dialog changed the working group since it was chosen.
    bool IsChanged() const;

protected:
    // The steps of the dialog, in the order a run uses them.
    void Init();
    void ResizeBrowser();
    void FillSectionBox(bool collect);
    void SelectSection(const std::string& section, bool collect);
    // Asks whether changed settings are to be kept in the current group.
    void QuerySave();

    // Handlers of the controls.
    void CommandsHdl(QAction* item);
    void SectionHdl();
    void GroupHdl();
    void SummaryHdl();
    void OpenHdl();
    void CloseHdl();
    void GroupsHdl();
    void PathsHdl();
    void FilterHdl();
    void SortHdl();
    void ColumnsHdl();

private:
    void BuildControls();
    void ConnectHandlers();
    void DeleteSelected();
    template <class Dialog> bool RunSettingsDialog();

    struct Impl;
    std::unique_ptr<Impl> d;
    friend struct Impl;
};

// Brackets the use of the module: creates the resource manager of the module's texts
// (application-data slot 36) in the system's language, and deletes it again.
class DocManagerDll {
public:
    DocManagerDll();
    ~DocManagerDll();
    DocManagerDll(const DocManagerDll&) = delete;
    DocManagerDll& operator=(const DocManagerDll&) = delete;

private:
    std::unique_ptr<ResModule> module_;
};
