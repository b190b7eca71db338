#include "funkcioj.h"


namespace {

struct Litero
{
    ushort unikodo;
    const char* x;
    const char* h;
};

// Every conversion walks these rows in this order.
const Litero literoj[] = {
    {0x0109, "cx", "ch"}, {0x011D, "gx", "gh"}, {0x0125, "hx", "hh"},
    {0x0135, "jx", "jh"}, {0x015D, "sx", "sh"}, {0x016D, "ux", "u"},
    {0x0108, "Cx", "Ch"}, {0x011C, "Gx", "Gh"}, {0x0124, "Hx", "Hh"},
    {0x0134, "Jx", "Jh"}, {0x015C, "Sx", "Sh"}, {0x016C, "Ux", "U"},
};

} // namespace

QString CxSist(QString teksto, int sistemo)
{
    for (const Litero& l : literoj) {
        const QString unikodo(QChar(l.unikodo));
        if (sistemo == 1)
            teksto.replace(unikodo, QLatin1String(l.x));
        else if (sistemo == 2)
            teksto.replace(unikodo, QLatin1String(l.h));
        else if (sistemo == 3)
            teksto.replace(QLatin1String(l.x), unikodo);
    }
    return teksto;
}

QString purigas(QString teksto, bool minuskle)
{
    while (teksto.contains(QLatin1String("  ")))
        teksto.replace(QLatin1String("  "), QLatin1String(" "));
    teksto = teksto.trimmed();
    teksto.remove(QLatin1Char('.'));
    teksto.remove(QLatin1Char(','));
    if (minuskle)
        teksto = teksto.toLower();
    return teksto;
}
