#include "docmgr/ui/dialoglayout.h"

#include <QVBoxLayout>
#include <QWidget>

QVBoxLayout* ButtonColumn(std::initializer_list<QWidget*> buttons)
{
    auto* column = new QVBoxLayout;
    for (QWidget* button : buttons)
        column->addWidget(button);
    column->addStretch();
    return column;
}

QVBoxLayout* CentredButtonColumn(std::initializer_list<QWidget*> buttons)
{
    auto* column = new QVBoxLayout;
    column->addStretch();
    for (QWidget* button : buttons)
        column->addWidget(button);
    column->addStretch();
    return column;
}

void SetTabChain(std::initializer_list<QWidget*> widgets)
{
    QWidget* previous = nullptr;
    for (QWidget* widget : widgets) {
        if (previous)
            QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}
