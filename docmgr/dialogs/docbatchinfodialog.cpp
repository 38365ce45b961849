#include "docmgr/dialogs/docbatchinfodialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "docmgr/ui/dialogtext.h"

namespace {
// The value all `docs` share in `field`, or none.
std::optional<std::string> Shared(const std::vector<DocInfo>& docs, size_t field)
{
    if (docs.empty())
        return std::nullopt;
    const std::string& first = EditFieldText(docs.front(), field);
    for (const DocInfo& doc : docs)
        if (EditFieldText(doc, field) != first)
            return std::nullopt;
    return first;
}
}  // namespace

DocBatchInfoDialog::DocBatchInfoDialog(QWidget* parent, const std::vector<DocInfo>& docs,
                                       const std::array<QString, EDIT_FIELD_COUNT>& captions)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("batchInfoDialog"));
    setWindowTitle(DialogText(DLG_BATCH_INFO));
    auto* intro = new QLabel(DialogText(DLG_BATCH_INFO, BATCH_INTRO).arg(docs.size()));
    intro->setWordWrap(true);
    auto* form = new QFormLayout;
    for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f) {
        auto* edit = new QLineEdit;
        edit->setObjectName(QString::fromLatin1(EDIT_FIELD_NAMES[f].data(), qsizetype(EDIT_FIELD_NAMES[f].size())));
        if (const std::optional<std::string> shared = Shared(docs, f))
            edit->setText(QString::fromStdString(*shared));
        else
            edit->setPlaceholderText(DialogText(DLG_BATCH_INFO, BATCH_VARIOUS));
        // Only what the user types counts, so a field merely looked at stays as it is.
        connect(edit, &QLineEdit::textEdited, this, [this, f] { changed_[f] = true; });
        edits_[f] = edit;
        form->addRow(captions[f] + QLatin1Char(':'), edit);
    }
    QHBoxLayout* buttons = MakeOkCancelRow(this, DLG_BATCH_INFO);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(form);
    layout->addLayout(buttons);
    resize(480, sizeHint().height());
}

DocInfoEdit DocBatchInfoDialog::GetEdit() const
{
    DocInfoEdit edit;
    for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f)
        if (changed_[f])
            edit.values[f] = edits_[f]->text().toStdString();
    return edit;
}
