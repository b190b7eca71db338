// Fetching a file from the course's server: only a successful, complete
// reply that reads as the file it claims to be is stored, only under a safe
// name, never beyond a size or a deadline, and the end is always signalled.
// The course's own site, served by nginx, gives the replies a real server
// gives; the small test server the slow, endless and broken ones.

#include "filedownloader.h"
#include "nginxservilo.h"
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
    // The course's site, as the build made it, with files of this test's own.
    NginxServilo* retejo(const QHash<QString, QByteArray>& dosieroj = {});

    QTemporaryDir* ujo = nullptr;
    QTemporaryDir* retejujo = nullptr;
    NginxServilo* nginx = nullptr;
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
    delete nginx;
    nginx = nullptr;
    delete retejujo;
    retejujo = nullptr;
    delete ujo;
}

NginxServilo* tst_filedownloader::retejo(const QHash<QString, QByteArray>& dosieroj)
{
    retejujo = new QTemporaryDir;
    if (!kopiasRetejon(retejujo->path()))
        qWarning("the course's site is not built");
    for (auto it = dosieroj.cbegin(); it != dosieroj.cend(); ++it) {
        QFile f(retejujo->path() + it.key());
        f.open(QIODevice::WriteOnly | QIODevice::Truncate);
        f.write(it.value());
    }
    nginx = new NginxServilo(retejujo->path());
    return nginx;
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
    // An empty file on the server: its empty body leaves the file as it was.
    NginxServilo* n = retejo({{"/datumoj/traduklisto.ini", QByteArray()}});
    QVERIFY(n->preta);
    QVERIFY(skribas("angla.trd", "old"));
    FileDownloader e(QUrl(n->adreso() + "/datumoj/tradukoj/angla.trd"), "angla.trd");
    QVERIFY(atendas(e));
    QFile sendita(":/tradukoj/angla.trd");
    QVERIFY(sendita.open(QIODevice::ReadOnly));
    QCOMPARE(legas(savasLoko + "angla.trd"), sendita.readAll());
    QCOMPARE(n->agentoj().value(0), QStringLiteral("LerniloAndrojdo"));

    QVERIFY(skribas("traduklisto.ini", "[0]\r\nLingvoID=en\r\n"));
    FileDownloader m(QUrl(n->adreso() + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    QVERIFY(atendas(m));
    QCOMPARE(legas(savasLoko + "traduklisto.ini"), QByteArray("[0]\r\nLingvoID=en\r\n"));
}

void tst_filedownloader::eraraPaghoNeAnstatauas()
{
    // No such file on the server: its page "404 Not Found" is not stored.
    NginxServilo* n = retejo();
    QVERIFY(n->preta);
    const QByteArray malnova = "[Traduko]\r\nLingvoID=xx\r\n";
    QVERIFY(skribas("nenia.trd", malnova));
    FileDownloader e(QUrl(n->adreso() + "/datumoj/tradukoj/nenia.trd"), "nenia.trd");
    QVERIFY(atendas(e));
    QVERIFY2(e.downloadedData().contains("404"), e.downloadedData().constData());
    QCOMPARE(legas(savasLoko + "nenia.trd"), malnova);
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
    // Files on the course's site that are not what they claim to be, and
    // replies only a broken connection gives.
    QTest::addColumn<TestServilo::Respondo>("respondo");
    QTest::addColumn<bool>("perNginx");
    const QByteArray bona = "[Traduko]\r\nLingvoID=de\r\nDato=01.01.2030\r\n\r\n[Menuo]\r\nKioEstas=Neu\r\n";
    TestServilo::Respondo r;
    r.korpo = "<html><body>Please log in to the network</body></html>";
    QTest::newRow("a login page with status 200") << r << true;
    r.korpo = "[Menuo]\r\nKioEstas=Neu\r\n";
    QTest::newRow("no header") << r << true;
    r.korpo = bona + QByteArray(FileDownloader::maksimumo, 'x');
    QTest::newRow("over the size limit") << r << true;
    r.korpo = bona + QByteArray(200000, 'x');
    r.rompoPost = 100000;
    QTest::newRow("cut off halfway") << r << false;
    r = TestServilo::Respondo();
    r.gutoMs = 20;
    QTest::newRow("trickling without end") << r << false;
}

void tst_filedownloader::rifuzitajRespondoj()
{
    QFETCH(TestServilo::Respondo, respondo);
    QFETCH(bool, perNginx);
    const int antaua = FileDownloader::templimoMs;
    FileDownloader::templimoMs = 1500;
    const QByteArray malnova = "[Traduko]\r\nLingvoID=de\r\n";
    QVERIFY(skribas("germana.trd", malnova));
    QString adreso = servilo->adreso();
    if (perNginx) {
        NginxServilo* n = retejo({{"/datumoj/tradukoj/germana.trd", respondo.korpo}});
        QVERIFY(n->preta);
        adreso = n->adreso();
    } else {
        servilo->metas("/datumoj/tradukoj/germana.trd", respondo);
    }
    QElapsedTimer tempo;
    tempo.start();
    FileDownloader e(QUrl(adreso + "/datumoj/tradukoj/germana.trd"), "germana.trd");
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
    NginxServilo* n = retejo();
    QVERIFY(n->preta);
    QVERIFY(skribas("lernilomelo.ini", "[Gxenerala]\r\nLingvo=x\r\n"));
    FileDownloader e(QUrl(n->adreso() + "/datumoj/tradukoj/" + nomo), nomo);
    QVERIFY(atendas(e));
    QCOMPARE(n->petoj(), QStringList());
    QCOMPARE(legas(savasLoko + "lernilomelo.ini"), QByteArray("[Gxenerala]\r\nLingvo=x\r\n"));
    QCOMPARE(QDir(ujo->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList() << "media" << "skribebla");
}

// Two transfers at once, as a change of language during the weekly list
// fetch makes them: each ends once, with its own file.
void tst_filedownloader::duSamtempe()
{
    NginxServilo* n = retejo();
    QVERIFY(n->preta);
    FileDownloader listo(QUrl(n->adreso() + "/datumoj/traduklisto.ini"), "traduklisto.ini");
    FileDownloader traduko(QUrl(n->adreso() + "/datumoj/tradukoj/angla.trd"), "angla.trd");
    QSignalSpy listoFino(&listo, &FileDownloader::downloaded), tradukoFino(&traduko, &FileDownloader::downloaded);
    QTRY_VERIFY(listoFino.count() == 1 && tradukoFino.count() == 1);
    QTest::qWait(50);
    QCOMPARE(listoFino.count() + tradukoFino.count(), 2);
    QVERIFY(legas(savasLoko + "traduklisto.ini").startsWith("[0]\r\nLingvoID=en\r\n"));
    QVERIFY(legas(savasLoko + "angla.trd").startsWith("[Traduko]\r\n"));
}

QTEST_MAIN(tst_filedownloader)
#include "tst_filedownloader.moc"
