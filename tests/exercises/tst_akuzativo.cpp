// The accusative exercise driven through its words in lessons 2 and 6, and
// on sentences of its own for the cases the verdict turns on.

#include "akuzativo.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

namespace {

QPushButton* butono(QWidget* e, const char* nomo) { return e->findChild<QPushButton*>(QLatin1String(nomo)); }
QLabel* vorto(QWidget* e, int i) { return e->findChild<QLabel*>(QStringLiteral("label_%1").arg(164 + i)); }
QString teksto(QWidget* e, const char* nomo) { return e->findChild<QLabel*>(QLatin1String(nomo))->text(); }
int placar(QWidget* e, int n) { return e->findChild<QSpinBox*>(QStringLiteral("Placar%1").arg(n))->value(); }
void klakas(QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); }

const QString nigra = QStringLiteral("color: rgb(0, 0, 0);");
const QString subjekto = QStringLiteral("This is the subject, and a subject can't end with \"n\".");
const QString objekto = QStringLiteral("Congratulations!  This is the direct object and must end with \"n\".");

// The sentence shown, word by word.
QStringList frazo(QWidget* e)
{
    QStringList vortoj;
    for (int i = 0; i < 10; ++i) {
        if (!vorto(e, i)->isHidden())
            vortoj << vorto(e, i)->text();
    }
    return vortoj;
}

// A lesson as the learner opens it, on the page of the exercise, started.
struct Leciono
{
    lernilo fenestro;
    akuzativo* e;
    explicit Leciono(int n = 2, const QString& nomo = QStringLiteral("Lec02_Ekz_Akuz_0202"))
        : e(komencasEkzercon<akuzativo>(fenestro, n, nomo)) {}
    // After Start, the run holds this one sentence instead of the lesson's.
    void unuFrazo(const QString& d, const QString& r, const QString& k)
    {
        e->datumoj = {d.split('~')};
        e->respondoj = {r.split('~')};
        e->klarigindicoj = {k.split('~')};
        e->kiom = 1;
        e->uzitaj = {false};
        e->novafrazo();
    }
};

} // namespace

class tst_akuzativo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete ujo; }
    void nenioMarkenda();
    void forgesitaVortoBlinkas();
    void erarojKajFermo();
    void senTraduko();
    void klarigoVideblaTuta();
    void tutaRulado_data();
    void tutaRulado();

private:
    QTemporaryDir* ujo = nullptr;
};

void tst_akuzativo::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    iMsEnSekundo = 10;
}

void tst_akuzativo::nenioMarkenda()
{
    Leciono l;
    l.unuFrazo("La~kato~estas~nigra", "~~~~~~~~~~1", "2~0~3~10");   // no eleventh word to mark
    QCOMPARE(frazo(l.e), QStringList({"La", "kato", "estas", "nigra"}));
    QString verdikto;
    akceptasMesaghon(&verdikto);
    klakas(butono(l.e, "BitBtn2"));
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(placar(l.e, 2), 1);
    QCOMPARE(placar(l.e, 3), 0);
    QCOMPARE(placar(l.e, 4), 100);
    // The run is over: stopped, the score left readable.
    QVERIFY(butono(l.e, "BitBtn1")->isEnabled());
    QVERIFY(!butono(l.e, "BitBtn2")->isEnabled() && !butono(l.e, "BitBtn3")->isEnabled());
    QVERIFY(!l.e->findChild<QWidget*>("Vortoj")->isEnabled());
    QCOMPARE(vorto(l.e, 0)->text(), QString());
    QCOMPARE(teksto(l.e, "Traduko1"), QString());
}

