// Every lesson builds from its source into pages that the rest of the course
// can rely on: names that are found once, exercises that find their data,
// written pages that can be saved and handed in, and nothing that needs
// scrolling sideways.

#include "lecionfonto.h"
#include "lecionkadro.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>

class tst_lecionoj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { preparasLokojn(ujo); }
    void leciono_data();
    void leciono();
    void nenioElstaras_data();
    void nenioElstaras();

private:
    QTemporaryDir ujo;
};

// Whether a widget lies inside a form of its own: an exercise, a player, a hand-in panel.
static bool enFormo(const QWidget* w)
{
    for (const QWidget* s = w->parentWidget(); s; s = s->parentWidget()) {
        const QString klaso = klasregistro::klasoDe(s);
        if (estasEkzerco(s) || klaso.endsWith(QLatin1String("ludilo")) || klaso == QLatin1String("sendujo"))
            return true;
    }
    return false;
}

static int kiomDa(QWidget* pagho, const char* klaso)
{
    int n = 0;
    for (QWidget* w : pagho->findChildren<QWidget*>())
        n += klasregistro::klasoDe(w) == QLatin1String(klaso);
    return n;
}

void tst_lecionoj::leciono_data()
{
    QTest::addColumn<int>("numero");
    for (int n = 1; n <= KiomDaLecionoj; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

void tst_lecionoj::leciono()
{
    QFETCH(int, numero);
    const lecionfonto fonto = lecionfonto::deRimedoj(numero);
    QStringList eraroj;
    for (const LecionEraro& e : fonto.eraroj)
        eraroj << e.teksto();
    QVERIFY2(eraroj.isEmpty(), qPrintable(eraroj.join('\n')));

    QWidget pagho;
    lecionkadro kadro(numero, &pagho);
    const QString nn = QStringLiteral("%1").arg(numero, 2, 10, QLatin1Char('0'));
    QTabWidget* langetoj = kadro.langetoj();
    QCOMPARE(kadro.objectName(), "lec" + nn);
    QCOMPARE(langetoj->objectName(), "Lec" + nn);
    const bool datumoj = QFile::exists(":/ekzercoj/ekz" + nn + ".dat");
    const inidosiero dosiero(":/ekzercoj/ekz" + nn + ".dat");

    // Widgets are found by name: outside the exercises' own forms every name is used once.
    QSet<QString> nomoj;
    for (QWidget* w : kadro.findChildren<QWidget*>()) {
        const QString nomo = w->objectName();
        if (nomo.isEmpty() || nomo.startsWith("qt_") || enFormo(w))
            continue;
        QVERIFY2(!nomoj.contains(nomo), qPrintable("twice: " + nomo));
        nomoj << nomo;
    }

    static const QRegularExpression id(QStringLiteral("\\d{4}$"));
    for (int i = 0; i < langetoj->count(); ++i) {
        QWidget* w = langetoj->widget(i);
        const QString kie = w->objectName();
        QList<QWidget*> ekzercoj;
        for (QWidget* e : w->findChildren<QWidget*>()) {
            if (estasEkzerco(e) && !enEkzerco(e))
                ekzercoj << e;
        }
        QVERIFY2(ekzercoj.size() <= 1, qPrintable(kie + ": more than one exercise"));
        QVERIFY2(!ekzercoj.isEmpty() || !w->findChildren<QScrollArea*>().isEmpty(), qPrintable(kie + ": no scroll area"));
        if (!ekzercoj.isEmpty()) {
            // An exercise stands alone in its page and takes its id from the
            // end of its name: the lesson's digits, then its own.
            QWidget* e = ekzercoj.first();
            QVERIFY2(w->layout() && w->layout()->indexOf(e) >= 0, qPrintable(kie + ": not directly in the page"));
            const QString nomo = e->objectName();
            if (id.match(nomo).hasMatch()) {
                QCOMPARE(nomo.right(4).left(2), nn);
                if (datumoj)
                    QVERIFY2(dosiero.childGroups().contains(nomo.right(4) + "D"), qPrintable(nomo + ": no data"));
            }
        }
        if (kie.startsWith("Sendas")) {
            // A written page: fields each asked by a label, model answers at
            // most one a field, and one hand-in button.
            QList<QWidget*> kampoj;
            for (QLineEdit* k : w->findChildren<QLineEdit*>())
                kampoj << k;
            for (QPlainTextEdit* k : w->findChildren<QPlainTextEdit*>())
                kampoj << k;
            QVERIFY2(!kampoj.isEmpty(), qPrintable(kie + ": no field"));
            QSet<QWidget*> demanditaj;
            for (QLabel* l : w->findChildren<QLabel*>())
                demanditaj << l->buddy();
            for (QWidget* k : kampoj)
                QVERIFY2(demanditaj.contains(k), qPrintable(kie + ": no question for " + k->objectName()));
            QVERIFY2(kiomDa(w, "korekta") <= kampoj.size(), qPrintable(kie));
            QCOMPARE(kiomDa(w, "sendas_butono"), 1);
        }
    }
}

// The names of the widgets of a page that reach beyond its visible width.
static QString plejLargha(QScrollArea* r)
{
    QStringList nomoj;
    const int largho = r->viewport()->width();
    for (QWidget* w : r->widget()->findChildren<QWidget*>()) {
        const int dekstre = w->mapTo(r->widget(), QPoint(w->width(), 0)).x();
        if (dekstre > largho && !w->objectName().isEmpty() && w->isVisible())
            nomoj << w->objectName();
    }
    return nomoj.join(' ');
}

void tst_lecionoj::nenioElstaras_data()
{
    QTest::addColumn<int>("numero");
    for (int n = 1; n <= KiomDaLecionoj; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

// At the window's first size every page reads from top to bottom, in the
// course's three source languages, and showing it leaves the window as it
// was. (The letter table of lesson 1 scrolls sideways inside its page on
// purpose.)
void tst_lecionoj::nenioElstaras()
{
    QFETCH(int, numero);
    QTemporaryDir hejmo;
    preparasLerninton(hejmo);
    lernilo fenestro;
    fenestro.show();
    const QSize grando = fenestro.size();
    fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(numero))->click();
    QTabWidget* langetoj = lecionLangetoj(fenestro.leciono(numero));
    QStringList larghaj;
    for (const char* dosiero : {"angla.trd", "portugala.trd", "esperanto.trd"}) {
        sTradukoDosiero = QString::fromLatin1(dosiero);
        Trad(langetoj, langetoj->objectName());
        for (int i = 0; i < langetoj->count(); ++i) {
            langetoj->setCurrentIndex(i);
            QApplication::processEvents();
            if (fenestro.size() != grando)
                larghaj << QStringLiteral("%1 in %2 widens the window").arg(langetoj->widget(i)->objectName(), dosiero);
            for (QScrollArea* r : langetoj->widget(i)->findChildren<QScrollArea*>()) {
                const bool ena = praulo(r, "QScrollArea");
                if (!ena && !enEkzerco(r) && r->horizontalScrollBar()->maximum() > 0)
                    larghaj << QStringLiteral("%1 in %2 (%3 px too wide: %4)").arg(langetoj->widget(i)->objectName(), dosiero)
                                   .arg(r->horizontalScrollBar()->maximum()).arg(plejLargha(r));
            }
        }
    }
    QVERIFY2(larghaj.isEmpty(), qPrintable(larghaj.join(", ")));
}

QTEST_MAIN(tst_lecionoj)
#include "tst_lecionoj.moc"
