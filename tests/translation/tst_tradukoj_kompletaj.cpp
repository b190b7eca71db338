// The languages the course ships are complete: every key of the list of
// things to translate is in each of them for every lesson that has content,
// with a real text, and so is every text of the window's own pages and
// every row of the exercises; the Esperanto words of the lessons are not
// among their keys. A language translated from English or Portuguese keeps
// the source's markup and Esperanto examples, leaves no text in the source's
// language, and is written in its own script.

#include "funkcioj.h"
#include "lecionkadro.h"
#include "testaj_helpoj.h"
#include "tradukeroj.h"

#include <QAbstractButton>
#include <QDate>
#include <QDir>
#include <QRegularExpression>
#include <QLabel>
#include <QSettings>
#include <QTabWidget>
#include <QtTest>

class tst_tradukoj_kompletaj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void kompletaj_data();
    void kompletaj();
    void nenioNetradukita();
    void tradukitajElFonto_data();
    void tradukitajElFonto();

private:
    QStringList enhavaj;   // groups of the lessons that have content
    QTemporaryDir ujo;
};

void tst_tradukoj_kompletaj::initTestCase()
{
    preparasLokojn(ujo);
    for (int n = 1; n <= KiomDaLecionoj; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (const Tradukero& t : tradukeroj::deLeciono(kadro.langetoj())) {
            // The instruction of a gap exercise comes with the exercise, not
            // with the lesson's own text.
            if (!t.teksto.isEmpty() && !t.shlosilo.endsWith(QLatin1String(".Label84"))) {
                enhavaj << kadro.langetoj()->objectName();
                break;
            }
        }
    }
    QVERIFY(enhavaj.contains("Lec01"));
    QVERIFY(enhavaj.contains("Lec02"));
}

void tst_tradukoj_kompletaj::kompletaj_data()
{
    QTest::addColumn<QString>("dosiero");
    for (const QString& dosiero : QDir(":/tradukoj", "*.trd").entryList())
        QTest::newRow(qPrintable(dosiero)) << dosiero;
}

void tst_tradukoj_kompletaj::kompletaj()
{
    QFETCH(QString, dosiero);
    QSettings listo(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    inidosiero traduko(":/tradukoj/" + dosiero);
    QStringList grupoj = {"Gheneralaj", "Konfig", "Menuo", "Menuo4", "Mesagxoj"};
    grupoj += enhavaj;
    QStringList mankas;
    for (const QString& g : grupoj) {
        listo.beginGroup(g);
        QSet<QString> listitaj;
        for (const QString& numero : listo.childKeys()) {
            listitaj << listo.value(numero).toString();
            const QString sh = g + '/' + listo.value(numero).toString();
            const QString valoro = traduko.value(sh, "Ne Tradukita").toString();
            if (valoro == QLatin1String("Ne Tradukita") || valoro.trimmed().isEmpty())
                mankas << sh;
        }
        listo.endGroup();
        // The Esperanto words (LecNN_ButtonM) are not translated: relabelling
        // never reads them, and a translator must not be asked for them.
        if (!g.startsWith(QLatin1String("Lec")))
            continue;
        traduko.beginGroup(g);
        for (const QString& sh : traduko.childKeys()) {
            if (sh.startsWith(QLatin1String("Button")) && !listitaj.contains(sh))
                mankas << QStringLiteral("not listed: ") + g + '/' + sh;
        }
        traduko.endGroup();
    }
    for (int i = 0; i <= 12; ++i) {
        if (traduko.value(QStringLiteral("Ekzerco-Klarigoj/%1").arg(i)).toString().isEmpty())
            mankas << QStringLiteral("Ekzerco-Klarigoj/%1").arg(i);
    }
    // Every row of every exercise group that English, which the data test
    // holds to the exercise data, has.
    inidosiero angla(":/tradukoj/angla.trd");
    for (const QString& g : angla.childGroups()) {
        if (!g.startsWith(QLatin1String("Ekzerco-")))
            continue;
        angla.beginGroup(g);
        for (const QString& vico : angla.childKeys()) {
            if (traduko.value(g + '/' + vico).toString().trimmed().isEmpty())
                mankas << g + '/' + vico;
        }
        angla.endGroup();
    }
    for (const char* sh : {"Traduko/Lingvo", "Traduko/LingvoID", "Traduko/Dato", "Traduko/Tradukinto",
                           "Traduko/KioDosiero", "Traduko/KielDosiero"}) {
        if (traduko.value(sh).toString().isEmpty())
            mankas << sh;
    }
    if (!QDate::fromString(traduko.value("Traduko/Dato").toString(), "dd.MM.yyyy").isValid())
        mankas << QStringLiteral("Traduko/Dato as dd.MM.yyyy");
    if (traduko.value("Traduko/LingvoID").toString().size() != 2)
        mankas << QStringLiteral("Traduko/LingvoID of two letters");
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(", ")));
}

