#include "funkcioj.h"
#include "inidosiero.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTabWidget>

namespace {

void trairasPaghon(QWidget* pagho, QSettings& agordoj, bool savas)
{
    for (QLineEdit* kampo : pagho->findChildren<QLineEdit*>()) {
        if (savas)
            agordoj.setValue(kampo->objectName(), kampo->text());
        else
            kampo->insert(agordoj.value(kampo->objectName(), QString()).toString());
    }
    for (QPlainTextEdit* kampo : pagho->findChildren<QPlainTextEdit*>()) {
        if (savas)
            agordoj.setValue(kampo->objectName(), kampo->document()->toPlainText());
        else
            kampo->insertPlainText(agordoj.value(kampo->objectName(), QString()).toString());
    }
}

} // namespace

void SxargxasEk(QTabWidget* langetoj, bool savas)
{
    inidosiero agordoj(agordoVojo());
    agordoj.beginGroup(langetoj->objectName());
    for (int i = 0; i < langetoj->count(); ++i) {
        QWidget* pagho = langetoj->widget(i);
        if (pagho->objectName().left(6) == QLatin1String("Sendas"))
            trairasPaghon(pagho, agordoj, savas);
    }
    agordoj.endGroup();
}

void SavasEk(QTabWidget* langetoj)
{
    inidosiero agordoj(agordoVojo());
    agordoj.beginGroup(langetoj->objectName());
    for (QWidget* pagho : langetoj->findChildren<QWidget*>()) {
        if (pagho->objectName().left(6) == QLatin1String("Sendas"))
            trairasPaghon(pagho, agordoj, true);
    }
    agordoj.endGroup();
    agordoj.sync();
}
