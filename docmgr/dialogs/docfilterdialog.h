#pragma once
#include <QDialog>
#include <memory>

class ImplDocConfig;
class QComboBox;
class QDialogButtonBox;
class QGroupBox;

// Edits the filter fields of one group in place when confirmed with OK (result 1):
// the four text patterns and the file pattern, the case flag, three condition rows
// and the two links between them. Saves nothing itself.
class DocFilterDialog : public QDialog {
    Q_OBJECT
public:
    // `group` 0xFFFF edits the working group, else user group `group`.
    DocFilterDialog(QWidget* parent, ImplDocConfig* config, unsigned short group);
    ~DocFilterDialog() override;

private:
    void OKHdl();
    // A row's field or condition changed: show the entry its comparison reads.
    void FieldHdl(int row);
    // A link changed: rows after an end link are not used.
    void LinkHdl();
    void Fill();
    void UpdateRows();
    // The text filters with their captions.
    QGroupBox* BuildTextFrame();
    // The condition rows and the links between them.
    QGroupBox* BuildConditionFrame();
    QComboBox* BuildLinkList(QWidget* frame, int row);
    QDialogButtonBox* BuildButtons();

    struct Impl;
    std::unique_ptr<Impl> d;
};
