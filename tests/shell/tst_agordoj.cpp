// Settings: the file read at start and written at close, the settings page
// with its one apply button, the greeting by the hour, and closing.

#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QtTest>

class tst_agordoj : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void legasKajSkribasChiujn();
    void damaghitaDosiero();
    void valorojEnLimoj_data();
    void valorojEnLimoj();
    void aplikoEbligataKajMalebligata();
    void glitiloKajNombrujoSamtempe();
    void tiparojAtingasStilon();
    void samaStiloNeRestilas();
    void salutoLauHoro_data();
    void salutoLauHoro();
    void fermoElHejmoForigasRegistrajhojn();

private:
    lernilo* malfermas();
    template <typename T> T* trovas(const char* nomo) { return fenestro->findChild<T*>(nomo); }

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
};

void tst_agordoj::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
}

void tst_agordoj::cleanup()
{
    delete fenestro;
    fenestro = nullptr;
    delete ujo;
}

lernilo* tst_agordoj::malfermas()
{
    fenestro = new lernilo;
    return fenestro;
}

void tst_agordoj::legasKajSkribasChiujn()
{
    const QVariantMap skribitaj{{"LiterGrando", 14}, {"Tiparo", "Liberation Serif"}, {"TiparoEo", "DejaVu Serif"},
                                {"Cxapeligo", false}, {"Sistemo", 2}, {"LastaLeciono", 7}, {"LastaPagxo", 5},
                                {"Sxaltilo", false}, {"Noteto", false}, {"LiterGrandoEo", 15}, {"FenestraStilo", 3}};
    {
        inidosiero a(agordoVojo());
        for (auto it = skribitaj.cbegin(); it != skribitaj.cend(); ++it)
            a.setValue("Gxenerala/" + it.key(), it.value());
    }
    malfermas();
    const QVariantMap legitaj{{"LiterGrando", iLiterGrando}, {"Tiparo", sTiparo}, {"TiparoEo", sTiparoEo},
                              {"Cxapeligo", lCxapeligo}, {"Sistemo", iSistemo}, {"LastaLeciono", LastaLeciono},
                              {"LastaPagxo", LastaPagxo}, {"Sxaltilo", lSxaltilo}, {"Noteto", lNoteto},
                              {"LiterGrandoEo", iLiterGrandoEo}, {"FenestraStilo", iFenestraStilo}};
    QCOMPARE(legitaj, skribitaj);
    // The page shows what was read.
    QCOMPARE(trovas<QSlider>("glitilo_eo")->value(), 15);
    QVERIFY(trovas<QAbstractButton>("radioButton_3")->isChecked());

    iSistemo = 1;
    fenestro->SavasKonfig();
    inidosiero b(agordoVojo());
    b.beginGroup("Gxenerala");
    QCOMPARE(b.childKeys().size(), 13);
    QCOMPARE(b.value("Sistemo").toInt(), 1);
    QCOMPARE(b.value("Dosiero").toString(), QStringLiteral("angla.trd"));
}

void tst_agordoj::damaghitaDosiero()
{
    // A file name that leads elsewhere: the course asks for the language again.
    QFile f(savasLoko + "lernilomelo.ini");
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write("[Gxenerala]\nLiterGrando=abc\nLastaLeciono=99\nLastaPagxo=-5\n"
            "Dosiero=../../etc/passwd\nLingvo=x\n");
    f.close();
    klakasEnDialogo("pushButton");
    malfermas();
    QCOMPARE(sTradukoDosiero, QStringLiteral("angla.trd"));
    QCOMPARE(iLiterGrando, 11);
    delete fenestro;
    fenestro = nullptr;

    // A file that is no settings file at all reads as no file.
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(QByteArray("\x00\xff\xfe[Gxenerala\n\x01LastaLeciono=99\n", 30));
    f.close();
    klakasEnDialogo("pushButton");
    malfermas();
    QCOMPARE(LastaLeciono, 1);
    QCOMPARE(iLiterGrandoEo, 11);
    QCOMPARE(sTiparo, QStringLiteral("DejaVu Sans"));
}

