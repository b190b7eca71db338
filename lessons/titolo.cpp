#include "titolo.h"

titolo::titolo(QWidget* parent)
    : QLabel(parent)
{
    setWordWrap(true);
}
