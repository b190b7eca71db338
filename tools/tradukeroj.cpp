#include "tradukeroj.h"
#include "funkcioj.h"
#include "klavoj.h"
#include "lecionkadro.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>

namespace {

const QString crlf = QStringLiteral("\r\n");

QStringList grupo(const char* nomo, std::initializer_list<const char*> shlosiloj)
{
    QStringList linioj;
    linioj << QLatin1Char('[') + QLatin1String(nomo) + QLatin1Char(']');
    int n = 0;
    for (const char* s : shlosiloj)
        linioj << QStringLiteral("%1=%2").arg(n++, 3, 10, QLatin1Char('0')).arg(QLatin1String(s));
    return linioj;
}

} // namespace

QVector<Tradukero> tradukeroj::deLeciono(QTabWidget* langetoj)
{
    QVector<Tradukero> listo;
    for (const TradukendaEtikedo& e : tradukendajEtikedoj(langetoj))
        listo.append({e.numero, e.shlosilo, e.etikedo->text()});
    return listo;
}

QString tradukeroj::iniLinio(const QString& shlosilo, const QString& valoro)
{
    // A leading "@" marks a typed value to the reader; "@@" is a plain one.
    const QString valoro2 = valoro.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + valoro : valoro;
    const bool citu = valoro2.contains(QRegularExpression(QStringLiteral("[,;=\"\\\\\\n\\r\\t]")))
                      || valoro2 != valoro2.trimmed();
    if (!citu)
        return shlosilo + QLatin1Char('=') + valoro2;
    QString v = valoro2;
    v.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    v.replace(QLatin1Char('"'), QLatin1String("\\\""));
    v.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    v.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    v.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return shlosilo + QStringLiteral("=\"") + v + QLatin1Char('"');
}

QString tradukeroj::tdf()
{
    QList<QStringList> grupoj;
    QStringList gheneralaj;
    gheneralaj << QStringLiteral("[Gheneralaj]");
    QStringList shlosiloj;
    for (const auto& paro : gheneralajEtikedoj()) {
        if (!shlosiloj.contains(paro.second))
            shlosiloj << paro.second;
    }
    for (int i = 0; i < shlosiloj.size(); ++i)
        gheneralaj << QStringLiteral("%1=%2").arg(i, 3, 10, QLatin1Char('0')).arg(shlosiloj.at(i));
    grupoj << gheneralaj;
    for (int n = KiomDaLecionoj; n >= 1; --n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        QStringList linioj;
        linioj << QLatin1Char('[') + kadro.langetoj()->objectName() + QLatin1Char(']');
        for (const Tradukero& t : deLeciono(kadro.langetoj()))
            linioj << QStringLiteral("%1=%2").arg(t.numero, 3, 10, QLatin1Char('0')).arg(t.shlosilo);
        grupoj << linioj;
    }
    grupoj << grupo("Menuo4", {"Label3", "Titolo", "Label200", "Label201", "Label4", "Label5", "Label6",
                               "Label7", "Label8", "Label9", "Versio", "Label2", "FontKodo", "Nokia"});
    grupoj << grupo("Konfig", {"Label1", "Label2", "Label3", "Label5", "Label8", "Label4", "Label9", "Label12"});
    grupoj << grupo("Menuo", {"KioEstas", "KielUzi", "Konfigurado", "Kreditoj", "Eliri", "KieButono"});
    grupoj << grupo("Mesagxoj", {"smGratulon", "smDenove", "smModifis", "smTondujo", "smDevasHaviKor",
                                 "smKoverto", "smDisketo", "smPordo", "smLigilo", "smPrononcoNeTrovita"});
    QStringList klavaj(QStringLiteral("[Klavoj]"));
    for (const QString& ago : klavoj::agoj())
        klavaj << QStringLiteral("%1=%2").arg(klavaj.size() - 1, 3, 10, QLatin1Char('0')).arg(ago);
    grupoj << klavaj;
    QStringList partoj;
    for (const QStringList& g : grupoj)
        partoj << g.join(crlf) + crlf;
    return partoj.join(crlf);
}

QString tradukeroj::lecionajGrupoj()
{
    QStringList partoj;
    for (int n = 1; n <= KiomDaLecionoj; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        QStringList linioj;
        linioj << QLatin1Char('[') + kadro.langetoj()->objectName() + QLatin1Char(']');
        for (const Tradukero& t : deLeciono(kadro.langetoj()))
            linioj << iniLinio(t.shlosilo, t.teksto);
        partoj << linioj.join(crlf) + crlf;
    }
    return partoj.join(crlf);
}
