// The course's web site as the build writes it: a list the program can read
// with every shipped language and its date, each language file as shipped,
// a help page in every language, linked to the others, showing only
// drawings it has, in its language's direction, and the pages for
// translators and course monitors.

#include "testaj_helpoj.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

class tst_retejilo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listoKajDosieroj();
    void helpajPaghoj();

private:
    QString legas(const QString& vojo);

    QTemporaryDir ujo;
    QStringList lingvoj;   // the shipped language files
};

QString tst_retejilo::legas(const QString& vojo)
{
    QFile f(ujo.path() + vojo);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

void tst_retejilo::initTestCase()
{
    lingvoj = QDir(QStringLiteral(LERNILO_FONTOJ "/resources/tradukoj"), QStringLiteral("*.trd")).entryList();
    QProcess retejilo;
    retejilo.start(QStringLiteral(LERNILO_RETEJILO), {QStringLiteral(LERNILO_FONTOJ), ujo.path(), "lernilo.example.org:8080"});
    QVERIFY(retejilo.waitForFinished(60000));
    QVERIFY2(retejilo.exitCode() == 0, retejilo.readAllStandardError().constData());
}

void tst_retejilo::listoKajDosieroj()
{
    // Read as the program reads it.
    inidosiero listo(ujo.path() + "/datumoj/traduklisto.ini");
    QStringList listitaj;
    for (int i = 0; i < 200; ++i) {
        const QStringList vico = listaVico(listo, i);
        if (vico.at(0) == QLatin1String("??"))
            break;
        listitaj << vico.at(2);
        const auto kapo = legasKapon(QStringLiteral(LERNILO_FONTOJ "/resources/tradukoj/") + vico.at(2));
        QCOMPARE(vico.at(1), kapo.value("Lingvo"));
        QCOMPARE(vico.at(3), kapo.value("Dato"));
        QFile sendita(QStringLiteral(LERNILO_FONTOJ "/resources/tradukoj/") + vico.at(2));
        QVERIFY(sendita.open(QIODevice::ReadOnly));
        QCOMPARE(legas("/datumoj/tradukoj/" + vico.at(2)).toUtf8(), sendita.readAll());
    }
    QCOMPARE(listitaj, lingvoj);
    // The pages name the host without its port.
    QVERIFY(legas("/datumoj/tradukoj/rekomendoj.html").contains("mailto:lernilo@lernilo.example.org\""));
    QVERIFY(legas("/monitoroj/index.html").contains("<h1>"));
}

void tst_retejilo::helpajPaghoj()
{
    static const QRegularExpression bildo(QStringLiteral("<img src=\"([^\"]+)\""));
    static const QRegularExpression ligilo(QStringLiteral("<a href=\"(kiel_[^\"]+)\""));
    QStringList mankas;
    for (const QString& dosiero : qAsConst(lingvoj)) {
        if (!QFile::exists(QStringLiteral(LERNILO_FONTOJ "/resources/retejo/kiel/") + QFileInfo(dosiero).completeBaseName() + ".txt"))
            mankas << dosiero;
    }
    QVERIFY2(mankas.isEmpty(), qPrintable("no help page for " + mankas.join(", ")));
    for (const QString& dosiero : qAsConst(lingvoj)) {
        const QString nomo = "kiel_" + QFileInfo(dosiero).completeBaseName() + ".html";
        const QString pagho = legas("/datumoj/kiel/" + nomo);
        const bool rtl = legasKapon(QStringLiteral(LERNILO_FONTOJ "/resources/tradukoj/") + dosiero).value("Direkto") == "RTL";
        QVERIFY2(pagho.contains(rtl ? "dir=\"rtl\"" : "dir=\"ltr\""), qPrintable(nomo));
        QVERIFY2(pagho.contains("<h1>") && pagho.count("<h2>") >= 5, qPrintable(nomo));
        for (auto it = bildo.globalMatch(pagho); it.hasNext();) {
            const QString b = it.next().captured(1);
            QVERIFY2(QFile::exists(ujo.path() + "/datumoj/kiel/" + b), qPrintable(nomo + ": " + b));
        }
        // A link to every other language's page.
        QStringList ligiloj;
        for (auto it = ligilo.globalMatch(pagho); it.hasNext();)
            ligiloj << it.next().captured(1);
        QCOMPARE(ligiloj.size(), lingvoj.size() - 1);
    }
}

QTEST_MAIN(tst_retejilo)
#include "tst_retejilo.moc"
