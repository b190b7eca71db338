#include "korekta.h"

korekta::korekta(QWidget* parent)
    : QLabel(parent)
{
    setVisible(false);
    setWordWrap(true);
}
