#include "klavoj.h"

#include <QAbstractButton>
#include <QSettings>
#include <QShortcut>

namespace {
const char* const agoNomo = "klavago";
}

void klavoj::donas(QAbstractButton* butono, const char* ago, const QList<QKeySequence>& klavaro)
{
    qDeleteAll(butono->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly));
    for (const QKeySequence& klavo : klavaro) {
        // A shortcut owned by the button is live only while the button is
        // visible and enabled.
        auto* k = new QShortcut(klavo, butono);
        QObject::connect(k, &QShortcut::activated, butono, &QAbstractButton::click);
    }
    butono->setProperty(agoNomo, QByteArray(ago));
}

void klavoj::konsiletoj(QWidget* radiko, QSettings& traduko)
{
    for (QAbstractButton* butono : radiko->findChildren<QAbstractButton*>()) {
        const QByteArray ago = butono->property(agoNomo).toByteArray();
        if (ago.isEmpty())
            continue;
        QStringList nomoj;
        for (const QShortcut* k : butono->findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly))
            nomoj << k->key().toString(QKeySequence::NativeText);
        const QString teksto = traduko.value(QStringLiteral("Klavoj/") + QLatin1String(ago)).toString();
        butono->setToolTip(teksto.isEmpty() ? nomoj.join(QStringLiteral(", "))
                                            : teksto + QStringLiteral(" (") + nomoj.join(QStringLiteral(", ")) + QLatin1Char(')'));
    }
}

namespace {
QList<QKeySequence> enigo()
{
    return {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)};
}
}

void klavoj::komenco(QAbstractButton* butono) { donas(butono, "Komenci", enigo()); }
void klavoj::kontrolo(QAbstractButton* butono) { donas(butono, "Kontroli", enigo()); }
void klavoj::sekva(QAbstractButton* butono) { donas(butono, "Sekva", enigo()); }
void klavoj::reaudo(QAbstractButton* butono) { donas(butono, "Reaudi", {QKeySequence(Qt::CTRL | Qt::Key_L)}); }

void klavoj::elekto(QAbstractButton* butono, int numero)
{
    donas(butono, "Elekti", {QKeySequence(Qt::Key_0 + numero)});
}

QStringList klavoj::agoj()
{
    return {QStringLiteral("Antauen"), QStringLiteral("Malantauen"), QStringLiteral("Hejmo"),
            QStringLiteral("Komenci"), QStringLiteral("Kontroli"), QStringLiteral("Reaudi"),
            QStringLiteral("Elekti"), QStringLiteral("Sekva")};
}
