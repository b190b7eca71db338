// Dictation as a learner does it: the word asked is read from the main
// window's player, the answer typed into the field and sent with Enter.

#include "audkompreno.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QLineEdit>
#include <QMediaPlayer>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

namespace {

// Asks a chosen row instead of a drawn one.
class audkomprenoProvo : public audkompreno
{
public:
    using audkompreno::audkompreno;
    void demandas(const QString& vico)
    {
        nuna = datumoj.indexOf(vico);
        sono = ekzercaSono(kodo.left(2), vico, true);
    }
};

} // namespace

class tst_audkompreno : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { delete fenestro; delete ujo; }
    void xSistemo();
    void purigado();
    void numeroElLaLeciono();
    void tutaRulado();

private:
    QString ludata() const { return fenestro->ludilo->media().request().url().toLocalFile().mid(mrLoko.size()); }
    QPushButton* butono(audkompreno* e, const char* nomo) const { return e->findChild<QPushButton*>(nomo); }
    int valoro(audkompreno* e, const char* placar) const { return e->findChild<QSpinBox*>(placar)->value(); }
    // Types the answer key by key (ASCII: x pairs for the Esperanto letters)
    // and presses Enter.
    void tajpas(audkompreno* e, const QString& respondo);
    // A frame of our own on a page of lesson 4, asking the row `vico`.
    audkomprenoProvo* provo(const QString& vico);

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
    audkomprenoProvo* lec04 = nullptr;
};

void tst_audkompreno::tajpas(audkompreno* e, const QString& respondo)
{
    auto* kampo = e->findChild<QLineEdit*>("Edit1");
    kampo->clear();
    QTest::keyClicks(kampo, respondo);
    QTest::keyClick(kampo, Qt::Key_Return);
}

audkomprenoProvo* tst_audkompreno::provo(const QString& vico)
{
    if (!lec04) {
        fenestro->findChild<QAbstractButton*>("Leciono4")->click();
        auto* pagho = new QWidget;
        fenestro->leciono(4)->findChild<QTabWidget*>()->addTab(pagho, "provo");
        lec04 = new audkomprenoProvo(pagho);
        lec04->setObjectName("Lec04_Ekz_Aud_0403");
    }
    if (!butono(lec04, "BitBtn8")->isEnabled())
        butono(lec04, "BitBtn10")->click();
    butono(lec04, "BitBtn8")->click();
    lec04->demandas(vico);
    return lec04;
}

void tst_audkompreno::initTestCase()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    fenestro = new lernilo;
    lNoteto = false;
    lSxaltilo = false;
    iMsEnSekundo = 50;   // a correction blinks for 150 ms
    fenestro->show();
}

void tst_audkompreno::init()
{
    QVERIFY(aktivigas(fenestro));
    lCxapeligo = true;
}

void tst_audkompreno::xSistemo()
{
    audkompreno* e = provo(QString::fromUtf8("ĉiu"));
    tajpas(e, "cxiu");
    QCOMPARE(valoro(e, "Placar2"), 1);
    QCOMPARE(e->findChild<QWidget*>("vortujo")->findChildren<QLabel*>().first()->text(), QString::fromUtf8("ĉiu"));

    // With the x system off the same keys are a wrong answer, and the right
    // text blinks while nothing can be pressed.
    lCxapeligo = false;
    lec04->demandas(QString::fromUtf8("ĉiu"));
    QString korekta;
    bool malebligitaj = false;
    QTimer rigardo;   // looks at the frame while the correction blinks
    connect(&rigardo, &QTimer::timeout, this, [&] {
        if (!korekta.isEmpty())
            return;
        korekta = e->findChild<QLabel*>("Korekta")->text();
        malebligitaj = !butono(e, "BitBtn9")->isEnabled() && !butono(e, "BitBtn10")->isEnabled()
                       && !butono(e, "finita")->isEnabled() && !e->findChild<QLineEdit*>("Edit1")->isEnabled();
    });
    rigardo.start(1);
    tajpas(e, "cxiu");
    rigardo.stop();
    QCOMPARE(valoro(e, "Placar3"), 1);
    QCOMPARE(valoro(e, "Placar2"), 1);
    QCOMPARE(valoro(e, "Placar4"), 50);
    QCOMPARE(korekta, QString::fromUtf8("ĉiu"));
    QVERIFY(malebligitaj);
    QVERIFY(e->findChild<QLabel*>("Korekta")->text().isEmpty());
    QVERIFY(butono(e, "BitBtn10")->isEnabled() && butono(e, "finita")->isEnabled());
}

