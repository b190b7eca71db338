#include "funkcioj.h"

#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTemporaryDir>
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
    void matriz2PlenigasVicojn();
    void matrizLegasTradukon();
    void mankantaGrupo();
    void tekstoblinko_data();
    void tekstoblinko();
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

// The first key of a group whose raw value in the shipped file is `valoro`.
static int shlosiloKun(const QString& dosiero, const QString& grupo, const QString& valoro)
{
    QFile f(QStringLiteral(LERNILO_FONTOJ "/resources/ekzercoj/") + dosiero);
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    bool ene = false;
    for (const QString& vico : QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'))) {
        const QString v = vico.trimmed();
        if (v.startsWith(QLatin1Char('[')))
            ene = v == QLatin1Char('[') + grupo + QLatin1Char(']');
        else if (ene && v.section(QLatin1Char('='), 1) == valoro)
            return v.section(QLatin1Char('='), 0, 0).toInt();
    }
    return -1;
}

void tst_funkcioj::matriz2PlenigasVicojn()
{
    const int k = shlosiloKun(QStringLiteral("ekz02.dat"), QStringLiteral("0202R"), QStringLiteral("~~~~1"));
    QVERIFY(k >= 0);
    QList<QStringList> vicoj{{QStringLiteral("malnova")}};
    QCOMPARE(_Matriz2(&vicoj, QStringLiteral("0202"), QStringLiteral("R"), 6), 28);
    QCOMPARE(vicoj.size(), 28);
    QCOMPARE(vicoj.at(k), QStringList({"", "", "", "", "1", ""}));

    // A row longer than the width keeps all its fields.
    _Matriz2(&vicoj, QStringLiteral("0202"), QStringLiteral("R"), 2);
    QCOMPARE(vicoj.at(k).size(), 5);
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

void tst_funkcioj::mankantaGrupo()
{
    QStringList l{QStringLiteral("malnova")};
    QCOMPARE(_Matriz(&l, QStringLiteral("0199"), QStringLiteral("D")), 0);
    QVERIFY(l.isEmpty());
    QList<QStringList> vicoj{{QStringLiteral("malnova")}};
    QCOMPARE(_Matriz2(&vicoj, QStringLiteral("1399"), QStringLiteral("D"), 6), 0);
    QVERIFY(vicoj.isEmpty());
}

void tst_funkcioj::tekstoblinko_data()
{
    QTest::addColumn<bool>("radio");
    QTest::addColumn<bool>("pikseloj");
    QTest::addColumn<QString>("atendo");
    QTest::newRow("label in points") << false << false << "font-weight: bold; color: red; font-size: 13pt";
    QTest::newRow("label in pixels") << false << true << "font-weight: bold; color: red; font-size: 17px";
    QTest::newRow("radio button") << true << false << "background: lightBlue;";
}

void tst_funkcioj::tekstoblinko()
{
    QFETCH(bool, radio);
    QFETCH(bool, pikseloj);
    QFETCH(QString, atendo);
    QScopedPointer<QWidget> w(radio ? static_cast<QWidget*>(new QRadioButton(QStringLiteral("domo")))
                                    : new QLabel(QStringLiteral("domo")));
    QFont tiparo = w->font();
    if (pikseloj)
        tiparo.setPixelSize(17);
    else
        tiparo.setPointSize(13);
    w->setFont(tiparo);
    w->setStyleSheet(QStringLiteral("color: green;"));

    const int numSec = NumSec;
    NumSec = 1;
    QString dumBlinko;
    QTimer::singleShot(100, [&] { dumBlinko = w->styleSheet(); });
    ::tekstoblinko(w.data());
    NumSec = numSec;

    QVERIFY2(dumBlinko.startsWith(atendo), qPrintable(dumBlinko));
    QCOMPARE(w->styleSheet(), QStringLiteral("color: green;"));
}

QTEST_MAIN(tst_funkcioj)
#include "tst_funkcioj.moc"
