#include "flowlayout_nova.h"

#include <QSpacerItem>
#include <QWidget>
#include <QtTest>

namespace {

// A layout item of a fixed size that remembers the place it was given.
class Kesto : public QLayoutItem
{
public:
    explicit Kesto(int largho) : grando(largho, 20) {}
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

} // namespace

class tst_flowlayout : public QObject
{
    Q_OBJECT

private slots:
    void aranghas_data();
    void aranghas();
    void kashitaVortoNeOkupasLokon();
};

void tst_flowlayout::aranghas_data()
{
    // Words ("50") and spacers ("s20") on lines centred in the width, a
    // horizontal spacing of 6 and a vertical one of 9; the places of the words.
    QTest::addColumn<QString>("eroj");
    QTest::addColumn<int>("largho");
    QTest::addColumn<QString>("lokoj");
    QTest::addColumn<int>("alto");
    // The line ends at 138 with its trailing spacing: shifted by (200-138)/2.
    QTest::newRow("one line") << "50 40 30" << 200 << "31,0 87,0 133,0" << 20;
    QTest::newRow("folds") << "50 40 30" << 100 << "-1,0 55,0 32,29" << 49;
    QTest::newRow("a spacer at a line's end does not widen it") << "50 s20 40" << 80 << "12,0 17,29" << 49;
    QTest::newRow("a spacer does not begin a line") << "50 20 s30 40" << 90 << "4,0 60,0 22,29" << 49;
    QTest::newRow("two spacers as one") << "30 s10 s10 30" << 200 << "56,0 108,0" << 20;
    QTest::newRow("a word too wide stays on the first line") << "150" << 100 << "-28,0" << 20;
}

void tst_flowlayout::aranghas()
{
    QFETCH(QString, eroj);
    QFETCH(int, largho);
    QFETCH(QString, lokoj);
    QFETCH(int, alto);
    FlowLayout a(6, 9);
    a.setContentsMargins(0, 0, 0, 0);
    QList<Kesto*> vortoj;
    for (const QString& e : eroj.split(' ')) {
        if (e.startsWith('s')) {
            a.addItem(new QSpacerItem(e.mid(1).toInt(), 0, QSizePolicy::Fixed, QSizePolicy::Minimum));
        } else {
            vortoj << new Kesto(e.toInt());
            a.addItem(vortoj.last());
        }
    }
    a.setGeometry(QRect(0, 0, largho, 100));
    QStringList trovitaj;
    for (Kesto* k : vortoj)
        trovitaj << QStringLiteral("%1,%2").arg(k->loko.x()).arg(k->loko.y());
    QCOMPARE(trovitaj.join(' '), lokoj);
    QCOMPARE(a.heightForWidth(largho), alto);

    // Margins of their own.
    FlowLayout m(nullptr, 5, 6);
    QCOMPARE(m.heightForWidth(100), 10);
    QCOMPARE(m.itemAt(0), nullptr);
    QCOMPARE(m.takeAt(0), nullptr);
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
        a->addWidget(w);
    }
    gepatro.setLayout(a);
    kashita->hide();
    a->setGeometry(QRect(0, 0, 200, 100));
    // Two words of 30: the line ends at 72, so it starts at 64.
    QCOMPARE(unua->geometry().topLeft(), QPoint(64, 0));
    QCOMPARE(lasta->geometry().topLeft(), QPoint(100, 0));
}

QTEST_MAIN(tst_flowlayout)
#include "tst_flowlayout.moc"
