#include "label_klakebla.h"

label_klakebla::label_klakebla(QWidget* parent)
    : QLabel(parent)
{
}
