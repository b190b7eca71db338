// A translation file applied to a built lesson.

#include "fuzzhelpoj.h"
#include "lecionfonto.h"
#include "lecionkonstruilo.h"

#include <QFrame>
#include <QTabWidget>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    fuzzKomenco(argc, argv);
    return 0;
}

// The page of the main window that holds lesson `numero`, built once.
static QWidget* lecionPagho(int numero)
{
    static QWidget* paghoj[KiomDaLecionoj] = {};
    QWidget*& pagho = paghoj[numero - 1];
    if (!pagho) {
        pagho = new QWidget;
        const lecionfonto fonto = lecionfonto::deRimedoj(numero);
        auto* kadro = new QFrame(pagho);
        kadro->setObjectName(fonto.kadro());
        lecionkonstruilo::konstruas(fonto, kadro);
    }
    return pagho;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datumoj, size_t grando)
{
    if (grando > 500000)
        return 0;
    sTradukoDosiero = QStringLiteral("fuzz.trd");
    fuzzSkribas(savasLoko + sTradukoDosiero, datumoj, grando);
    const int numero = int(grando % KiomDaLecionoj) + 1;
    QWidget* pagho = lecionPagho(numero);
    QTabWidget* langetoj = pagho->findChild<QTabWidget*>();
    Trad(pagho, langetoj->objectName());
    tradukendajEtikedoj(langetoj);
    return 0;
}
