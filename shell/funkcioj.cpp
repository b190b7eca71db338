#include "funkcioj.h"
#include "lernilo.h"

#include <QApplication>
#include <QMediaPlayer>
#include <QUrl>

#include <QCoreApplication>
#include <QRandomGenerator64>
#include <QStandardPaths>
#include <QTime>

QString sSistemo;
QString Loko;
QString mrLoko;
QString savasLoko;

int LastaLeciono = 1;
int LastaPagxo = 1;

int Ofteco = 400;
int NumSec = 3;

QString sLingvo;
QString sLingvoID;
QString sTradukoDosiero;
QString sTradukoDato;
QString sTradukinto;
QString Direkto;

QString sTiparo;
QString sTiparoEo;
int iLiterGrando = 0;
int iLiterGrandoEo = 0;
int iSistemo = 0;
int iFenestraStilo = 0;
int iLastaFojo = 0;
bool lCxapeligo = false;
bool lSxaltilo = false;
bool lNoteto = false;
bool lKorektanto = false;
QString sKorNomo;
QString sKorAdreso;
bool NeEkzistasTraduko = false;
bool Tradukilo = false;
QString EkzercoAkuzativoTrad;

QString smRekomencu, smGratulon, smDenove, smModifis, smTondujo,
    smDevasHaviKor, smDevasSavi, smKoverto, smDisketo, smPordo, smLigilo,
    smNeSono, Antauen, Nuligi;

QString kiuSistemo(QString kiu)
{
    QString vojo;
    const QString skribebla = QStandardPaths::writableLocation(QStandardPaths::DataLocation);
    const bool media = kiu == QLatin1String("multrimedoj");
    const bool skribo = kiu == QLatin1String("skribebla");

    if (sSistemo == QLatin1String("android")) {
        if (media) vojo = QStringLiteral("assets:/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("windows")) {
        if (media) vojo = QCoreApplication::applicationDirPath();
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("osx")) {
        if (media) vojo = QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("ios")) {
        if (media) vojo = QCoreApplication::applicationDirPath() + QStringLiteral("/assets/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("linux")) {
        if (media) vojo = QCoreApplication::applicationDirPath();
        else if (skribo) vojo = skribebla;
    }
    if (!vojo.endsWith(QLatin1Char('/')))
        vojo += QLatin1Char('/');
    return vojo;
}

int random(int n)
{
    // Multiply-and-shift: maps 32 random bits onto 0..n-1 without a modulo.
    const quint64 bitoj = QRandomGenerator64::global()->generate() & 0xFFFFFFFFu;
    return int((quint64(quint32(n)) * bitoj) >> 32);
}

void randomize()
{
    qsrand(uint(QTime::currentTime().msec()));
}

namespace {

struct Litero
{
    ushort unikodo;
    const char* x;
    const char* h;
};

// Every conversion walks these rows in this order.
const Litero literoj[] = {
    {0x0109, "cx", "ch"}, {0x011D, "gx", "gh"}, {0x0125, "hx", "hh"},
    {0x0135, "jx", "jh"}, {0x015D, "sx", "sh"}, {0x016D, "ux", "u"},
    {0x0108, "Cx", "Ch"}, {0x011C, "Gx", "Gh"}, {0x0124, "Hx", "Hh"},
    {0x0134, "Jx", "Jh"}, {0x015C, "Sx", "Sh"}, {0x016C, "Ux", "U"},
};

} // namespace

QString CxSist(QString teksto, int sistemo)
{
    for (const Litero& l : literoj) {
        const QString unikodo(QChar(l.unikodo));
        if (sistemo == 1)
            teksto.replace(unikodo, QLatin1String(l.x));
        else if (sistemo == 2)
            teksto.replace(unikodo, QLatin1String(l.h));
        else if (sistemo == 3)
            teksto.replace(QLatin1String(l.x), unikodo);
    }
    return teksto;
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

QString helpdosiero(QString kiu)
{
    if (kiu == QLatin1String("kio"))
        return QStringLiteral("https://" LERNILO_EKSTERA_RETEJO "/info/") + sLingvoID
               + QStringLiteral("/ghisdate_pri_esperanto");
    QString pagho = sTradukoDosiero;
    pagho.replace(QLatin1String(".trd"), QLatin1String(".html"));
    return QStringLiteral("http://" LERNILO_SERVILO "/datumoj/kiel/kiel_") + pagho;
}
