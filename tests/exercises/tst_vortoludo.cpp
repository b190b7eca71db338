// The word game played through its widgets in lessons 1 and 2: the right
// meaning is found as the learner would find it, by the word shown.

#include "lernilo.h"
#include "testaj_helpoj.h"
#include "vortoludo.h"

#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

class tst_vortoludo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void demandoj_data();
    void demandoj();
    void eraroBlinkas();
    void tutaRulado();
    void haltoDumPauzo_data();
    void haltoDumPauzo();
    void presadoDumRulado();
    void senDatumoj();

private:
    vortoludo* malfermas(int leciono, const QString& nomo);
    QLabel* teksto(int n) const { return ekz->findChild<QLabel*>(QStringLiteral("teksto%1").arg(n)); }
    QString vorto() const { return ekz->findChild<QLabel*>("Vorto")->text(); }
    QFrame* grupo() const { return ekz->findChild<QFrame*>("Grupo"); }
    QAbstractButton* butono(const char* nomo) const { return ekz->findChild<QAbstractButton*>(nomo); }
    int placar(int n) const { return ekz->findChild<QSpinBox*>(QStringLiteral("Placar%1").arg(n))->value(); }
    void klakas(QWidget* w) { QVERIFY(w); QTest::mouseClick(w, Qt::LeftButton); }
    QLabel* ghustaEtikedo() const;
    bool iuMarkita() const;

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
    vortoludo* ekz = nullptr;
};

vortoludo* tst_vortoludo::malfermas(int leciono, const QString& nomo)
{
    fenestro->findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(leciono))->click();
    auto* e = fenestro->leciono(leciono)->findChild<vortoludo*>(nomo);
    fenestro->leciono(leciono)->findChild<QTabWidget*>()->setCurrentWidget(e->parentWidget());
    return e;
}

// The meaning label offered that holds the lesson label named in column R
// for the item whose word is shown.
QLabel* tst_vortoludo::ghustaEtikedo() const
{
    const QString id = ekz->objectName().right(4), prefikso = ekz->objectName().left(6);
    QStringList d, r;
    _Matriz(&d, id, "D");
    _Matriz(&r, id, "R");
    QWidget* leciono = fenestro->findChild<QTabWidget*>(prefikso.left(5));
    for (int i = 0; i < d.size(); ++i) {
        auto* b = leciono->findChild<QLabel*>(prefikso + "Button" + d[i]);
        if ((b ? b->text() : d[i]) != vorto())
            continue;
        const QString signifo = leciono->findChild<QLabel*>(prefikso + "Label" + r[i])->text();
        for (int n = 0; n < 5; ++n) {
            if (teksto(n)->text() == signifo)
                return teksto(n);
        }
    }
    return nullptr;
}

bool tst_vortoludo::iuMarkita() const
{
    for (QRadioButton* r : ekz->findChildren<QRadioButton*>()) {
        if (r->isChecked())
            return true;
    }
    return false;
}

void tst_vortoludo::initTestCase()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    fenestro = new lernilo;
    fenestro->show();
    lNoteto = false;   // the window has read them from the settings
    lSxaltilo = false;
    iMsEnSekundo = 20;   // pauses and blinks of a fiftieth of their length
    sSistemo = "windows";   // where the print button shows
}

void tst_vortoludo::init()
{
    QVERIFY(aktivigas(fenestro));
    ekz = malfermas(1, "Lec01_0103");
    if (butono("BitBtn20")->isEnabled())
        butono("BitBtn20")->click();   // what a failed test left running
}

void tst_vortoludo::cleanupTestCase()
{
    delete fenestro;
    delete ujo;
}

void tst_vortoludo::demandoj_data()
{
    QTest::addColumn<int>("leciono");
    QTest::addColumn<QString>("nomo");
    QTest::addColumn<bool>("literaj");   // the data holds words as they are
    QTest::newRow("lesson words") << 1 << "Lec01_0103" << false;
    QTest::newRow("words of the data") << 2 << "Lec02_Ekz_Vorto_0203" << true;
}

// Start after Start: every word asked shows with its right meaning among
// five, and a word given in the data stands as it is.
void tst_vortoludo::demandoj()
{
    QFETCH(int, leciono);
    QFETCH(QString, nomo);
    QFETCH(bool, literaj);
    ekz = malfermas(leciono, nomo);
    QStringList d;
    _Matriz(&d, nomo.right(4), "D");
    int literajVidataj = 0;
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(butono("BitBtn18"), Qt::Key_Space);
        QVERIFY(grupo()->isVisible());
        QCOMPARE(placar(1), 40);
        QVERIFY2(ghustaEtikedo(), qPrintable(vorto()));
        for (int n = 0; n < 5; ++n)
            QVERIFY(!teksto(n)->text().isEmpty());
        literajVidataj += d.contains(vorto()) && vorto().toInt() == 0;
        klakas(butono("BitBtn20"));
    }
    QCOMPARE(literajVidataj > 0, literaj);
}

