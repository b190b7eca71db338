// The files made from the lesson sources are up to date, and their values
// read back as they were written.

#include "lecionkadro.h"
#include "testaj_helpoj.h"
#include "tradukeroj.h"

#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QTabWidget>
#include <QtTest>

class tst_tradukeroj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void iniLinioLegighasSame_data();
    void iniLinioLegighasSame();
    void tdfAktuala();
    void portugalaAktuala();

private:
    QByteArray fonto(const QString& nomo);
    QTemporaryDir ujo;
};

void tst_tradukeroj::initTestCase()
{
    preparasLokojn(ujo);
}

QByteArray tst_tradukeroj::fonto(const QString& nomo)
{
    QFile f(QStringLiteral(LERNILO_FONTOJ "/resources/tradukoj/") + nomo);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

void tst_tradukeroj::iniLinioLegighasSame_data()
{
    QTest::addColumn<QString>("valoro");
    QTest::newRow("comma") << "Eu, tu";
    QTest::newRow("quote") << "o \"n\" final";
    QTest::newRow("line break") << "uma\nduas";
    QTest::newRow("blanks at the ends") << "  meio  ";
    QTest::newRow("at sign first") << "@Variant(x)";
}

void tst_tradukeroj::iniLinioLegighasSame()
{
    QFETCH(QString, valoro);
    const QString vojo = ujo.path() + "/provo.ini";
    QFile f(vojo);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write("[Lec01]\r\n" + tradukeroj::iniLinio("Label1", valoro).toUtf8() + "\r\n");
    f.close();
    QCOMPARE(inidosiero(vojo).value("Lec01/Label1").toString(), valoro);
}

void tst_tradukeroj::tdfAktuala()
{
    QVERIFY2(fonto("tradukendaj.tdf") == tradukeroj::tdf().toUtf8(),
             "tradukendaj.tdf is out of date: cmake --build build --target tradukeroj");
}

void tst_tradukeroj::portugalaAktuala()
{
    const QByteArray atendo = fonto("partoj/portugala_komuna.trd") + "\r\n" + tradukeroj::lecionajGrupoj().toUtf8();
    QVERIFY2(fonto("portugala.trd") == atendo,
             "portugala.trd is out of date: cmake --build build --target tradukeroj");
}

QTEST_MAIN(tst_tradukeroj)
#include "tst_tradukeroj.moc"
