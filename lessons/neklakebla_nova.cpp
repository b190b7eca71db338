#include "neklakebla_nova.h"

neklakebla_nova::neklakebla_nova(QWidget* parent)
    : QLabel(parent)
{
}
