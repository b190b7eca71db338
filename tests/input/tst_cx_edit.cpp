// Typing Esperanto letters with an ordinary keyboard.

#include "cx_edit.h"
#include "cx_plainedit.h"
#include "funkcioj.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

class tst_cx_edit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tajpado_data();
    void tajpado();
    void majuskloKajModifiloj();
    void malshaltita();
    void cxteksto_data();
    void cxteksto();
    void pluraLinia();
};

void tst_cx_edit::init()
{
    lCxapeligo = true;
}

void tst_cx_edit::tajpado_data()
{
    QTest::addColumn<QString>("klavoj");
    QTest::addColumn<QString>("atendo");
    QTest::newRow("no letter before x") << "tax" << "tax";
    // The x turns the u before it: d, u, x gives two letters.
    QTest::newRow("u then x") << "dux" << QString::fromUtf8("dŭ");
    QTest::newRow("a second x is an x") << "cxx" << QString::fromUtf8("ĉx");
    QTest::newRow("a whole sentence") << "Cxu vi sxatas gxin?" << QString::fromUtf8("Ĉu vi ŝatas ĝin?");
}

void tst_cx_edit::tajpado()
{
    QFETCH(QString, klavoj);
    QFETCH(QString, atendo);
    cx_edit kampo;
    QTest::keyClicks(&kampo, klavoj);
    QCOMPARE(kampo.text(), atendo);
}

void tst_cx_edit::majuskloKajModifiloj()
{
    cx_edit kampo;
    QTest::keyClicks(&kampo, "U");
    QTest::keyClick(&kampo, Qt::Key_X);
    QCOMPARE(kampo.text(), QString::fromUtf8("Ŭ"));

    // The case follows the letter before the cursor, never the x.
    kampo.clear();
    QTest::keyClicks(&kampo, "c");
    QTest::keyClick(&kampo, Qt::Key_X, Qt::ShiftModifier);
    QCOMPARE(kampo.text(), QString::fromUtf8("ĉ"));

    // Ctrl+X just after a letter converts it and cuts nothing.
    QGuiApplication::clipboard()->setText("kept");
    kampo.setText("las");
    kampo.selectAll();
    kampo.setCursorPosition(3);
    QTest::keyClick(&kampo, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(kampo.text(), QString::fromUtf8("laŝ"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

void tst_cx_edit::malshaltita()
{
    lCxapeligo = false;
    cx_edit kampo;
    QTest::keyClicks(&kampo, "cxu sx");
    QCOMPARE(kampo.text(), QStringLiteral("cxu sx"));
    // Switched on again, the letters already there stay.
    lCxapeligo = true;
    QTest::keyClicks(&kampo, "x");
    QCOMPARE(kampo.text(), QStringLiteral("cxu sxx"));
}

void tst_cx_edit::cxteksto_data()
{
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<QString>("atendo");
    QTest::newRow("sX stays") << "sX" << "sX";
    QTest::newRow("every spelling but sX") << "Cx CX cx cX gX UX uX" << QString::fromUtf8("Ĉ Ĉ ĉ ĉ ĝ Ŭ ŭ");
}

void tst_cx_edit::cxteksto()
{
    QFETCH(QString, teksto);
    QFETCH(QString, atendo);
    cx_edit kampo;
    QCOMPARE(kampo.cxteksto(teksto), atendo);
    cx_plainedit plurlinia;
    QCOMPARE(plurlinia.cxteksto(teksto), atendo);
}

void tst_cx_edit::pluraLinia()
{
    cx_plainedit kampo;
    QTest::keyClicks(&kampo, "dux");
    QTest::keyClick(&kampo, Qt::Key_Return);
    QTest::keyClicks(&kampo, "Cxu tax");
    QCOMPARE(kampo.toPlainText(), QString::fromUtf8("dŭ\nĈu tax"));
    // Text set by the program is never converted.
    kampo.setPlainText("sx");
    QCOMPARE(kampo.toPlainText(), QStringLiteral("sx"));
}

QTEST_MAIN(tst_cx_edit)
#include "tst_cx_edit.moc"
