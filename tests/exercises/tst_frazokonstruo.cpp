// Sentence building: lesson 1's exercise driven through its word buttons,
// and the exercise alone beside sentence widgets of its own for the lengths
// that the lesson's sentences don't have.

#include "frazokonstruo.h"
#include "klakbutono_nova.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

namespace {

QPushButton* butono(QWidget* e, const char* nomo) { return e->findChild<QPushButton*>(QLatin1String(nomo)); }
QWidget* ero(QWidget* e, const char* nomo) { return e->findChild<QWidget*>(QLatin1String(nomo)); }
QString teksto(QWidget* e, const char* nomo) { return e->findChild<QLabel*>(QLatin1String(nomo))->text(); }
int placar(QWidget* e, int n) { return e->findChild<QSpinBox*>(QStringLiteral("Placar%1").arg(n))->value(); }

// The texts of the shown buttons of a frame, in the order that counts.
QStringList montritaj(QWidget* e, const char* kadro)
{
    QStringList l;
    for (QPushButton* b : ero(e, kadro)->findChildren<QPushButton*>())
        if (!b->isHidden())
            l << b->text();
    return l;
}

void klakas(QWidget* e, const char* kadro, const QString& vorto)
{
    for (QPushButton* b : ero(e, kadro)->findChildren<QPushButton*>())
        if (!b->isHidden() && b->text() == vorto)
            return QTest::mouseClick(b, Qt::LeftButton);
    QFAIL(qPrintable(vorto + QStringLiteral(" is not shown")));
}

void konstruas(QWidget* e, const QStringList& vortoj)
{
    for (const QString& v : vortoj)
        klakas(e, "Disponeblaj", v);
}

struct Leciono1
{
    lernilo fenestro;
    frazokonstruo* e = komencasEkzercon<frazokonstruo>(fenestro, 1, "Lec01_Ekz_Frazo_0107");
};

// The exercise on a tab, its sentences on another: sentence i has n words.
struct Sola
{
    QTabWidget langetoj;
    frazokonstruo* e = new frazokonstruo;
    QWidget* pagho = new QWidget;
    explicit Sola(int n, const QString& id = QStringLiteral("0107"))
    {
        e->setObjectName(QStringLiteral("Lec01_Ekz_Frazo_") + id);
        langetoj.addTab(e, QStringLiteral("Frazo"));
        langetoj.addTab(pagho, QStringLiteral("1"));
        QStringList d, r;
        _Matriz(&d, id, QStringLiteral("D"));
        _Matriz(&r, id, QStringLiteral("R"));
        for (int i = 0; i < d.size(); ++i) {
            (new klakbutono_nova(pagho))->setObjectName(QStringLiteral("Lec01_Button") + d.at(i));
            (new QLabel(pagho))->setObjectName(QStringLiteral("Lec01_Label") + r.at(i));
        }
        skribas(n);
        langetoj.resize(900, 700);   // clicks land where the words are seen
        langetoj.show();
    }
    void skribas(int n)
    {
        const QList<klakbutono_nova*> frazoj = pagho->findChildren<klakbutono_nova*>();
        const QList<QLabel*> etikedoj = pagho->findChildren<QLabel*>(QRegularExpression(QStringLiteral("Label")));
        for (int i = 0; i < frazoj.size(); ++i) {
            QStringList vortoj;
            for (int k = 0; k < n; ++k)
                vortoj << QStringLiteral("v%1x%2").arg(i).arg(k);
            frazoj.at(i)->setText(vortoj.join(QLatin1Char(' ')));
            etikedoj.at(i)->setText(QStringLiteral("%1. %2 words").arg(i + 1).arg(n));
        }
    }
};

} // namespace

class tst_frazokonstruo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { delete ujo; }
    void ghustaFrazo();
    void malghustaFrazo_data();
    void malghustaFrazo();
    void vortoReprenita();
    void butonoj_data();
    void butonoj();
    void haltoKajNovaKomenco();
    void lastaFrazo();
    void malplenaGrupo();

private:
    QTemporaryDir* ujo = nullptr;
};

void tst_frazokonstruo::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    lNoteto = false;
    lSxaltilo = false;
    iMsEnSekundo = 20;
    smGratulon = QStringLiteral("bona");
    smDenove = QStringLiteral("denove");
}

