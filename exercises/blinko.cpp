#include "funkcioj.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRadioButton>

void tekstoblinko(QWidget* w)
{
    const QString antaua = w->styleSheet();
    QString unua, dua;
    if (qobject_cast<QRadioButton*>(w)) {
        unua = QStringLiteral("background: lightBlue;");
        dua = QStringLiteral("background: white;");
    } else {
        const QFont f = w->font();
        const bool pikseloj = f.pointSize() < 1;
        const QString grando = QString::number(pikseloj ? f.pixelSize() : f.pointSize())
                               + (pikseloj ? QStringLiteral("px") : QStringLiteral("pt"));
        const QString resto = QStringLiteral("; font-size: ") + grando + QStringLiteral("; font-family: ") + f.family();
        unua = QStringLiteral("font-weight: bold; color: red") + resto;
        dua = QStringLiteral("font-weight: bold; color: white") + resto;
    }
    blinkas([&](int k) {
        w->setStyleSheet(k % 2 ? unua : dua);
        w->update();
    });
    w->setStyleSheet(antaua);
}

void blinkas(const std::function<void(int pasho)>& pasho)
{
    QElapsedTimer tempo;
    tempo.start();
    int k = 0;
    for (;;) {
        QCoreApplication::processEvents();
        if (tempo.elapsed() > qint64(Ofteco) * k * iMsEnSekundo / 1000)
            pasho(++k);
        if (tempo.elapsed() >= qint64(NumSec) * iMsEnSekundo)
            return;
    }
}
