#include "funkcioj.h"

#include <QSpinBox>

void nulasPoentaron(QSpinBox* restantaj, QSpinBox* ghustaj, QSpinBox* eraraj, QSpinBox* procento, int celo)
{
    restantaj->setValue(celo);
    ghustaj->setValue(0);
    eraraj->setValue(0);
    procento->setValue(0);
}

QList<bool> neniuUzita(int kiom)
{
    QList<bool> uzitaj;
    for (int i = 0; i < kiom; ++i)
        uzitaj.append(false);
    return uzitaj;
}
