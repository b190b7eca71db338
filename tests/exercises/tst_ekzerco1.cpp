// The listening drill of lesson 1, played as a learner plays it: the word
// asked is read from the main window's player and found among the buttons.

#include "ekzerco1.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QMediaPlayer>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

namespace {

// Gives the round dealt other words and asks one of them.
class ekzercoProvo : public ekzerco1
{
public:
    using ekzerco1::ekzerco1;
    void demandas(const QString& vorto)
    {
        for (int k = 0; k < 4; ++k)
            vortoj[elektitaj[k]] = vorto;
        novavorto();
    }
};

} // namespace

class tst_ekzerco1 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { delete fenestro; delete ujo; }
    void tutaRulado();
    void haltoKajRekomenco();
    void rekomencoDumBlinko();
    void sonoDeVorto();
    void senDatumoj();

private:
    QString ludata() const { return fenestro->ludilo->media().request().url().toLocalFile().mid(mrLoko.size()); }
    QPushButton* butono(const char* nomo) const { return ekz->findChild<QPushButton*>(nomo); }
    int valoro(const char* placar) const { return ekz->findChild<QSpinBox*>(placar)->value(); }
    QList<QPushButton*> ebligitaj() const;
    QStringList tekstoj() const;
    QPushButton* ghusta() const;
    QPushButton* malghusta() const;
    void klakas(QPushButton* b);

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
    ekzerco1* ekz = nullptr;
};

QList<QPushButton*> tst_ekzerco1::ebligitaj() const
{
    QList<QPushButton*> l;
    for (QPushButton* b : ekz->findChild<QWidget*>("butonujo")->findChildren<QPushButton*>())
        if (b->isEnabled())
            l << b;
    return l;
}

QStringList tst_ekzerco1::tekstoj() const
{
    QStringList l;
    for (const char* nomo : {"butono0", "butono3", "butono1", "butono4", "butono2", "butono5"})
        l << butono(nomo)->text();
    return l;
}

QPushButton* tst_ekzerco1::ghusta() const
{
    for (QPushButton* b : ebligitaj())
        if (vortoSono("01", b->text(), true) == ludata())
            return b;
    return nullptr;
}

QPushButton* tst_ekzerco1::malghusta() const
{
    for (QPushButton* b : ebligitaj())
        if (ghusta() && b->text() != ghusta()->text())
            return b;
    return nullptr;
}

void tst_ekzerco1::klakas(QPushButton* b)
{
    QVERIFY(b);
    fenestro->ludilo->setMedia(QMediaContent());
    QTest::mouseClick(b, Qt::LeftButton);
}

void tst_ekzerco1::initTestCase()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    fenestro = new lernilo;
    lNoteto = false;   // the settings are read: silent feedback only now
    lSxaltilo = false;
    iMsEnSekundo = 20;
    fenestro->show();
    fenestro->findChild<QAbstractButton*>("Leciono1")->click();
    fenestro->findChild<QAbstractButton*>("dekstren")->click();
    QTabWidget* langetoj = fenestro->leciono(1)->findChild<QTabWidget*>();
    QCOMPARE(langetoj->currentWidget()->objectName(), QStringLiteral("Ekzerco1_Lec01"));
    ekz = langetoj->currentWidget()->findChild<ekzerco1*>("frame");
    QVERIFY(ekz);
}

void tst_ekzerco1::init()
{
    // A closed message box leaves no window active, and mp3 then stays silent.
    QVERIFY(aktivigas(fenestro));
    if (butono("BitBtn2")->isEnabled())
        butono("BitBtn2")->click();   // left running by a failed test
}

