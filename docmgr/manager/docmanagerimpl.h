#pragma once
// Inside of DocManager, shared by its files and by the module's tests: the controls in the
// order of the dialog, then the settings and the strings the host gave. It is the list's
// host: the list asks the manager's virtual operations and commands through it.
#include <QFontMetrics>
#include <QWidget>
#include <memory>
#include <string>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/manager/docmanager.h"
#include "docmgr/view/doclisthost.h"

class DocBrowser;
class DocCommandMenu;
class DocSummaryWindow;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QToolButton;

struct DocManager::Impl final : DocListHost {
    explicit Impl(DocManager& owner) : manager(owner) {}

    // DocListHost: the host's operations, with the manager as the editor's parent.
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    bool ChangeDocInfo(const std::string& path) override;
    void ReadAhead(const std::vector<std::string>& paths) override;
    void Command(unsigned short id) override;

    // Path list for collecting: the path line's text (active paths) or the start paths.
    std::string GetCollectPaths() const;
    void SetPathLine(const std::string& text);
    QString SelectedGroupName() const;
    bool IsSingleView() const;

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
