#pragma once
#include <QDialog>

class ImplDocConfig;
class QGroupBox;
class QListWidget;
class QPushButton;
class QRadioButton;

// Chooses the sort column and direction of one group; result 1 after OK.
// List position p shows the title of column p + 1 but stores sort column p (position 0:
// no sort, 65535); this one-place offset is intended.
class DocSortDialog : public QDialog {
    Q_OBJECT
public:
    DocSortDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocSortDialog() override;

    void SelectHdl();  // direction buttons follow the "no sort" entry
    void OKHdl();

    // The direction kept by all sort dialogs of the process while "no sort" is chosen.
    static bool RememberedAscending();
    static void SetRememberedAscending(bool ascending);

private:
    // Checks one direction button (or neither) without the buttons' mutual exclusion.
    void CheckDirection(bool ascending, bool descending);

    ImplDocConfig* config_;
    unsigned short group_;
    QListWidget* columnList_;
    QRadioButton* ascendingButton_;
    QRadioButton* descendingButton_;
    QGroupBox* directionFrame_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};
