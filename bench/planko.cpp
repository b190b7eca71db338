#include "planko.h"
#include "klasregistro.h"
#include "lecionfonto.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSpacerItem>
#include <QTabWidget>

namespace {

void metas(const LecionEro& e, QWidget* gepatro, QBoxLayout* aranghilo);

QBoxLayout* novaAranghilo(const QString& klaso, QWidget* ujo = nullptr)
{
    if (klaso == QLatin1String("QHBoxLayout"))
        return ujo ? new QHBoxLayout(ujo) : new QHBoxLayout;
    return ujo ? new QVBoxLayout(ujo) : new QVBoxLayout;
}

void metasIdojn(const LecionEro& posedanto, QWidget* ujo)
{
    if (posedanto.atributoj.value(QStringLiteral("arangho")) == QLatin1String("neniu")) {
        for (const LecionEro& ido : posedanto.idoj)
            metas(ido, ujo, nullptr);
        return;
    }
    const bool sola = posedanto.idoj.size() == 1 && posedanto.idoj.first().estasAranghilo();
    QBoxLayout* a = novaAranghilo(sola ? posedanto.idoj.first().klaso : QString(), ujo);
    for (const LecionEro& ido : sola ? posedanto.idoj.first().idoj : posedanto.idoj)
        metas(ido, ujo, a);
}

void skribas(const LecionEro& e, QWidget* w)
{
    if (e.atributoj.contains(QStringLiteral("tipo")))
        w->setProperty("tipo", e.atributoj.value(QStringLiteral("tipo")));
    if (e.atributoj.contains(QStringLiteral("lingvo")))
        w->setProperty("lingvo", e.atributoj.value(QStringLiteral("lingvo")));
    if (auto* l = qobject_cast<QLabel*>(w)) {
        if (e.atributoj.contains(QStringLiteral("bildo"))) {
            const QString bildo = e.atributoj.value(QStringLiteral("bildo"));
            l->setPixmap(QPixmap(bildo.startsWith(QLatin1Char(':')) ? bildo : QStringLiteral(":/") + bildo));
        }
        const bool vorto = e.klaso == QLatin1String("klakbutono_nova") || e.klaso == QLatin1String("neklakebla_nova");
        if (e.atributoj.contains(QStringLiteral("faldo")))
            l->setWordWrap(e.atributoj.value(QStringLiteral("faldo")) == QLatin1String("jes"));
        else if (vorto && e.teksto.size() > 45)
            l->setWordWrap(true);
        if (e.atributoj.contains(QStringLiteral("vicigo")))
            l->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        if (e.atributoj.value(QStringLiteral("skalo")) == QLatin1String("jes"))
            l->setScaledContents(true);
        if (e.atributoj.value(QStringLiteral("ligilo")) == QLatin1String("jes"))
            l->setTextFormat(Qt::RichText);
        if (e.havasTekston)
            l->setText(e.teksto);
    } else if (e.havasTekston) {
        if (auto* b = qobject_cast<QAbstractButton*>(w))
            b->setText(e.teksto);
        else if (auto* k = qobject_cast<QPlainTextEdit*>(w))
            k->setPlainText(e.teksto);
    }
}

void metas(const LecionEro& e, QWidget* gepatro, QBoxLayout* aranghilo)
{
    if (e.estasSpaco()) {
        if (aranghilo && e.klaso == QLatin1String("spaco"))
            aranghilo->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding));
        else if (aranghilo)
            aranghilo->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
        return;
    }
    if (e.estasAranghilo()) {
        if (!aranghilo)
            return;
        QBoxLayout* a = novaAranghilo(e.klaso);
        aranghilo->addLayout(a);
        for (const LecionEro& ido : e.idoj)
            metas(ido, gepatro, a);
        return;
    }
    if (e.klaso == QLatin1String("QScrollArea")) {
        auto* rulumo = new QScrollArea(gepatro);
        rulumo->setObjectName(e.nomo);
        auto* enhavo = new QWidget;
        rulumo->setWidget(enhavo);
        metasIdojn(e, enhavo);
        if (aranghilo)
            aranghilo->addWidget(rulumo);
        return;
    }
    QWidget* w = klasregistro::kreas(e.klaso, gepatro);
    if (!w)
        return;
    w->setObjectName(e.nomo);
    skribas(e, w);
    if (!e.idoj.isEmpty())
        metasIdojn(e, w);
    if (aranghilo)
        aranghilo->addWidget(w);
}

} // namespace

QFrame* planko::konstruas(const lecionfonto& fonto, QWidget* pagho)
{
    auto* kadro = new QFrame(pagho);
    kadro->setObjectName(fonto.kadro());
    auto* kadraAranghilo = new QVBoxLayout(kadro);
    auto* langetoj = new QTabWidget(kadro);
    langetoj->setObjectName(fonto.langetujo());
    langetoj->setIconSize(QSize(24, 24));
    kadraAranghilo->addWidget(langetoj);
    for (const LecionPagho& p : fonto.paghoj) {
        auto* langeto = new QWidget;
        langeto->setObjectName(p.nomo);
        langetoj->addTab(langeto, p.ikono.isEmpty() ? QIcon() : QIcon(p.ikono), p.teksto);
        auto* aranghilo = new QVBoxLayout(langeto);
        for (const LecionEro& ido : p.idoj)
            metas(ido, langeto, aranghilo);
    }
    if (pagho->layout())
        pagho->layout()->addWidget(kadro);
    return kadro;
}
