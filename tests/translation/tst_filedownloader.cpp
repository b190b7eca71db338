// Fetching a file from the course's server: only a successful, complete
// reply that reads as the file it claims to be is stored, only under a safe
// name, never beyond a size or a deadline, and the end is always signalled.

#include "filedownloader.h"
#include "testaj_helpoj.h"
#include "testservilo.h"

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(TestServilo::Respondo)

class tst_filedownloader : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void bonaRespondoSkribighas();
    void eraraPaghoNeAnstatauas();
    void malrapidaRespondo();
    void senServilo();
    void rifuzitajRespondoj_data();
    void rifuzitajRespondoj();
    void nomojNePetataj_data();
    void nomojNePetataj();
    void duSamtempe();

private:
    QByteArray legas(const QString& vojo);
    bool atendas(FileDownloader& e, int ms = 10000);

    QTemporaryDir* ujo = nullptr;
    TestServilo* servilo = nullptr;
};

void tst_filedownloader::init()
{
    ujo = new QTemporaryDir;
    preparasLokojn(*ujo);
    servilo = new TestServilo;
}

void tst_filedownloader::cleanup()
{
    delete servilo;
    delete ujo;
}

QByteArray tst_filedownloader::legas(const QString& vojo)
{
    QFile f(vojo);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(none)");
}

bool tst_filedownloader::atendas(FileDownloader& e, int ms)
{
    QSignalSpy fino(&e, &FileDownloader::downloaded);
    return fino.count() > 0 || fino.wait(ms);
}

