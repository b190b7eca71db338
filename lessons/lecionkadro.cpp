#include "lecionkadro.h"
#include "funkcioj.h"
#include "lecionfonto.h"
#include "lecionkonstruilo.h"
#include "lernilo.h"
#include "videoludilo.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>

lecionkadro::lecionkadro(int numero, QWidget* parent)
    : QFrame(parent, Qt::WindowFlags())
{
    const lecionfonto fonto = lecionfonto::deRimedoj(numero);
    setObjectName(fonto.kadro());
    langetujo = lecionkonstruilo::konstruas(fonto, this);

    for (QScrollArea* rulumo : findChildren<QScrollArea*>())
        ebligasTrenon(rulumo);
    if (numero == 2)
        aldonasFilmon();

    connect(langetujo, &QTabWidget::currentChanged, this, &lecionkadro::langetoShanghita);
}

// The music page of lesson 2 holds the film player, which its source leaves
// out: the page's heading, text, picture and link are laid out around it here.
void lecionkadro::aldonasFilmon()
{
    auto* enhavo = findChild<QWidget*>(QStringLiteral("scrollAreaWidgetContents_6"));
    if (!enhavo || enhavo->layout())
        return;
    auto* ludilo = new videoludilo(this);
    auto* vertikala = new QVBoxLayout;
    vertikala->addWidget(ludilo);
    if (auto* w = enhavo->findChild<QLabel*>(QStringLiteral("Lec02_Label50")))
        vertikala->addWidget(w);
    if (auto* w = enhavo->findChild<QLabel*>(QStringLiteral("Lec02_Label49")))
        vertikala->addWidget(w);
    auto* horizontala = new QHBoxLayout;
    if (auto* w = enhavo->findChild<QLabel*>(QStringLiteral("label")))
        horizontala->addWidget(w);
    if (auto* w = enhavo->findChild<QLabel*>(QStringLiteral("label_21")))
        horizontala->addWidget(w);
    vertikala->addLayout(horizontala);
    vertikala->addItem(new QSpacerItem(1, 1, QSizePolicy::Fixed, QSizePolicy::Expanding));
    enhavo->setLayout(vertikala);
}

void lecionkadro::langetoShanghita(int indekso)
{
    auto* fenestro = qobject_cast<lernilo*>(QApplication::activeWindow());
    QWidget* pagho = langetujo->currentWidget();
    if (!pagho)
        return;
    // A page is laid out only once it is shown.
    for (QScrollArea* rulumo : pagho->findChildren<QScrollArea*>())
        rulumo->setWidgetResizable(true);
    if (fenestro) {
        const bool sendas = pagho->objectName().left(6) == QLatin1String("Sendas");
        fenestro->montras_koverton(sendas, indekso);
    }
}
