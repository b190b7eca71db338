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
    void lecionoj();
    void ekzercajDatumoj();
    void esperantaTraduko();
    void kanto();

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

void tst_literumado::lecionoj()
{
    QStringList tekstoj;
    for (int n = 1; n <= 13; ++n) {
        const lecionfonto f = lecionfonto::deRimedoj(n);
        for (const LecionPagho& p : f.paghoj)
            esperantajEroj(p.idoj, tekstoj);
    }
    QVERIFY(tekstoj.size() > 100);
    const QStringList eraroj = nekonataj(tekstoj);
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join(", ")));
}

void tst_literumado::ekzercajDatumoj()
{
    QStringList tekstoj;
    for (int n = 1; n <= 13; ++n) {
        inidosiero d(QStringLiteral(":/ekzercoj/ekz%1.dat").arg(n, 2, 10, QLatin1Char('0')));
        for (const QString& g : d.childGroups()) {
            const QStringList D = grupo(d, g);
            if (!g.endsWith('D'))
                continue;
            const QString id = g.left(4);
            const QStringList R = grupo(d, id + 'R');
            if (d.childGroups().contains(id + 'K')) {
                // Accusative rows: one word a field.
                for (const QString& vico : D)
                    tekstoj << QStringList(vico.split('~')).join(' ');
                continue;
            }
            for (int i = 0; i < D.size(); ++i) {
                // A gap sentence is checked whole: fragments and answers together.
                const QStringList fragmentoj = D.at(i).split('~');
                const QStringList respondoj = R.value(i).split('~');
                QString frazo;
                for (int k = 0; k < fragmentoj.size(); ++k)
                    frazo += fragmentoj.at(k) + (fragmentoj.size() > 1 ? respondoj.value(k) : QString());
                tekstoj << frazo;
            }
        }
    }
    const QStringList eraroj = nekonataj(tekstoj);
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join(", ")));
}

void tst_literumado::esperantaTraduko()
{
    inidosiero t(":/tradukoj/esperanto.trd");
    QStringList tekstoj;
    for (const QString& g : t.childGroups()) {
        if (g != QLatin1String("Traduko"))   // codes and file names
            tekstoj << grupo(t, g);
    }
    QVERIFY(tekstoj.size() > 50);
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

QTEST_MAIN(tst_literumado)
#include "tst_literumado.moc"
