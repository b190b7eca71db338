// The languages: the first-run choice offline and online, the language list
// of the settings page, the weekly refresh, updates of the language in use,
// and a change of language from the settings page. Online is the course's
// own site, served by nginx, in a copy the test may change.

#include "lernilo.h"
#include "nginxservilo.h"
#include "testaj_helpoj.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QtTest>

class tst_lingvoj : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void malnovaListo_data();
    void malnovaListo();
    void unuaFojoSenReto_data();
    void unuaFojoSenReto();
    void unuaFojoKunReto();
    void listoDe200();
    void listoKunTruo();
    void aktualigoDeLingvo();
    void shanghoDeLingvo();

private:
    QString rimedaTeksto(const QString& dosiero, const QString& shlosilo);
    int rimedajLingvoj();
    // Serves the course's site, each file named changed: the line that
    // begins as a given text replaced by another.
    NginxServilo* retejo(const QList<std::tuple<QString, QByteArray, QByteArray>>& shanghoj = {});

    QTemporaryDir* ujo = nullptr;
    QTemporaryDir* retejujo = nullptr;
    NginxServilo* servilo = nullptr;
};

void tst_lingvoj::init()
{
    ujo = new QTemporaryDir;
    preparasLokojn(*ujo);
}

void tst_lingvoj::cleanup()
{
    QLocale::setDefault(QLocale::c());
    delete servilo;
    servilo = nullptr;
    delete retejujo;
    retejujo = nullptr;
    delete ujo;
}

NginxServilo* tst_lingvoj::retejo(const QList<std::tuple<QString, QByteArray, QByteArray>>& shanghoj)
{
    retejujo = new QTemporaryDir;
    if (!kopiasRetejon(retejujo->path()))
        qWarning("the course's site is not built");
    for (const auto& [dosiero, komenco, nova] : shanghoj) {
        QFile f(retejujo->path() + dosiero);
        f.open(QIODevice::ReadOnly);
        QList<QByteArray> linioj = f.readAll().split('\n');
        f.close();
        for (QByteArray& linio : linioj) {
            if (linio.startsWith(komenco))
                linio = nova + '\r';
        }
        f.open(QIODevice::WriteOnly | QIODevice::Truncate);
        f.write(linioj.join('\n'));
    }
    servilo = new NginxServilo(retejujo->path());
    sServilo = servilo->adreso();
    return servilo;
}

// Clicks OK in the first-run dialog once its list holds `vicoj` languages
// and one is chosen: before that, a click would take English.
static void akceptasPostListo(int vicoj)
{
    QTimer::singleShot(10, [vicoj] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* listo = dialogo ? dialogo->findChild<QListWidget*>("Lingvo") : nullptr;
        if (listo && listo->count() == vicoj && listo->currentItem())
            dialogo->findChild<QAbstractButton*>("pushButton")->click();
        else
            akceptasPostListo(vicoj);
    });
}

QString tst_lingvoj::rimedaTeksto(const QString& dosiero, const QString& shlosilo)
{
    return inidosiero(":/tradukoj/" + dosiero).value(shlosilo).toString();
}

int tst_lingvoj::rimedajLingvoj()
{
    return QDir(":/tradukoj", "*.trd").count();
}

void tst_lingvoj::malnovaListo_data()
{
    QTest::addColumn<int>("tagoj");
    QTest::addColumn<bool>("malnova");
    QTest::newRow("made today") << 0 << false;
    QTest::newRow("exactly seven days") << 7 << false;
    QTest::newRow("eight days") << 8 << true;
}

void tst_lingvoj::malnovaListo()
{
    QFETCH(int, tagoj);
    QFETCH(bool, malnova);
    const QDate hodiau(2026, 11, 22);
    QCOMPARE(lernilo::listoMalnova(hodiau.addDays(-tagoj), hodiau), malnova);
    QCOMPARE(lernilo::listoMalnova(QDate(), hodiau), true);
}

void tst_lingvoj::unuaFojoSenReto_data()
{
    QTest::addColumn<QString>("lokaro");
    QTest::addColumn<QString>("dosiero");
    QTest::newRow("Portuguese system") << "pt_BR" << "portugala.trd";
    QTest::newRow("Esperanto system") << "eo" << "esperanto.trd";
    QTest::newRow("a language the course lacks") << "ja_JP" << "angla.trd";
}

void tst_lingvoj::unuaFojoSenReto()
{
    QFETCH(QString, lokaro);
    QFETCH(QString, dosiero);
    QLocale::setDefault(QLocale(lokaro));
    akceptasPostListo(rimedajLingvoj());
    lernilo fenestro;
    QCOMPARE(sTradukoDosiero, dosiero);
    QCOMPARE(iLiterGrando, 11);
    QCOMPARE(fenestro.findChild<QLabel*>("label_Kio")->text(), rimedaTeksto(dosiero, "Menuo/KioEstas"));
    QVERIFY(!fenestro.findChild<QLabel*>("label_Kio")->text().isEmpty());
    QCOMPARE(fenestro.findChild<QComboBox*>("Lingvo")->count(), rimedajLingvoj());
}

