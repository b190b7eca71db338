#include "lecionkonstruilo.h"
#include "klasregistro.h"
#include "lecionfonto.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QHash>
#include <QIcon>
#include <QLabel>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSpacerItem>
#include <QTabWidget>

namespace {

// Characters of a word or sentence beyond which it may wrap.
const int longaFrazo = 45;

Qt::Alignment vicigoDe(const QString& priskribo)
{
    Qt::Alignment a;
    for (const QString& parto : priskribo.split(QLatin1Char('+'))) {
        if (parto == QLatin1String("maldekstre")) a |= Qt::AlignLeft;
        else if (parto == QLatin1String("dekstre")) a |= Qt::AlignRight;
        else if (parto == QLatin1String("hcentro")) a |= Qt::AlignHCenter;
        else if (parto == QLatin1String("supre")) a |= Qt::AlignTop;
        else if (parto == QLatin1String("sube")) a |= Qt::AlignBottom;
        else if (parto == QLatin1String("vcentro")) a |= Qt::AlignVCenter;
        else if (parto == QLatin1String("centro")) a |= Qt::AlignCenter;
    }
    if (!(a & Qt::AlignVertical_Mask))
        a |= Qt::AlignVCenter;
    return a;
}

QString rimedo(const QString& vojo)
{
    return vojo.startsWith(QLatin1Char(':')) ? vojo : QStringLiteral(":/") + vojo;
}

class Konstruanto
{
public:
    QTabWidget* konstruas(const lecionfonto& fonto, QWidget* kadro);

private:
    void metas(const LecionEro& e, QWidget* gepatro, QBoxLayout* aranghilo);
    void metasIdojn(const QVector<LecionEro>& idoj, QWidget* ujo, const LecionEro& posedanto);
    QWidget* faras(const LecionEro& e, QWidget* gepatro);
    void konektas(const LecionKonekto& k);

    QHash<QString, QObject*> objektoj;
    QVector<QPair<QLabel*, QString>> amikoj;
};

QWidget* Konstruanto::faras(const LecionEro& e, QWidget* gepatro)
{
    QWidget* w = klasregistro::kreas(e.klaso, gepatro);
    if (!w)
        return nullptr;
    w->setObjectName(e.nomo);
    objektoj.insert(e.nomo, w);

    for (auto it = e.atributoj.cbegin(); it != e.atributoj.cend(); ++it) {
        if (it.key() == QLatin1String("tipo") || it.key() == QLatin1String("lingvo"))
            w->setProperty(it.key().toLatin1().constData(), it.value());
    }
    if (auto* etikedo = qobject_cast<QLabel*>(w)) {
        if (e.atributoj.contains(QStringLiteral("bildo")))
            etikedo->setPixmap(QPixmap(rimedo(e.atributoj.value(QStringLiteral("bildo")))));
        if (e.atributoj.contains(QStringLiteral("faldo")))
            etikedo->setWordWrap(e.atributoj.value(QStringLiteral("faldo")) == QLatin1String("jes"));
        if (e.atributoj.contains(QStringLiteral("vicigo")))
            etikedo->setAlignment(vicigoDe(e.atributoj.value(QStringLiteral("vicigo"))));
        if (e.atributoj.value(QStringLiteral("skalo")) == QLatin1String("jes"))
            etikedo->setScaledContents(true);
        if (e.atributoj.value(QStringLiteral("ligilo")) == QLatin1String("jes")) {
            etikedo->setTextFormat(Qt::RichText);
            etikedo->setTextInteractionFlags(Qt::TextBrowserInteraction);
            etikedo->setOpenExternalLinks(true);
        }
        if (e.atributoj.contains(QStringLiteral("amiko")))
            amikoj.append({etikedo, e.atributoj.value(QStringLiteral("amiko"))});
        if (e.havasTekston)
            etikedo->setText(e.teksto);
        // A long sentence wraps instead of widening its page; a short word
        // keeps to one line, where wrapping would only narrow its row.
        const bool vorto = e.klaso == QLatin1String("klakbutono_nova") || e.klaso == QLatin1String("neklakebla_nova");
        if (vorto && !e.atributoj.contains(QStringLiteral("faldo")) && e.teksto.size() > longaFrazo)
            etikedo->setWordWrap(true);
    } else if (e.havasTekston) {
        if (auto* butono = qobject_cast<QAbstractButton*>(w))
            butono->setText(e.teksto);
        else if (auto* kampo = qobject_cast<QPlainTextEdit*>(w))
            kampo->setPlainText(e.teksto);
    }
    return w;
}

// A box's children go into the one row or column it holds, or into a
// vertical layout of its own; "arangho=neniu" leaves them without layout.
void Konstruanto::metasIdojn(const QVector<LecionEro>& idoj, QWidget* ujo, const LecionEro& posedanto)
{
    if (posedanto.atributoj.value(QStringLiteral("arangho")) == QLatin1String("neniu")) {
        for (const LecionEro& ido : idoj)
            metas(ido, ujo, nullptr);
        return;
    }
    if (idoj.size() == 1 && idoj.first().estasAranghilo()) {
        const LecionEro& sola = idoj.first();
        QBoxLayout* a = sola.klaso == QLatin1String("QHBoxLayout")
                            ? static_cast<QBoxLayout*>(new QHBoxLayout(ujo))
                            : new QVBoxLayout(ujo);
        a->setObjectName(sola.nomo);
        objektoj.insert(sola.nomo, a);
        for (const LecionEro& ido : sola.idoj)
            metas(ido, ujo, a);
        return;
    }
    auto* a = new QVBoxLayout(ujo);
    for (const LecionEro& ido : idoj)
        metas(ido, ujo, a);
}

void Konstruanto::metas(const LecionEro& e, QWidget* gepatro, QBoxLayout* aranghilo)
{
    if (e.estasSpaco()) {
        if (aranghilo) {
            if (e.klaso == QLatin1String("spaco"))
                aranghilo->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding));
            else
                aranghilo->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
        }
        return;
    }
    if (e.estasAranghilo()) {
        if (!aranghilo)
            return;
        QBoxLayout* a = e.klaso == QLatin1String("QHBoxLayout")
                            ? static_cast<QBoxLayout*>(new QHBoxLayout)
                            : new QVBoxLayout;
        a->setObjectName(e.nomo);
        objektoj.insert(e.nomo, a);
        aranghilo->addLayout(a);
        for (const LecionEro& ido : e.idoj)
            metas(ido, gepatro, a);
        return;
    }
    if (e.klaso == QLatin1String("QScrollArea")) {
        // Left non-resizable: a page's contents are laid out when the page
        // is first shown. The contents join the area while still empty, so
        // that what is put in them is styled once, in its final place.
        auto* rulumo = new QScrollArea(gepatro);
        rulumo->setObjectName(e.nomo);
        objektoj.insert(e.nomo, rulumo);
        auto* enhavo = new QWidget;
        QString enhavoNomo = e.nomo;
        enhavoNomo.replace(QLatin1String("scrollArea"), QLatin1String("scrollAreaWidgetContents"));
        if (enhavoNomo == e.nomo)
            enhavoNomo += QLatin1String("WidgetContents");
        enhavo->setObjectName(enhavoNomo);
        objektoj.insert(enhavoNomo, enhavo);
        rulumo->setWidget(enhavo);
        metasIdojn(e.idoj, enhavo, e);
        if (aranghilo)
            aranghilo->addWidget(rulumo);
        return;
    }
    QWidget* w = faras(e, gepatro);
    if (!w)
        return;
    if (!e.idoj.isEmpty())
        metasIdojn(e.idoj, w, e);
    if (aranghilo)
        aranghilo->addWidget(w);
}

