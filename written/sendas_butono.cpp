#include "sendas_butono.h"
#include "funkcioj.h"

#include <QTabWidget>

sendas_butono::sendas_butono(QWidget* parent)
    : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, &sendas_butono::klakita);
    setFlat(true);
    setIcon(QIcon(QStringLiteral(":/ikonoj_androjdo/kopias_por_sendi.png")));
    setIconSize(QSize(40, 48));
    setText(QString());
}

void sendas_butono::klakita()
{
    auto* langetoj = static_cast<QTabWidget*>(praulo(this, "QTabWidget"));
    if (!langetoj || !langetoj->parent())
        return;
    const QString leciono = langetoj->parent()->objectName().mid(3, 2);
    const QString teksto = SendasTeksto(langetoj, langetoj->currentWidget(), langetoj->currentIndex() + 1,
                                        leciono, true);
    KopiasPorSendi(teksto);
}
