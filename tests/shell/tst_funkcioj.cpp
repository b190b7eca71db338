#include "funkcioj.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QtTest>

class tst_funkcioj : public QObject
{
    Q_OBJECT

private slots:
    void kiuSistemo_data();
    void kiuSistemo();
    void randomRestasEnLimoj_data();
    void randomRestasEnLimoj();
    void randomDeNulo();
};

void tst_funkcioj::kiuSistemo_data()
{
    QTest::addColumn<QString>("sistemo");
    QTest::addColumn<QString>("speco");
    QTest::addColumn<QString>("atendo");

    const QString programo = QCoreApplication::applicationDirPath();
    QString skribebla = QStandardPaths::writableLocation(QStandardPaths::DataLocation);
    if (!skribebla.endsWith('/'))
        skribebla += '/';

    QTest::newRow("linux media") << "linux" << "multrimedoj" << programo + "/";
    QTest::newRow("linux writable") << "linux" << "skribebla" << skribebla;
    QTest::newRow("windows media") << "windows" << "multrimedoj" << programo + "/";
    QTest::newRow("windows writable") << "windows" << "skribebla" << skribebla;
    QTest::newRow("osx media, no second slash") << "osx" << "multrimedoj" << programo + "/../Resources/";
    QTest::newRow("osx writable") << "osx" << "skribebla" << skribebla;
    QTest::newRow("ios media, no second slash") << "ios" << "multrimedoj" << programo + "/assets/";
    QTest::newRow("ios writable") << "ios" << "skribebla" << skribebla;
    QTest::newRow("android media, no second slash") << "android" << "multrimedoj" << "assets:/";
    QTest::newRow("android writable") << "android" << "skribebla" << skribebla;
    QTest::newRow("unknown system") << "haiku" << "multrimedoj" << "/";
    QTest::newRow("system word is case-sensitive") << "Linux" << "skribebla" << "/";
    QTest::newRow("unknown kind") << "linux" << "muziko" << "/";
}

void tst_funkcioj::kiuSistemo()
{
    QFETCH(QString, sistemo);
    QFETCH(QString, speco);
    QFETCH(QString, atendo);
    sSistemo = sistemo;
    QCOMPARE(::kiuSistemo(speco), atendo);
}

void tst_funkcioj::randomRestasEnLimoj_data()
{
    QTest::addColumn<int>("n");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("6") << 6;
    QTest::newRow("40") << 40;
}

void tst_funkcioj::randomRestasEnLimoj()
{
    QFETCH(int, n);
    QVector<int> trafoj(n);
    for (int i = 0; i < 200 * n; ++i) {
        const int r = random(n);
        QVERIFY2(r >= 0 && r < n, qPrintable(QString::number(r)));
        ++trafoj[r];
    }
    // Every value, the last one included, comes up.
    for (int k = 0; k < n; ++k)
        QVERIFY2(trafoj.at(k) > 0, qPrintable(QStringLiteral("%1 never drawn").arg(k)));
}

void tst_funkcioj::randomDeNulo()
{
    for (int i = 0; i < 100; ++i)
        QCOMPARE(random(0), 0);
}

QTEST_GUILESS_MAIN(tst_funkcioj)
#include "tst_funkcioj.moc"
