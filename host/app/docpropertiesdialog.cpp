#include "host/app/docpropertiesdialog.h"

#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "host/readers/docreader.h"
#include "host/readers/docwriter.h"

namespace {

QString Q(const std::string& s)
{
    return QString::fromStdString(s);
}

std::string S(const QString& s)
{
    return s.toStdString();
}

// Why a file cannot be written, judged before the writer tries; empty when it may be.
QString ReadOnlyReason(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return DocPropertiesDialog::tr("the file no longer exists");
    if (!file.isWritable())
        return DocPropertiesDialog::tr("the file is read-only");
    if (!QFileInfo(file.absolutePath()).isWritable())
        return DocPropertiesDialog::tr("its folder is read-only, so the file cannot be replaced");
    return {};
}

// Why the entries may show less than the document holds; empty when it was read in full.
QString ProblemNote(ReadProblem problem)
{
    switch (problem) {
    case ReadProblem::None: break;
    case ReadProblem::Encrypted:
        return DocPropertiesDialog::tr("The document is encrypted; its information could not be read.");
    case ReadProblem::Damaged:
        return DocPropertiesDialog::tr(
            "The document is damaged; only part of its information, or none, could be read.");
    case ReadProblem::NotZip:
        return DocPropertiesDialog::tr(
            "The file is not a zip package, as documents of its kind are; its information could not be read.");
    case ReadProblem::NoInformation: return DocPropertiesDialog::tr("The document holds no information yet.");
    case ReadProblem::NoReader:
        return DocPropertiesDialog::tr(
            "No reader for documents of this kind could be loaded; its information could not be read.");
    }
    return {};
}

}  // namespace

DocPropertiesDialog::DocPropertiesDialog(QWidget* parent, const std::string& path,
                                         const std::array<std::string, 4>& captions)
    : QDialog(parent), path_(path), captions_(captions)
{
    setObjectName(QStringLiteral("docPropertiesDialog"));
    setWindowTitle(tr("Document Properties"));
    BuildControls(captions);
    LoadInfo();
    connect(okButton_, &QPushButton::clicked, this, &DocPropertiesDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
}

void DocPropertiesDialog::BuildControls(const std::array<std::string, 4>& captions)
{
    auto* form = new QFormLayout;
    fileLabel_ = new QLabel(Q(path_), this);
    fileLabel_->setObjectName(QStringLiteral("fileLabel"));
    fileLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(tr("File:"), fileLabel_);
    noteLabel_ = new QLabel(this);
    noteLabel_->setObjectName(QStringLiteral("noteLabel"));
    noteLabel_->setWordWrap(true);
    noteLabel_->hide();
    form->addRow(noteLabel_);

    auto addEdit = [this, form](const QString& label, const char* name) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QLatin1String(name));
        form->addRow(label, edit);
        return edit;
    };
    titleEdit_ = addEdit(tr("&Title:"), "titleEdit");
    topicEdit_ = addEdit(tr("T&opic:"), "topicEdit");
    keywordsEdit_ = addEdit(tr("&Keywords:"), "keywordsEdit");
    commentEdit_ = new QPlainTextEdit(this);
    commentEdit_->setObjectName(QStringLiteral("commentEdit"));
    commentEdit_->setTabChangesFocus(true);
    commentEdit_->setMaximumHeight(commentEdit_->fontMetrics().lineSpacing() * 6);
    form->addRow(tr("&Comment:"), commentEdit_);
    static const char* const infoNames[4] = {"info0Edit", "info1Edit", "info2Edit", "info3Edit"};
    for (size_t i = 0; i < infoEdits_.size(); ++i) {
        const QString caption = captions[i].empty() ? tr("Info %1").arg(i) : Q(captions[i]);
        infoEdits_[i] = addEdit(caption + QLatin1Char(':'), infoNames[i]);
    }

    okButton_ = new QPushButton(tr("OK"), this);
    okButton_->setObjectName(QStringLiteral("okButton"));
    okButton_->setDefault(true);
    cancelButton_ = new QPushButton(tr("Cancel"), this);
    cancelButton_->setObjectName(QStringLiteral("cancelButton"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(okButton_);
    buttons->addWidget(cancelButton_);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
    resize(520, sizeHint().height());
}

void DocPropertiesDialog::LoadInfo()
{
    const DocReading reading = ReadDocument(path_);
    const std::unique_ptr<DocInfo>& info = reading.info;
    loaded_ = info != nullptr;
    if (!info)
        return;
    QStringList notes;
    if (const QString note = ProblemNote(reading.problem); !note.isEmpty())
        notes << note;
    editable_ = IsEditableKind(path_);
    if (!editable_)
        notes << tr("Documents of this kind (legacy Office, RTF, flat ODF) are read-only here: "
                    "their information is shown but cannot be changed.");
    noteLabel_->setText(notes.join(QLatin1Char('\n')));
    noteLabel_->setVisible(!notes.isEmpty());
    if (!editable_)
        MakeReadOnly();
    titleEdit_->setText(Q(info->title));
    topicEdit_->setText(Q(info->topic));
    keywordsEdit_->setText(Q(info->keywords));
    commentEdit_->setPlainText(Q(info->comment));
    for (size_t i = 0; i < infoEdits_.size(); ++i)
        infoEdits_[i]->setText(Q(info->info[i]));
}

void DocPropertiesDialog::MakeReadOnly()
{
    for (QLineEdit* edit : {titleEdit_, topicEdit_, keywordsEdit_})
        edit->setReadOnly(true);
    for (QLineEdit* edit : infoEdits_)
        edit->setReadOnly(true);
    commentEdit_->setReadOnly(true);
    okButton_->hide();
    okButton_->setEnabled(false);
    cancelButton_->setText(tr("Close"));
    cancelButton_->setDefault(true);
}

void DocPropertiesDialog::OKHdl()
{
    DocMeta meta;
    meta.title = S(titleEdit_->text());
    meta.topic = S(topicEdit_->text());
    meta.keywords = S(keywordsEdit_->text());
    meta.comment = S(commentEdit_->toPlainText());
    for (size_t i = 0; i < infoEdits_.size(); ++i) {
        meta.info[i] = S(infoEdits_[i]->text());
        meta.infoNames[i] = captions_[i];
    }

    QString reason = ReadOnlyReason(Q(path_));
    std::string error;
    if (reason.isEmpty() && !WriteDocMeta(path_, meta, error))
        reason = Q(error);
    if (reason.isEmpty()) {
        accept();
        return;
    }
    // The reason continues a sentence: "The file is read-only." becomes "the file is read-only".
    while (reason.endsWith(QLatin1Char('.')))
        reason.chop(1);
    if (reason.size() > 1 && reason[0].isUpper() && reason[1].isLower())
        reason[0] = reason[0].toLower();
    QMessageBox box(QMessageBox::Warning, windowTitle(),
                    tr("The document information of \"%1\" could not be changed: %2.\n"
                       "The file was left as it was.")
                        .arg(QFileInfo(Q(path_)).fileName(), reason),
                    QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("failureBox"));
    box.exec();
}
