#include "funkcioj.h"
#include "klavoj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "label_klakebla.h"
#include "label_sago.h"
#include "label_sago_reversa.h"
#include "neklakebla_nova.h"
#include "inidosiero.h"

#include <QFile>
#include <QLabel>
#include <QSettings>

const QVector<QPair<QString, QString>>& gheneralajEtikedoj()
{
    // In the order of the group in the list of things to translate.
    static const QVector<QPair<QString, QString>> tabelo = {
        {QStringLiteral("Ekz_Pron1"), QStringLiteral("TFrame2.PP_Label1")},
        {QStringLiteral("Ekz_Pron2"), QStringLiteral("TFrame2.PP_Label41")},
        {QStringLiteral("Ekz_Audk2"), QStringLiteral("TFrame3.Label68")},
        {QStringLiteral("Ekz_Audk1"), QStringLiteral("TFrame3.Label59")},
        {QStringLiteral("Ekz_Vort2"), QStringLiteral("TFrame1.Label7")},
        {QStringLiteral("Ekz_Vort1"), QStringLiteral("TFrame4.Label83")},
        {QStringLiteral("Ekz_Plen1"), QStringLiteral("TFrame4.Label83")},
        {QStringLiteral("Ekz_Akuz2"), QStringLiteral("TFrame5.Label1")},
        {QStringLiteral("Ekz_Akuz1"), QStringLiteral("TFrame5.Label6")},
        {QStringLiteral("Ekz_FrazoKonstruo"), QStringLiteral("Ekz_FrazoKonstruo")},
    };
    return tabelo;
}

QString instrukciaShlosilo(const QObject* etikedo)
{
    // The second gap exercise of a lesson has a "B" after the lesson number.
    const QObject* gepatro = etikedo ? etikedo->parent() : nullptr;
    const bool b = gepatro && gepatro->objectName().mid(5, 1) == QLatin1String("B");
    return b ? QStringLiteral("Frame42.Label84") : QStringLiteral("TFrame41.Label84");
}

namespace {

QString gheneralaShlosilo(const QString& etikedo)
{
    for (const auto& paro : gheneralajEtikedoj()) {
        if (paro.first == etikedo)
            return paro.second;
    }
    return QString();
}

} // namespace

QString legotaTraduko()
{
    const QString vojo = savasLoko + sTradukoDosiero;
    if (sekuraDosierNomo(sTradukoDosiero) && QFile::exists(vojo))
        return vojo;
    return QStringLiteral(":/tradukoj/") + sTradukoDosiero;
}

void Trad(QWidget* radiko, QString grupo)
{
    inidosiero traduko(legotaTraduko());
    const QString direkto = traduko.value(QStringLiteral("Traduko/Direkto"), QStringLiteral("LTR")).toString();
    const bool ltr = direkto == QLatin1String("LTR");
    const QString ne = QStringLiteral("Ne Tradukita");
    const QChar ltrMarko(0x200E);

    const QList<QLabel*> etikedoj = radiko->findChildren<QLabel*>();
    const QPixmap revena(ltr ? QStringLiteral(":ikonoj/sago_revena.png") : QStringLiteral(":ikonoj/sago_revena_RTL.png"));
    const QPixmap antauen(ltr ? QStringLiteral(":ikonoj/sago_antauen.png") : QStringLiteral(":ikonoj/sago_antauen_RTL.png"));
    for (label_sago_reversa* sago : radiko->findChildren<label_sago_reversa*>()) {
        sago->setPixmap(revena);
        sago->setStyleSheet(ltr ? QStringLiteral("margin-left: 15px;") : QStringLiteral("margin-right: 15px;"));
    }
    for (label_sago* sago : radiko->findChildren<label_sago*>()) {
        sago->setPixmap(antauen);
        sago->setStyleSheet(QString());
    }
    const Qt::Alignment flanko = (ltr ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
    for (neklakebla_nova* vorto : radiko->findChildren<neklakebla_nova*>())
        vorto->setAlignment(flanko);
    for (klakbutono_nova* vorto : radiko->findChildren<klakbutono_nova*>())
        vorto->setAlignment(flanko);

    for (QLabel* etikedo : etikedoj) {
        const QString nomo = etikedo->objectName();
        const bool klakebla = qobject_cast<label_klakebla*>(etikedo) != nullptr;
        if (nomo.left(5) == grupo) {
            if (qobject_cast<neklakebla_nova*>(etikedo) || qobject_cast<klakbutono_nova*>(etikedo)
                || qobject_cast<korekta*>(etikedo))
                continue;   // Esperanto
            const QString shlosilo = klakebla ? nomo.mid(12) : nomo.mid(6);
            etikedo->setText(traduko.value(grupo + QLatin1Char('/') + shlosilo, ne).toString());
            continue;
        }
        const QString shlosilo = klakebla ? nomo.mid(12) : nomo;
        const QString gheneralo = gheneralaShlosilo(shlosilo);
        if (shlosilo == QLatin1String("Ekz_Plen2")) {
            etikedo->setText(traduko.value(grupo + QLatin1Char('/') + instrukciaShlosilo(etikedo), ne).toString());
        } else if (!gheneralo.isEmpty()) {
            etikedo->setText(traduko.value(QStringLiteral("Gheneralaj/") + gheneralo, ne).toString());
        } else if (etikedo->property("tipo").toString() == QLatin1String("esperanta")) {
            if (direkto == QLatin1String("RTL")) {
                etikedo->setText(etikedo->text() + ltrMarko);
                etikedo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            } else {
                etikedo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            }
        }
    }
    klavoj::konsiletoj(radiko, traduko);
}