void tst_audkompreno::purigado()
{
    audkompreno* e = provo("kial");
    int ghustaj = 0, malghustaj = 0;
    const struct { const char* respondo; int rezulto; } provoj[] = {
        {"   ", 0}, {"  Kial ", 1}, {"kial.", 1}, {"KIAL", 1}, {"kial?", -1}, {".", -1}, {"kiel", -1}};
    for (const auto& p : provoj) {
        lec04->demandas("kial");
        tajpas(e, QString::fromLatin1(p.respondo));
        ghustaj += p.rezulto > 0;
        malghustaj += p.rezulto < 0;
        QVERIFY2(valoro(e, "Placar2") == ghustaj && valoro(e, "Placar3") == malghustaj, p.respondo);
    }
    QCOMPARE(valoro(e, "Placar1"), 40 - 3);
}

void tst_audkompreno::numeroElLaLeciono()
{
    // Row 10 of the data is the clickable sentence Lec04_Button10.
    audkompreno* e = provo("10");
    butono(e, "BitBtn9")->click();
    QCOMPARE(ludata(), QStringLiteral("sonoj/lec04/btn10.oga"));
    const QString frazo = fenestro->leciono(4)->findChild<QLabel*>("Lec04_Button10")->text();
    QVERIFY(frazo.contains(' '));
    tajpas(e, frazo.toUpper());
    QCOMPARE(valoro(e, "Placar2"), 1);
    QCOMPARE(e->findChild<QWidget*>("vortujo")->findChildren<QLabel*>().first()->text(), purigas(frazo, true));
}

void tst_audkompreno::tutaRulado()
{
    fenestro->findChild<QAbstractButton*>("Leciono1")->click();
    auto* e = fenestro->leciono(1)->findChild<audkompreno*>("Lec01_Ekz_0102");
    QVERIFY(e);
    QStringList vicoj;
    QCOMPARE(_Matriz(&vicoj, "0102", "D"), 48);
    // What the learner hears, and what he types for it: a word, or the
    // sentence of the clickable word that a number names.
    QHash<QString, QString> vicoDe;
    for (const QString& v : vicoj) {
        if (v.toInt() > 0)
            vicoDe.insert(frazoSono("01", v), fenestro->leciono(1)->findChild<QLabel*>("Lec01_Button" + v)->text());
        else
            vicoDe.insert(vortoSono("01", v, true), v);
    }

    fenestro->ludilo->setMedia(QMediaContent());
    butono(e, "BitBtn8")->click();
    QCOMPARE(valoro(e, "Placar1"), 40);
    QStringList respondoj;
    QString verdikto;
    bool eraris = false;
    for (int provoj = 0; respondoj.size() < 40 && provoj < 60; ++provoj) {
        const QString vico = vicoDe.value(ludata());
        QVERIFY2(!vico.isEmpty(), qPrintable(ludata()));
        QVERIFY(!respondoj.contains(purigas(vico, true)));   // a row answered right is not asked again
        if (respondoj.size() == 20 && !eraris) {
            eraris = true;
            e->findChild<QLineEdit*>("Edit1")->setText(vico + "o");
            QTest::keyClick(e->findChild<QLineEdit*>("Edit1"), Qt::Key_Return);
            QCOMPARE(valoro(e, "Placar3"), 1);
            QCOMPARE(valoro(e, "Placar1"), 20);
            continue;
        }
        if (respondoj.size() == 39)
            akceptasMesaghon(&verdikto);
        e->findChild<QLineEdit*>("Edit1")->setText(vico);
        QTest::keyClick(e->findChild<QLineEdit*>("Edit1"), Qt::Key_Return);
        respondoj << purigas(vico, true);
    }
    QCOMPARE(respondoj.size(), 40);
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(valoro(e, "Placar1"), 0);
    QCOMPARE(valoro(e, "Placar4"), 97);
    QStringList panelo;
    for (QLabel* l : e->findChild<QWidget*>("vortujo")->findChildren<QLabel*>())
        panelo << l->text();
    QCOMPARE(panelo, respondoj);
    QVERIFY(butono(e, "BitBtn8")->isEnabled() && !butono(e, "BitBtn9")->isEnabled());
    QVERIFY(!e->findChild<QLineEdit*>("Edit1")->isEnabled() && !butono(e, "finita")->isEnabled());
}

QTEST_MAIN(tst_audkompreno)
#include "tst_audkompreno.moc"
