#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "neklakebla_nova.h"

#include <QLabel>
#include <QTabWidget>

QVector<TradukendaEtikedo> tradukendajEtikedoj(QTabWidget* langetoj)
{
    QVector<TradukendaEtikedo> listo;
    const QString prefikso = langetoj->objectName() + QLatin1Char('_');
    int nombrilo = 0;
    for (int i = 0; i < langetoj->count(); ++i) {
        for (QLabel* etikedo : langetoj->widget(i)->findChildren<QLabel*>()) {
            const QString nomo = etikedo->objectName();
            const bool instrukcio = nomo == QLatin1String("Ekz_Plen2");
            if (!(nomo.contains(prefikso) || instrukcio))
                continue;
            if (nomo.contains(QLatin1String("Pan")) || nomo.contains(QLatin1String("Memo")))
                continue;
            // Esperanto words and model answers keep the form's text in every language.
            if (qobject_cast<klakbutono_nova*>(etikedo) || qobject_cast<neklakebla_nova*>(etikedo)
                || qobject_cast<korekta*>(etikedo))
                continue;
            QString shlosilo = nomo;
            shlosilo.remove(prefikso);
            if (instrukcio)
                shlosilo = instrukciaShlosilo(etikedo);
            if (!shlosilo.isEmpty())
                listo.append({nombrilo, shlosilo, etikedo});
            ++nombrilo;
        }
    }
    return listo;
}
