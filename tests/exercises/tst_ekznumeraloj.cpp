// The numbers of lesson 3, typed in digits through the lesson's own
// exercise, and its sheet printed to a file.

#include "ekznumeraloj.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

namespace {

QPushButton* butono(QWidget* e, const char* nomo) { return e->findChild<QPushButton*>(QLatin1String(nomo)); }
QLineEdit* kampo(QWidget* e) { return e->findChild<QLineEdit*>(QStringLiteral("Edit1")); }
QString teksto(QWidget* e, const char* nomo) { return e->findChild<QLabel*>(QLatin1String(nomo))->text(); }
int placar(QWidget* e, int n) { return e->findChild<QSpinBox*>(QStringLiteral("Placar%1").arg(n))->value(); }

void tajpas(QWidget* e, const QString& teksto)
{
    QTest::keyClicks(kampo(e), teksto);
    QTest::keyClick(kampo(e), Qt::Key_Return);
}

struct Leciono3
{
    lernilo fenestro;
    ekznumeraloj* e = komencasEkzercon<ekznumeraloj>(fenestro, 3, "Lec03_Ekz_0301");
};

} // namespace

class tst_ekznumeraloj : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete ujo; }
    void nombroj_data();
    void nombroj();
    void tutaRulado();
    void perKlavaro();
    void presado();

private:
    QTemporaryDir* ujo = nullptr;
};

void tst_ekznumeraloj::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    iMsEnSekundo = 100;
}

void tst_ekznumeraloj::nombroj_data()
{
    QTest::addColumn<QString>("respondo");
    QTest::addColumn<QString>("tajpita");
    QTest::addColumn<int>("takso");   // -1 not judged, 0 wrong, 1 right
    QTest::newRow("nothing typed") << "20" << "" << -1;
    QTest::newRow("blanks only") << "20" << "   " << -1;
    QTest::newRow("thousands after a full stop") << "1887" << "1.887" << 1;
    QTest::newRow("plain digits") << "1887" << "1887" << 1;
    QTest::newRow("a leading zero") << "20" << "020" << 1;
    QTest::newRow("another number") << "1887" << "1857" << 0;
    QTest::newRow("words for a number") << "20" << "dudek" << 0;
    QTest::newRow("words for nought") << "0" << "nul" << 1;
}

// Judged as numbers; after a mistake the right number shows and blinks, with
// nothing of the exercise to click meanwhile, and then the next one comes.
// An empty answer leaves all as it was, the field ready for typing.
void tst_ekznumeraloj::nombroj()
{
    QFETCH(QString, respondo);
    QFETCH(QString, tajpita);
    QFETCH(int, takso);
    Leciono3 l;
    l.e->respondoj[l.e->nuna] = respondo;
    const QString demando = teksto(l.e, "Vorto0");
    QString dumBlinko;
    bool haltebla = true, tajpebla = true;
    QTimer::singleShot(0, l.e, [&] {
        dumBlinko = teksto(l.e, "Korekta");
        haltebla = butono(l.e, "BitBtn3")->isEnabled();
        tajpebla = kampo(l.e)->isEnabled() || butono(l.e, "BitBtn2")->isEnabled();
    });
    tajpas(l.e, tajpita);

    QCOMPARE(placar(l.e, 2), takso == 1 ? 1 : 0);
    QCOMPARE(placar(l.e, 3), takso == 0 ? 1 : 0);
    QCOMPARE(placar(l.e, 1), takso == 1 ? 23 : 24);
    QCOMPARE(placar(l.e, 4), takso == 1 ? 100 : 0);
    if (takso == 0) {
        QCOMPARE(dumBlinko, respondo);
        QVERIFY(!haltebla && !tajpebla);
    }
    if (takso == -1)
        QCOMPARE(teksto(l.e, "Vorto0"), demando);
    QCOMPARE(teksto(l.e, "Korekta"), QString());
    QVERIFY(butono(l.e, "BitBtn3")->isEnabled());
    QVERIFY(kampo(l.e)->isEnabled() && kampo(l.e)->hasFocus());
    QCOMPARE(kampo(l.e)->text(), takso == -1 ? tajpita : QString());
}

