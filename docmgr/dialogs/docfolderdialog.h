#pragma once
// Creates a new folder below a base directory; opened from the copy dialog. Result 1
// after OK, also when the folder could not be made.
#include <QDialog>
#include <string>

class QLabel;
class QLineEdit;
class QGroupBox;
class QPushButton;

class DocFolderDialog : public QDialog {
    Q_OBJECT
public:
    DocFolderDialog(QWidget* parent, const std::string& base);
    ~DocFolderDialog() override;

    // The new folder's full path when it exists as a directory now; empty otherwise (no
    // folder made, a refused name, or a plain file of that name).
    std::string GetFolder() const;

private:
    void ModifyHdl();
    void OKHdl();

    QLabel* nameLabel_;
    QLineEdit* nameEdit_;
    QGroupBox* frame_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
    std::string base_;
};
