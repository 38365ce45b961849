#pragma once
// The host's editor of a document's information: title, topic, keywords, comment and the
// four information fields, written back into the file.
#include <QDialog>
#include <array>
#include <string>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

class DocPropertiesDialog : public QDialog {
    Q_OBJECT
public:
    // `captions`: the working group's names of the four information fields.
    DocPropertiesDialog(QWidget* parent, const std::string& path, const std::array<std::string, 4>& captions);

    // False when the file holds no document information this host can read; the dialog
    // then has nothing to edit.
    bool IsLoaded() const { return loaded_; }
    // False for kinds of document whose information is only shown (legacy Office, RTF,
    // flat ODF): the entries are read-only and there is no OK button.
    bool IsEditable() const { return editable_; }

private:
    void BuildControls(const std::array<std::string, 4>& captions);
    // Fills the entries from the document and says what kept it from being read in full.
    void LoadInfo();
    // Shows the information read-only, with the reason in the note.
    void MakeReadOnly();
    // Writes the entries into the document; closes the dialog when that worked, otherwise
    // says why and stays open so that nothing typed is lost.
    void OKHdl();

    std::string path_;
    std::array<std::string, 4> captions_;
    bool loaded_ = false;
    bool editable_ = true;
    QLabel* fileLabel_ = nullptr;
    QLabel* noteLabel_ = nullptr;
    QLineEdit* titleEdit_ = nullptr;
    QLineEdit* topicEdit_ = nullptr;
    QLineEdit* keywordsEdit_ = nullptr;
    QPlainTextEdit* commentEdit_ = nullptr;
    std::array<QLineEdit*, 4> infoEdits_{};
    QPushButton* okButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
};