void tst_ekzerco1::tutaRulado()
{
    QStringList dosiero, demanditaj;
    _Matriz(&dosiero, "0101", "D");
    QString verdikto;
    int eraroj = 0;

    klakas(butono("BitBtn1"));
    QCOMPARE(valoro("Placar1"), 56);
    for (int rondo = 0; rondo < 14; ++rondo) {
        const QStringList dono = tekstoj();
        QStringList rondaj;
        for (int v = 0; v < 4; ++v) {
            QCOMPARE(ebligitaj().size(), 6 - v);   // the false words stay enabled
            if ((rondo == 0 && v == 0) || (rondo == 1 && v == 3)) {
                const QString antaua = ludata();
                klakas(malghusta());
                QCOMPARE(valoro("Placar3"), ++eraroj);
                QCOMPARE(tekstoj(), dono);   // no new deal
                if (v == 3)
                    QCOMPARE(ludata(), antaua);   // the one word left is asked again
            }
            QPushButton* g = ghusta();
            QVERIFY2(g, qPrintable(ludata()));
            rondaj << g->text();
            if (rondo == 13 && v == 3)
                akceptasMesaghon(&verdikto);
            klakas(g);
            const int sukcesoj = demanditaj.size() + rondaj.size();
            QCOMPARE(valoro("Placar1"), 56 - sukcesoj);
            QCOMPARE(valoro("Placar4"), sukcesoj * 100 / (sukcesoj + eraroj));
            if (v < 3)
                QVERIFY(!g->isEnabled() && tekstoj() == dono);
        }
        if (rondo >= 12) {   // the last two rounds take the words left in file order
            QStringList restas = dosiero;
            for (const QString& d : demanditaj)
                restas.removeOne(d);
            std::sort(rondaj.begin(), rondaj.end(),
                      [&](const QString& a, const QString& b) { return dosiero.indexOf(a) < dosiero.indexOf(b); });
            QCOMPARE(rondaj, restas.mid(0, 4));
        }
        demanditaj << rondaj;
    }
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(valoro("Placar2"), 56);
    QCOMPARE(valoro("Placar4"), 96);
    std::sort(demanditaj.begin(), demanditaj.end());
    std::sort(dosiero.begin(), dosiero.end());
    QCOMPARE(demanditaj, dosiero);
    QVERIFY(butono("BitBtn1")->isEnabled() && !butono("BitBtn2")->isEnabled() && !butono("BitBtn3")->isEnabled());
    QVERIFY(ebligitaj().isEmpty());
}

void tst_ekzerco1::haltoKajRekomenco()
{
    klakas(butono("BitBtn1"));
    const QString vorto = ludata();
    klakas(butono("BitBtn3"));
    QCOMPARE(ludata(), vorto);
    klakas(ghusta());
    const QStringList dono = tekstoj();

    // Stop keeps the score and the words in sight.
    klakas(butono("BitBtn2"));
    QVERIFY(butono("BitBtn1")->hasFocus() && !butono("BitBtn3")->isEnabled());
    QVERIFY(ebligitaj().isEmpty());
    QCOMPARE(tekstoj(), dono);
    QCOMPARE(valoro("Placar1"), 55);
    QCOMPARE(valoro("Placar2"), 1);

    QTest::keyClick(butono("BitBtn1"), Qt::Key_Space);
    QVERIFY(!butono("BitBtn1")->isEnabled());
    QCOMPARE(valoro("Placar1"), 56);
    QCOMPARE(valoro("Placar2"), 0);
    QVERIFY(ghusta());
}

void tst_ekzerco1::rekomencoDumBlinko()
{
    klakas(butono("BitBtn1"));
    QTimer::singleShot(0, this, [this] {   // during the blink
        klakas(butono("BitBtn2"));
        klakas(butono("BitBtn1"));
    });
    klakas(malghusta());   // returns when the blink is over

    // The new run goes on untouched by the old mistake.
    QCOMPARE(valoro("Placar3"), 0);
    QVERIFY(butono("BitBtn2")->isEnabled() && butono("BitBtn3")->isEnabled());
    klakas(ghusta());
    QCOMPARE(valoro("Placar2"), 1);
    QCOMPARE(valoro("Placar4"), 100);
}

// The word aŭ has a sound of its own name; aŭto does not.
void tst_ekzerco1::sonoDeVorto()
{
    ekzercoProvo provo(fenestro);
    provo.findChild<QPushButton*>("BitBtn1")->click();
    provo.demandas(QString::fromUtf8("aŭ"));
    QCOMPARE(ludata(), QStringLiteral("sonoj/lec01/auh.oga"));
    provo.demandas(QString::fromUtf8("aŭto"));
    QCOMPARE(ludata(), QStringLiteral("sonoj/lec01/auxto.oga"));
}

void tst_ekzerco1::senDatumoj()
{
    Q_CLEANUP_RESOURCE(ekzercoj);
    klakas(butono("BitBtn1"));
    Q_INIT_RESOURCE(ekzercoj);
    QVERIFY(butono("BitBtn1")->isEnabled() && !butono("BitBtn2")->isEnabled() && !butono("BitBtn3")->isEnabled());
    QVERIFY(ebligitaj().isEmpty());
    QCOMPARE(valoro("Placar1"), 0);
    QCOMPARE(ludata(), QString());
}

QTEST_MAIN(tst_ekzerco1)
#include "tst_ekzerco1.moc"
