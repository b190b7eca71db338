// The languages the course ships are complete: every key of the list of
// things to translate is in each of them for every lesson that has content,
// with a real text, and so is every text of the window's own pages; the
// Esperanto words of the lessons are not among their keys.

#include "funkcioj.h"
#include "lecionkadro.h"
#include "testaj_helpoj.h"
#include "tradukeroj.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSettings>
#include <QTabWidget>
#include <QtTest>

class tst_tradukoj_kompletaj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void kompletaj_data();
    void kompletaj();
    void nenioNetradukita_data();
    void nenioNetradukita();
    void ekzercajTekstoj_data();
    void ekzercajTekstoj();
    void anglajMesaghoj();

private:
    QStringList enhavaj;   // groups of the lessons that have content
    QTemporaryDir ujo;
};

void tst_tradukoj_kompletaj::initTestCase()
{
    preparasLokojn(ujo);
    for (int n = 1; n <= 13; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (const Tradukero& t : tradukeroj::deLeciono(kadro.langetoj())) {
            // The instruction of a gap exercise comes with the exercise, not
            // with the lesson's own text.
            if (!t.teksto.isEmpty() && !t.shlosilo.endsWith(QLatin1String(".Label84"))) {
                enhavaj << kadro.langetoj()->objectName();
                break;
            }
        }
    }
    QVERIFY(enhavaj.contains("Lec01"));
    QVERIFY(enhavaj.contains("Lec02"));
}

void tst_tradukoj_kompletaj::kompletaj_data()
{
    QTest::addColumn<QString>("dosiero");
    QTest::newRow("English") << "angla.trd";
    QTest::newRow("Esperanto") << "esperanto.trd";
    QTest::newRow("Portuguese") << "portugala.trd";
    QTest::newRow("German") << "germana.trd";
}

void tst_tradukoj_kompletaj::kompletaj()
{
    QFETCH(QString, dosiero);
    QSettings listo(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    QSettings traduko(":/tradukoj/" + dosiero, QSettings::IniFormat);
    traduko.setIniCodec("UTF-8");
    QStringList grupoj = {"Gheneralaj", "Konfig", "Menuo", "Menuo4", "Mesagxoj"};
    grupoj += enhavaj;
    QStringList mankas;
    for (const QString& g : grupoj) {
        listo.beginGroup(g);
        QSet<QString> listitaj;
        for (const QString& numero : listo.childKeys()) {
            listitaj << listo.value(numero).toString();
            const QString sh = g + '/' + listo.value(numero).toString();
            const QString valoro = traduko.value(sh, "Ne Tradukita").toString();
            if (valoro == QLatin1String("Ne Tradukita") || valoro.trimmed().isEmpty())
                mankas << sh;
        }
        listo.endGroup();
        // The Esperanto words (LecNN_ButtonM) are not translated: relabelling
        // never reads them, and a translator must not be asked for them.
        if (!g.startsWith(QLatin1String("Lec")))
            continue;
        traduko.beginGroup(g);
        for (const QString& sh : traduko.childKeys()) {
            if (sh.startsWith(QLatin1String("Button")) && !listitaj.contains(sh))
                mankas << QStringLiteral("not listed: ") + g + '/' + sh;
        }
        traduko.endGroup();
    }
    for (int i = 0; i <= 12; ++i) {
        if (traduko.value(QStringLiteral("Ekzerco-Klarigoj/%1").arg(i)).toString().isEmpty())
            mankas << QStringLiteral("Ekzerco-Klarigoj/%1").arg(i);
    }
    for (const char* sh : {"Traduko/Lingvo", "Traduko/LingvoID", "Traduko/Dato", "Traduko/Tradukinto"}) {
        if (traduko.value(sh).toString().isEmpty())
            mankas << sh;
    }
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(", ")));
}

void tst_tradukoj_kompletaj::nenioNetradukita_data()
{
    kompletaj_data();
}

