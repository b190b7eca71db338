// The translator's editor: its first open, what it saves and where, the
// course that follows the sentence being translated, the missing fields, and
// a new language that the course offers after a restart.

#include "funkcioj.h"
#include "lernilo.h"
#include "testaj_helpoj.h"
#include "traduko.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QtTest>

class tst_tradukilo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void unuaMalfermo();
    void savasKajRevenas();
    void kursoSekvas();
    void mankantajKampoj();
    void mankantaReferenco();
    void novaLingvoEnLaKurso();
    void plibonigasSenditan();
    void listigasTrad();

private:
    traduko* malfermas(lernilo& fenestro);
    void plenigas(traduko* d);
    void elektasSekcion(traduko* d, const QString& sekcio);
    void klakas(traduko* d, const char* butono, int fojoj = 1);
    QString pozicio(traduko* d);

    QTemporaryDir* ujo = nullptr;
};

void tst_tradukilo::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
}

void tst_tradukilo::cleanup()
{
    delete ujo;
}

traduko* tst_tradukilo::malfermas(lernilo& fenestro)
{
    fenestro.findChild<QAbstractButton*>("Konfigurado")->click();
    fenestro.findChild<QAbstractButton*>("tradukilo")->click();
    return fenestro.findChild<traduko*>();
}

void tst_tradukilo::plenigas(traduko* d)
{
    d->findChild<QLineEdit*>("Edit1")->setText(QString::fromUtf8("Slovenščina — slovena"));
    d->findChild<QLineEdit*>("dulitera_lingvokodo")->setText("sl");
    d->findChild<QLineEdit*>("Edit2")->setText("Ana Novak");
}

// As the combo box does when the translator picks an item.
void tst_tradukilo::elektasSekcion(traduko* d, const QString& sekcio)
{
    auto* listo = d->findChild<QComboBox*>("Listo");
    const int i = listo->findText(sekcio);
    QVERIFY(i >= 0);
    listo->setCurrentIndex(i);
    QMetaObject::invokeMethod(listo, "activated", Q_ARG(int, i));
    QMetaObject::invokeMethod(listo, "activated", Q_ARG(QString, sekcio));
}

void tst_tradukilo::klakas(traduko* d, const char* butono, int fojoj)
{
    for (int i = 0; i < fojoj; ++i)
        d->findChild<QAbstractButton*>(butono)->click();
}

QString tst_tradukilo::pozicio(traduko* d)
{
    return d->findChild<QLabel*>("pozicio")->text();
}

void tst_tradukilo::unuaMalfermo()
{
    lernilo fenestro;
    traduko* d = malfermas(fenestro);
    QVERIFY(d && d->isVisible());
    QCOMPARE(d->findChild<QLineEdit*>("Edit_dosiero")->text(), QStringLiteral("mia_traduko.trd"));
    QCOMPARE(d->findChild<QComboBox*>("lingvoj1")->currentText(), QStringLiteral("Esperanto"));
    QCOMPARE(d->findChild<QComboBox*>("lingvoj2")->currentText(), QString::fromUtf8("English — angla"));
    QCOMPARE(d->findChild<QComboBox*>("Listo")->currentText(), QStringLiteral("Gheneralaj"));
    QVERIFY2(pozicio(d).startsWith("Pozicio: 1 / 9 "), qPrintable(pozicio(d)));
    QCOMPARE(d->findChild<QLabel*>("Memo3")->text(), QStringLiteral("Pronunciation exercise"));
    QVERIFY(!d->findChild<QAbstractButton*>("Button1")->isEnabled());
    QVERIFY(d->findChild<QAbstractButton*>("Button2")->isEnabled());
    // Only sections with something to translate are offered.
    auto* listo = d->findChild<QComboBox*>("Listo");
    QCOMPARE(listo->findText("Menuo3"), -1);
    QVERIFY(listo->findText("Ekzerco-0204") >= 0);
    // A second click shows the same dialog.
    akceptasMesaghon();   // the fields are still empty
    d->close();
    fenestro.findChild<QAbstractButton*>("tradukilo")->click();
    QCOMPARE(fenestro.findChildren<traduko*>().size(), 1);
    QVERIFY(d->isVisible());
}