// What the learner reads on every written lesson, once relabelled in any
// shipped language: no label left with the default of a missing key, no
// empty heading. Each lesson is built once and relabelled in turn.
void tst_tradukoj_kompletaj::nenioNetradukita()
{
    const QStringList dosieroj = QDir(":/tradukoj", "*.trd").entryList();
    QStringList malbonaj;
    for (const QString& grupo : qAsConst(enhavaj)) {
        QWidget pagho;
        lecionkadro kadro(grupo.right(2).toInt(), &pagho);
        for (const QString& dosiero : dosieroj) {
            sTradukoDosiero = dosiero;
            Trad(kadro.langetoj(), grupo);
            for (QLabel* l : kadro.findChildren<QLabel*>()) {
                const bool titolo = qstrcmp(l->metaObject()->className(), "titolo") == 0
                                    && l->objectName().startsWith(grupo);   // not the word of a game
                if (l->text() == QLatin1String("Ne Tradukita") || (titolo && l->text().trimmed().isEmpty()))
                    malbonaj << dosiero + QLatin1Char(' ') + grupo + QLatin1Char('/') + l->objectName();
            }
        }
    }
    QVERIFY2(malbonaj.isEmpty(), qPrintable(malbonaj.join(", ")));
}

namespace {

const QRegularExpression& etikedoj()
{
    static const QRegularExpression re(QStringLiteral("<[^>]*>"));
    return re;
}

// The bold stretches of a text that stand the same in English and in
// Portuguese: the Esperanto words and examples the explanations quote.
QStringList esperantajEroj(const QString& angle, const QString& portugale)
{
    static const QRegularExpression grase(QStringLiteral("<b>(.*?)</b>"));
    QStringList portugalaj;
    for (auto it = grase.globalMatch(portugale); it.hasNext();)
        portugalaj << it.next().captured(1);
    QStringList eroj;
    for (auto it = grase.globalMatch(angle); it.hasNext();) {
        const QString ero = it.next().captured(1);
        if (portugalaj.contains(ero))
            eroj << ero;
    }
    return eroj;
}

QStringList etikedojDe(QString teksto)
{
    QStringList listo;
    for (auto it = etikedoj().globalMatch(teksto); it.hasNext();)
        listo << it.next().captured(0).toLower();
    listo.sort();
    return listo;
}

// The scripts a language is written in, by its letters outside markup and
// Esperanto quotes: Japanese mixes the kana with Chinese characters, Korean
// writes some words in Chinese characters.
QList<QChar::Script> skribojDe(const QString& lingvo)
{
    static const QHash<QString, QList<QChar::Script>> skriboj = {
        {"ru", {QChar::Script_Cyrillic}}, {"bg", {QChar::Script_Cyrillic}}, {"el", {QChar::Script_Greek}},
        {"ar", {QChar::Script_Arabic}}, {"fa", {QChar::Script_Arabic}}, {"hi", {QChar::Script_Devanagari}},
        {"ch", {QChar::Script_Han}},
        {"jp", {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana}},
        {"ko", {QChar::Script_Hangul, QChar::Script_Han}}};
    return skriboj.value(lingvo, {QChar::Script_Latin});
}

} // namespace