void tst_filedownloader::bonaRespondoSkribighas()
{
    servilo->metas("/datumoj/tradukoj/angla.trd", "[Traduko]\r\nLingvoID=en\r\n");
    QVERIFY(skribas("angla.trd", "old"));
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/angla.trd"), "angla.trd");
    QVERIFY(atendas(e));
    QCOMPARE(legas(savasLoko + "angla.trd"), QByteArray("[Traduko]\r\nLingvoID=en\r\n"));
    QCOMPARE(e.downloadedData(), QByteArray("[Traduko]\r\nLingvoID=en\r\n"));
    QCOMPARE(servilo->agentoj.value(0), QByteArray("LerniloAndrojdo"));

    // An empty body leaves the file as it was.
    servilo->metas("/datumoj/traduklisto.ini", QByteArray());
    QVERIFY(skribas("traduklisto.ini", "[0]\r\nLingvoID=en\r\n"));
    FileDownloader m(QUrl(servilo->adreso() + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    QVERIFY(atendas(m));
    QCOMPARE(legas(savasLoko + "traduklisto.ini"), QByteArray("[0]\r\nLingvoID=en\r\n"));
}

void tst_filedownloader::eraraPaghoNeAnstatauas()
{
    // No such path: the server answers 404 with a page of its own.
    QVERIFY(skribas("germana.trd", "[Traduko]\r\nLingvoID=de\r\n"));
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/germana.trd"), "germana.trd");
    QVERIFY(atendas(e));
    QCOMPARE(legas(savasLoko + "germana.trd"), QByteArray("[Traduko]\r\nLingvoID=de\r\n"));
    QCOMPARE(e.downloadedData(), QByteArray("<html>Not here</html>"));

    TestServilo::Respondo eraro;
    eraro.stato = 500;
    eraro.korpo = "Internal error";
    servilo->metas("/datumoj/tradukoj/franca.trd", eraro);
    FileDownloader f(QUrl(servilo->adreso() + "/datumoj/tradukoj/franca.trd"), "franca.trd");
    QVERIFY(atendas(f));
    QVERIFY(!QFile::exists(savasLoko + "franca.trd"));
}

void tst_filedownloader::malrapidaRespondo()
{
    TestServilo::Respondo malrapida;
    malrapida.korpo = "[Traduko]\r\nLingvoID=it\r\n";
    malrapida.prokrastoMs = 600;
    servilo->metas("/datumoj/tradukoj/itala.trd", malrapida);
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/itala.trd"), "itala.trd");
    QSignalSpy fino(&e, &FileDownloader::downloaded);
    // The program goes on meanwhile; the end comes when the reply does.
    QTest::qWait(200);
    QCOMPARE(fino.count(), 0);
    QVERIFY(fino.wait(10000));
    QCOMPARE(legas(savasLoko + "itala.trd"), QByteArray("[Traduko]\r\nLingvoID=it\r\n"));
}

void tst_filedownloader::senServilo()
{
    FileDownloader e(QUrl(sServilo + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    QVERIFY(atendas(e));
    QVERIFY(!QFile::exists(savasLoko + "traduklisto.ini"));
}

void tst_filedownloader::rifuzitajRespondoj_data()
{
    QTest::addColumn<TestServilo::Respondo>("respondo");
    const QByteArray bona = "[Traduko]\r\nLingvoID=de\r\nDato=01.01.2030\r\n\r\n[Menuo]\r\nKioEstas=Neu\r\n";
    TestServilo::Respondo r;
    r.korpo = "<html><body>Please log in to the network</body></html>";
    QTest::newRow("a login page with status 200") << r;
    r.korpo = "[Menuo]\r\nKioEstas=Neu\r\n";
    QTest::newRow("no header") << r;
    r.korpo = bona + QByteArray(FileDownloader::maksimumo, 'x');
    QTest::newRow("over the size limit") << r;
    r.korpo = bona + QByteArray(200000, 'x');
    r.rompoPost = 100000;
    QTest::newRow("cut off halfway") << r;
    r = TestServilo::Respondo();
    r.gutoMs = 20;
    QTest::newRow("trickling without end") << r;
}

void tst_filedownloader::rifuzitajRespondoj()
{
    QFETCH(TestServilo::Respondo, respondo);
    const int antaua = FileDownloader::templimoMs;
    FileDownloader::templimoMs = 1500;
    const QByteArray malnova = "[Traduko]\r\nLingvoID=de\r\n";
    QVERIFY(skribas("germana.trd", malnova));
    servilo->metas("/datumoj/tradukoj/germana.trd", respondo);
    QElapsedTimer tempo;
    tempo.start();
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/germana.trd"), "germana.trd");
    const bool finita = atendas(e, 10000);
    FileDownloader::templimoMs = antaua;
    QVERIFY(finita);
    QVERIFY(tempo.elapsed() < 5000);
    QCOMPARE(legas(savasLoko + "germana.trd"), malnova);
    QCOMPARE(QDir(savasLoko).entryList(QDir::Files), QStringList("germana.trd"));
}

void tst_filedownloader::nomojNePetataj_data()
{
    QTest::addColumn<QString>("nomo");
    QTest::newRow("the settings file") << "lernilomelo.ini";
    QTest::newRow("parent folder") << "../x.trd";
    QTest::newRow("sub-folder") << "sub/x.trd";
    QTest::newRow("absolute") << "/tmp/x.trd";
    QTest::newRow("another ending") << "x.trd.exe";
    QTest::newRow("empty") << "";
}

void tst_filedownloader::nomojNePetataj()
{
    QFETCH(QString, nomo);
    QVERIFY(skribas("lernilomelo.ini", "[Gxenerala]\r\nLingvo=x\r\n"));
    servilo->metas("/datumoj/tradukoj/" + nomo, "[Traduko]\r\nLingvoID=xx\r\n\r\n[0]\r\nLingvoID=xx\r\n");
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/" + nomo), nomo);
    QVERIFY(atendas(e));
    QCOMPARE(servilo->petoj, QStringList());
    QCOMPARE(legas(savasLoko + "lernilomelo.ini"), QByteArray("[Gxenerala]\r\nLingvo=x\r\n"));
    QCOMPARE(QDir(ujo->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList() << "media" << "skribebla");
}

// Two transfers at once, as a change of language during the weekly list
// fetch makes them: each ends once, with its own file.
void tst_filedownloader::duSamtempe()
{
    servilo->metas("/datumoj/traduklisto.ini", "[0]\r\nLingvoID=en\r\n");
    servilo->metas("/datumoj/tradukoj/angla.trd", "[Traduko]\r\nLingvoID=en\r\n");
    FileDownloader listo(QUrl(servilo->adreso() + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    FileDownloader traduko(QUrl(servilo->adreso() + "/datumoj/tradukoj/angla.trd"), "angla.trd");
    QSignalSpy listoFino(&listo, &FileDownloader::downloaded), tradukoFino(&traduko, &FileDownloader::downloaded);
    QTRY_VERIFY(listoFino.count() == 1 && tradukoFino.count() == 1);
    QTest::qWait(50);
    QCOMPARE(listoFino.count() + tradukoFino.count(), 2);
    QCOMPARE(legas(savasLoko + "traduklisto.ini"), QByteArray("[0]\r\nLingvoID=en\r\n"));
    QCOMPARE(legas(savasLoko + "angla.trd"), QByteArray("[Traduko]\r\nLingvoID=en\r\n"));
}

QTEST_MAIN(tst_filedownloader)
#include "tst_filedownloader.moc"