void tst_tradukilo::savasKajRevenas()
{
    // A key the list does not name must survive the editor's saving.
    QFile propra(savasLoko + "mia_traduko.trd");
    QVERIFY(propra.open(QIODevice::WriteOnly));
    propra.write("[Lec02]\nLabel9999=kept\n");
    propra.close();
    {
        lernilo fenestro;
        traduko* d = malfermas(fenestro);
        plenigas(d);
        elektasSekcion(d, "Lec02");
        auto* memo = d->findChild<QPlainTextEdit*>("Memo1");
        memo->setPlainText(QString::fromUtf8("Osebni zaimki"));
        klakas(d, "Button2");
        memo->setPlainText("Esperanto, jezik za vse");
        klakas(d, "Button2");
        QVERIFY(pozicio(d).startsWith("Pozicio: 3 / "));
        d->findChild<QCheckBox*>("direktoRTL")->setChecked(true);
        d->findChild<QAbstractButton*>("pushButton")->click();
        QVERIFY(!d->isVisible());
    }
    QSettings trd(savasLoko + "mia_traduko.trd", QSettings::IniFormat);
    trd.setIniCodec("UTF-8");
    QSettings tdf(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    QCOMPARE(trd.value("Lec02/" + tdf.value("Lec02/000").toString()).toString(), QString::fromUtf8("Osebni zaimki"));
    QCOMPARE(trd.value("Lec02/" + tdf.value("Lec02/001").toString()).toString(), QStringLiteral("Esperanto, jezik za vse"));
    QCOMPARE(trd.value("Lec02/Label9999").toString(), QStringLiteral("kept"));
    QCOMPARE(trd.value("Traduko/LingvoID").toString(), QStringLiteral("sl"));
    QCOMPARE(trd.value("Traduko/Tradukinto").toString(), QStringLiteral("Ana Novak"));
    QCOMPARE(trd.value("Traduko/Direkto").toString(), QStringLiteral("RTL"));

    QSettings listo(savasLoko + "traduklisto.ini", QSettings::IniFormat);
    listo.setIniCodec("UTF-8");
    QCOMPARE(listo.value("0/DosierNomo").toString(), QStringLiteral("mia_traduko.trd"));
    QCOMPARE(listo.value("0/Lingvo").toString(), QString::fromUtf8("Slovenščina — slovena"));
    QCOMPARE(listo.value("0/Dato").toString(), QDate::currentDate().toString("dd.MM.yyyy"));

    // After a restart the editor is back at the same sentence.
    lernilo fenestro;
    traduko* d = malfermas(fenestro);
    QCOMPARE(d->findChild<QComboBox*>("Listo")->currentText(), QStringLiteral("Lec02"));
    QVERIFY2(pozicio(d).startsWith("Pozicio: 3 / "), qPrintable(pozicio(d)));
    QCOMPARE(d->findChild<QLineEdit*>("Edit2")->text(), QStringLiteral("Ana Novak"));
    QVERIFY(d->findChild<QCheckBox*>("direktoRTL")->isChecked());
    klakas(d, "Button5");
    QCOMPARE(d->findChild<QPlainTextEdit*>("Memo1")->toPlainText(), QString::fromUtf8("Osebni zaimki"));
    // Saving again finds the language's own row of the list.
    d->close();
    listo.sync();
    QVERIFY(!listo.contains("1/LingvoID"));
}

void tst_tradukilo::kursoSekvas()
{
    lernilo fenestro;
    fenestro.show();
    auto* paghujo = fenestro.findChild<QStackedWidget*>("Paghujo");
    traduko* d = malfermas(fenestro);
    plenigas(d);
    fenestro.findChild<QAbstractButton*>("Leciono5")->click();
    klakas(d, "Button2");
    QCOMPARE(paghujo->currentWidget()->objectName(), QStringLiteral("Pagho05"));

    elektasSekcion(d, "Lec02");
    QCOMPARE(paghujo->currentWidget()->objectName(), QStringLiteral("Pagho02"));
    auto* langetoj = fenestro.leciono(2)->findChild<QTabWidget*>();
    QSettings tdf(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    tdf.beginGroup("Lec02");
    const QStringList numeroj = tdf.childKeys();
    // Each sentence frames its own label, on its own page, where it can be seen.
    for (int i = 0; i < 40; ++i) {
        QLabel* kadrita = fenestro.kadrita();
        QVERIFY(kadrita);
        QCOMPARE(kadrita->objectName(), "Lec02_" + tdf.value(numeroj.at(i)).toString());
        QCOMPARE(kadrita->frameShape(), QFrame::Box);
        QVERIFY(langetoj->currentWidget()->isAncestorOf(kadrita));
        auto* rulumo = langetoj->currentWidget()->findChild<QScrollArea*>();
        const int supre = kadrita->mapTo(rulumo->viewport(), QPoint(0, 0)).y();
        QVERIFY2(supre >= 0 && supre < rulumo->viewport()->height(), qPrintable(kadrita->objectName()));
        klakas(d, "Button2");
        QCOMPARE(kadrita->frameShape(), QFrame::NoFrame);
    }
    QCOMPARE(paghujo->currentWidget()->objectName(), QStringLiteral("Pagho02"));

    // A key that names no widget leaves the course as it stands.
    klakas(d, "Button6");
    int i = numeroj.size() - 1;
    while (i > 0 && tdf.value(numeroj.at(i)).toString() != QLatin1String("TFrame41.Label84")) {
        klakas(d, "Button1");
        --i;
    }
    klakas(d, "Button2");
    QLabel* antaua = fenestro.kadrita();
    const int pagho = langetoj->currentIndex();
    klakas(d, "Button1");
    QVERIFY2(pozicio(d).contains("(TFrame41.Label84)"), qPrintable(pozicio(d)));
    QCOMPARE(fenestro.kadrita(), antaua);
    QCOMPARE(langetoj->currentIndex(), pagho);
}

void tst_tradukilo::mankantajKampoj()
{
    lernilo fenestro;
    traduko* d = malfermas(fenestro);
    d->findChild<QPlainTextEdit*>("Memo1")->setPlainText("Izgovorjava");
    QString mesagho;
    akceptasMesaghon(&mesagho);
    elektasSekcion(d, "Lec02");
    QCOMPARE(mesagho, QStringLiteral("Bonvolu plenigi devigajn informojn (en la kampoj kun flava fono)."));
    QCOMPARE(d->findChild<QComboBox*>("Listo")->currentText(), QStringLiteral("Gheneralaj"));
    QVERIFY(!fenestro.leciono(2));

    mesagho.clear();
    akceptasMesaghon(&mesagho);
    d->findChild<QLineEdit*>("Edit_dosiero")->setText("alia.trd");
    d->close();
    QCOMPARE(mesagho, QStringLiteral("Bonvolu plenigi devigajn informojn (en la kampoj kun flava fono)."));
    QVERIFY(!d->isVisible());
    QVERIFY(!QFile::exists(savasLoko + "alia.trd"));
    QSettings agordoj(savasLoko + "lernilomelo.ini", QSettings::IniFormat);
    QCOMPARE(agordoj.value("Tradukilo/Dosiero").toString(), QStringLiteral("alia.trd"));
    QCOMPARE(agordoj.value("Tradukilo/Referenca1").toString(), QStringLiteral("esperanto.trd"));
    QCOMPARE(agordoj.value("Tradukilo/LastaLeciono").toInt(), 0);
}

void tst_tradukilo::mankantaReferenco()
{
    QSettings agordoj(savasLoko + "lernilomelo.ini", QSettings::IniFormat);
    agordoj.setValue("Tradukilo/Referenca2", "forigita.trd");
    agordoj.sync();
    lernilo fenestro;
    QString mesagho;
    akceptasMesaghon(&mesagho);
    traduko* d = malfermas(fenestro);
    QVERIFY(mesagho.startsWith(QString::fromUtf8("Mankas la tradukdosiero por antaŭe elektita referenca lingvo.")));
    QCOMPARE(d->findChild<QComboBox*>("lingvoj1")->currentText(), QStringLiteral("Esperanto"));
    QCOMPARE(d->findChild<QComboBox*>("lingvoj2")->currentIndex(), 0);
    QVERIFY(d->findChild<QLabel*>("Memo3")->text() != QLatin1String("Ne tradukita."));
}

void tst_tradukilo::novaLingvoEnLaKurso()
{
    {
        lernilo fenestro;
        traduko* d = malfermas(fenestro);
        plenigas(d);
        elektasSekcion(d, "Lec02");
        d->findChild<QPlainTextEdit*>("Memo1")->setPlainText(QString::fromUtf8("Osebni zaimki"));
        d->close();
    }
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Konfigurado")->click();
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    const int vico = lingvoj->findText(QString::fromUtf8("Slovenščina — slovena"));
    QVERIFY(vico >= 0);
    lingvoj->setCurrentIndex(vico);
    QMetaObject::invokeMethod(lingvoj, "activated", Q_ARG(int, vico));
    fenestro.findChild<QAbstractButton*>("shanghasKonfigurojn")->click();
    QCOMPARE(sTradukoDosiero, QStringLiteral("mia_traduko.trd"));
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QSettings tdf(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    const QString unua = "Lec02_" + tdf.value("Lec02/000").toString();
    QCOMPARE(fenestro.leciono(2)->findChild<QLabel*>(unua)->text(), QString::fromUtf8("Osebni zaimki"));
}

void tst_tradukilo::plibonigasSenditan()
{
    // Improving English: the editor starts from its texts, and the new file
    // in the writable folder, which the course prefers, still has them all.
    lernilo fenestro;
    traduko* d = malfermas(fenestro);
    plenigas(d);
    d->findChild<QLineEdit*>("Edit_dosiero")->setText("angla.trd");
    elektasSekcion(d, "Menuo");
    auto* memo = d->findChild<QPlainTextEdit*>("Memo1");
    QCOMPARE(memo->toPlainText(), d->findChild<QLabel*>("Memo3")->text());
    memo->setPlainText("What Esperanto is");
    d->close();
    QSettings trd(savasLoko + "angla.trd", QSettings::IniFormat);
    trd.setIniCodec("UTF-8");
    QCOMPARE(trd.value("Menuo/KioEstas").toString(), QStringLiteral("What Esperanto is"));
    QSettings sendita(":/tradukoj/angla.trd", QSettings::IniFormat);
    sendita.setIniCodec("UTF-8");
    QCOMPARE(trd.value("Lec01/Label1").toString(), sendita.value("Lec01/Label1").toString());
    QVERIFY(!trd.value("Lec01/Label1").toString().isEmpty());
}

void tst_tradukilo::listigasTrad()
{
    // The maintenance routine lists the lessons built in the window as the
    // shipped list does.
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QVERIFY(QMetaObject::invokeMethod(&fenestro, "listigas_trad"));
    const QString vojo = savasLoko + "tradukendaj.tdf";
    fenestro.listigasTradukendajn(vojo);
    QSettings farita(vojo, QSettings::IniFormat);
    QSettings sendita(":/tradukoj/tradukendaj.tdf", QSettings::IniFormat);
    farita.beginGroup("Lec02");
    sendita.beginGroup("Lec02");
    QVERIFY(!farita.childKeys().isEmpty());
    QCOMPARE(farita.childKeys(), sendita.childKeys());
    for (const QString& k : sendita.childKeys())
        QCOMPARE(farita.value(k).toString(), sendita.value(k).toString());
}

QTEST_MAIN(tst_tradukilo)
#include "tst_tradukilo.moc"
