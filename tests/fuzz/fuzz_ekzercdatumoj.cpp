// Exercise data and the translated data of exercises, through the readers
// every exercise uses.

#include "fuzzhelpoj.h"
#include "inidosiero.h"

#include <QRegularExpression>
#include <QSet>

static QString radiko;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    radiko = fuzzKomenco(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datumoj, size_t grando)
{
    if (grando > 300000)
        return 0;
    Loko = radiko;
    sEkzercujo = radiko + QStringLiteral("ekzercoj/");
    sTradukoDosiero = QStringLiteral("fuzz.trd");
    const QString traduko = radiko + QStringLiteral("tradukoj/fuzz.trd");
    fuzzSkribas(traduko, datumoj, grando);

    // The same bytes as the data file of every lesson its groups name.
    static const QRegularExpression ekzerca(QStringLiteral("^(\\d\\d)\\d\\d"));
    QStringList grupoj = inidosiero(traduko).childGroups();
    QSet<QString> lecionoj;
    for (const QString& g : qAsConst(grupoj)) {
        const QString nn = ekzerca.match(g).captured(1);
        if (!nn.isEmpty() && !lecionoj.contains(nn)) {
            lecionoj.insert(nn);
            fuzzSkribas(radiko + QStringLiteral("ekzercoj/ekz") + nn + QStringLiteral(".dat"), datumoj, grando);
        }
    }

    QStringList listo;
    QList<QStringList> vicoj;
    for (const QString& g : qAsConst(grupoj)) {
        if (g.startsWith(QLatin1String("Ekzerco-"))) {
            const int n = _Matriz(&listo, g.mid(8), QStringLiteral("T"));
            fuzzCerte(n == listo.size(), "one text a key");
        } else if (ekzerca.match(g).hasMatch()) {
            const int n = _Matriz(&listo, g.left(4), g.mid(4));
            fuzzCerte(n == listo.size() && limigo(n) <= 40, "one text a key, at most 40 drawn");
            _Matriz2(&vicoj, g.left(4), g.mid(4), 11);
            for (const QStringList& vico : qAsConst(vicoj))
                fuzzCerte(vico.size() >= 11, "every row as wide as asked");
        }
    }
    Loko = QStringLiteral(":/");
    return 0;
}