// What the learner reads on every written lesson, once relabelled: no
// label left with the default of a missing key, no empty heading.
void tst_tradukoj_kompletaj::nenioNetradukita()
{
    QFETCH(QString, dosiero);
    sTradukoDosiero = dosiero;
    QStringList malbonaj;
    for (const QString& grupo : qAsConst(enhavaj)) {
        QWidget pagho;
        lecionkadro kadro(grupo.right(2).toInt(), &pagho);
        Trad(kadro.langetoj(), grupo);
        for (QLabel* l : kadro.findChildren<QLabel*>()) {
            const bool titolo = qstrcmp(l->metaObject()->className(), "titolo") == 0
                                && l->objectName().startsWith(grupo);   // not the word of a game
            if (l->text() == QLatin1String("Ne Tradukita") || (titolo && l->text().trimmed().isEmpty()))
                malbonaj << grupo + QLatin1Char('/') + l->objectName();
        }
    }
    QVERIFY2(malbonaj.isEmpty(), qPrintable(malbonaj.join(", ")));
}

void tst_tradukoj_kompletaj::ekzercajTekstoj_data()
{
    QTest::addColumn<QString>("dosiero");
    QTest::newRow("English") << "angla.trd";
    QTest::newRow("Portuguese") << "portugala.trd";
    QTest::newRow("German") << "germana.trd";
}

// The exercises of lessons 1 and 2 as a learner sees them in a language:
// every heading and instruction relabelled, and no button with a text that
// would stay in the language of the forms.
void tst_tradukoj_kompletaj::ekzercajTekstoj()
{
    QFETCH(QString, dosiero);
    sTradukoDosiero = dosiero;
    const QStringList instrukcioj = {"Ekz_Vort1", "Ekz_Vort2", "Ekz_Plen1", "Ekz_Plen2", "Ekz_FrazoKonstruo"};
    QSet<QString> trovitaj;
    for (int n : {1, 2}) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        Trad(kadro.langetoj(), kadro.langetoj()->objectName());
        for (QLabel* l : kadro.findChildren<QLabel*>()) {
            if (!instrukcioj.contains(l->objectName()))
                continue;
            trovitaj << l->objectName();
            QVERIFY2(l->text() != QLatin1String("Ne Tradukita") && !l->text().isEmpty(), qPrintable(l->objectName()));
        }
        for (QAbstractButton* b : kadro.findChildren<QAbstractButton*>()) {
            if (b->property("tipo").isValid())
                QVERIFY2(b->text().isEmpty(), qPrintable(b->objectName() + ": " + b->text()));
        }
    }
    QCOMPARE(trovitaj.size(), instrukcioj.size());
}

void tst_tradukoj_kompletaj::anglajMesaghoj()
{
    QSettings angla(":/tradukoj/angla.trd", QSettings::IniFormat);
    angla.setIniCodec("UTF-8");
    QCOMPARE(angla.value("Mesagxoj/smGratulon").toString(), QStringLiteral("Congratulations!  Your work was very good!"));
    QCOMPARE(angla.value("Mesagxoj/smDenove").toString(), QStringLiteral("Your work wasn't good.  Try again!"));
    QCOMPARE(angla.value("Ekzerco-Klarigoj/0").toString(), QStringLiteral("This is the subject, and a subject can't end with \"n\"."));
    QCOMPARE(angla.value("Ekzerco-Klarigoj/4").toString(), QStringLiteral("Congratulations!  This is the direct object and must end with \"n\"."));
    QSettings esperanto(":/tradukoj/esperanto.trd", QSettings::IniFormat);
    esperanto.setIniCodec("UTF-8");
    QCOMPARE(esperanto.value("Mesagxoj/smGratulon").toString(), QString::fromUtf8("Gratulon! Via rezulto estis tre bona!"));
    QCOMPARE(esperanto.value("Mesagxoj/smDenove").toString(), QString::fromUtf8("Via rezulto ne estis bona. Provu denove!"));
}

QTEST_MAIN(tst_tradukoj_kompletaj)
#include "tst_tradukoj_kompletaj.moc"
