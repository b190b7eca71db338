// All Esperanto of the course passes the spelling check of Debian's
// Esperanto dictionary (hunspell with myspell-eo): the words and model
// answers of the lessons, the exercise data, the Esperanto translation and
// the words of the song.
// The few right words the dictionary lacks stand, each with its reason, in
// resources/literumado/permesitaj.txt.

#include "inidosiero.h"
#include "lecionfonto.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QtTest>

namespace {

QString senMarkoj(QString teksto)
{
    // Markup inside a word (a stressed syllable in bold) keeps the word whole.
    static const QRegularExpression linio(QStringLiteral("<(br|p|/p|li|/li)[^>]*>"), QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression etikedo(QStringLiteral("<[^>]*>"));
    teksto.replace(linio, QStringLiteral(" "));
    teksto.remove(etikedo);
    teksto.replace(QStringLiteral("&nbsp;"), QStringLiteral(" "));
    static const QRegularExpression montrataEtikedo(QStringLiteral("&lt;[^&]*&gt;"));   // a tag named in a text
    teksto.remove(montrataEtikedo);
    return teksto;
}

void esperantajEroj(const QVector<LecionEro>& eroj, QStringList& tekstoj)
{
    static const QStringList klasoj = {"klakbutono_nova", "neklakebla_nova", "korekta"};
    for (const LecionEro& e : eroj) {
        if (klasoj.contains(e.klaso) || e.atributoj.value("lingvo") == QLatin1String("eo"))
            tekstoj << e.teksto;
        esperantajEroj(e.idoj, tekstoj);
    }
}

QStringList grupo(QSettings& s, const QString& nomo)
{
    QStringList valoroj;
    s.beginGroup(nomo);
    for (const QString& k : s.childKeys())
        valoroj << s.value(k).toString();
    s.endGroup();
    return valoroj;
}

} // namespace

class tst_literumado : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void lecionojDatumojKajTraduko();
    void kanto();
    void retejo();

private:
    QStringList nekonataj(const QStringList& tekstoj);
    QSet<QString> permesitaj;
};

void tst_literumado::initTestCase()
{
    QFile listo(QStringLiteral(LERNILO_FONTOJ "/resources/literumado/permesitaj.txt"));
    QVERIFY(listo.open(QIODevice::ReadOnly));
    for (const QString& linio : QString::fromUtf8(listo.readAll()).split('\n')) {
        const QString vorto = linio.section('#', 0, 0).trimmed();
        if (vorto.isEmpty())
            continue;
        QVERIFY2(linio.contains('#') && !linio.section('#', 1).trimmed().isEmpty(),
                 qPrintable("no reason given for " + vorto));
        permesitaj.insert(vorto);
    }
}

QStringList tst_literumado::nekonataj(const QStringList& tekstoj)
{
    QProcess hunspell;
    hunspell.start("hunspell", {"-d", "eo", "-l", "-i", "UTF-8"});
    if (!hunspell.waitForStarted(10000))
        return {"(hunspell did not start)"};
    hunspell.write(senMarkoj(tekstoj.join('\n')).toUtf8());
    hunspell.closeWriteChannel();
    hunspell.waitForFinished(60000);
    QStringList rezulto;
    for (const QString& vorto : QString::fromUtf8(hunspell.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts)) {
        if (!permesitaj.contains(vorto) && !permesitaj.contains(vorto.toLower()) && !rezulto.contains(vorto))
            rezulto << vorto;
    }
    return rezulto;
}

