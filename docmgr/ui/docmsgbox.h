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

// Asks `text` with Yes and No; RET_YES or RET_NO.
int DocQueryBox(QWidget* parent, const QString& text);
int DocQueryBox(QWidget* parent, const std::string& text);
// Tells `text` and waits until it is closed.
void DocInfoBox(QWidget* parent, const QString& text);
void DocInfoBox(QWidget* parent, const std::string& text);

// Answers the boxes instead of the user while set: called with the box's text and
// whether it is a query; its result is the query's answer (ignored for information).
// An empty function shows the boxes again.
using DocBoxAnswerer = std::function<int(const QString& text, bool query)>;
void SetDocBoxAnswerer(DocBoxAnswerer answerer);
