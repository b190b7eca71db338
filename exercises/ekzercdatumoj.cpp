#include "funkcioj.h"
#include "inidosiero.h"

#include <QSettings>

QString sEkzercujo = QStringLiteral(":ekzercoj/");

int _Matriz(QStringList* lista, QString id, QString tipo)
{
    lista->clear();
    const bool traduko = tipo == QLatin1String("T");
    const QString dosiero = traduko ? Loko + QStringLiteral("tradukoj/") + sTradukoDosiero
                                    : sEkzercujo + QStringLiteral("ekz") + id.left(2) + QStringLiteral(".dat");
    inidosiero datumoj(dosiero);
    datumoj.beginGroup(traduko ? QStringLiteral("Ekzerco-") + id : id + tipo);
    const int kiom = datumoj.allKeys().size();
    const QString defaulto = traduko ? QStringLiteral("Ne tradukita") : QString();
    for (int i = 0; i < kiom; ++i)
        lista->append(datumoj.value(QString::number(i), defaulto).toString());
    datumoj.endGroup();
    return kiom;
}

int _Matriz2(QList<QStringList>* lista, QString id, QString tipo, int largho)
{
    lista->clear();
    inidosiero datumoj(sEkzercujo + QStringLiteral("ekz") + id.left(2) + QStringLiteral(".dat"));
    datumoj.beginGroup(id + tipo);
    const int kiom = datumoj.allKeys().size();
    for (int i = 0; i < kiom; ++i) {
        const QString valoro = datumoj.value(QString::number(i), QString()).toString();
        QStringList vico;
        QString kampo;
        for (const QChar c : valoro) {
            if (c == QLatin1Char('~')) {
                vico << kampo;
                kampo.clear();
            } else {
                kampo += c;
            }
        }
        vico << kampo;
        while (vico.size() < largho)
            vico << QString();
        lista->append(vico);
    }
    datumoj.endGroup();
    return kiom;
}

int limigo(int n)
{
    return qMin(n, 40);
}
