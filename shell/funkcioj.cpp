#include "funkcioj.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QRandomGenerator64>
#include <QScreen>
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
int iMsEnSekundo = 1000;

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

QString sServilo = QStringLiteral("http://" LERNILO_SERVILO);
QString sEksteraRetejo = QStringLiteral("https://" LERNILO_EKSTERA_RETEJO);

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
    // Kept for the old random functions; the shared draw does not need it.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
    qsrand(uint(QTime::currentTime().msec()));
QT_WARNING_POP
}

QString helpdosiero(QString kiu)
{
    if (kiu == QLatin1String("kio"))
        return sEksteraRetejo + QStringLiteral("/info/") + sLingvoID + QStringLiteral("/ghisdate_pri_esperanto");
    QString pagho = sTradukoDosiero;
    pagho.replace(QLatin1String(".trd"), QLatin1String(".html"));
    return sServilo + QStringLiteral("/datumoj/kiel/kiel_") + pagho;
}

int ghustigas_tiparon(int grando)
{
    const QScreen* ekrano = QGuiApplication::primaryScreen();
    const qreal punktoj = ekrano ? ekrano->logicalDotsPerInch() : 96.0;
    return qRound(96.0 / punktoj * grando);
}

bool sekuraDosierNomo(const QString& nomo)
{
    const QString radiko = nomo.chopped(qMin(4, nomo.size()));
    if (!nomo.endsWith(QLatin1String(".trd")) || radiko.isEmpty())
        return false;
    for (const QChar c : radiko) {
        if (!c.isLetter() && !c.isDigit() && c != QLatin1Char('_') && c != QLatin1Char('-'))
            return false;
    }
    return true;
}

QString agordoVojo()
{
    QString loko = savasLoko;
    if (!loko.endsWith(QLatin1Char('/')))
        loko += QLatin1Char('/');
    return loko + QStringLiteral("lernilomelo.ini");
}
