// Every lesson builds from its source, and its pages are those of the
// course's page tables: order, names, tab texts and icons, the exercise on
// each exercise page, the written pages with their fields and model answers.

#include "klasregistro.h"
#include "lecionfonto.h"
#include "lecionkadro.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QAbstractButton>
#include <QScrollBar>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabWidget>
#include <QtTest>

namespace {

// One tab: page name, tab text, icon (or "-"), and what it holds:
//   "k84"            a text page with 84 clickable words
//   "k12 n6"         ... and 6 silent words
//   "k7 p:Lec04_memo1"  ... and a player
//   "x:vortoludo:Lec01_0103"   an exercise page
//   "s:10 r:10 sendujo"        a written page: fields, model answers, hand-in panel
//   "s:1 n10 p:Lec10_memo4 butono"  ... with a lone hand-in button
struct Langeto
{
    const char* pagho;
    const char* teksto;
    const char* ikono;
    const char* enhavo;
};

struct Leciono
{
    int numero;
    int nuna;
    int rulumoj;
    QVector<Langeto> langetoj;
};

const QVector<Leciono>& tabeloj()
{
    static const QVector<Leciono> t = {
        {1, 0, 9, {
            {"tab", "1", "leciono.png", "k84"},
            {"Ekzerco1_Lec01", "2", "oreleto.png", "x:ekzerco1:frame"},
            {"tab_2", "3", "leciono.png", "k10"},
            {"tab_4", "4", "leciono.png", "k14"},
            {"tab_5", "5", "leciono.png", "k23"},
            {"tab_6", "6", "leciono.png", "k16"},
            {"tab_7", "7", "leciono.png", "k18"},
            {"tab_8", "8", "leciono.png", "k14"},
            {"Ekzerco7_Lec01", "Frazo", "-", "x:frazokonstruo:Lec01_Ekz_Frazo_0107"},
            {"Ekzerco2_Lec01", "9", "mikrofoneto.png", "x:prononco:Lec01_Ekz_Pron_0102"},
            {"Ekzerco3_Lec01", "10", "oreleto.png", "x:audkompreno:Lec01_Ekz_0102"},
            {"Ekzerco4_Lec01", "11", "vortoludo.png", "x:vortoludo:Lec01_0103"},
            {"Sendas1_Lec01", "12", "sendas_24.png", "s:10 r:10 sendujo"}}},
        {2, 3, 6, {
            {"tab_13", "1", "leciono.png", "k11"},
            {"tab_14", "2", "leciono.png", "k5"},
            {"tab_15", "3", "leciono.png", "k14"},
            {"tab_16", "4", "muziko.png", "k0"},
            {"tab_17", "5", "leciono.png", "k25"},
            {"Ekzerco7_Lec02", "Frazo", "-", "x:frazokonstruo:Lec02_Ekz_Frazo_0207"},
            {"Ekzerco1_Lec02", "6", "mikrofoneto.png", "x:prononco:Lec02_Ekz_Pron_0201"},
            {"Ekzerco2_Lec02", "7", "oreleto.png", "x:audkompreno:Lec02_Ekz_Aud_0201"},
            {"Ekzerco3_Lec02", "8", "vortoludo.png", "x:vortoludo:Lec02_Ekz_Vorto_0203"},
            {"Ekzerco4_Lec02", "9", "akuzativo.png", "x:akuzativo:Lec02_Ekz_Akuz_0202"},
            {"Ekzerco5_Lec02", "10", "plenigas_spacon2.png", "x:plenigas_spacon:Lec02_Ekz_Plen_0204"},
            {"Sendas1_Lec02", "11", "sendas_24.png", "s:10 r:10 sendujo"}}},
        {3, 9, 5, {
            {"tab_24", "1", "leciono.png", "k8"},
            {"tab_25", "2", "leciono.png", "k44"},
            {"Ekzerco1_Lec03", "3", "numeraloj.png", "x:ekznumeraloj:Lec03_Ekz_0301"},
            {"tab_27", "4", "leciono.png", "k13"},
            {"tab_28", "5", "leciono.png", "k26"},
            {"Ekzerco7_Lec03", "Frazo", "-", "x:frazokonstruo:Lec03_Ekz_Frazo_0307"},
            {"Ekzerco2_lec03", "6", "mikrofoneto.png", "x:prononco:Lec03_Ekz_Pron_0302"},
            {"Ekzerco3_Lec03", "7", "oreleto.png", "x:audkompreno:Lec03_Ekz_Aud_0302"},
            {"Ekzerco4_Lec03", "8", "vortoludo.png", "x:vortoludo:Lec03_Ekz_Vorto_0303"},
            {"Sendas1_Lec03", "9", "sendas_24.png", "s:12 r:12 sendujo"}}},
        {4, 0, 8, {
            {"tab_33", "1", "leciono.png", "k14"},
            {"tab_34", "2", "leciono.png", "k10"},
            {"tab_35", "3", "leciono.png", "k12 n6"},
            {"tab_36", "4", "leciono.png", "k4"},
            {"tab_37", "5", "leciono.png", "k20"},
            {"tab_38", "6", "parolo.png", "k7 p:Lec04_memo1"},
            {"Ekzerco7_Lec04", "Frazo", "-", "x:frazokonstruo:Lec04_Ekz_Frazo_0407"},
            {"Ekzerco1_Lec04", "7", "mikrofoneto.png", "x:prononco:Lec04_Ekz_Pronon_0403"},
            {"Ekzerco2_Lec04", "8", "oreleto.png", "x:audkompreno:Lec04_Ekz_Aud_0403"},
            {"Ekzerco3_Lec04", "9", "vortoludo.png", "x:vortoludo:Lec04_Ekz_Vorto_0401"},
            {"Sendas1_Lec04", "10", "sendas_24.png", "s:10 r:10 sendujo"},
            {"Sendas2_Lec04", "11", "sendas_24.png", "s:5 r:5 sendujo"}}},
        {5, 10, 7, {
            {"tab", "1", "leciono.png", "k10"},
            {"tab_3", "2", "leciono.png", "k10"},
            {"tab_5", "3", "leciono.png", "k10"},
            {"tab_6", "4", "leciono.png", "k10"},
            {"tab_7", "5", "leciono.png", "k3"},
            {"tab_8", "6", "leciono.png", "k20"},
            {"Ekzerco1_Lec05", "7", "vortoludo.png", "x:vortoludo:Lec05_Ekz_Vorto_0501"},
            {"Ekzerco2_Lec05", "8", "plenigas_spacon2.png", "x:plenigas_spacon:Lec05_Ekz_Plen_0502"},
            {"Ekzerco3_Lec05", "9", "mikrofoneto.png", "x:prononco:Lec05_Ekz_Pron_0501"},
            {"Ekzerco4_Lec05", "10", "oreleto.png", "x:audkompreno:Lec05_Ekz_Aud_0501"},
            {"FrazoKonstruo", "Frazo", "-", "x:frazokonstruo:Lec05_Ekz_Frazo_0507"},
            {"Sendas1_Lec05", "11", "sendas_24.png", "s:10 r:10 sendujo"}}},
        {6, 0, 7, {
            {"tab", "1", "leciono.png", "k10"},
            {"tab_3", "2", "leciono.png", "k10"},
            {"tab_4", "3", "leciono.png", "k10"},
            {"tab_5", "4", "leciono.png", "k10"},
            {"tab_6", "5", "leciono.png", "k10"},
            {"tab_7", "6", "leciono.png", "k7"},
            {"Ekzerco7_Lec06", "Frazo", "-", "x:frazokonstruo:Lec06_Ekz_Frazo_0607"},
            {"Ekzerco1_Lec06", "7", "vortoludo.png", "x:vortoludo:Lec06_Ekz_Vorto_0601"},
            {"Ekzerco2_Lec06", "8", "plenigas_spacon2.png", "x:plenigas_spacon:Lec06_Ekz_Plen_0602"},
            {"Ekzerco3_Lec06", "9", "mikrofoneto.png", "x:prononco:Lec06_Ekz_Pron_0601"},
            {"Ekzerco4_Lec06", "10", "oreleto.png", "x:audkompreno:Lec06_Ekz_Aud_0601"},
            {"Ekzerco5_Lec06", "11", "akuzativo.png", "x:akuzativo:Lec06_Ekz_Akuz_0605"},
            {"Sendas1_Lec06", "12", "sendas_24.png", "s:10 r:10 sendujo"}}},
        {7, 7, 9, {
            {"tab_3", "1", "leciono.png", "k12 n12"},
            {"tab_10", "2", "parolo.png", "k14 p:Lec07_memo2"},
            {"Sendas1_Lec07", "3", "sendas_24.png", "s:6 r:6 sendujo"},
            {"tab_12", "4", "leciono.png", "k18 n18"},
            {"tab_19", "5", "parolo.png", "k20 p:Lec07_memo3"},
            {"Sendas2_Lec07", "6", "sendas_24.png", "s:6 r:6 sendujo"},
            {"tab_21", "7", "leciono.png", "k5"},
            {"tab_22", "8", "leciono.png", "k10"},
            {"Ekzerco1_Lec07", "9", "vortoludo.png", "x:vortoludo:Lec07_Ekzerco_0701"},
            {"Ekzerco2_Lec07", "10", "plenigas_spacon2.png", "x:plenigas_spacon:Lec07_Ekz_Plen_0702"},
            {"Ekzerco3_Lec07", "11", "mikrofoneto.png", "x:prononco:Lec07_Ekzerco_0709"},
            {"Ekzerco4_Lec07", "12", "oreleto.png", "x:audkompreno:Lec07_Ekzerco_0703"},
            {"Sendas3_Lec07", "13", "sendas_24.png", "s:10 r:10 sendujo"}}},
        {8, 8, 9, {
            {"tab_11", "1", "leciono.png", "k0 n9"},
            {"tab_20", "2", "leciono.png", "k0 n5"},
            {"Ekzerco1_Plen_Lec08", "3", "plenigas_spacon2.png", "x:plenigas_spacon:Lec08_Ekzerco_0801"},
            {"tab_26", "4", "leciono.png", "k0 n16"},
            {"tab_29", "5", "leciono.png", "k0 n18"},
            {"tab_30", "6", "leciono.png", "k0 n16"},
            {"tab_31", "7", "leciono.png", "k0 n18"},
            {"tab_32", "8", "leciono.png", "k0 n18"},
            {"tab_39", "9", "leciono.png", "k0 n18"},
            {"Ekzerco2_Plen_Lec08", "10", "plenigas_spacon2.png", "x:plenigas_spacon:Lec08B_Ekzerco_0802"},
            {"Ekzerco3_Lec08", "11", "vortoludo.png", "x:vortoludo:Lec08_Ekzerco_0803"},
            {"Ekzerco4_Lec08", "12", "akuzativo.png", "x:akuzativo:Lec08_Ekzerco_0805"},
            {"Sendas1_Lec08", "13", "sendas_24.png", "s:8 r:8 sendujo"}}},
        {9, 11, 10, {
            {"tab", "1", "leciono.png", "k0 n16"},
            {"tab_2", "2", "leciono.png", "k0 n18"},
            {"tab_3", "3", "leciono.png", "k0 n16"},
            {"tab_4", "4", "leciono.png", "k0 n20"},
            {"tab_5", "5", "leciono.png", "k0 n13"},
            {"Ekzerco_Vorto_Lec09", "6", "vortoludo.png", "x:vortoludo:Lec09_Ekz_Vorto_0903"},
            {"Ekzerco_Plen_Lec09", "7", "plenigas_spacon2.png", "x:plenigas_spacon:Lec09_Ekz_Plen_0902"},
            {"Sendas1_Lec09", "8", "sendas_24.png", "s:16 r:0 butono"},
            {"tab_6", "9", "leciono.png", "k0 n9"},
            {"tab_7", "10", "leciono.png", "k0 n11"},
            {"tab_8", "11", "parolo.png", "k0 n2 p:Lec09_memo1"},
            {"Sendas2_Lec09", "12", "sendas_24.png", "s:1 r:1 sendujo"}}},
        {10, 1, 9, {
            {"tab", "1", "leciono.png", "k0 n7"},
            {"tab_2", "2", "leciono.png", "k0 n8"},
            {"tab_3", "3", "leciono.png", "k0 n17"},
            {"Ekzerco1_Lec10", "4", "plenigas_spacon2.png", "x:plenigas_spacon:Lec10_Ekz_Plen_1002"},
            {"tab_5", "5", "leciono.png", "k0 n7"},
            {"tab_6", "6", "leciono.png", "k0 n11"},
            {"Sendas1_Lec10", "7", "sendas_24.png", "s:1 r:0 n10 p:Lec10_memo4 butono"},
            {"tab_9", "8", "leciono.png", "k0 n6"},
            {"Ekzerco2_Lec10", "9", "plenigas_spacon2.png", "x:plenigas_spacon:Lec10B_Ekz_Plen_1001"},
            {"Ekzerco3_Lec10", "10", "akuzativo.png", "x:akuzativo:Lec10_Ekz_Akuz_1005"},
            {"Sendas2_Lec10", "11", "sendas_24.png", "s:1 r:0 n9 p:Lec10_memo6 butono"},
            {"Sendas3_Lec10", "12", "sendas_24.png", "s:1 r:0 n13 p:Lec10_memo8 butono"}}},
        {11, 10, 10, {
            {"tab", "1", "leciono.png", "k0 n10"},
            {"tab_2", "2", "leciono.png", "k0 n12"},
            {"tab_3", "3", "leciono.png", "k0 n12"},
            {"tab_4", "4", "leciono.png", "k0 n12"},
            {"Ekzerco1_Lec11", "5", "vortoludo.png", "x:vortoludo:Lec11_Ekz_Vorto_1103"},
            {"tab_6", "6", "leciono.png", "k0 n22"},
            {"Ekzerco2_Lec11", "7", "horlogho.png", "x:kiomahoro:Lec11_Ekzerco_Horo"},
            {"tab_8", "8", "leciono.png", "k0 n15"},
            {"tab_9", "9", "leciono.png", "k0 n6"},
            {"tab_10", "10", "leciono.png", "k0 n20"},
            {"Sendas1_Lec11", "11", "sendas_24.png", "s:10 r:5 sendujo"},
            {"tab_5", "12", "sendas_24.png", "s:10 r:5 sendujo"}}},
        {12, 9, 9, {
            {"tab", "1", "leciono.png", "k0 n9"},
            {"tab_2", "2", "leciono.png", "k0 n7"},
            {"tab_3", "3", "leciono.png", "k0 n6"},
            {"Ekzerco1_Akuz_Lec12", "4", "akuzativo.png", "x:akuzativo:Lec12_Ekz_Akuz_1202"},
            {"tab_5", "5", "leciono.png", "k0 n5"},
            {"tab_6", "6", "leciono.png", "k0 n13"},
            {"tab_7", "7", "leciono.png", "k0 n10"},
            {"tab_8", "8", "muziko.png", "k0 n0 p:Lec12_fragoj"},
            {"tab_9", "9", "leciono.png", "k0 n12"},
            {"Sendas1_Lec12", "10", "sendas_24.png", "s:1 r:0 n12 p:Lec12_memo10 butono"}}},
        {13, 4, 5, {
            {"tab", "1", "ekzameno.png", "s:27 r:0"},
            {"tab_2", "2", "ekzameno.png", "s:16 r:0"},
            {"tab_3", "3", "ekzameno.png", "s:10 r:0"},
            {"tab_4", "4", "ekzameno.png", "s:11 r:0"},
            {"Sendas5_Lec13", "5", "ekzameno.png", "s:1 r:0 butono"}}},
    };
    return t;
}

int kiomDa(QWidget* pagho, const char* klaso)
{
    int n = 0;
    for (QWidget* w : pagho->findChildren<QWidget*>()) {
        if (klasregistro::klasoDe(w) == QLatin1String(klaso))
            ++n;
    }
    return n;
}

int nombroPost(const QStringList& partoj, const QString& prefikso)
{
    for (const QString& p : partoj) {
        if (p.startsWith(prefikso))
            return p.mid(prefikso.size()).toInt();
    }
    return 0;
}

} // namespace

