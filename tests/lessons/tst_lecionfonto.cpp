#include "lecionfonto.h"
#include "lecionkonstruilo.h"
#include "klasregistro.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QtTest>

class tst_lecionfonto : public QObject
{
    Q_OBJECT

private slots:
    void bonaFonto();
    void konstruasArbon();
    void eraroj_data();
    void eraroj();
    void misaFontoTamenKonstruighas();
};

namespace {

const char* const ekzemplo =
    "# a small lesson\n"
    "leciono 02\n"
    "nuna 1\n"
    "\n"
    "pagho tab_13 1 leciono.png\n"
    "  rulumo scrollArea\n"
    "    titolo 1 = Verbos\n"
    "    etikedo 2 tipo=teksta = Em Esperanto\\nos verbos\n"
    "    par 10 11 = mi estas | eu sou\n"
    "    sub 14 15 = vi estas | você é\n"
    "    h\n"
    "      revena\n"
    "      vorto 12 = lernas\n"
    "      egala\n"
    "      silenta 13 lingvo=eo = lernis\n"
    "    spaco\n"
    "pagho Ekzerco7_Lec02 Frazo -\n"
    "  frazokonstruo Lec02_Ekz_Frazo_0207\n"
    "pagho Sendas1_Lec02 11 sendas_24.png\n"
    "  rulumo\n"
    "    demando 50 lineEdit 901 = 1. O menino é alto. | La knabo estas alta.\n"
    "    demando 51 lineEdit_2 - kampo=linio lingvo=traduko = 2. Traduza.\n"
    "    sendujo\n";

const LecionEro* trovas(const QVector<LecionEro>& eroj, const QString& nomo)
{
    for (const LecionEro& e : eroj) {
        if (e.nomo == nomo)
            return &e;
        if (const LecionEro* ido = trovas(e.idoj, nomo))
            return ido;
    }
    return nullptr;
}

} // namespace

void tst_lecionfonto::bonaFonto()
{
    const lecionfonto f = lecionfonto::legas(QString::fromUtf8(ekzemplo), "ekzemplo.lec");
    for (const LecionEraro& e : f.eraroj)
        qWarning() << e.teksto();
    QVERIFY(f.eraroj.isEmpty());
    QCOMPARE(f.numero, QStringLiteral("02"));
    QCOMPARE(f.nuna, 1);
    QCOMPARE(f.paghoj.size(), 3);
    QCOMPARE(f.paghoj.at(0).ikono, QStringLiteral(":/ikonoj/leciono.png"));
    QCOMPARE(f.paghoj.at(1).teksto, QStringLiteral("Frazo"));
    QVERIFY(f.paghoj.at(1).ikono.isEmpty());

    const LecionEro* klarigo = trovas(f.paghoj.at(0).idoj, "Lec02_Label2");
    QVERIFY(klarigo);
    QCOMPARE(klarigo->teksto, QStringLiteral("Em Esperanto\nos verbos"));
    QCOMPARE(klarigo->atributoj.value("tipo"), QStringLiteral("teksta"));

    // Names completed from the lesson number, or given.
    const QVector<LecionEro>& unua = f.paghoj.at(0).idoj;
    QCOMPARE(unua.size(), 1);
    QCOMPARE(unua.at(0).nomo, QStringLiteral("scrollArea"));

    const LecionEro* vorto = trovas(unua, "Lec02_Button10");
    QVERIFY(vorto);
    QCOMPARE(vorto->klaso, QStringLiteral("klakbutono_nova"));
    QCOMPARE(vorto->teksto, QStringLiteral("mi estas"));
    const LecionEro* signifo = trovas(unua, "Lec02_Label11");
    QVERIFY(signifo);
    QCOMPARE(signifo->teksto, QStringLiteral("eu sou"));
    // The meaning under the word: the word still speaks.
    QCOMPARE(trovas(unua, "Lec02_Button14")->klaso, QStringLiteral("klakbutono_nova"));
    QCOMPARE(trovas(unua, "Lec02_Label15")->teksto, QString::fromUtf8("você é"));

    // The scroll area of the written page was not named: it gets the next free name.
    QCOMPARE(f.paghoj.at(2).idoj.at(0).nomo, QStringLiteral("scrollArea_2"));
    const LecionEro* demando = trovas(f.paghoj.at(2).idoj, "Lec02_Label50");
    QVERIFY(demando);
    QCOMPARE(demando->atributoj.value("amiko"), QStringLiteral("lineEdit"));
    QVERIFY(trovas(f.paghoj.at(2).idoj, "Lec02_Button901"));
    const LecionEro* kampo = trovas(f.paghoj.at(2).idoj, "lineEdit_2");
    QVERIFY(kampo);
    QCOMPARE(kampo->klaso, QStringLiteral("QLineEdit"));
    QCOMPARE(kampo->atributoj.value("lingvo"), QStringLiteral("traduko"));
}

