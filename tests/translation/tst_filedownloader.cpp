// Fetching a file from the course's server: only a successful reply with a
// body is stored, only inside the writable folder, and the end is always
// signalled.

#include "filedownloader.h"
#include "testaj_helpoj.h"
#include "testservilo.h"

#include <QSignalSpy>
#include <QtTest>

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
    void nomojEkster_data();
    void nomojEkster();
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
    malrapida.korpo = "[Traduko]\r\n";
    malrapida.prokrastoMs = 600;
    servilo->metas("/datumoj/tradukoj/itala.trd", malrapida);
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/itala.trd"), "itala.trd");
    QSignalSpy fino(&e, &FileDownloader::downloaded);
    // The program goes on meanwhile; the end comes when the reply does.
    QTest::qWait(200);
    QCOMPARE(fino.count(), 0);
    QVERIFY(fino.wait(10000));
    QCOMPARE(legas(savasLoko + "itala.trd"), QByteArray("[Traduko]\r\n"));
}

void tst_filedownloader::senServilo()
{
    FileDownloader e(QUrl(sServilo + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    QVERIFY(atendas(e));
    QVERIFY(!QFile::exists(savasLoko + "traduklisto.ini"));
}

void tst_filedownloader::nomojEkster_data()
{
    QTest::addColumn<QString>("nomo");
    QTest::newRow("parent folder") << "../evil.trd";
    QTest::newRow("sub-folder") << "sub/evil.trd";
    QTest::newRow("absolute") << "/tmp/evil.trd";
    QTest::newRow("empty") << "";
}

void tst_filedownloader::nomojEkster()
{
    QFETCH(QString, nomo);
    servilo->metas("/datumoj/tradukoj/evil.trd", "[Traduko]\r\n");
    FileDownloader e(QUrl(servilo->adreso() + "/datumoj/tradukoj/evil.trd"), nomo);
    QVERIFY(atendas(e));
    QVERIFY(!QFile::exists(ujo->path() + "/evil.trd"));
    QVERIFY(!QFile::exists("/tmp/evil.trd"));
    QCOMPARE(QDir(savasLoko).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
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
