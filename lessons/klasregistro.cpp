#include "klasregistro.h"

#include "cx_edit.h"
#include "cx_plainedit.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "korekta_butono.h"
#include "sendas_butono.h"
#include "sendujo.h"
#include "label_klakebla.h"
#include "label_sago.h"
#include "label_sago_reversa.h"
#include "mylabel.h"
#include "neklakebla_nova.h"
#include "titolo.h"

#include "akuzativo.h"
#include "audkompreno.h"
#include "ekzerco1.h"
#include "ekznumeraloj.h"
#include "mp3ludilo.h"
#include "frazokonstruo.h"
#include "kiomahoro.h"
#include "plenigas_spacon.h"
#include "prononco.h"
#include "vortoludo.h"

#include <QFrame>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVariant>

namespace {

using Fabriko = QWidget* (*)(QWidget*);

template <typename T>
QWidget* faras(QWidget* gepatro)
{
    return new T(gepatro);
}

const QHash<QString, Fabriko>& fabrikoj()
{
    static const QHash<QString, Fabriko> listo = {
        {QStringLiteral("QWidget"), &faras<QWidget>},
        {QStringLiteral("QFrame"), &faras<QFrame>},
        {QStringLiteral("QLabel"), &faras<QLabel>},
        {QStringLiteral("QPushButton"), &faras<QPushButton>},
        {QStringLiteral("QRadioButton"), &faras<QRadioButton>},
        {QStringLiteral("QLineEdit"), &faras<QLineEdit>},
        {QStringLiteral("QPlainTextEdit"), &faras<QPlainTextEdit>},
        {QStringLiteral("titolo"), &faras<titolo>},
        {QStringLiteral("label_sago"), &faras<label_sago>},
        {QStringLiteral("label_sago_reversa"), &faras<label_sago_reversa>},
        {QStringLiteral("label_klakebla"), &faras<label_klakebla>},
        {QStringLiteral("neklakebla_nova"), &faras<neklakebla_nova>},
        {QStringLiteral("myLabel"), &faras<myLabel>},
        {QStringLiteral("klakbutono_nova"), &faras<klakbutono_nova>},
        {QStringLiteral("korekta"), &faras<korekta>},
        {QStringLiteral("cx_edit"), &faras<cx_edit>},
        {QStringLiteral("cx_plainedit"), &faras<cx_plainedit>},
        {QStringLiteral("sendujo"), &faras<sendujo>},
        {QStringLiteral("sendas_butono"), &faras<sendas_butono>},
        {QStringLiteral("korekta_butono"), &faras<korekta_butono>},
        {QStringLiteral("ekzerco1"), &faras<ekzerco1>},
        {QStringLiteral("frazokonstruo"), &faras<frazokonstruo>},
        {QStringLiteral("plenigas_spacon"), &faras<plenigas_spacon>},
        {QStringLiteral("vortoludo"), &faras<vortoludo>},
        {QStringLiteral("ekznumeraloj"), &faras<ekznumeraloj>},
        {QStringLiteral("kiomahoro"), &faras<kiomahoro>},
        {QStringLiteral("akuzativo"), &faras<akuzativo>},
        {QStringLiteral("mp3ludilo"), &faras<mp3ludilo>},
        {QStringLiteral("audkompreno"), &faras<audkompreno>},
        {QStringLiteral("prononco"), &faras<prononco>},
    };
    return listo;
}

// Classes whose code comes later, with the plain class that stands in.
const QHash<QString, Fabriko>& anstatauantoj()
{
    static const QHash<QString, Fabriko> listo = {
    };
    return listo;
}

} // namespace

bool klasregistro::konas(const QString& klaso)
{
    return fabrikoj().contains(klaso) || anstatauantoj().contains(klaso);
}

QWidget* klasregistro::kreas(const QString& klaso, QWidget* gepatro)
{
    if (Fabriko f = fabrikoj().value(klaso))
        return f(gepatro);
    if (Fabriko f = anstatauantoj().value(klaso)) {
        QWidget* w = f(gepatro);
        w->setProperty("klaso", klaso);
        return w;
    }
    return nullptr;
}

QString klasregistro::klasoDe(const QWidget* w)
{
    const QVariant klaso = w->property("klaso");
    return klaso.isValid() ? klaso.toString() : QString::fromLatin1(w->metaObject()->className());
}