void tst_lingvoj::unuaFojoKunReto()
{
    // The server's Portuguese says something the one built in does not.
    QVERIFY(retejo({{"/datumoj/tradukoj/portugala.trd", "KioEstas=", "KioEstas=Do servidor"}})->preta);
    QLocale::setDefault(QLocale("pt_PT"));
    akceptasPostListo(rimedajLingvoj());   // the site lists every language the course ships
    lernilo fenestro;
    QCOMPARE(servilo->petoj(), QStringList() << "/datumoj/traduklisto.ini" << "/datumoj/tradukoj/portugala.trd");
    QCOMPARE(sTradukoDosiero, QStringLiteral("portugala.trd"));
    QCOMPARE(sLingvo, QString::fromUtf8("Português — portugala"));
    QVERIFY(QFile::exists(savasLoko + "portugala.trd"));
    QCOMPARE(fenestro.findChild<QLabel*>("label_Kio")->text(), QStringLiteral("Do servidor"));
    // The server's rows come first in the settings page's list.
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    QCOMPARE(lingvoj->count(), 2 * rimedajLingvoj());
    QCOMPARE(lingvoj->currentIndex(), QDir(":/tradukoj", "*.trd").entryList().indexOf("portugala.trd"));
}

void tst_lingvoj::listoDe200()
{
    QByteArray listo;
    for (int i = 0; i <= 200; ++i)
        listo += "[" + QByteArray::number(i) + "]\r\nLingvoID=l" + QByteArray::number(i % 10)
                 + "\r\nLingvo=Lingvo " + QByteArray::number(i) + "\r\nDosierNomo=l" + QByteArray::number(i)
                 + ".trd\r\nDato=01.01.2020\r\n\r\n";
    preparasLerninton(*ujo);
    QVERIFY(skribas("traduklisto.ini", listo));
    lernilo fenestro;
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    QCOMPARE(lingvoj->count(), 200 + rimedajLingvoj());
    QCOMPARE(lingvoj->itemText(199), QStringLiteral("Lingvo 199"));
    QCOMPARE(lingvoj->findText("Lingvo 200"), -1);
}

void tst_lingvoj::listoKunTruo()
{
    preparasLerninton(*ujo);
    QVERIFY(skribas("traduklisto.ini",
            "[0]\r\nLingvoID=a0\r\nLingvo=Unu\r\nDosierNomo=a.trd\r\n\r\n"
            "[1]\r\nLingvoID=a1\r\nLingvo=Du\r\nDosierNomo=b.trd\r\n\r\n"
            "[2]\r\nLingvoID=a2\r\nLingvo=Tri\r\nDosierNomo=c.trd\r\n\r\n"
            "[3]\r\nLingvo=Sen kodo\r\nDosierNomo=d.trd\r\n\r\n"
            "[4]\r\nLingvoID=a4\r\nLingvo=Kvin\r\nDosierNomo=e.trd\r\n"));
    lernilo fenestro;
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    QCOMPARE(lingvoj->count(), 3 + rimedajLingvoj());
    QCOMPARE(lingvoj->findText("Kvin"), -1);
}

void tst_lingvoj::aktualigoDeLingvo()
{
    // The list is missing: it is fetched, and a newer date of the language
    // in use brings its file.
    preparasLerninton(*ujo);
    QFile::remove(savasLoko + "traduklisto.ini");
    QVERIFY(retejo({{"/datumoj/traduklisto.ini", "Dato=", "Dato=09.07.2025"},
                    {"/datumoj/tradukoj/angla.trd", "KioEstas=", "KioEstas=Newer"},
                    {"/datumoj/tradukoj/angla.trd", "Dato=", "Dato=09.07.2025"}})->preta);
    lernilo fenestro;
    auto* etikedo = fenestro.findChild<QLabel*>("label_Kio");
    QTRY_COMPARE_WITH_TIMEOUT(etikedo->text(), QStringLiteral("Newer"), 10000);
    QCOMPARE(servilo->petoj(), QStringList() << "/datumoj/traduklisto.ini" << "/datumoj/tradukoj/angla.trd");

    // Next start: the list is fresh, nothing is fetched, the newer file stays.
    lernilo dua;
    QCOMPARE(dua.findChild<QLabel*>("label_Kio")->text(), QStringLiteral("Newer"));
    QCOMPARE(servilo->petoj().size(), 2);
}

void tst_lingvoj::shanghoDeLingvo()
{
    preparasLerninton(*ujo);
    // A site that has lost its language files: 404.
    QVERIFY(retejo()->preta);
    QVERIFY(QDir(retejujo->path() + "/datumoj/tradukoj").removeRecursively());
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    auto* lecionaEtikedo = fenestro.findChild<QLabel*>("Lec02_Label1");
    const QString angle = lecionaEtikedo->text();
    fenestro.findChild<QAbstractButton*>("Hejmo")->click();

    fenestro.findChild<QAbstractButton*>("Konfigurado")->click();
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    const int esperanto = lingvoj->findText("Esperanto");
    QVERIFY(esperanto >= 0);
    lingvoj->setCurrentIndex(esperanto);
    QMetaObject::invokeMethod(&fenestro, "on_Lingvo_activated", Q_ARG(int, esperanto));
    auto* apliko = fenestro.findChild<QAbstractButton*>("shanghasKonfigurojn");
    QVERIFY(apliko->isEnabled());
    apliko->click();
    QCOMPARE(sTradukoDosiero, QStringLiteral("esperanto.trd"));
    auto* kio = fenestro.findChild<QLabel*>("label_Kio");
    QTRY_COMPARE_WITH_TIMEOUT(kio->text(), rimedaTeksto("esperanto.trd", "Menuo/KioEstas"), 10000);
    QCOMPARE(servilo->petoj().value(0), QStringLiteral("/datumoj/tradukoj/esperanto.trd"));
    // Each run of the translation adds the languages to the list once more.
    QCOMPARE(lingvoj->count(), 2 * rimedajLingvoj());

    // The open lesson keeps its language until it is entered again.
    QCOMPARE(lecionaEtikedo->text(), angle);
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QCOMPARE(lecionaEtikedo->text(), rimedaTeksto("esperanto.trd", "Lec02/Label1"));
}

QTEST_MAIN(tst_lingvoj)
#include "tst_lingvoj.moc"
