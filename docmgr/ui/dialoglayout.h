#pragma once
// Small builders the settings dialogs share: named controls, button columns, tab order.
#include <QString>
#include <initializer_list>

class QVBoxLayout;
class QWidget;

// `widget` with its object name, by which tests and accessibility tools find it.
template <class W>
W* Named(W* widget, const char* name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

// Buttons one below the other from the top, as OK and cancel stand beside a dialog.
QVBoxLayout* ButtonColumn(std::initializer_list<QWidget*> buttons);
// Buttons one below the other in the middle of the height, as the move buttons stand
// beside a list.
QVBoxLayout* CentredButtonColumn(std::initializer_list<QWidget*> buttons);
// Tab moves through `widgets` in this order.
void SetTabChain(std::initializer_list<QWidget*> widgets);