// Closed with the object unmarked: one mistake, the object flashes and
// nothing else does, no button works meanwhile, and the sentence stays
// in the run.
void tst_akuzativo::forgesitaVortoBlinkas()
{
    iMsEnSekundo = 50;   // a few turns of red and white
    Leciono l;
    l.unuFrazo("La~filo~amas~la~patrino", "~~~~1", "2~0~3~2~4");
    QSet<QString> objekto, aliaj;
    bool butonoj = false;
    QTimer gardisto;
    gardisto.setInterval(1);
    connect(&gardisto, &QTimer::timeout, l.e, [&] {
        objekto << vorto(l.e, 4)->styleSheet();
        for (int i = 0; i < 4; ++i)
            aliaj << vorto(l.e, i)->styleSheet();
        butonoj |= butono(l.e, "BitBtn2")->isEnabled() || butono(l.e, "BitBtn3")->isEnabled();
    });
    gardisto.start();
    klakas(butono(l.e, "BitBtn2"));
    gardisto.stop();

    QVERIFY(objekto.contains("color: rgb(200, 0, 0);") && objekto.contains("color: rgb(255, 255, 255);"));
    QCOMPARE(aliaj, QSet<QString>({nigra}));
    QVERIFY(!butonoj);
    QCOMPARE(placar(l.e, 3), 1);
    QCOMPARE(placar(l.e, 2), 0);
    QCOMPARE(placar(l.e, 1), 28);
    QCOMPARE(frazo(l.e).last(), QStringLiteral("patrino"));
    QCOMPARE(vorto(l.e, 4)->styleSheet(), nigra);
    QVERIFY(butono(l.e, "BitBtn2")->isEnabled() && butono(l.e, "BitBtn3")->isEnabled());
}

// Each click is explained; a wrong one is a mistake each time, a right one
// adds the ending once and stays green.
void tst_akuzativo::erarojKajFermo()
{
    Leciono l;
    l.unuFrazo("La~filo~amas~la~patrino", "~~~~1", "2~0~3~2~4");
    klakas(vorto(l.e, 4));
    QCOMPARE(vorto(l.e, 4)->text(), QStringLiteral("patrinon"));
    QCOMPARE(teksto(l.e, "Klarigo"), objekto);
    for (int i = 0; i < 3; ++i)
        klakas(vorto(l.e, 1));
    QCOMPARE(placar(l.e, 3), 3);
    QCOMPARE(placar(l.e, 4), 0);
    QCOMPARE(vorto(l.e, 1)->styleSheet(), QStringLiteral("color: rgb(150, 0, 0);"));
    QCOMPARE(teksto(l.e, "Klarigo"), subjekto);
    QCOMPARE(vorto(l.e, 4)->styleSheet(), QStringLiteral("color: rgb(0, 150, 0);"));
    klakas(vorto(l.e, 4));
    QCOMPARE(vorto(l.e, 4)->text(), QStringLiteral("patrinon"));
    QCOMPARE(teksto(l.e, "Klarigo"), objekto);
    QCOMPARE(placar(l.e, 1), 28);   // words alone score nothing

    QString verdikto;
    akceptasMesaghon(&verdikto);
    klakas(butono(l.e, "BitBtn2"));
    QCOMPARE(placar(l.e, 2), 1);
    QCOMPARE(placar(l.e, 3), 3);
    QCOMPARE(placar(l.e, 4), 25);
    QCOMPARE(verdikto, smDenove);
}

// A language without the lesson's translations nor the explanations: the
// exercise runs on with empty texts.
void tst_akuzativo::senTraduko()
{
    QFile anglaj(":/tradukoj/angla.trd");
    QVERIFY(anglaj.open(QIODevice::ReadOnly));
    QString enhavo = QString::fromUtf8(anglaj.readAll());
    for (const char* sekcio : {"Ekzerco-0204]", "Ekzerco-Klarigoj]"})
        enhavo.replace(QLatin1Char('[') + QLatin1String(sekcio), "[Alia" + QLatin1String(sekcio));
    QDir(ujo->path()).mkpath("rimedoj/tradukoj");
    QFile senaj(ujo->path() + "/rimedoj/tradukoj/angla.trd");
    QVERIFY(senaj.open(QIODevice::WriteOnly));
    senaj.write(enhavo.toUtf8());
    senaj.close();

    Leciono l;
    Loko = ujo->path() + "/rimedoj/";
    klakas(butono(l.e, "BitBtn3"));   // Start anew reads the texts again
    klakas(butono(l.e, "BitBtn1"));
    QVERIFY(!frazo(l.e).isEmpty());
    QCOMPARE(teksto(l.e, "Traduko1"), QString());
    klakas(vorto(l.e, 0));
    QCOMPARE(teksto(l.e, "Klarigo"), QString());
    klakas(butono(l.e, "BitBtn2"));
    QVERIFY(placar(l.e, 2) + placar(l.e, 3) > 0);
    QVERIFY(!frazo(l.e).isEmpty() && butono(l.e, "BitBtn2")->isEnabled());
}