// From the lesson's first page without the mouse: the page key brings the
// exercise, Return starts it, the field has the focus, and Return checks the
// answer there rather than starting the exercise again.
void tst_ekznumeraloj::perKlavaro()
{
    lernilo fenestro;
    QVERIFY(aktivigas(&fenestro));
    lNoteto = false;
    lSxaltilo = false;
    butono(&fenestro, "Leciono3")->click();
    auto* e = fenestro.leciono(3)->findChild<ekznumeraloj*>(QStringLiteral("Lec03_Ekz_0301"));
    auto* langetoj = fenestro.leciono(3)->findChild<QTabWidget*>();
    for (int i = 0; i < langetoj->count() && langetoj->currentWidget() != e->parentWidget(); ++i)
        QTest::keyClick(&fenestro, Qt::Key_PageDown);
    QCOMPARE(langetoj->currentWidget(), e->parentWidget());

    QTest::keyClick(&fenestro, Qt::Key_Return);
    QVERIFY(kampo(e)->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), e->respondoj.at(e->nuna));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(placar(e, 2), 1);
    QCOMPARE(placar(e, 1), 23);
    QVERIFY(kampo(e)->hasFocus());
    // The Start button names its key in the learner's language.
    QCOMPARE(butono(e, "BitBtn1")->toolTip(), QStringLiteral("Start (Return, Enter)"));
}

// One mistake, then every number of the data right: all 24 are asked once.
void tst_ekznumeraloj::tutaRulado()
{
    QStringList vortoj, ciferoj;
    QCOMPARE(_Matriz(&vortoj, "0301", "D"), 24);
    _Matriz(&ciferoj, "0301", "R");
    Leciono3 l;
    tajpas(l.e, "99999");
    QSet<QString> demanditaj;
    QString verdikto;
    for (int i = 0; i < 24; ++i) {
        const QString demando = teksto(l.e, "Vorto0");
        QVERIFY2(vortoj.contains(demando), qPrintable(demando));
        demanditaj << demando;
        if (i == 23)
            akceptasMesaghon(&verdikto);
        tajpas(l.e, ciferoj.at(vortoj.indexOf(demando)));
    }
    QCOMPARE(demanditaj.size(), 24);
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(placar(l.e, 1), 0);
    QCOMPARE(placar(l.e, 4), 96);
    QVERIFY(butono(l.e, "BitBtn1")->isEnabled());
    QCOMPARE(l.fenestro.focusWidget(), butono(l.e, "BitBtn1"));
    QVERIFY(!butono(l.e, "BitBtn2")->isEnabled() && !butono(l.e, "BitBtn3")->isEnabled());
    QVERIFY(!kampo(l.e)->isEnabled());
    QCOMPARE(teksto(l.e, "Vorto0"), QString());
}

// Every number and its answer on paper, and the run goes on untouched.
void tst_ekznumeraloj::presado()
{
    QVERIFY(Leciono3().e->findChild<QWidget*>("printilo_ps")->isHidden());
    sSistemo = "windows";
    Leciono3 l;
    QVERIFY(!butono(l.e, "printilo_ps")->isHidden());
    const QString demando = teksto(l.e, "Vorto0");
    const QString dosiero = ujo->path() + "/numeroj.pdf";
    presasAlPdf(dosiero);
    QTest::mouseClick(butono(l.e, "printilo_ps"), Qt::LeftButton);
    QCOMPARE(teksto(l.e, "Vorto0"), demando);
    QCOMPARE(placar(l.e, 1), 24);

    const QString enhavo = pdf("pdftotext", dosiero).simplified();
    QVERIFY2(enhavo.contains("Lernilo - Lec03_Ekz_0301"), qPrintable(enhavo));
    QVERIFY(enhavo.contains("Numbers exercise"));
    QVERIFY(enhavo.contains("1. dudek : ____________ 2. dudek tri : ____________"));
    QVERIFY(enhavo.contains(QString::fromUtf8("24. mil okcent kvindek sep : ____________")));
    QVERIFY(enhavo.contains("Respondoj: 1) 20 2) 23 3) 38"));
    QVERIFY(enhavo.contains("24) 1857"));
}

QTEST_MAIN(tst_ekznumeraloj)
#include "tst_ekznumeraloj.moc"