void tst_frazokonstruo::ghustaFrazo()
{
    Leciono1 l;
    const QStringList frazo = l.e->frazvortoj.at(l.e->nuna);
    QVERIFY(teksto(l.e, "Ekz_FrazoKonstruo").startsWith(QStringLiteral("Click the words")));
    // The translation is the lesson's English label without its number.
    const QString etikedo = l.fenestro.leciono(1)->findChild<QLabel*>(QStringLiteral("Lec01_Label") + l.e->etikedoj.at(l.e->nuna))->text();
    const QString traduko = teksto(l.e, "Traduko1");
    QVERIFY2(!traduko.isEmpty() && !traduko.at(0).isDigit() && etikedo.endsWith(traduko), qPrintable(traduko));

    konstruas(l.e, frazo);
    QCOMPARE(montritaj(l.e, "Vortoj"), frazo);
    QTest::mouseClick(butono(l.e, "BitBtn2"), Qt::LeftButton);
    QCOMPARE(placar(l.e, 1), 14);
    QCOMPARE(placar(l.e, 2), 1);
    QCOMPARE(placar(l.e, 4), 100);
    QVERIFY(montritaj(l.e, "Vortoj").isEmpty());   // the next sentence
    QCOMPARE(l.e->uzitaj.count(true), 1);   // and never the one done
    QVERIFY(butono(l.e, "BitBtn2")->isEnabled() && butono(l.e, "BitBtn3")->isEnabled());
}

void tst_frazokonstruo::malghustaFrazo_data()
{
    QTest::addColumn<int>("kiel");
    QTest::newRow("two words swapped") << 0;
    QTest::newRow("last word missing") << 1;
}

void tst_frazokonstruo::malghustaFrazo()
{
    QFETCH(int, kiel);
    Leciono1 l;
    const int nuna = l.e->nuna;
    QStringList vortoj = l.e->frazvortoj.at(nuna);
    if (kiel == 0)
        vortoj.swapItemsAt(0, 1);
    else
        vortoj = vortoj.mid(0, kiel == 1 ? vortoj.size() - 1 : 0);
    konstruas(l.e, vortoj);
    // Return checks, and once the right sentence shows, Return goes on.
    QTest::keyClick(&l.fenestro, Qt::Key_Return);

    QCOMPARE(placar(l.e, 3), 1);
    QCOMPARE(placar(l.e, 1), 15);
    QCOMPARE(placar(l.e, 4), 0);
    // The sentence as the lesson spells it, and Next instead of Check.
    const QString frazo = l.fenestro.leciono(1)->findChild<QLabel*>(QStringLiteral("Lec01_Button") + l.e->identigiloj.at(nuna))->text();
    QCOMPARE(teksto(l.e, "Korekta"), frazo);
    QVERIFY(butono(l.e, "BitBtn2")->isHidden() && !butono(l.e, "Antauen")->isHidden());
    QVERIFY(!ero(l.e, "Vortoj")->isEnabled() && !ero(l.e, "Disponeblaj")->isEnabled());
    QVERIFY(butono(l.e, "BitBtn3")->isEnabled());

    QTest::keyClick(&l.fenestro, Qt::Key_Return);
    QVERIFY(teksto(l.e, "Korekta").isEmpty() && butono(l.e, "Antauen")->isHidden());
    QVERIFY(!butono(l.e, "BitBtn2")->isHidden() && ero(l.e, "Disponeblaj")->isEnabled());
    QVERIFY(montritaj(l.e, "Vortoj").isEmpty());
    QVERIFY(!l.e->uzitaj.contains(true));   // the sentence may come again
}

void tst_frazokonstruo::vortoReprenita()
{
    Sola s(4);
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    const QStringList frazo = s.e->frazvortoj.at(s.e->nuna);
    QString falsa;
    for (const QString& v : montritaj(s.e, "Disponeblaj"))
        if (!frazo.contains(v))
            falsa = v;
    konstruas(s.e, {frazo.at(0), falsa, frazo.at(2)});
    klakas(s.e, "Vortoj", falsa);
    QCOMPARE(montritaj(s.e, "Vortoj"), QStringList({frazo.at(0), frazo.at(2)}));
    QVERIFY(montritaj(s.e, "Disponeblaj").contains(falsa));
    konstruas(s.e, {frazo.at(1), frazo.at(3)});   // the first fills the hole
    QCOMPARE(montritaj(s.e, "Vortoj"), frazo);
    QTest::mouseClick(butono(s.e, "BitBtn2"), Qt::LeftButton);
    QCOMPARE(placar(s.e, 2), 1);
}

