#include "funkcioj.h"
#include "inidosiero.h"

#include <QSettings>

QStringList listaVico(QSettings& listo, int grupo)
{
    const QString demando = QStringLiteral("?????????");
    listo.beginGroup(QString::number(grupo));
    const QStringList vico = {listo.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString(),
                              listo.value(QStringLiteral("Lingvo"), demando).toString(),
                              listo.value(QStringLiteral("DosierNomo"), demando).toString(),
                              listo.value(QStringLiteral("Dato"), demando).toString()};
    listo.endGroup();
    return vico;
}

QStringList dosieraVico(const QString& nomo, const QString& datoDefaulto)
{
    inidosiero dosiero(QStringLiteral(":/tradukoj/") + nomo);
    dosiero.beginGroup(QStringLiteral("Traduko"));
    return {dosiero.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString(),
            dosiero.value(QStringLiteral("Lingvo"), QStringLiteral("?????????")).toString(),
            nomo,
            dosiero.value(QStringLiteral("Dato"), datoDefaulto).toString()};
}
