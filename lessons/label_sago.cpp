#include "label_sago.h"

label_sago::label_sago(QWidget* parent)
    : QLabel(parent)
{
}
