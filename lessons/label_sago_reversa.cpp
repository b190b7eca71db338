#include "label_sago_reversa.h"

label_sago_reversa::label_sago_reversa(QWidget* parent)
    : QLabel(parent)
{
}