class tst_lecionoj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fontojSenEraroj_data();
    void fontojSenEraroj();
    void strukturo_data();
    void strukturo();
    void ekzercajNomoj();
    void skribajPaghoj();
    void nenioElstaras_data();
    void nenioElstaras();

private:
    QTemporaryDir ujo;
};

void tst_lecionoj::initTestCase()
{
    preparasLokojn(ujo);
}

void tst_lecionoj::fontojSenEraroj_data()
{
    QTest::addColumn<int>("numero");
    for (int n = 1; n <= 13; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

void tst_lecionoj::fontojSenEraroj()
{
    QFETCH(int, numero);
    const lecionfonto f = lecionfonto::deRimedoj(numero);
    QStringList raporto;
    for (const LecionEraro& e : f.eraroj)
        raporto << e.teksto();
    QVERIFY2(raporto.isEmpty(), qPrintable(raporto.join('\n')));
    QCOMPARE(f.numero.toInt(), numero);
}

// Whether a widget lies inside an exercise's own form.
static bool enEkzerco(const QWidget* w)
{
    static const QStringList ekzercoj{"ekzerco1", "frazokonstruo", "plenigas_spacon",
                                      "vortoludo", "ekznumeraloj", "kiomahoro",
                                      "audkompreno", "akuzativo", "prononco"};
    for (const QWidget* s = w->parentWidget(); s; s = s->parentWidget()) {
        if (ekzercoj.contains(QLatin1String(s->metaObject()->className())))
            return true;
    }
    return false;
}

// The lesson's own scroll areas; an exercise may scroll inside its form too.
static int lecionajRulumoj(const QWidget& kadro)
{
    int n = 0;
    for (const QScrollArea* r : kadro.findChildren<QScrollArea*>())
        n += enEkzerco(r) ? 0 : 1;
    return n;
}

void tst_lecionoj::strukturo_data()
{
    QTest::addColumn<int>("numero");
    for (int n = 1; n <= 13; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

void tst_lecionoj::strukturo()
{
    QFETCH(int, numero);
    const Leciono& tabelo = tabeloj().at(numero - 1);
    QWidget pagho;
    lecionkadro kadro(numero, &pagho);
    const QString nn = QStringLiteral("%1").arg(numero, 2, 10, QLatin1Char('0'));
    QCOMPARE(kadro.objectName(), "lec" + nn);
    QTabWidget* langetoj = kadro.langetoj();
    QCOMPARE(langetoj->objectName(), "Lec" + nn);
    QCOMPARE(langetoj->iconSize(), QSize(24, 24));
    QCOMPARE(langetoj->currentIndex(), tabelo.nuna);
    QCOMPARE(lecionajRulumoj(kadro), tabelo.rulumoj);
    QCOMPARE(langetoj->count(), tabelo.langetoj.size());

    for (int i = 0; i < tabelo.langetoj.size(); ++i) {
        const Langeto& l = tabelo.langetoj.at(i);
        QWidget* w = langetoj->widget(i);
        const QString kie = QStringLiteral("tab %1 (%2)").arg(i).arg(l.pagho);
        QVERIFY2(w->objectName() == QLatin1String(l.pagho), qPrintable(kie + ": " + w->objectName()));
        QVERIFY2(langetoj->tabText(i) == QLatin1String(l.teksto), qPrintable(kie + ": text " + langetoj->tabText(i)));
        QVERIFY2(langetoj->tabIcon(i).isNull() == (qstrcmp(l.ikono, "-") == 0), qPrintable(kie + ": icon"));

        const QString enhavo = QString::fromLatin1(l.enhavo);
        const QStringList partoj = enhavo.split(' ');
        if (enhavo.startsWith("x:")) {
            const QStringList x = enhavo.split(':');
            QWidget* ekzerco = w->findChild<QWidget*>(x.at(2));
            QVERIFY2(ekzerco, qPrintable(kie + ": no " + x.at(2)));
            QCOMPARE(klasregistro::klasoDe(ekzerco), x.at(1));
            QVERIFY2(w->layout() && w->layout()->indexOf(ekzerco) >= 0,
                     qPrintable(kie + ": the exercise stands directly in the page"));
            continue;
        }
        if (partoj.first().startsWith('k'))
            QVERIFY2(kiomDa(w, "klakbutono_nova") == nombroPost(partoj, "k"), qPrintable(kie + ": clickable words"));
        QVERIFY2(kiomDa(w, "neklakebla_nova") == nombroPost(partoj, "n"), qPrintable(kie + ": silent words"));
        QVERIFY2(w->findChildren<QScrollArea*>().size() >= 1, qPrintable(kie + ": no scroll area"));
        for (const QString& p : partoj) {
            if (p.startsWith("p:"))
                QVERIFY2(klasregistro::klasoDe(w->findChild<QWidget*>(p.mid(2))) == "mp3ludilo", qPrintable(kie + ": player " + p));
        }
        if (partoj.first().startsWith("s:")) {
            const int kampoj = w->findChildren<QLineEdit*>().size() + w->findChildren<QPlainTextEdit*>().size();
            QVERIFY2(kampoj == nombroPost(partoj, "s:"), qPrintable(kie + QStringLiteral(": %1 fields").arg(kampoj)));
            QVERIFY2(kiomDa(w, "korekta") == nombroPost(partoj, "r:"), qPrintable(kie + ": model answers"));
            QCOMPARE(kiomDa(w, "sendujo"), partoj.contains("sendujo") ? 1 : 0);
            // A hand-in panel holds a hand-in button of its own.
            QCOMPARE(kiomDa(w, "sendas_butono"), partoj.contains("butono") || partoj.contains("sendujo") ? 1 : 0);
        }
    }
}

void tst_lecionoj::ekzercajNomoj()
{
    // An exercise takes its id from the last four characters of its name,
    // and its lesson from the first digits of the id; only two exercises have
    // no id. The second gap exercise of lessons 8 and 10 is told apart by a
    // "B" after the lesson number.
    static const QStringList ekzercoj = {"ekzerco1", "frazokonstruo", "plenigas_spacon", "vortoludo",
                                         "ekznumeraloj", "kiomahoro", "audkompreno", "akuzativo", "prononco"};
    static const QRegularExpression id(QStringLiteral("\\d{4}$"));
    QStringList senId;
    QStringList kunB;
    int kiom = 0;
    for (int n = 1; n <= 13; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (QWidget* w : kadro.findChildren<QWidget*>()) {
            if (!ekzercoj.contains(klasregistro::klasoDe(w)))
                continue;
            ++kiom;
            const QString nomo = w->objectName();
            if (!id.match(nomo).hasMatch()) {
                senId << nomo;
                continue;
            }
            QCOMPARE(nomo.right(4).left(2).toInt(), n);
            if (nomo.at(5) == QLatin1Char('B'))
                kunB << nomo;
        }
    }
    QCOMPARE(kiom, 47);
    QCOMPARE(senId, QStringList() << "frame" << "Lec11_Ekzerco_Horo");
    QCOMPARE(kunB, QStringList() << "Lec08B_Ekzerco_0802" << "Lec10B_Ekz_Plen_1001");
}

void tst_lecionoj::skribajPaghoj()
{
    // The pages whose answers are kept and handed in are those named "Sendas...".
    QStringList sendas;
    QStringList solaButono;
    for (const Leciono& l : tabeloj()) {
        QWidget pagho;
        lecionkadro kadro(l.numero, &pagho);
        QTabWidget* langetoj = kadro.langetoj();
        for (int i = 0; i < langetoj->count(); ++i) {
            QWidget* w = langetoj->widget(i);
            if (w->objectName().left(6) != QLatin1String("Sendas"))
                continue;
            sendas << w->objectName();
            if (kiomDa(w, "sendas_butono") == 1 && kiomDa(w, "sendujo") == 0)
                solaButono << w->objectName();
        }
    }
    QCOMPARE(sendas.size(), 19);
    QCOMPARE(solaButono, QStringList() << "Sendas1_Lec09" << "Sendas1_Lec10" << "Sendas2_Lec10"
                                       << "Sendas3_Lec10" << "Sendas1_Lec12" << "Sendas5_Lec13");
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
    for (int n = 1; n <= 7; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

// At the window's first size every page reads from top to bottom: no text
// wider than the page that would need scrolling sideways. (The letter table
// of lesson 1 scrolls sideways inside its page on purpose.)
void tst_lecionoj::nenioElstaras()
{
    QFETCH(int, numero);
    QTemporaryDir hejmo;
    preparasLerninton(hejmo);
    lernilo fenestro;
    fenestro.show();
    fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(numero))->click();
    QTabWidget* langetoj = fenestro.leciono(numero)->findChild<QTabWidget*>();
    QStringList larghaj;
    for (int i = 0; i < langetoj->count(); ++i) {
        langetoj->setCurrentIndex(i);
        QApplication::processEvents();
        for (QScrollArea* r : langetoj->widget(i)->findChildren<QScrollArea*>()) {
            const bool ena = r->parentWidget()->parentWidget()->parentWidget()->inherits("QScrollArea");
            if (!ena && !enEkzerco(r) && r->horizontalScrollBar()->maximum() > 0)
                larghaj << QStringLiteral("%1 (%2 px too wide: %3)").arg(langetoj->widget(i)->objectName())
                               .arg(r->horizontalScrollBar()->maximum()).arg(plejLargha(r));
        }
    }
    QVERIFY2(larghaj.isEmpty(), qPrintable(larghaj.join(", ")));
}

QTEST_MAIN(tst_lecionoj)
#include "tst_lecionoj.moc"
