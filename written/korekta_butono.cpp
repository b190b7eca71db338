#include "korekta_butono.h"
#include "korekta.h"
#include "funkcioj.h"

#include <QScrollArea>

korekta_butono::korekta_butono(QWidget* parent)
    : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, &korekta_butono::klakita);
    setFlat(true);
    setIcon(QIcon(QStringLiteral(":/ikonoj_androjdo/korekti_ekzercon.png")));
    setIconSize(QSize(48, 48));
    setText(QString());
}

void korekta_butono::klakita()
{
    auto* rulumo = static_cast<QScrollArea*>(praulo(this, "QScrollArea"));
    if (!rulumo)
        return;
    const QList<korekta*> respondoj = rulumo->findChildren<korekta*>();
    if (respondoj.isEmpty())
        return;
    for (korekta* r : respondoj)
        r->setVisible(!r->isVisible());
    rulumo->ensureWidgetVisible(respondoj.first(), 50, 50);
}
