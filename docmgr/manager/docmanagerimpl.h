#pragma once
// Inside of DocManager, shared by its files: the controls in the order of the dialog,
// then the settings and the strings the host gave.
#include <QFontMetrics>
#include <QWidget>
#include <memory>
#include <string>

#include "docmgr/manager/docmanager.h"

class DocCommandMenu;
class DocSummaryWindow;
class QHBoxLayout;

struct DocManager::Impl {
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