void tst_agordoj::valorojEnLimoj_data()
{
    QTest::addColumn<QByteArray>("linioj");
    QTest::addColumn<QList<int>>("legitaj");   // LiterGrando, LiterGrandoEo, LastaLeciono, LastaPagxo
    QTest::newRow("sizes 0 and -5, lesson 0") << QByteArray("LiterGrando=0\nLiterGrandoEo=-5\nLastaLeciono=0\n")
                                              << QList<int>{9, 9, 1, 0};
    QTest::newRow("sizes 2000 and abc, lesson 14")
        << QByteArray("LiterGrando=2000\nLiterGrandoEo=abc\nLastaLeciono=14\nLastaPagxo=2\n") << QList<int>{16, 11, 13, 2};
    QTest::newRow("lesson -1, page -3") << QByteArray("LiterGrando=12\nLastaLeciono=-1\nLastaPagxo=-3\n")
                                        << QList<int>{12, 11, 1, 0};
    QTest::newRow("page 99 of lesson 3") << QByteArray("LastaLeciono=3\nLastaPagxo=99\n") << QList<int>{11, 11, 3, 0};
}

void tst_agordoj::valorojEnLimoj()
{
    QFETCH(QByteArray, linioj);
    QFETCH(QList<int>, legitaj);
    QVERIFY(skribas("lernilomelo.ini", "[Gxenerala]\nLingvo=English\nDosiero=angla.trd\n" + linioj));
    malfermas();
    QCOMPARE((QList<int>{iLiterGrando, iLiterGrandoEo, LastaLeciono, LastaPagxo}), legitaj);
    QCOMPARE(trovas<QSpinBox>("LiterGrando")->value(), iLiterGrando);
    QCOMPARE(QApplication::font().pointSize(), ghustigas_tiparon(iLiterGrando));

    // The resume point opens the lesson on the page it names, or on its first.
    trovas<QAbstractButton>("KieButono")->click();
    auto* langetoj = fenestro->leciono(legitaj.at(2))->findChild<QTabWidget*>();
    QCOMPARE(trovas<QStackedWidget>("Paghujo")->currentIndex(), legitaj.at(2));
    QCOMPARE(langetoj->currentIndex(), legitaj.at(3));

    trovas<QAbstractButton>("Hejmo")->click();
    lSxaltilo = false;
    QCloseEvent fermo;
    QApplication::sendEvent(fenestro, &fermo);
    inidosiero skribita(agordoVojo());
    skribita.beginGroup("Gxenerala");
    QCOMPARE((QList<int>{skribita.value("LiterGrando").toInt(), skribita.value("LiterGrandoEo").toInt(),
                         skribita.value("LastaLeciono").toInt(), skribita.value("LastaPagxo").toInt()}),
             legitaj);
}

void tst_agordoj::aplikoEbligataKajMalebligata()
{
    malfermas();
    trovas<QAbstractButton>("Konfigurado")->click();
    auto* apliko = trovas<QAbstractButton>("shanghasKonfigurojn");
    QVERIFY(!apliko->isHidden());
    QVERIFY(!apliko->isEnabled());
    trovas<QSpinBox>("LiterGrando")->setValue(13);
    QVERIFY(apliko->isEnabled());
    trovas<QSpinBox>("LiterGrando")->setValue(11);
    QVERIFY(!apliko->isEnabled());
    // The letter system alone does not count as a change.
    trovas<QAbstractButton>("radioButton_2")->click();
    QVERIFY(!apliko->isEnabled());

    trovas<QSpinBox>("LiterGrandoEo")->setValue(16);
    QVERIFY(apliko->isEnabled());
    apliko->click();
    QCOMPARE(iLiterGrandoEo, 16);
    QCOMPARE(iSistemo, 1);
    QVERIFY(apliko->isHidden());
    QCOMPARE(trovas<QStackedWidget>("Paghujo")->currentIndex(), 0);
}

void tst_agordoj::glitiloKajNombrujoSamtempe()
{
    malfermas();
    auto* glitilo = trovas<QSlider>("glitilo_traduko");
    auto* nombrujo = trovas<QSpinBox>("LiterGrando");
    QSignalSpy glitilaj(glitilo, &QSlider::valueChanged);
    QSignalSpy nombrujaj(nombrujo, QOverload<int>::of(&QSpinBox::valueChanged));

    glitilo->setValue(14);
    QCOMPARE(nombrujo->value(), 14);
    QCOMPARE(glitilaj.count(), 1);
    QCOMPARE(nombrujaj.count(), 1);
    QVERIFY(trovas<QLabel>("tekstoLingvo")->styleSheet().contains(QStringLiteral("font-size: %1pt").arg(ghustigas_tiparon(14))));

    nombrujo->setValue(9);
    QCOMPARE(glitilo->value(), 9);
    QCOMPARE(glitilaj.count(), 1);   // set with its signals blocked
    QCOMPARE(nombrujaj.count(), 2);
}