void tst_lecionfonto::konstruasArbon()
{
    const lecionfonto f = lecionfonto::legas(QString::fromUtf8(ekzemplo), "ekzemplo.lec");
    QWidget kadro;
    QTabWidget* langetoj = lecionkonstruilo::konstruas(f, &kadro);
    QCOMPARE(langetoj->objectName(), QStringLiteral("Lec02"));
    QCOMPARE(langetoj->count(), 3);
    QCOMPARE(langetoj->currentIndex(), 1);
    QCOMPARE(langetoj->iconSize(), QSize(24, 24));
    QCOMPARE(langetoj->tabText(2), QStringLiteral("11"));
    QVERIFY(!langetoj->tabIcon(0).isNull());
    QVERIFY(langetoj->tabIcon(1).isNull());

    QWidget* pagho = langetoj->widget(0);
    QCOMPARE(pagho->objectName(), QStringLiteral("tab_13"));
    auto* rulumo = pagho->findChild<QScrollArea*>("scrollArea");
    QVERIFY(rulumo);
    QCOMPARE(rulumo->widget()->objectName(), QStringLiteral("scrollAreaWidgetContents"));

    auto* vorto = pagho->findChild<QLabel*>("Lec02_Button12");
    QVERIFY(vorto);
    QCOMPARE(QString(vorto->metaObject()->className()), QStringLiteral("klakbutono_nova"));
    auto* silenta = pagho->findChild<QLabel*>("Lec02_Button13");
    QCOMPARE(silenta->property("lingvo").toString(), QStringLiteral("eo"));
    // The word-and-meaning row took the first free row name, the explicit row
    // the second; it holds the arrow, the word, the equals sign and the
    // silent word, in order.
    QCOMPARE(rulumo->widget()->findChild<QLayout*>("horizontalLayout")->count(), 2);
    QLayout* vico = rulumo->widget()->findChild<QLayout*>("horizontalLayout_2");
    QVERIFY(vico);
    QCOMPARE(vico->count(), 4);
    QCOMPARE(QString(vico->itemAt(0)->widget()->metaObject()->className()), QStringLiteral("label_sago_reversa"));
    QCOMPARE(vico->itemAt(1)->widget(), vorto);
    QCOMPARE(vico->itemAt(2)->widget()->property("tipo").toString(), QStringLiteral("egala"));
    QVERIFY(!static_cast<QLabel*>(vico->itemAt(2)->widget())->pixmap(Qt::ReturnByValue).isNull());

    auto* demando = kadro.findChild<QLabel*>("Lec02_Label50");
    QVERIFY(demando);
    QCOMPARE(demando->buddy(), kadro.findChild<QWidget*>("lineEdit"));
    QCOMPARE(klasregistro::klasoDe(demando->buddy()), QStringLiteral("cx_edit"));
    QCOMPARE(klasregistro::klasoDe(kadro.findChild<QWidget*>("Lec02_Ekz_Frazo_0207")),
             QStringLiteral("frazokonstruo"));
}

