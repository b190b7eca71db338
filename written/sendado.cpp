#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "neklakebla_nova.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabWidget>

QString SendasTeksto(QTabWidget* langetoj, QWidget* pagho, int numero, const QString& leciono, bool propraButono)
{
    const QString linio(QLatin1Char('\n'));
    QString teksto = QStringLiteral("Leciono ") + leciono;
    QList<QLabel*> etikedoj;
    if (leciono.toInt() != KiomDaLecionoj) {
        etikedoj = pagho->findChildren<QLabel*>();
        teksto += QStringLiteral(" - Paĝo ") + QString::number(numero) + linio + linio;
    } else {
        // The final exam goes out whole.
        for (int i = 0; i <= 4 && i < langetoj->count(); ++i)
            etikedoj += langetoj->widget(i)->findChildren<QLabel*>();
    }
    for (QLabel* etikedo : etikedoj) {
        if (propraButono && (qobject_cast<korekta*>(etikedo) || qobject_cast<neklakebla_nova*>(etikedo)
                             || qobject_cast<klakbutono_nova*>(etikedo)))
            continue;
        QWidget* amiko = etikedo->buddy();
        if (!amiko) {
            teksto += (propraButono ? linio + linio : QString()) + etikedo->text() + linio + linio;
            continue;
        }
        QString demando, respondo;
        if (auto* kampo = qobject_cast<QLineEdit*>(amiko)) {
            demando = etikedo->text().trimmed();
            respondo = kampo->text();
        } else if (auto* kampo = qobject_cast<QPlainTextEdit*>(amiko)) {
            demando = etikedo->text().trimmed();
            respondo = linio + linio + kampo->toPlainText();
        }
        if (!demando.isEmpty())
            teksto += demando + linio;
        if (!respondo.isEmpty())
            teksto += respondo + linio + linio;
    }
    return CxSist(teksto, iSistemo);
}

void KopiasPorSendi(const QString& teksto)
{
    QGuiApplication::clipboard()->setText(teksto, QClipboard::Clipboard);
    QMessageBox skatolo(QMessageBox::Information, QString(), smTondujo, QMessageBox::Ok, QApplication::activeWindow());
    skatolo.exec();
}

void Sendas(QWidget* pagho, int numero)
{
    auto* langetoj = pagho && pagho->parent() ? qobject_cast<QTabWidget*>(pagho->parent()->parent()) : nullptr;
    if (!langetoj)
        return;
    KopiasPorSendi(SendasTeksto(langetoj, pagho, numero, langetoj->objectName().mid(3, 2), false));
}
