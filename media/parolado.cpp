#include "funkcioj.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>

void Noteto(bool ghuste)
{
    if (!lNoteto)
        return;
    mp3(QStringLiteral("sonoj/") + (ghuste ? QStringLiteral("noteto_jes") : QStringLiteral("noteto_ne")) + mp3_finajho);
}

namespace {

// Plays one of the recorded variants of a word, "sonoj/" + word + one character.
void ludasVarianton(const QString& vorto)
{
    QDir ujo(mrLoko + QStringLiteral("sonoj/"), vorto + QLatin1Char('?') + mp3_finajho);
    const int n = int(ujo.count());
    const int r = random(n);
    if (n >= 1)
        mp3(QStringLiteral("sonoj/") + ujo.entryList().value(r));
}

// The spoken verdict: the first draw is used if such a file is there;
// otherwise a few more draws, and the last one is played as it is.
void parolasVerdikton(const QString& radiko)
{
    random(8);
    int k = random(8) + 1;
    QString nomo = radiko + QString::number(k) + mp3_finajho;
    const QFile unua(nomo);
    for (int provoj = 0; !unua.exists() && provoj < 8; ++provoj) {
        k = random(8) + 1;
        nomo = radiko + QString::number(k) + mp3_finajho;
    }
    mp3(nomo);
}

} // namespace

void Jes()
{
    if (lNoteto) {
        mp3(QStringLiteral("sonoj/noteto_jes") + mp3_finajho);
        Pauzu(2);
    }
    if (!lSxaltilo)
        return;
    static const char* const vortoj[] = {"jes", "trebone", "bonege", "prave", "trafe", "korekte"};
    int elekto;
    do {
        elekto = random(6);
    } while (elekto == iLastaFojo);
    iLastaFojo = elekto;
    ludasVarianton(QLatin1String(vortoj[elekto]));
}

void Ne()
{
    if (lNoteto) {
        mp3(QStringLiteral("sonoj/noteto_ne") + mp3_finajho);
        Pauzu(2);
    }
    if (!lSxaltilo)
        return;
    ludasVarianton(QStringLiteral("ne"));
}

void Mesagxo(int eraroj, int sukcesoj)
{
    QMessageBox skatolo(QApplication::activeWindow());
    const bool bona = sukcesoj * 100 / (eraroj + sukcesoj) >= 70;
    if (lSxaltilo)
        parolasVerdikton(bona ? QStringLiteral("sonoj/gratulo") : QStringLiteral("sonoj/nebona"));
    else if (lNoteto)
        mp3(QStringLiteral("sonoj/") + (bona ? QStringLiteral("noteto_jes") : QStringLiteral("noteto_ne")) + mp3_finajho);
    skatolo.setText(bona ? smGratulon : smDenove);
    skatolo.setIcon(QMessageBox::Information);
    skatolo.exec();
}

void Pauzu(int sekundoj)
{
    // A busy wait on purpose: the window repaints and takes clicks meanwhile.
    QElapsedTimer tempo;
    tempo.start();
    while (tempo.elapsed() < qint64(sekundoj) * iMsEnSekundo)
        QCoreApplication::processEvents();
}

void Sinkronigu()
{
}

void Adiau()
{
    if (!lSxaltilo)
        return;
    static const char* const radikoj[] = {"ghis", "revido", "baldau", "adiau"};
    const QString radiko = QLatin1String(radikoj[random(4)]);
    QDir ujo(mrLoko + QStringLiteral("sonoj/"), radiko + QLatin1Char('?') + mp3_finajho);
    if (ujo.count() != 0)
        mp3(QStringLiteral("sonoj/") + ujo.entryList().value(random(4)));
}
