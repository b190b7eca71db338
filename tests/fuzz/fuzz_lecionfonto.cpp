// A lesson source, read and built into widgets.

#include "fuzzhelpoj.h"
#include "lecionfonto.h"
#include "lecionkonstruilo.h"

#include <QTabWidget>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    fuzzKomenco(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datumoj, size_t grando)
{
    if (grando > 300000)
        return 0;   // the largest source is a fraction of this
    const QString teksto = QString::fromUtf8(reinterpret_cast<const char*>(datumoj), int(grando));
    // A name without a lesson number, so that any lesson's source is built.
    lecionfonto fonto = lecionfonto::legas(teksto, QStringLiteral("fonto.lec"));
    for (const LecionEraro& e : fonto.eraroj)
        fuzzCerte(e.linio >= 0 && !e.kialo.isEmpty(), "every mistake has its line and reason");
    // A few pages are built: every kind of widget is reached, many times a
    // second, where whole lessons would come a few a second.
    fonto.paghoj.resize(qMin(fonto.paghoj.size(), 3));

    QWidget kadro;
    QTabWidget* langetoj = lecionkonstruilo::konstruas(fonto, &kadro);
    fuzzCerte(langetoj && langetoj->objectName() == fonto.langetujo(), "the tab widget is named by the lesson");
    fuzzCerte(langetoj->count() == fonto.paghoj.size(), "every page read is built");
    return 0;
}