void tst_tradukoj_kompletaj::tradukitajElFonto_data()
{
    QTest::addColumn<QString>("dosiero");
    const QStringList fontoj = {"angla.trd", "portugala.trd", "esperanto.trd"};
    bool iu = false;
    for (const QString& dosiero : QDir(":/tradukoj", "*.trd").entryList()) {
        if (!fontoj.contains(dosiero)) {
            QTest::newRow(qPrintable(dosiero)) << dosiero;
            iu = true;
        }
    }
    if (!iu)
        QTest::newRow("none yet") << QString();
}

void tst_tradukoj_kompletaj::tradukitajElFonto()
{
    QFETCH(QString, dosiero);
    if (dosiero.isEmpty())
        QSKIP("the course ships only its three source languages");
    // Values that may stand as in English or Portuguese, each with its reason:
    // "FILE GROUP/KEY reason", one a line; FILE "*" for every language.
    QSet<QString> samaj;
    QFile permesoj(QFINDTESTDATA("../../resources/tradukoj/partoj/samaj_valoroj.txt"));
    if (permesoj.open(QIODevice::ReadOnly | QIODevice::Text)) {
        for (const QString& linio : QString::fromUtf8(permesoj.readAll()).split('\n')) {
            const QStringList partoj = linio.split(' ', Qt::SkipEmptyParts);
            if (partoj.size() >= 3 && !linio.startsWith('#'))
                samaj << partoj[0] + ' ' + partoj[1];
        }
    }
    inidosiero angla(":/tradukoj/angla.trd");
    inidosiero portugala(":/tradukoj/portugala.trd");
    inidosiero traduko(":/tradukoj/" + dosiero);
    const QList<QChar::Script> skriboj = skribojDe(traduko.value("Traduko/LingvoID").toString());
    QStringList malbonaj;
    int literoj = 0, enSkribo = 0;
    for (const QString& g : angla.childGroups()) {
        if (g == QLatin1String("Traduko") || g == QLatin1String("Menuo3"))
            continue;
        angla.beginGroup(g);
        for (const QString& sh : angla.childKeys()) {
            const QString vojo = g + '/' + sh;
            const QString a = angla.value(sh).toString();
            const QString p = portugala.value(vojo).toString();
            const QString t = traduko.value(vojo).toString();
            if (t.isEmpty())
                continue;   // completeness is checked above
            QString nuda = t;
            const QStringList eroj = esperantajEroj(a, p);
            for (const QString& ero : eroj) {
                if (!t.contains(ero))
                    malbonaj << vojo + ": the Esperanto \"" + ero + "\" is missing";
                nuda.remove(ero);
            }
            nuda.remove(etikedoj());
            const bool havasLiterojn = nuda.contains(QRegularExpression(QStringLiteral("\\p{L}{3,}")));
            if ((t == a || t == p) && havasLiterojn && !samaj.contains(dosiero + ' ' + vojo)
                && !samaj.contains("* " + vojo))
                malbonaj << vojo + ": as in the source language";
            if (etikedojDe(t) != etikedojDe(a))
                malbonaj << vojo + ": markup differs from the English";
            for (const QChar c : qAsConst(nuda)) {
                if (!c.isLetter())
                    continue;
                ++literoj;
                enSkribo += skriboj.contains(c.script());
            }
        }
        angla.endGroup();
    }
    QVERIFY2(malbonaj.isEmpty(), qPrintable(malbonaj.join("\n")));
    // Esperanto words and names outside bold print may be of the Latin
    // script in any language; most of the text is in the language's own.
    QVERIFY2(enSkribo * 10 >= literoj * 8, qPrintable(QString("%1 of %2 letters in the script").arg(enSkribo).arg(literoj)));
}

QTEST_MAIN(tst_tradukoj_kompletaj)
#include "tst_tradukoj_kompletaj.moc"
