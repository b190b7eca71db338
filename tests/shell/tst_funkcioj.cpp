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
    void cxSist_data();
    void cxSist();
    void purigas_data();
    void purigas();
    void sonoNomoj_data();
    void sonoNomoj();
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

void tst_funkcioj::cxSist_data()
{
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<int>("sistemo");
    QTest::addColumn<QString>("atendo");

    const QString cxiuj = QString::fromUtf8("ĉĝĥĵŝŭĈĜĤĴŜŬ");
    QTest::newRow("empty, x") << "" << 1 << "";
    QTest::newRow("empty, h") << "" << 2 << "";
    QTest::newRow("empty, back") << "" << 3 << "";
    QTest::newRow("none") << cxiuj << 0 << cxiuj;
    QTest::newRow("all to x") << cxiuj << 1 << "cxgxhxjxsxuxCxGxHxJxSxUx";
    QTest::newRow("all to h, u loses its mark") << cxiuj << 2 << "chghhhjhshuChGhHhJhShU";
    QTest::newRow("x back") << "cxgxhxjxsxuxCxGxHxJxSxUx" << 3 << cxiuj;
    QTest::newRow("sX and SX stay") << "sX SX" << 3 << "sX SX";
    QTest::newRow("Unicode stays on the way back") << QString::fromUtf8("ĉu sxi") << 3 << QString::fromUtf8("ĉu ŝi");
    QTest::newRow("plain text, x") << "La viro estas alta." << 1 << "La viro estas alta.";
    QTest::newRow("plain text, h") << "La viro estas alta." << 2 << "La viro estas alta.";
    QTest::newRow("foreign ux pair") << "Linux" << 3 << QString::fromUtf8("Linŭ");
    QTest::newRow("sentence to h") << QString::fromUtf8("Ŝi aĉetas ĉiujn ŝuojn.") << 2 << "Shi achetas chiujn shuojn.";
}

void tst_funkcioj::cxSist()
{
    QFETCH(QString, teksto);
    QFETCH(int, sistemo);
    QFETCH(QString, atendo);
    QCOMPARE(CxSist(teksto, sistemo), atendo);
}

void tst_funkcioj::purigas_data()
{
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<bool>("minuskle");
    QTest::addColumn<QString>("atendo");

    QTest::newRow("blanks and case") << "  Bonan   tagon.  " << true << "bonan tagon";
    QTest::newRow("comma, case kept") << "Jes, mi." << false << "Jes mi";
    QTest::newRow("comma after blanks leaves two") << "a , b" << false << "a  b";
    QTest::newRow("stop after a blank leaves one") << "a ." << false << "a ";
    QTest::newRow("other marks stay") << "Kial? Jes! a; b: c" << false << "Kial? Jes! a; b: c";
    QTest::newRow("diacritics kept, lowered") << QString::fromUtf8("ĈU ŜI?") << true << QString::fromUtf8("ĉu ŝi?");
    QTest::newRow("only a stop") << "." << true << "";
    QTest::newRow("thousands mark") << "1.850" << false << "1850";
}

void tst_funkcioj::purigas()
{
    QFETCH(QString, teksto);
    QFETCH(bool, minuskle);
    QFETCH(QString, atendo);
    QCOMPARE(::purigas(teksto, minuskle), atendo);
}

void tst_funkcioj::sonoNomoj_data()
{
    QTest::addColumn<QString>("vorto");
    QTest::addColumn<bool>("auh");
    QTest::addColumn<QString>("atendo");
    QTest::newRow("x spelling") << QString::fromUtf8("ĉiu") << true << "sonoj/lec02/cxiu.oga";
    QTest::newRow("the word aŭ") << QString::fromUtf8("aŭ") << true << "sonoj/lec02/auh.oga";
    QTest::newRow("aŭ without the rename") << QString::fromUtf8("aŭ") << false << "sonoj/lec02/aux.oga";
    QTest::newRow("only the whole word") << QString::fromUtf8("aŭto") << true << "sonoj/lec02/auxto.oga";
}

void tst_funkcioj::sonoNomoj()
{
    QFETCH(QString, vorto);
    QFETCH(bool, auh);
    QFETCH(QString, atendo);
    QCOMPARE(vortoSono("02", vorto, auh), atendo);
    QCOMPARE(frazoSono("07", "254"), QStringLiteral("sonoj/lec07/btn254.oga"));
}

QTEST_GUILESS_MAIN(tst_funkcioj)
#include "tst_funkcioj.moc"
