// A language list from the server: the check a downloaded body passes, and
// the rows the settings page and the update check read from it.

#include "filedownloader.h"
#include "fuzzhelpoj.h"
#include "inidosiero.h"

#include <QDate>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    fuzzKomenco(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datumoj, size_t grando)
{
    if (grando > 500000)
        return 0;
    const QByteArray korpo(reinterpret_cast<const char*>(datumoj), int(grando));
    FileDownloader::legebla(korpo, QStringLiteral("traduklisto.ini"));
    FileDownloader::legebla(korpo, QStringLiteral("angla.trd"));

    const QString vojo = savasLoko + QStringLiteral("traduklisto.ini");
    fuzzSkribas(vojo, datumoj, grando);
    inidosiero listo(vojo);
    for (int i = 0; i < 200; ++i) {
        const QStringList vico = listaVico(listo, i);
        fuzzCerte(vico.size() == 4, "a row has four texts");
        if (vico.at(0) == QLatin1String("??"))
            break;
        if (sekuraDosierNomo(vico.at(2)))
            fuzzCerte(!vico.at(2).contains(QLatin1Char('/')) && vico.at(2).endsWith(QLatin1String(".trd"))
                          && FileDownloader::akceptebla(vico.at(2)),
                      "a name taken from the list stays in the writable folder");
        QDate::fromString(vico.at(3).trimmed(), QStringLiteral("dd.MM.yyyy"));
    }
    return 0;
}
