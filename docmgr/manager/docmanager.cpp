// Construction, the run and the public interface of the document manager dialog.
#include "docmgr/manager/docmanager.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/view/docfolderwatch.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/docsummarywindow.h"
#include "resources/resids.h"

namespace {
// Used when the host gives no configuration of its own, whatever name it gave.
constexpr const char* FALLBACK_CONFIG = "dmgdump.cfg";
}  // namespace

DocManager::DocManager(QWidget* parent, const std::string& name, const std::string& startPaths, bool openMode)
    : DocManager(parent, static_cast<Config*>(nullptr), startPaths, openMode)
{
    d->configName = name;
}

DocManager::DocManager(QWidget* parent, Config* config, const std::string& startPaths, bool openMode)
    : QDialog(parent), d(std::make_unique<DocManagerImpl>(*this))
{
    d->hostConfig = config;
    d->openMode = openMode;
    // The bare subdirectory marker is what hosts pass for "no start path".
    d->startPaths = startPaths == ResString(STR_SUBDIR_MARKER) ? std::string() : startPaths;
    d->dirFileName = ResString(STR_INDEX_NAME);
    d->defExtensions = ResString(STR_DEF_EXTENSIONS);
    d->BuildControls();
}

DocManager::~DocManager()
{
    // The list and the pane ask the manager while they go; let them go first.
    delete d->summary;
    d->summary = nullptr;
    delete d->browser;
    d->browser = nullptr;
}

void DocManager::SetDirFileName(const std::string& name)
{
    d->dirFileName = name;
}
const std::string& DocManager::GetDirFileName() const
{
    return d->dirFileName;
}
void DocManager::SetDefExtensions(const std::string& extensions)
{
    d->defExtensions = extensions;
}
const std::string& DocManager::GetDefExtensions() const
{
    return d->defExtensions;
}

short DocManager::Execute()
{
    if (!d->settings)
        d->Init();
    else
        d->CollectFiles();  // later runs keep the settings and show the list afresh
    const int result = exec();
    d->folderWatch->Stop();  // nobody sees the list until the next run collects it
    return static_cast<short>(result);
}

const std::string* DocManager::GetFirstDoc()
{
    return d->browser ? d->browser->GetFirstDoc() : nullptr;
}
const std::string* DocManager::GetNextDoc()
{
    return d->browser ? d->browser->GetNextDoc() : nullptr;
}

bool DocManager::IsReadOnly() const
{
    return d->openMode && !d->readOnlyBox->isHidden() && d->readOnlyBox->isChecked();
}

std::string DocManager::GetConfig() const
{
    return d->settings ? d->settings->Export() : std::string();
}

std::array<std::string, 4> DocManager::GetInfoLabels() const
{
    return d->settings ? d->settings->WorkingGroup().infoLabel : std::array<std::string, 4>();
}

void DocManager::ReadAhead(const std::vector<std::string>& /*files*/)
{}

DocWriteResult DocManager::WriteDocInfo(const std::string& /*file*/, const DocInfoEdit& /*edit*/, bool /*checkOnly*/,
                                        std::string& /*reason*/)
{
    return DocWriteResult::NotSupported;
}

void DocManager::reject()
{
    d->CloseHdl();
}

void DocManagerImpl::Init()
{
    Config* config = hostConfig;
    if (!config) {
        ownConfig = std::make_unique<Config>(FALLBACK_CONFIG);
        config = ownConfig.get();
    }
    QWidget* host = manager.parentWidget();
    // Read before a first group may be made: that writes the groups, not "GENERAL".
    const bool hadGeneral = config->HasGroup("GENERAL");
    settings = std::make_unique<ImplDocConfig>(config, defExtensions,
                                               [host](const std::string& message) { DocInfoBox(host, message); });
    // A file whose groups were written without the general section (a first group made by
    // "docmanager --export-config") has no group in force; its first group is meant, or
    // the window would open with an empty group list.
    if (!hadGeneral && settings->actualGroup == 0 && settings->GroupCount() > 0)
        settings->SetCurGroup(0);
    browser->Initialize(settings.get());
    QFont pathFont = pathLine->font();
    pathFont.setWeight(QFont::Normal);
    pathLine->setFont(pathFont);
    ConnectHandlers();
    if (!openMode)
        readOnlyBox->hide();
    singleViewBox->setChecked(settings->singleView);
    ResizeBrowser();
    openButton->setText(QString::fromStdString(ResString(openMode ? STR_OPEN : STR_SELECT)));
    FillSectionBox(true);
    browser->setFocus();
}

// The host's operations, as the list and the pane ask for them.
std::unique_ptr<DocInfo> DocManagerImpl::CreateDocInfo(const std::string& path)
{
    return manager.CreateDocInfo(path);
}

void DocManagerImpl::ReadAhead(const std::vector<std::string>& paths)
{
    manager.ReadAhead(paths);
}

bool DocManagerImpl::IsSingleView() const
{
    return singleViewBox->isChecked();
}

QString DocManagerImpl::SelectedGroupName() const
{
    const QListWidgetItem* item = groupList->currentItem();
    return item ? item->text() : QString();
}

std::string DocManagerImpl::GetCollectPaths() const
{
    return pathLineText.empty() ? startPaths : pathLineText;
}

void DocManagerImpl::SetPathLine(const std::string& text)
{
    pathLineText = text;
    pathLine->setText(QString::fromStdString(text));
    pathLine->setToolTip(pathLine->text());  // the line may be cut off at the right
}
