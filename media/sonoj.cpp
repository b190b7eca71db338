#include "funkcioj.h"
#include "lernilo.h"

#include <QApplication>
#include <QMediaPlayer>
#include <QUrl>

QString vortoSono(const QString& ciferoj, const QString& vorto, bool auh)
{
    QString nomo = CxSist(vorto, 1);
    if (auh && nomo == QLatin1String("aux"))
        nomo = QStringLiteral("auh");
    return QStringLiteral("sonoj/lec") + ciferoj + QLatin1Char('/') + nomo + mp3_finajho;
}

QString frazoSono(const QString& ciferoj, const QString& numero)
{
    return QStringLiteral("sonoj/lec") + ciferoj + QStringLiteral("/btn") + numero + mp3_finajho;
}

QString ekzercaSono(const QString& ciferoj, const QString& vico, bool auh)
{
    return vico.toInt() >= 1 ? frazoSono(ciferoj, vico) : vortoSono(ciferoj, vico, auh);
}

QString legoSono(const QString& ludilo)
{
    return QStringLiteral("sonoj/") + ludilo.left(5).toLower() + QLatin1Char('/') + ludilo.mid(6) + mp3_finajho;
}

void mp3(QString dosiero)
{
    auto* fenestro = qobject_cast<lernilo*>(QApplication::activeWindow());
    if (!fenestro)
        return;
    const QString vojo = mrLoko + dosiero.toLower();
    const QUrl adreso = sSistemo == QLatin1String("android") ? QUrl(vojo) : QUrl::fromLocalFile(vojo);
    fenestro->ludilo->setMedia(QMediaContent(adreso));
    fenestro->ludilo->play();
}
