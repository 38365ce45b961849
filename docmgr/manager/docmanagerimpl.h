#pragma once
// Inside of DocManager, shared by its files and by the module's tests and benchmarks: the
// dialog's steps and handlers, the controls in the order of the dialog, then the settings
// and the strings the host gave. It is the list's host: the list reads the host's
// document information and runs the file commands through it.
#include <QFontMetrics>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/manager/docmanager.h"
#include "docmgr/tools/fileundo.h"
#include "docmgr/view/doclisthost.h"

class DocBrowser;
class DocCommandMenu;
class DocFolderWatch;
class DocMgrResId;
class DocSummaryWindow;
class QAction;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

class DocManagerImpl final : public DocListHost {
public:
    explicit DocManagerImpl(DocManager& owner) : manager(owner) {}

    // The inside of `manager`, for tests and benchmarks that drive its steps without the
    // modal loop.
    static DocManagerImpl& Of(DocManager& manager) { return *manager.d; }
    static const DocManagerImpl& Of(const DocManager& manager) { return *manager.d; }

    // DocListHost: the host's operations, with the manager as the editor's parent.
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    void ReadAhead(const std::vector<std::string>& paths) override;
    bool ChangeDocInfo(const std::string& path) override;
    // Runs file command `id` on the selected rows: the commands menu and the list's
    // context menu.
    void Command(unsigned short id) override;

    // The steps of the dialog, in the order a run uses them.
    void BuildControls();
    void Init();
    void ResizeBrowser();
    void FillSectionBox(bool collect);
    void SelectSection(const std::string& section, bool collect);
    void CollectFiles();
    void WatchControls();
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
    // The find key opens the find bar (or goes back to its field); its field narrows the
    // shown rows as it is typed in; Escape in the bar closes it and shows every row.
    void FindHdl();
    void FindFieldHdl();
    void FindCloseHdl();
    // The refresh key: the list is collected again at once, keeping selection and scroll.
    void RefreshHdl();
    // The watched folders changed: the same, when the dialog is up.
    void FolderWatchHdl();

    // Path list for collecting: the path line's text (active paths) or the start paths.
    std::string GetCollectPaths() const;
    void SetPathLine(const std::string& text);
    QString SelectedGroupName() const;
    bool IsSingleView() const;
    // Paths of the selected rows in list order.
    std::vector<std::string> SelectedPaths() const;
    // "n of m documents" beside the find field.
    void ShowFindCount();

    DocManager& manager;
    QLabel* sectionLabel = nullptr;
    QListWidget* sectionList = nullptr;
    QLabel* groupLabel = nullptr;
    QListWidget* groupList = nullptr;
    QCheckBox* singleViewBox = nullptr;
    QCheckBox* readOnlyBox = nullptr;
    QPushButton* openButton = nullptr;
    QPushButton* closeButton = nullptr;
    QToolButton* commandsButton = nullptr;
    DocCommandMenu* commandMenu = nullptr;
    QLabel* pathLine = nullptr;
    DocBrowser* browser = nullptr;
    QPushButton* groupsButton = nullptr;
    QPushButton* pathsButton = nullptr;
    QPushButton* filterButton = nullptr;
    QPushButton* sortButton = nullptr;
    QPushButton* columnsButton = nullptr;
    // Hidden until the find key: the dialog keeps its layout without it.
    QWidget* findBar = nullptr;
    QLineEdit* findField = nullptr;
    QLabel* findCount = nullptr;
    DocFolderWatch* folderWatch = nullptr;
    // The list and, in single view, the summary pane beside it.
    QHBoxLayout* listRow = nullptr;

    std::string configName;  // kept; the configuration file name is fixed
    Config* hostConfig = nullptr;
    std::unique_ptr<Config> ownConfig;  // "dmgdump.cfg" when the host gave none
    std::unique_ptr<ImplDocConfig> settings;
    DocSummaryWindow* summary = nullptr;
    bool changed = false;
    std::string startPaths;
    bool openMode = false;
    std::string pathLineText;
    std::string dirFileName;
    std::string defExtensions;
    // The file commands done in this run of the dialog, to be taken back one by one.
    fileundo::UndoStack undo;

private:
    // The parts of the dialog BuildControls puts together; each makes its controls and
    // returns their layout, when they have one of their own.
    QLayout* BuildChoice(const DocMgrResId& res);
    QLayout* BuildViewOptions(const DocMgrResId& res);
    void BuildDialogButtons(const DocMgrResId& res);
    void BuildPathLine();
    void BuildFindBar(const DocMgrResId& res);
    void BuildBrowser();
    void BuildSettingsButtons(const DocMgrResId& res);
    QLayout* ButtonColumn();
    // What the list reports: its count line, its selection, a double click, printing.
    void ConnectBrowser();
    void ConnectHandlers();
    void DeleteSelected();
    // Deletes the selected files that no trash took, after asking; nothing is undone.
    void DeleteForGood(const std::vector<std::string>& paths);
    // Writes one edit into the selected documents after a preview: one undo step.
    void EditSelectedInfos();
    // Takes the last step back (`back`) or does it again; the list is collected afterwards.
    void TakeBack(bool back);
    void ExportList();
    template <class Dialog>
    bool RunSettingsDialog();
};

// Dialog units of the application font: a quarter of the average character width
// across, an eighth of the character height down.
inline int DialogUnitsX(const QWidget* widget, int units)
{
    return units * QFontMetrics(widget->font()).averageCharWidth() / 4;
}

inline int DialogUnitsY(const QWidget* widget, int units)
{
    return units * QFontMetrics(widget->font()).height() / 8;
}
