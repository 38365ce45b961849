#include "docmgr/ui/docmsgbox.h"

#include <QMessageBox>
#include <cstring>

#include "docmgr/tools/resmgr.h"
#include "resources/resids.h"

namespace {
DocBoxAnswerer& Answerer()
{
    static DocBoxAnswerer answerer;
    return answerer;
}

DocBoxExtras& Extras()
{
    static DocBoxExtras extras;
    return extras;
}

QString BoxTitle()
{
    return QString::fromStdString(ResText(ResKind::Dialog, DLG_MANAGER, CTL_TITLE));
}
}  // namespace

void SetDocBoxAnswerer(DocBoxAnswerer answerer)
{
    Answerer() = std::move(answerer);
}

const DocBoxExtras& AnsweredDocBox()
{
    return Extras();
}

int DocQueryBox(QWidget* parent, const QString& text, int defaultAnswer)
{
    if (Answerer()) {
        Extras() = {QString(), defaultAnswer};
        return Answerer()(text, true);
    }
    QMessageBox box(QMessageBox::Question, BoxTitle(), text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setObjectName("queryBox");
    box.setDefaultButton(defaultAnswer == RET_NO ? QMessageBox::No : QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes ? RET_YES : RET_NO;
}

int DocQueryBox(QWidget* parent, const std::string& text, int defaultAnswer)
{
    return DocQueryBox(parent, QString::fromStdString(text), defaultAnswer);
}

void DocInfoBox(QWidget* parent, const QString& text, const QString& detail)
{
    if (Answerer()) {
        Extras() = {detail, 0};
        Answerer()(text, false);
        return;
    }
    QMessageBox box(QMessageBox::Information, BoxTitle(), text, QMessageBox::Ok, parent);
    box.setObjectName("infoBox");
    box.setInformativeText(detail);
    box.exec();
}

void DocInfoBox(QWidget* parent, const std::string& text, const QString& detail)
{
    DocInfoBox(parent, QString::fromStdString(text), detail);
}

QString DocErrorText(int error)
{
    // strerror follows the user's language where the C library has it.
    return error == 0 ? QString() : QString::fromLocal8Bit(std::strerror(error));
}