void tst_vortoludo::eraroBlinkas()
{
    klakas(butono("BitBtn18"));
    QLabel* ghusta = ghustaEtikedo();
    QVERIFY(ghusta);
    const int n = (ghusta == teksto(0)) ? 1 : 0;
    auto* malghusta = ekz->findChild<QRadioButton*>(QStringLiteral("frazo%1").arg(n));
    QSet<int> rughaj;   // the meanings seen red during the blink
    QTimer rigardo;
    connect(&rigardo, &QTimer::timeout, this, [&] {
        for (int k = 0; k < 5; ++k) {
            if (teksto(k)->styleSheet().contains("color: red"))
                rughaj << k;
        }
    });
    rigardo.start(0);
    malghusta->setFocus();
    QTest::keyClick(malghusta, Qt::Key_Space);   // back after the blink
    rigardo.stop();

    QCOMPARE(rughaj, QSet<int>({ghusta->objectName().right(1).toInt()}));
    QCOMPARE(ghusta->styleSheet(), QString());
    QCOMPARE(placar(1), 40);
    QCOMPARE(placar(3), 1);
    QCOMPARE(placar(4), 0);
    QVERIFY(!iuMarkita());
    QVERIFY(grupo()->isEnabled());
}

// 45 items: a run of 40 right answers, each word asked once.
void tst_vortoludo::tutaRulado()
{
    klakas(butono("BitBtn18"));
    QSet<QString> demanditaj;
    QString verdikto;
    for (int i = 0; i < 40; ++i) {
        demanditaj << vorto();
        if (i == 39)
            akceptasMesaghon(&verdikto);
        klakas(ghustaEtikedo());
        QCOMPARE(placar(2), i + 1);
    }
    QCOMPARE(demanditaj.size(), 40);
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(placar(1), 0);
    QVERIFY(butono("BitBtn18")->isEnabled() && !butono("BitBtn20")->isEnabled());
    QVERIFY(grupo()->isHidden());
}

void tst_vortoludo::haltoDumPauzo_data()
{
    QTest::addColumn<bool>("rekomencas");
    QTest::newRow("Stop") << false;
    QTest::newRow("Stop and Start") << true;
}

void tst_vortoludo::haltoDumPauzo()
{
    QFETCH(bool, rekomencas);
    klakas(butono("BitBtn18"));
    QTimer::singleShot(0, this, [&] {   // during the pause after the answer
        klakas(butono("BitBtn20"));
        if (rekomencas)
            klakas(butono("BitBtn18"));
    });
    klakas(ghustaEtikedo());

    QVERIFY(!iuMarkita());
    if (rekomencas) {
        QCOMPARE(placar(2), 0);   // the new run is left as it began
        QCOMPARE(placar(1), 40);
    } else {
        QCOMPARE(placar(2), 1);
        QVERIFY(grupo()->isHidden());
        QVERIFY(butono("BitBtn18")->hasFocus());
        klakas(butono("BitBtn18"));
    }
    QVERIFY(grupo()->isEnabled());
    klakas(ghustaEtikedo());
    QCOMPARE(placar(2), 1);
}

void tst_vortoludo::presadoDumRulado()
{
    klakas(butono("BitBtn18"));
    const QString demando = vorto();
    const QString dosiero = ujo->path() + "/vortoj.pdf";
    presasAlPdf(dosiero);
    klakas(butono("printilo_ps"));
    QCOMPARE(vorto(), demando);
    QCOMPARE(placar(1), 40);
    QVERIFY(grupo()->isEnabled());

    const QString enhavo = pdf("pdftotext", dosiero).simplified();
    QVERIFY2(enhavo.contains("Lernilo - Lec01_0103"), qPrintable(enhavo));
    QVERIFY(enhavo.contains("45) " + fenestro->findChild<QLabel*>("Lec01_Button128")->text()));
    // Every item, past the 40 of a run, has the letter of its right meaning.
    const QString respondoj = enhavo.mid(enhavo.indexOf("Respondoj:"));
    QCOMPARE(respondoj.count(QRegularExpression(QString::fromUtf8("(?<!\\d)\\d+\\) [abcĉd] "))), 45);
}

void tst_vortoludo::senDatumoj()
{
    QTabWidget langetoj;
    ekz = new vortoludo;
    ekz->setObjectName("Lec01_0199");
    langetoj.addTab(ekz, "1");
    langetoj.show();
    klakas(butono("BitBtn18"));
    QVERIFY(butono("BitBtn18")->isEnabled() && !butono("BitBtn20")->isEnabled());
    QVERIFY(grupo()->isHidden());
}

QTEST_MAIN(tst_vortoludo)
#include "tst_vortoludo.moc"