void tst_frazokonstruo::butonoj_data()
{
    QTest::addColumn<int>("vortoj");
    QTest::addColumn<int>("butonoj");
    QTest::newRow("ten words") << 10 << 17;
    QTest::newRow("eleven words") << 11 << 18;
}

void tst_frazokonstruo::butonoj()
{
    QFETCH(int, vortoj);
    QFETCH(int, butonoj);
    Sola s(vortoj);
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    const QStringList provizo = montritaj(s.e, "Disponeblaj");
    QCOMPARE(provizo.size(), butonoj);
    QCOMPARE(QSet<QString>(provizo.begin(), provizo.end()).size(), butonoj);   // no word twice
    for (const QString& v : s.e->frazvortoj.at(s.e->nuna))
        QVERIFY(provizo.contains(v));
    QCOMPARE(teksto(s.e, "Traduko1"), QStringLiteral("%1 words").arg(vortoj));
}

void tst_frazokonstruo::haltoKajNovaKomenco()
{
    Sola s(11);
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    QTest::mouseClick(butono(s.e, "BitBtn2"), Qt::LeftButton);   // nothing built: wrong
    QTest::mouseClick(butono(s.e, "BitBtn3"), Qt::LeftButton);
    QVERIFY(ero(s.e, "Vortoj")->isHidden() && ero(s.e, "Disponeblaj")->isHidden());
    QVERIFY(butono(s.e, "Antauen")->isHidden() && !butono(s.e, "BitBtn2")->isEnabled());
    QVERIFY(butono(s.e, "BitBtn1")->isEnabled() && !butono(s.e, "BitBtn3")->isEnabled());
    QVERIFY(teksto(s.e, "Korekta").isEmpty() && teksto(s.e, "Traduko1").isEmpty());
    QCOMPARE(placar(s.e, 3), 1);   // the result stays readable

    s.skribas(1);   // Start reads the lesson's sentences anew
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    QCOMPARE(placar(s.e, 3), 0);
    QCOMPARE(placar(s.e, 1), 15);
    QCOMPARE(montritaj(s.e, "Disponeblaj").size(), 2);
    QVERIFY(!butono(s.e, "BitBtn2")->isHidden() && butono(s.e, "BitBtn2")->isEnabled());
}

void tst_frazokonstruo::lastaFrazo()
{
    Sola s(3);
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    QTest::mouseClick(butono(s.e, "BitBtn2"), Qt::LeftButton);
    QTest::mouseClick(butono(s.e, "Antauen"), Qt::LeftButton);
    s.e->sukcesoj = s.e->kiom - 1;   // all but the sentence on screen done
    QString verdikto;
    akceptasMesaghon(&verdikto);
    konstruas(s.e, s.e->frazvortoj.at(s.e->nuna));
    QTest::mouseClick(butono(s.e, "BitBtn2"), Qt::LeftButton);
    QCOMPARE(verdikto, smGratulon);   // 15 of 16
    QCOMPARE(placar(s.e, 1), 0);
    QCOMPARE(placar(s.e, 4), 93);
    QVERIFY(butono(s.e, "BitBtn1")->isEnabled() && ero(s.e, "Vortoj")->isHidden());
}

void tst_frazokonstruo::malplenaGrupo()
{
    Sola s(3, QStringLiteral("0199"));
    QTest::mouseClick(butono(s.e, "BitBtn1"), Qt::LeftButton);
    QVERIFY(butono(s.e, "BitBtn1")->isEnabled() && !butono(s.e, "BitBtn3")->isEnabled());
    QVERIFY(ero(s.e, "Disponeblaj")->isHidden() && montritaj(s.e, "Disponeblaj").isEmpty());
}

QTEST_MAIN(tst_frazokonstruo)
#include "tst_frazokonstruo.moc"