void tst_lecionfonto::eraroj_data()
{
    QTest::addColumn<QString>("fonto");
    QTest::addColumn<int>("linio");
    QTest::addColumn<QString>("kialo");

    const QString kapo = "leciono 05\npagho tab 1 leciono.png\n  rulumo\n";
    QTest::newRow("tab in indentation") << kapo + "\tvorto 1 = viro\n" << 4 << "tab";
    QTest::newRow("unknown kind") << kapo + "    vortoo 1 = viro\n" << 4 << "unknown kind 'vortoo'";
    QTest::newRow("text without equals sign") << kapo + "    etikedo 1 Bom dia\n" << 4 << "' = ' missing";
    QTest::newRow("twice the same name") << kapo + "    vorto 1 = viro\n    vorto 1 = virino\n" << 5 << "used twice";
    QTest::newRow("misaligned line") << kapo + "    v\n      vorto 1 = viro\n     vorto 2 = knabo\n" << 6 << "indentation";
    QTest::newRow("widget outside a page") << "leciono 05\nvorto 1 = viro\n" << 2 << "left margin";
    QTest::newRow("lesson number") << "leciono 5\n" << 1 << "two digits";
    QTest::newRow("another lesson than the file name") << QString("# lesson 4\nleciono 04\npagho tab 1 leciono.png\n  vorto 1 = viro\n")
                                                       << 2 << "lesson 05 by its name but says 'leciono 04'";
    QTest::newRow("bad alignment") << kapo + "    etikedo 1 vicigo=meze = a\n" << 4 << "alignment 'meze'";
}

void tst_lecionfonto::eraroj()
{
    QFETCH(QString, fonto);
    QFETCH(int, linio);
    QFETCH(QString, kialo);
    const lecionfonto f = lecionfonto::legas(fonto, "lec05.lec");
    QVERIFY2(!f.eraroj.isEmpty(), "the mistake went unnoticed");
    const LecionEraro& e = f.eraroj.first();
    QCOMPARE(e.dosiero, QStringLiteral("lec05.lec"));
    QCOMPARE(e.linio, linio);
    QVERIFY2(e.kialo.contains(kialo), qPrintable(e.teksto()));
    QVERIFY(e.teksto().startsWith(QStringLiteral("lec05.lec:%1: ").arg(linio)));
    if (QTest::currentDataTag() == QLatin1String("another lesson than the file name")) {
        // Refused whole: nothing is built that would land in lesson 4's groups.
        QWidget kadro;
        QTabWidget* langetoj = lecionkonstruilo::konstruas(f, &kadro);
        QCOMPARE(langetoj->objectName(), QStringLiteral("Lec05"));
        QCOMPARE(langetoj->count(), 0);
    }
}

void tst_lecionfonto::misaFontoTamenKonstruighas()
{
    const QString fonto =
        "leciono 03\n"
        "pagho tab 1 leciono.png\n"
        "  rulumo\n"
        "    vorto 1 = unu\n"
        "    nekonata 2 = du\n"
        "    \tvorto 3 = tri\n"
        "    etikedo 4 amiko=neniu_tia = kvar\n"
        "     vorto 5 = kvin\n"
        "pagho tab_2 2\n"
        "  vorto 6 = ses\n";
    const lecionfonto f = lecionfonto::legas(fonto, "lec03.lec");
    QVERIFY(f.eraroj.size() >= 3);
    QWidget kadro;
    QTabWidget* langetoj = lecionkonstruilo::konstruas(f, &kadro);
    QCOMPARE(langetoj->count(), 1);
    QVERIFY(kadro.findChild<QLabel*>("Lec03_Button1"));
    QVERIFY(!kadro.findChild<QLabel*>("Lec03_Button2"));
    QCOMPARE(kadro.findChild<QLabel*>("Lec03_Label4")->buddy(), nullptr);
}

QTEST_MAIN(tst_lecionfonto)
#include "tst_lecionfonto.moc"