// A long sentence and the longest explanation stand whole at the window's
// first size, in every language the course ships, with no scrolling.
void tst_akuzativo::klarigoVideblaTuta()
{
    const QStringList lingvoj = QDir(":/tradukoj").entryList({"*.trd"});
    QVERIFY(!lingvoj.isEmpty());
    for (const QString& dosiero : lingvoj) {
        preparasLerninton(*ujo, dosiero, dosiero);
        Leciono l;
        l.unuFrazo(QString::fromUtf8("Hieraŭ~mia~malgranda~frato~aĉetis~bela~ruĝa~biciklo~en~urbo"),
                   "~~~~~1~1~1~~", "7~2~1~0~3~5~5~4~6~2");
        klakas(vorto(l.e, 5));
        // The explanation of the object, the longest there is (in characters
        // of the Latin script; Chinese and Japanese say it in fewer).
        QVERIFY2(teksto(l.e, "Klarigo").size() > 40, qPrintable(dosiero));
        for (const char* nomo : {"Vortoj", "Traduko1", "Klarigo"}) {
            QWidget* w = l.e->findChild<QWidget*>(nomo);
            QVERIFY2(w->visibleRegion() == QRegion(w->rect()), qPrintable(dosiero + ": " + nomo));
            if (w->hasHeightForWidth())
                QVERIFY2(w->height() >= w->heightForWidth(w->width()), qPrintable(dosiero + ": " + nomo));
        }
    }
}

void tst_akuzativo::tutaRulado_data()
{
    QTest::addColumn<int>("leciono");
    QTest::addColumn<QString>("nomo");
    QTest::newRow("lesson 2") << 2 << "Lec02_Ekz_Akuz_0202";
    QTest::newRow("lesson 6") << 6 << "Lec06_Ekz_Akuz_0605";
}

// Every sentence with its own translation, the right words marked, each
// sentence asked once; the mouse takes the "n" shape over the words only.
void tst_akuzativo::tutaRulado()
{
    QFETCH(int, leciono);
    QFETCH(QString, nomo);
    Leciono l(leciono, nomo);
    QList<QStringList> D, R;
    const int kiom = _Matriz2(&D, nomo.right(4), "D", 11);
    _Matriz2(&R, nomo.right(4), "R", 11);
    QStringList tradukoj;
    QCOMPARE(_Matriz(&tradukoj, EkzercoAkuzativoTrad, "T"), kiom);
    QCOMPARE(placar(l.e, 1), kiom);
    for (int i = 0; i < 10; ++i)
        QCOMPARE(vorto(l.e, i)->cursor().shape(), Qt::BitmapCursor);
    QCOMPARE(l.e->findChild<QWidget*>("Vortoj")->cursor().shape(), Qt::ArrowCursor);

    QSet<int> faritaj;
    QString verdikto;
    for (int n = 0; n < kiom; ++n) {
        const QStringList montrita = frazo(l.e);
        int j = 0;
        while (j < kiom && (faritaj.contains(j) || D.at(j).join(' ').trimmed() != montrita.join(' ')))
            ++j;
        QVERIFY2(j < kiom, qPrintable(montrita.join(' ')));
        faritaj << j;
        QCOMPARE(teksto(l.e, "Traduko1"), tradukoj.at(j));
        for (int i = 0; i < 10; ++i) {
            if (R.at(j).at(i) == "1")
                klakas(vorto(l.e, i));
        }
        if (n == kiom - 1)
            akceptasMesaghon(&verdikto);
        klakas(butono(l.e, "BitBtn2"));
    }
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(placar(l.e, 1), 0);
    QCOMPARE(placar(l.e, 2), kiom);
    QCOMPARE(placar(l.e, 4), 100);
    QVERIFY(butono(l.e, "BitBtn1")->isEnabled() && !butono(l.e, "BitBtn3")->isEnabled());
}

QTEST_MAIN(tst_akuzativo)
#include "tst_akuzativo.moc"
