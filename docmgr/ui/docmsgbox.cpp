#include "docmgr/ui/docmsgbox.h"

#include <QMessageBox>

#include "docmgr/tools/resmgr.h"

namespace {
constexpr uint16_t DLG_MANAGER = 15700;

DocBoxAnswerer& Answerer()
{
    static DocBoxAnswerer answerer;
    return answerer;
}

QString BoxTitle()
{
    return QString::fromStdString(ResText(ResKind::Dialog, DLG_MANAGER, 0));
}
}  // namespace

void SetDocBoxAnswerer(DocBoxAnswerer answerer)
{
    Answerer() = std::move(answerer);
}

int DocQueryBox(QWidget* parent, const QString& text)
{
    if (Answerer())
        return Answerer()(text, true);
    QMessageBox box(QMessageBox::Question, BoxTitle(), text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setObjectName("queryBox");
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes ? RET_YES : RET_NO;
}

int DocQueryBox(QWidget* parent, const std::string& text)
{
    return DocQueryBox(parent, QString::fromStdString(text));
}

void DocInfoBox(QWidget* parent, const QString& text)
{
    if (Answerer()) {
        Answerer()(text, false);
        return;
    }
    QMessageBox box(QMessageBox::Information, BoxTitle(), text, QMessageBox::Ok, parent);
    box.setObjectName("infoBox");
    box.exec();
}

void DocInfoBox(QWidget* parent, const std::string& text)
{
    DocInfoBox(parent, QString::fromStdString(text));
}
