#include "mylabel.h"

myLabel::myLabel(QWidget* parent)
    : QLabel(parent)
{
    connect(this, &myLabel::clicked, this, &myLabel::slotClicked);
}

void myLabel::slotClicked()
{
}

void myLabel::mouseReleaseEvent(QMouseEvent*)
{
    emit clicked();
}
