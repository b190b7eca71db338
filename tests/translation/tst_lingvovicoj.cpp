// The reader of single groups of a language file gives what QSettings gives:
// on every shipped language file, and on a file that gathers the awkward
// corners of the INI format.

#include "testaj_helpoj.h"

#include <QDirIterator>
#include <QtTest>

class tst_lingvovicoj : public QObject
{
    Q_OBJECT

private slots:
    void samaKielQSettings_data();
    void samaKielQSettings();
    void kapoDeMankantaDosiero();
};

static QHash<QString, QString> perQSettings(const QString& vojo, const QString& grupo)
{
    inidosiero dosiero(vojo);
    dosiero.beginGroup(grupo);
    QHash<QString, QString> rezulto;
    for (const QString& shlosilo : dosiero.childKeys())
        rezulto.insert(shlosilo, dosiero.value(shlosilo).toString());
    return rezulto;
}

void tst_lingvovicoj::samaKielQSettings_data()
{
    QTest::addColumn<QString>("vojo");
    for (QDirIterator it(QStringLiteral(":/tradukoj")); it.hasNext();) {
        const QString vojo = it.next();
        if (vojo.endsWith(QLatin1String(".trd")))
            QTest::newRow(qPrintable(it.fileName())) << vojo;
    }
    static QTemporaryDir ujo;
    const QString vojo = ujo.path() + QStringLiteral("/malfacila.trd");
    QFile f(vojo);
    f.open(QIODevice::WriteOnly);
    f.write("[General]\nLingvo=not the header\n"
            "; a comment line\n"
            "[Mesa%U011Doj]\nsmGratulon=escaped group\n"
            "[Menuo]\n"
            "KioEstas=\"Quoted, with a comma\"\n"
            "KielUzi=unquoted, so a list\n"
            "Konfigurado = spaced value   \n"
            "Kreditoj=\"a \\\"quote\\\" and\\na break\"\n"
            "Eliri=before ; a comment\n"
            "Label%208=escaped key\n"
            "KieButono=\"over\ntwo lines\"\n"
            "Eliri=the later one\n"
            "Nenio\n"
            "[Traduko]\r\nLingvo=Lingvo \\x107 \\101 \\t end\r\nLingvoID= \"xx\" \r\nDato=@@at\r\nTradukinto=@String(nomo)\r\n"
            "[Konfig]\nLabel1=[Traduko] inside a value\n");
    f.close();
    QTest::newRow("awkward corners") << vojo;
}

void tst_lingvovicoj::samaKielQSettings()
{
    QFETCH(QString, vojo);
    const QStringList grupoj = inidosiero(vojo).childGroups();
    const auto legitaj = legasGrupojn(vojo, grupoj);
    for (const QString& grupo : grupoj)
        QCOMPARE(legitaj.value(grupo), perQSettings(vojo, grupo));
    QCOMPARE(legasKapon(vojo), perQSettings(vojo, QStringLiteral("Traduko")));
}

void tst_lingvovicoj::kapoDeMankantaDosiero()
{
    QVERIFY(legasKapon(QStringLiteral(":/tradukoj/nenia.trd")).isEmpty());
    QCOMPARE(dosieraVico(QStringLiteral("nenia.trd"), QStringLiteral("01.01.2000")),
             QStringList({QStringLiteral("??"), QStringLiteral("?????????"), QStringLiteral("nenia.trd"),
                          QStringLiteral("01.01.2000")}));
}

QTEST_MAIN(tst_lingvovicoj)
#include "tst_lingvovicoj.moc"
