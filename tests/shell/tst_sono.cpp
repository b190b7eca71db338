// Spoken feedback: which file the one player is given, the pauses, the
// verdict box, and silence while another window has the focus.

#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

class tst_sono : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void jesNeRipetasVorton();
    void jesPauzoNurKunNotoj();
    void mesagxo_data();
    void mesagxo();
    void mp3MinuskligasKajSilentasSenFokuso();

private:
    QString ludata() const;
    void faras(const QString& nomo);

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
};

QString tst_sono::ludata() const
{
    const QString vojo = fenestro->ludilo->media().request().url().toLocalFile();
    return vojo.startsWith(mrLoko) ? vojo.mid(mrLoko.size()) : vojo;
}

void tst_sono::faras(const QString& nomo)
{
    QVERIFY(QFile(mrLoko + "sonoj/" + nomo).open(QIODevice::WriteOnly));
}

void tst_sono::initTestCase()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    mrLoko = ujo->path() + "/Medioj/";   // a capital that must stay
    QDir().mkpath(mrLoko + "sonoj");
    for (const char* vorto : {"jes", "trebone", "bonege", "prave", "trafe", "korekte", "ne"}) {
        for (const char* fino : {"a", "b"})
            faras(QString::fromLatin1(vorto) + fino + ".oga");
    }
    for (int i = 1; i <= 8; ++i) {
        faras(QStringLiteral("gratulo%1.oga").arg(i));
        faras(QStringLiteral("nebona%1.oga").arg(i));
    }
    faras("noteto_jes.oga");
    faras("noteto_ne.oga");

    fenestro = new lernilo;
    iMsEnSekundo = 250;   // a pause of two seconds is half a second
}

void tst_sono::init()
{
    // A closed message box leaves no window active on the test platform.
    QVERIFY(aktivigas(fenestro));
    lSxaltilo = true;
    lNoteto = false;
    fenestro->ludilo->setMedia(QMediaContent());
}

void tst_sono::cleanupTestCase()
{
    delete fenestro;
    delete ujo;
}

// Never the same praise twice running, and on a fresh start (the last one
// 0, the word "jes") not "jes" first.
void tst_sono::jesNeRipetasVorton()
{
    for (int i = 0; i < 20; ++i) {
        iLastaFojo = 0;
        Jes();
        QVERIFY2(!ludata().startsWith("sonoj/jes"), qPrintable(ludata()));
    }
    QString antaua;
    QSet<QString> vortoj;
    for (int i = 0; i < 60; ++i) {
        Jes();
        const QString vorto = QFileInfo(ludata()).completeBaseName().chopped(1);
        QVERIFY2(vorto != antaua, qPrintable(vorto));
        antaua = vorto;
        vortoj.insert(vorto);
    }
    QCOMPARE(vortoj.size(), 6);
    // Ne says "ne", never the verdict "nebona", and leaves the praise alone.
    iLastaFojo = 4;
    Ne();
    QVERIFY(ludata().startsWith("sonoj/ne") && !ludata().startsWith("sonoj/nebona"));
    QCOMPARE(iLastaFojo, 4);
}

void tst_sono::jesPauzoNurKunNotoj()
{
    QElapsedTimer t;
    lSxaltilo = false;
    lNoteto = false;
    t.start();
    Jes();
    Ne();
    QVERIFY(t.elapsed() < 2 * iMsEnSekundo);
    QCOMPARE(ludata(), QString());

    lNoteto = true;
    t.start();
    Jes();
    QVERIFY(t.elapsed() >= 2 * iMsEnSekundo);
    QCOMPARE(ludata(), QStringLiteral("sonoj/noteto_jes.oga"));

    // Speech on, notes off: the word comes at once.
    lSxaltilo = true;
    lNoteto = false;
    t.start();
    Jes();
    QVERIFY(t.elapsed() < 2 * iMsEnSekundo);
    QVERIFY(!ludata().startsWith("sonoj/noteto"));
}

void tst_sono::mesagxo_data()
{
    QTest::addColumn<int>("eraroj");
    QTest::addColumn<int>("sukcesoj");
    QTest::addColumn<bool>("parolo");
    QTest::addColumn<bool>("notoj");
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<QString>("sono");

    QTest::newRow("69%, speech") << 31 << 69 << true << false << "D" << "sonoj/nebona";
    QTest::newRow("70%, speech") << 3 << 7 << true << true << "G" << "sonoj/gratulo";
    QTest::newRow("70%, notes only") << 3 << 7 << false << true << "G" << "sonoj/noteto_jes";
    QTest::newRow("66%, notes only") << 1 << 2 << false << true << "D" << "sonoj/noteto_ne";
    QTest::newRow("69%, silent") << 31 << 69 << false << false << "D" << "";
}

void tst_sono::mesagxo()
{
    QFETCH(int, eraroj);
    QFETCH(int, sukcesoj);
    QFETCH(bool, parolo);
    QFETCH(bool, notoj);
    QFETCH(QString, teksto);
    QFETCH(QString, sono);
    smGratulon = "G";
    smDenove = "D";
    lSxaltilo = parolo;
    lNoteto = notoj;
    QString skatolo;
    akceptasMesaghon(&skatolo);
    Mesagxo(eraroj, sukcesoj);
    QCOMPARE(skatolo, teksto);
    if (sono.isEmpty())
        QCOMPARE(ludata(), QString());
    else
        QVERIFY2(ludata().startsWith(sono), qPrintable(ludata()));
}

void tst_sono::mp3MinuskligasKajSilentasSenFokuso()
{
    mp3("sonoj/Lec01/VIRO.oga");
    QCOMPARE(fenestro->ludilo->media().request().url().toLocalFile(), mrLoko + "sonoj/lec01/viro.oga");

    fenestro->ludilo->setMedia(QMediaContent());
    QWidget alia;
    QVERIFY(aktivigas(&alia));
    mp3("sonoj/lec01/viro.oga");
    QCOMPARE(ludata(), QString());
    // The praise is still chosen, and the pause still taken.
    lNoteto = true;
    QElapsedTimer t;
    t.start();
    Jes();
    QVERIFY(t.elapsed() >= 2 * iMsEnSekundo);
    QCOMPARE(ludata(), QString());
    QVERIFY(aktivigas(fenestro));
}

QTEST_MAIN(tst_sono)
#include "tst_sono.moc"