// The words and model answers of the lessons, the exercise data (a gap
// sentence whole, fragments and answers together; accusative rows one word a
// field) and the Esperanto translation but its codes and file names.
void tst_literumado::lecionojDatumojKajTraduko()
{
    QStringList tekstoj;
    for (int n = 1; n <= 13; ++n) {
        for (const LecionPagho& p : lecionfonto::deRimedoj(n).paghoj)
            esperantajEroj(p.idoj, tekstoj);
        inidosiero d(QStringLiteral(":/ekzercoj/ekz%1.dat").arg(n, 2, 10, QLatin1Char('0')));
        for (const QString& g : d.childGroups()) {
            if (!g.endsWith('D'))
                continue;
            const QStringList D = grupo(d, g), R = grupo(d, g.left(4) + 'R');
            const bool akuzativo = d.childGroups().contains(g.left(4) + 'K');
            for (int i = 0; i < D.size(); ++i) {
                const QStringList fragmentoj = D.at(i).split('~'), respondoj = R.value(i).split('~');
                QString frazo;
                for (int k = 0; k < fragmentoj.size(); ++k)
                    frazo += fragmentoj.at(k) + (akuzativo ? QStringLiteral(" ") : fragmentoj.size() > 1 ? respondoj.value(k) : QString());
                tekstoj << frazo;
            }
        }
    }
    inidosiero t(":/tradukoj/esperanto.trd");
    for (const QString& g : t.childGroups()) {
        if (g != QLatin1String("Traduko"))
            tekstoj << grupo(t, g);
    }
    QVERIFY(tekstoj.size() > 150);
    const QStringList eraroj = nekonataj(tekstoj);
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join(", ")));
}

void tst_literumado::kanto()
{
    // The sung lines, syllables joined again; the words beside their meaning
    // for the lesson page must be the ones sung.
    QFile partituro(QStringLiteral(LERNILO_FONTOJ "/resources/kanto/fragoj.txt"));
    QFile tradukoj(QStringLiteral(LERNILO_FONTOJ "/resources/kanto/tradukoj.txt"));
    QVERIFY(partituro.open(QIODevice::ReadOnly) && tradukoj.open(QIODevice::ReadOnly));
    const QStringList linioj = QString::fromUtf8(tradukoj.readAll()).split('\n');
    QStringList kantataj, mankas;
    for (const QString& linio : QString::fromUtf8(partituro.readAll()).split('\n')) {
        if (!linio.startsWith(QLatin1String("s:")))
            continue;
        QString vortoj = linio.mid(2).simplified();
        vortoj.replace(QStringLiteral("- "), QString());
        kantataj << vortoj;
        if (!linioj.contains(vortoj))
            mankas << vortoj;
    }
    QCOMPARE(kantataj.size(), 16);
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(" / ")));
    const QStringList eraroj = nekonataj(kantataj);
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join(", ")));
}

// The Esperanto of the course's web pages: the help page in Esperanto, each
// title's Esperanto half and the section "Esperante" of the pages written in
// two languages.
void tst_literumado::retejo()
{
    QStringList tekstoj;
    QFile helpo(QStringLiteral(LERNILO_FONTOJ "/resources/retejo/kiel/esperanto.txt"));
    if (helpo.open(QIODevice::ReadOnly))
        tekstoj << QString::fromUtf8(helpo.readAll()).remove(QRegularExpression(QStringLiteral("\\[bildo \\S+")));
    for (const QString& nomo : {"rekomendoj.txt", "monitoroj.txt"}) {
        QFile f(QStringLiteral(LERNILO_FONTOJ "/resources/retejo/") + nomo);
        QVERIFY(f.open(QIODevice::ReadOnly));
        bool esperanta = false;
        for (const QString& linio : QString::fromUtf8(f.readAll()).split('\n')) {
            if (linio.startsWith(QLatin1String("# ")))
                tekstoj << linio.mid(2).section(QStringLiteral(" – "), 0, 0);
            else if (linio.startsWith(QLatin1String("## ")))
                esperanta = linio == QLatin1String("## Esperante");
            else if (esperanta)
                tekstoj << linio;
        }
    }
    QVERIFY(tekstoj.size() > 10);
    const QStringList eraroj = nekonataj(tekstoj);
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join(", ")));
}

QTEST_MAIN(tst_literumado)
#include "tst_literumado.moc"
