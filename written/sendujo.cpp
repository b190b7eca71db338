#include "sendujo.h"
#include "korekta_butono.h"
#include "sendas_butono.h"

#include <QHBoxLayout>

sendujo::sendujo(QWidget* parent)
    : QFrame(parent)
{
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("sendujo"));
    resize(400, 172);
    setStyleSheet(QStringLiteral("background: transparent;"));
    setLineWidth(0);
    auto* horizontalLayout = new QHBoxLayout(this);
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->setContentsMargins(0, 0, 0, 0);
    pushButton = new korekta_butono(this);
    pushButton->setObjectName(QStringLiteral("pushButton"));
    horizontalLayout->addWidget(pushButton);
    pushButton_2 = new sendas_butono(this);
    pushButton_2->setObjectName(QStringLiteral("pushButton_2"));
    horizontalLayout->addWidget(pushButton_2);
}
