// The clock of lesson 11 driven through the lesson's own exercise; the cases
// that need a given answer set it.

#include "kiomahoro.h"
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

struct Leciono11
{
    lernilo fenestro;
    kiomahoro* e = komencasEkzercon<kiomahoro>(fenestro, 11, "Lec11_Ekzerco_Horo");
};

} // namespace

class tst_kiomahoro : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete ujo; }
    void horoj_data();
    void horoj();
    void tutaRulado();
    void folioDekstreMaldekstren();

private:
    QTemporaryDir* ujo = nullptr;
};

void tst_kiomahoro::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    iMsEnSekundo = 100;
}

void tst_kiomahoro::horoj_data()
{
    QTest::addColumn<QString>("respondo");
    QTest::addColumn<QString>("tajpita");
    QTest::addColumn<int>("takso");   // -1 not judged, 0 wrong, 1 right
    QTest::newRow("the empty mask") << "06:33" << "" << -1;
    QTest::newRow("two digits for the hour") << "06:33" << "0633" << 1;
    QTest::newRow("no leading zero") << "06:33" << "6:33" << 0;
    QTest::newRow("half filled") << "06:33" << "063" << 0;
    QTest::newRow("midnight as 24:00") << "24:00" << "2400" << 1;
    QTest::newRow("midnight as 00:00") << "24:00" << "0000" << 0;
}

// Typed as a learner types into the mask, and judged by the check button;
// a wrong time shows the right one while it blinks.
void tst_kiomahoro::horoj()
{
    QFETCH(QString, respondo);
    QFETCH(QString, tajpita);
    QFETCH(int, takso);
    Leciono11 l;
    QCOMPARE(kampo(l.e)->text(), QStringLiteral(":"));
    QCOMPARE(kampo(l.e)->cursorPosition(), 0);
    l.e->respondoj[l.e->nuna] = respondo;
    QString dumBlinko;
    QTimer::singleShot(0, l.e, [&] { dumBlinko = teksto(l.e, "Korekta"); });
    QTest::keyClicks(kampo(l.e), tajpita);
    QTest::mouseClick(butono(l.e, "BitBtn2"), Qt::LeftButton);

    QCOMPARE(placar(l.e, 1), takso == 1 ? 13 : 14);
    QCOMPARE(placar(l.e, 2), takso == 1 ? 1 : 0);
    QCOMPARE(placar(l.e, 3), takso == 0 ? 1 : 0);
    QCOMPARE(dumBlinko, takso == 0 ? respondo : QString());
    QVERIFY(kampo(l.e)->isEnabled() && kampo(l.e)->hasFocus());
    QCOMPARE(kampo(l.e)->text(), QStringLiteral(":"));
}

void tst_kiomahoro::tutaRulado()
{
    QStringList vortoj, ciferoj;
    QCOMPARE(_Matriz(&vortoj, "1101", "D"), 14);
    _Matriz(&ciferoj, "1101", "R");
    Leciono11 l;
    QSet<QString> demanditaj;
    QString verdikto;
    for (int i = 0; i < 14; ++i) {
        const QString demando = teksto(l.e, "Vorto0");
        QVERIFY2(vortoj.contains(demando), qPrintable(demando));
        demanditaj << demando;
        if (i == 13)
            akceptasMesaghon(&verdikto);
        QTest::keyClicks(kampo(l.e), QString(ciferoj.at(vortoj.indexOf(demando))).remove(':'));
        QTest::keyClick(kampo(l.e), Qt::Key_Return);
    }
    QCOMPARE(demanditaj.size(), 14);
    QCOMPARE(verdikto, smGratulon);
    QCOMPARE(placar(l.e, 1), 0);
    QCOMPARE(placar(l.e, 4), 100);
    QVERIFY(butono(l.e, "BitBtn1")->isEnabled() && !kampo(l.e)->isEnabled());
}

// On a sheet in a right-to-left language each time and its line stand
// inside an embedding of their own; the answers stay left to right.
void tst_kiomahoro::folioDekstreMaldekstren()
{
    QStringList vortoj;
    _Matriz(&vortoj, "1101", "D");
    Leciono11 l;
    const QString linio = " : ______:______";
    Direkto = "RTL";
    const QString dekstre = l.e->folio();
    Direkto = "LTR";
    const QString maldekstre = l.e->folio();
    for (const QString& vorto : vortoj) {
        QVERIFY(dekstre.contains("<li>" + QString(QChar(0x202A)) + vorto + linio + QChar(0x202C) + "<br></li>"));
        QVERIFY(maldekstre.contains("<li>" + vorto + linio + "<br></li>"));
    }
    QVERIFY(dekstre.startsWith("<body dir=RTL"));
    QVERIFY(dekstre.contains("<P dir=\"ltr\">Respondoj: <br>1)&nbsp;"));
    QVERIFY(dekstre.contains(QString::fromUtf8("<P><B>Kioma horo estas?  Estas...</B></P>")));
}

QTEST_MAIN(tst_kiomahoro)
#include "tst_kiomahoro.moc"
