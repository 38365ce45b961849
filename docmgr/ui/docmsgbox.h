#pragma once
// The module's information and query boxes. Every box of the module goes through here,
// so a test can answer them without a modal loop.
#include <QString>
#include <functional>
#include <string>

class QWidget;

// Toolkit answers of a query box.
constexpr int RET_YES = 2;
constexpr int RET_NO = 3;

// Asks `text` with Yes and No, `defaultAnswer` (RET_YES or RET_NO) on Enter; RET_YES or RET_NO.
int DocQueryBox(QWidget* parent, const QString& text, int defaultAnswer = RET_YES);
int DocQueryBox(QWidget* parent, const std::string& text, int defaultAnswer = RET_YES);
// Tells `text` and waits until it is closed; a non-empty `detail` (the system's reason
// for a failure) is shown below it as the box's informative text.
void DocInfoBox(QWidget* parent, const QString& text, const QString& detail = {});
void DocInfoBox(QWidget* parent, const std::string& text, const QString& detail = {});
// The system's text for the error number `error` (an errno value).
QString DocErrorText(int error);

// Answers the boxes instead of the user while set: called with the box's text and
// whether it is a query; its result is the query's answer (ignored for information).
// An empty function shows the boxes again.
using DocBoxAnswerer = std::function<int(const QString& text, bool query)>;
void SetDocBoxAnswerer(DocBoxAnswerer answerer);

// What the box being answered shows besides its text: its informative text and the
// answer its default button gives (RET_YES or RET_NO; 0 for an information box).
struct DocBoxExtras {
    QString detail;
    int defaultAnswer = 0;
};
const DocBoxExtras& AnsweredDocBox();
