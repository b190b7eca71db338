#include "flowlayout_nova.h"

#include <QSpacerItem>
#include <QWidget>
#include <QtTest>

namespace {

// A layout item of a fixed size that remembers the place it was given.
class Kesto : public QLayoutItem
{
public:
    explicit Kesto(int largho, int alto = 20) : grando(largho, alto) {}
    QSize sizeHint() const override { return grando; }
    QSize minimumSize() const override { return grando; }
    QSize maximumSize() const override { return grando; }
    Qt::Orientations expandingDirections() const override { return {}; }
    bool isEmpty() const override { return false; }
    void setGeometry(const QRect& r) override { loko = r; }
    QRect geometry() const override { return loko; }

    QSize grando;
    QRect loko;
};

QSpacerItem* spaco(int largho)
{
    return new QSpacerItem(largho, 0, QSizePolicy::Fixed, QSizePolicy::Minimum);
}

} // namespace

class tst_flowlayout : public QObject
{
    Q_OBJECT

private slots:
    void unuLinioCentrita();
    void mallarghaRektoFaldas();
    void marghenoj();
    void spacoJeLinioFino();
    void spacoNeKomencasLinion();
    void duSpacojKiajUnu();
    void kashitaVortoNeOkupasLokon();
    void tro_larghaVortoRestasSurUnuaLinio();
    void malplenaAranghilo();
};

void tst_flowlayout::unuLinioCentrita()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k1 = new Kesto(50), *k2 = new Kesto(40), *k3 = new Kesto(30);
    a.addItem(k1);
    a.addItem(k2);
    a.addItem(k3);
    a.setGeometry(QRect(0, 0, 200, 100));
    // The line ends at 138 with its trailing spacing: shifted by (200-138)/2.
    QCOMPARE(k1->loko, QRect(31, 0, 50, 20));
    QCOMPARE(k2->loko, QRect(87, 0, 40, 20));
    QCOMPARE(k3->loko, QRect(133, 0, 30, 20));
    QCOMPARE(a.heightForWidth(200), 20);
}

void tst_flowlayout::mallarghaRektoFaldas()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k1 = new Kesto(50), *k2 = new Kesto(40), *k3 = new Kesto(30);
    a.addItem(k1);
    a.addItem(k2);
    a.addItem(k3);
    a.setGeometry(QRect(0, 0, 100, 100));
    // First line 96 wide plus its trailing spacing: a shift of -1.
    QCOMPARE(k1->loko, QRect(-1, 0, 50, 20));
    QCOMPARE(k2->loko, QRect(55, 0, 40, 20));
    QCOMPARE(k3->loko, QRect(32, 29, 30, 20));
    QCOMPARE(a.heightForWidth(100), 49);
}

void tst_flowlayout::marghenoj()
{
    FlowLayout a(nullptr, 5, 6);
    auto* k1 = new Kesto(50), *k2 = new Kesto(40);
    a.addItem(k1);
    a.addItem(k2);
    a.setGeometry(QRect(0, 0, 120, 100));
    QCOMPARE(k1->loko, QRect(9, 5, 50, 20));
    QCOMPARE(k2->loko, QRect(65, 5, 40, 20));
    QCOMPARE(a.heightForWidth(120), 30);
}

void tst_flowlayout::spacoJeLinioFino()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k1 = new Kesto(50), *k2 = new Kesto(40);
    QSpacerItem* s = spaco(20);
    a.addItem(k1);
    a.addItem(s);
    a.addItem(k2);
    a.setGeometry(QRect(0, 0, 80, 100));
    // The spacer stays on the first line but does not widen it.
    QCOMPARE(k1->loko, QRect(12, 0, 50, 20));
    QCOMPARE(s->geometry().left(), 68);
    QCOMPARE(k2->loko, QRect(17, 29, 40, 20));
}

void tst_flowlayout::spacoNeKomencasLinion()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k1 = new Kesto(50), *k2 = new Kesto(20), *k3 = new Kesto(40);
    a.addItem(k1);
    a.addItem(k2);
    a.addItem(spaco(30));
    a.addItem(k3);
    a.setGeometry(QRect(0, 0, 90, 100));
    QCOMPARE(k1->loko, QRect(4, 0, 50, 20));
    QCOMPARE(k2->loko, QRect(60, 0, 20, 20));
    // The dropped spacer opened the line; the word starts it, then is centred.
    QCOMPARE(k3->loko, QRect(22, 29, 40, 20));
    QCOMPARE(a.heightForWidth(90), 49);
}

void tst_flowlayout::duSpacojKiajUnu()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k1 = new Kesto(30), *k2 = new Kesto(30);
    a.addItem(k1);
    a.addItem(spaco(10));
    a.addItem(spaco(10));
    a.addItem(k2);
    a.setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(k1->loko, QRect(56, 0, 30, 20));
    QCOMPARE(k2->loko, QRect(108, 0, 30, 20));
}

void tst_flowlayout::kashitaVortoNeOkupasLokon()
{
    QWidget gepatro;
    auto* a = new FlowLayout(6, 9);
    a->setContentsMargins(0, 0, 0, 0);
    auto* unua = new QWidget;
    auto* kashita = new QWidget;
    auto* lasta = new QWidget;
    for (QWidget* w : {unua, kashita, lasta}) {
        w->setFixedSize(30, 20);
        w->show();   // shown as far as the layout can tell
    }
    a->addWidget(unua);
    a->addWidget(kashita);
    a->addWidget(lasta);
    gepatro.setLayout(a);
    kashita->hide();
    a->setGeometry(QRect(0, 0, 200, 100));
    // Two words of 30: the line ends at 72, so it starts at 64.
    QCOMPARE(unua->geometry().topLeft(), QPoint(64, 0));
    QCOMPARE(lasta->geometry().topLeft(), QPoint(100, 0));
}

void tst_flowlayout::tro_larghaVortoRestasSurUnuaLinio()
{
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    auto* k = new Kesto(150);
    a.addItem(k);
    a.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(k->loko, QRect(-28, 0, 150, 20));
    QCOMPARE(a.heightForWidth(100), 20);
}

void tst_flowlayout::malplenaAranghilo()
{
    FlowLayout a(nullptr, 5, 6);
    QCOMPARE(a.minimumSize(), QSize(9, 9));
    QCOMPARE(a.sizeHint(), QSize(9, 9));
    QCOMPARE(a.heightForWidth(100), 10);
    QCOMPARE(a.itemAt(0), nullptr);
    QCOMPARE(a.itemAt(-1), nullptr);
    QCOMPARE(a.takeAt(0), nullptr);
    QCOMPARE(a.expandingDirections(), Qt::Orientations());
}

QTEST_MAIN(tst_flowlayout)
#include "tst_flowlayout.moc"