void Konstruanto::konektas(const LecionKonekto& k)
{
    QObject* sendinto = objektoj.value(k.sendinto);
    QObject* ricevanto = objektoj.value(k.ricevanto);
    if (!sendinto || !ricevanto)
        return;
    const QByteArray signalo = QMetaObject::normalizedSignature(k.signalo.toLatin1().constData());
    const QByteArray loko = QMetaObject::normalizedSignature(k.loko.toLatin1().constData());
    // A receiver that is still a stand-in has no such slot yet.
    if (sendinto->metaObject()->indexOfSignal(signalo) < 0 || ricevanto->metaObject()->indexOfSlot(loko) < 0)
        return;
    QObject::connect(sendinto, QByteArray("2" + signalo).constData(),
                     ricevanto, QByteArray("1" + loko).constData());
}

QTabWidget* Konstruanto::konstruas(const lecionfonto& fonto, QWidget* kadro)
{
    auto* kadraAranghilo = new QVBoxLayout(kadro);
    auto* langetoj = new QTabWidget(kadro);
    langetoj->setObjectName(fonto.langetujo());
    langetoj->setIconSize(QSize(24, 24));
    objektoj.insert(langetoj->objectName(), langetoj);

    // Each page joins the tab widget before it is filled: its widgets are
    // made inside the styled tree, and their text is laid out only once.
    for (const LecionPagho& p : fonto.paghoj) {
        auto* pagho = new QWidget;
        pagho->setObjectName(p.nomo);
        objektoj.insert(p.nomo, pagho);
        langetoj->addTab(pagho, p.ikono.isEmpty() ? QIcon() : QIcon(p.ikono), p.teksto);
        auto* aranghilo = new QVBoxLayout(pagho);
        aranghilo->setObjectName(p.aranghilo);
        for (const LecionEro& ido : p.idoj)
            metas(ido, pagho, aranghilo);
    }
    for (const auto& amiko : qAsConst(amikoj)) {
        if (auto* w = qobject_cast<QWidget*>(objektoj.value(amiko.second)))
            amiko.first->setBuddy(w);
    }
    for (const LecionKonekto& k : fonto.konektoj)
        konektas(k);
    langetoj->setCurrentIndex(fonto.nuna);
    kadraAranghilo->addWidget(langetoj);
    return langetoj;
}

} // namespace

QTabWidget* lecionkonstruilo::konstruas(const lecionfonto& fonto, QWidget* kadro)
{
    return Konstruanto().konstruas(fonto, kadro);
}
