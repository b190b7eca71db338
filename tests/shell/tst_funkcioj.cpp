#include "funkcioj.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

class tst_funkcioj : public QObject
{
    Q_OBJECT

private slots:
    void random();
    void cxSist_data();
    void cxSist();
    void purigas();
    void matriz2();
    void matrizLegasTradukon();
    void tekstoblinko();
};

void tst_funkcioj::random()
{
    // Every value, the last one included, comes up, and none outside.
    for (int n : {1, 2, 6, 40}) {
        QVector<int> trafoj(n);
        for (int i = 0; i < 200 * n; ++i) {
            const int r = ::random(n);
            QVERIFY2(r >= 0 && r < n, qPrintable(QString::number(r)));
            ++trafoj[r];
        }
        QVERIFY(!trafoj.contains(0));
    }
    QCOMPARE(::random(0), 0);
}

void tst_funkcioj::cxSist_data()
{
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<int>("sistemo");
    QTest::addColumn<QString>("atendo");

    const QString cxiuj = QString::fromUtf8("ĉĝĥĵŝŭĈĜĤĴŜŬ");
    QTest::newRow("none") << cxiuj << 0 << cxiuj;
    QTest::newRow("all to x") << cxiuj << 1 << "cxgxhxjxsxuxCxGxHxJxSxUx";
    QTest::newRow("all to h, u loses its mark") << cxiuj << 2 << "chghhhjhshuChGhHhJhShU";
    QTest::newRow("x back") << "cxgxhxjxsxuxCxGxHxJxSxUx" << 3 << cxiuj;
    QTest::newRow("sX and SX stay") << "sX SX" << 3 << "sX SX";
}

void tst_funkcioj::cxSist()
{
    QFETCH(QString, teksto);
    QFETCH(int, sistemo);
    QFETCH(QString, atendo);
    QCOMPARE(CxSist(teksto, sistemo), atendo);
}

void tst_funkcioj::purigas()
{
    QCOMPARE(::purigas("  Bonan   tagon.  ", true), QStringLiteral("bonan tagon"));
    QCOMPARE(::purigas("Jes, mi. 1.850", false), QStringLiteral("Jes mi 1850"));
    QCOMPARE(::purigas(QString::fromUtf8("ĈU ŜI? a; b!"), true), QString::fromUtf8("ĉu ŝi? a; b!"));
}

void tst_funkcioj::matriz2()
{
    // Rows split at "~" (0202R holds "~~~~1" among its rows), padded to the
    // width, the last field kept. The list is emptied first.
    QList<QStringList> vicoj{{QStringLiteral("malnova")}};
    const int kiom = _Matriz2(&vicoj, "0202", "R", 6);
    QCOMPARE(kiom, vicoj.size());
    QVERIFY(vicoj.contains(QStringList({"", "", "", "", "1", ""})));
    QVERIFY(!vicoj.contains(QStringList("malnova")));
    // A row longer than the width keeps all its fields.
    _Matriz2(&vicoj, "0202", "R", 2);
    QVERIFY(vicoj.contains(QStringList({"", "", "", "", "1"})));
    QCOMPARE(_Matriz2(&vicoj, "1399", "D", 6), 0);
    QVERIFY(vicoj.isEmpty());
}

void tst_funkcioj::matrizLegasTradukon()
{
    QTemporaryDir ujo;
    QDir().mkpath(ujo.path() + QStringLiteral("/tradukoj"));
    QFile f(ujo.path() + QStringLiteral("/tradukoj/provo.trd"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("[Ekzerco-0502]\r\n"
            "0=\"\xC5\x9Ci estas ~ bela, ~ inteligenta.\"\r\n"
            "1=\"Li diris \\\"jes\\\"; ni iris.\"\r\n"
            "2=Simpla frazo.\r\n");
    f.close();
    const QString loko = Loko;
    Loko = ujo.path() + QLatin1Char('/');
    sTradukoDosiero = QStringLiteral("provo.trd");

    QStringList tradukoj{QStringLiteral("malnova")};
    QCOMPARE(_Matriz(&tradukoj, QStringLiteral("0502"), QStringLiteral("T")), 3);
    QCOMPARE(tradukoj, QStringList({QString::fromUtf8("Ŝi estas ~ bela, ~ inteligenta."),
                                    "Li diris \"jes\"; ni iris.", "Simpla frazo."}));
    QCOMPARE(_Matriz(&tradukoj, QStringLiteral("0602"), QStringLiteral("T")), 0);
    QVERIFY(tradukoj.isEmpty());

    Loko = loko;
    sTradukoDosiero.clear();
}

void tst_funkcioj::tekstoblinko()
{
    // The blink shows the word in another style meanwhile, gives back the
    // widget's own style at the end, and lasts NumSec of the test's seconds.
    QLabel w(QStringLiteral("domo"));
    w.setStyleSheet(QStringLiteral("color: green;"));
    const int ms = iMsEnSekundo;
    iMsEnSekundo = 100;
    QString dumBlinko;
    QTimer::singleShot(20, [&] { dumBlinko = w.styleSheet(); });
    QElapsedTimer tempo;
    tempo.start();
    ::tekstoblinko(&w);
    iMsEnSekundo = ms;
    QVERIFY(tempo.elapsed() < NumSec * 1000 / 2);
    QVERIFY2(dumBlinko.contains("color: red"), qPrintable(dumBlinko));
    QCOMPARE(w.styleSheet(), QStringLiteral("color: green;"));
}

QTEST_MAIN(tst_funkcioj)
#include "tst_funkcioj.moc"
