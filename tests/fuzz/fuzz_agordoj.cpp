// The settings file as the program reads it at start, and the saved answers
// it loads into a lesson's written pages.

#include "fuzzhelpoj.h"
#include "lecionfonto.h"
#include "lecionkonstruilo.h"
#include "lernilo.h"

#include <QFrame>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

static QList<QTabWidget*> lecionoj;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    fuzzKomenco(argc, argv);
    // Lessons with one-line and many-line answers.
    for (int numero : {9, 10, 13}) {
        auto* kadro = new QFrame;
        lecionoj << lecionkonstruilo::konstruas(lecionfonto::deRimedoj(numero), kadro);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datumoj, size_t grando)
{
    if (grando > 500000)
        return 0;
    fuzzSkribas(agordoVojo(), datumoj, grando);
    lernilo::legasAgordojn();
    fuzzCerte(iLiterGrando >= 9 && iLiterGrando <= 16 && iLiterGrandoEo >= 9 && iLiterGrandoEo <= 16,
              "font sizes as the settings page allows");
    fuzzCerte(LastaLeciono >= 1 && LastaLeciono <= KiomDaLecionoj, "an existing lesson");
    fuzzCerte(LastaPagxo >= 0 && (LastaPagxo == 0 || LastaPagxo < lecionfonto::kiomDaPaghoj(LastaLeciono)),
              "an existing page");
    fuzzCerte(iSistemo >= 0 && iSistemo <= 2, "a letter system");
    fuzzCerte(sTradukoDosiero.isEmpty() || sekuraDosierNomo(sTradukoDosiero), "a translation file of the writable folder");

    for (QTabWidget* langetoj : qAsConst(lecionoj)) {
        for (QLineEdit* kampo : langetoj->findChildren<QLineEdit*>())
            kampo->clear();
        for (QPlainTextEdit* kampo : langetoj->findChildren<QPlainTextEdit*>())
            kampo->clear();
        SxargxasEk(langetoj, false);
    }
    return 0;
}