void tst_agordoj::tiparojAtingasStilon()
{
    malfermas();
    trovas<QAbstractButton>("Konfigurado")->click();
    trovas<QFontComboBox>("TiparoEo")->setCurrentFont(QFont("DejaVu Serif"));
    trovas<QSpinBox>("LiterGrandoEo")->setValue(16);
    trovas<QSpinBox>("LiterGrando")->setValue(12);
    QVERIFY(trovas<QLabel>("tekstoEo")->styleSheet().contains("DejaVu Serif"));
    trovas<QAbstractButton>("shanghasKonfigurojn")->click();

    // Sizes are scaled for the screen on their way to the sheet.
    const int eo = ghustigas_tiparon(16);
    const int lingvo = ghustigas_tiparon(12);
    const QString stilo = trovas<QWidget>("centralWidget")->styleSheet();
    QVERIFY2(stilo.contains("DejaVu Serif") && stilo.contains(QStringLiteral(" %1pt").arg(eo)), qPrintable(stilo));
    QCOMPARE(QApplication::font().pointSize(), lingvo);
}

// Counts the restyling that reaches one widget.
class Restiloj : public QObject
{
public:
    int kiom = 0;
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() == QEvent::StyleChange || e->type() == QEvent::FontChange)
            ++kiom;
        return false;
    }
};

void tst_agordoj::samaStiloNeRestilas()
{
    malfermas();
    trovas<QAbstractButton>("Leciono1")->click();
    trovas<QAbstractButton>("Hejmo")->click();
    QWidget* vorto = fenestro->leciono(1)->findChild<QWidget*>("Lec01_Button3X");
    QVERIFY(vorto);
    Restiloj restiloj;
    vorto->installEventFilter(&restiloj);

    // A relabelling leaves the fonts and sheets as they are: nothing in the
    // built lesson is styled again.
    fenestro->Traduku();
    QCoreApplication::processEvents();
    QCOMPARE(restiloj.kiom, 0);

    // A change of size does reach it.
    trovas<QAbstractButton>("Konfigurado")->click();
    trovas<QSpinBox>("LiterGrandoEo")->setValue(iLiterGrandoEo + 2);
    trovas<QAbstractButton>("shanghasKonfigurojn")->click();
    QCoreApplication::processEvents();
    QVERIFY(restiloj.kiom > 0);
}

void tst_agordoj::salutoLauHoro_data()
{
    QTest::addColumn<int>("horo");
    QTest::addColumn<int>("dua");
    QTest::addColumn<QString>("radiko");
    QTest::newRow("04:59") << 4 << 1 << "nokton";
    QTest::newRow("05:00, second draw") << 5 << 1 << "tagon";
    QTest::newRow("12:00") << 12 << 0 << "tagon";
    QTest::newRow("15:59") << 15 << 1 << "tagon";
    QTest::newRow("16:00") << 16 << 0 << "vespero";
    QTest::newRow("21:00") << 21 << 1 << "nokton";
}

void tst_agordoj::salutoLauHoro()
{
    QFETCH(int, horo);
    QFETCH(int, dua);
    QFETCH(QString, radiko);
    QCOMPARE(lernilo::salutoRadiko(horo, 1, dua), radiko);
    QCOMPARE(lernilo::salutoRadiko(horo, 0, dua), QStringLiteral("saluton"));
}

void tst_agordoj::fermoElHejmoForigasRegistrajhojn()
{
    malfermas();
    // A temporary folder of this test's own, where nothing else removes the files.
    const QByteArray tmpdir = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(ujo->path()));
    const QString provizora = QDir::tempPath() + "/";
    QCOMPARE(provizora, ujo->path() + "/");
    for (int i = 0; i < 4; ++i) {
        QFile f(provizora + QStringLiteral("prononco%1.raw").arg(i));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
    trovas<QAbstractButton>("Leciono2")->click();
    QCloseEvent unua;
    QApplication::sendEvent(fenestro, &unua);
    QVERIFY(!unua.isAccepted());
    QVERIFY(QFile::exists(provizora + "prononco0.raw"));

    lSxaltilo = false;
    QCloseEvent dua;
    QApplication::sendEvent(fenestro, &dua);
    QVERIFY(dua.isAccepted());
    if (tmpdir.isEmpty())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", tmpdir);
    for (int i = 0; i < 4; ++i)
        QVERIFY(!QFile::exists(provizora + QStringLiteral("prononco%1.raw").arg(i)));
}

QTEST_MAIN(tst_agordoj)
#include "tst_agordoj.moc"
