#pragma once
#include <QDialog>
#include <string>
#include <vector>

class ImplDocConfig;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QToolButton;

// Creates, renames, moves, deletes and configures the named groups; result 1 when the
// caller must take the actual group anew. Every change goes straight into the
// configuration, which is saved on both ways out.
class DocGroupsDialog : public QDialog {
    Q_OBJECT
public:
    // `mainGroupName` is the group chosen in the main dialog.
    DocGroupsDialog(QWidget* parent, ImplDocConfig* config, const QString& mainGroupName);
    ~DocGroupsDialog() override;

    void SelectHdl();  // group list selection
    void ModifyHdl();  // name or section text typed: change only for a usable, free name
    void ChangeHdl();  // renames and/or moves the edited group to another section
    void NewHdl();
    void DeleteHdl();
    void SettingsHdl(unsigned short item);  // a GroupSettingsItem
    void OKHdl();
    void CancelHdl();
    void MoreHdl(bool expanded);  // shows or hides the editing controls

    // A change touched the group selected in the main dialog.
    bool IsMainGroupChanged() const { return mainGroupChanged_; }
    unsigned short GetEditedGroup() const { return editedGroup_; }

    // Escape and the window's close box take the cancel button's way.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void BuildSettingsButton();
    void LayOutControls();
    void ConnectHandlers();
    void FillGroups();
    void FillSections();
    // Selects a list entry without running the selection handler.
    void SelectRow(int row);
    bool ListHolds(const QString& name) const;
    QString SelectedName() const;
    unsigned short SelectedPos() const;
    bool IsProtected(const QString& name) const;
    QString MainGroupName() const;
    void AddSection(const QString& section);

    ImplDocConfig* config_;
    QString mainGroupName_;
    unsigned short editedGroup_ = 0xFFFF;
    bool mainGroupChanged_ = false;
    bool nameModified_ = false;
    bool sectionModified_ = false;
    QListWidget* groupList_;
    QGroupBox* frame_;
    QLabel* nameLabel_;
    QLineEdit* nameEdit_;
    QLabel* sectionLabel_;
    QComboBox* sectionBox_;
    QGroupBox* editFrame_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    QToolButton* settingsButton_;
    QMenu* settingsMenu_;
    QPushButton* moreButton_;
    QPushButton* newButton_;
    QPushButton* changeButton_;
    QPushButton* deleteButton_;
    std::vector<QWidget*> attached_;  // shown and hidden with the more button
};
