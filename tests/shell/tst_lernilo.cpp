// The main window's routing: lessons built once and on demand, the resume
// point, home, and closing only from the home page.

#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QSettings>
#include <QStackedWidget>
#include <QTabWidget>
#include <QtTest>

class tst_lernilo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void ikonoKajMonitoroj();
    void lecionoKonstruataUnufoje();
    void nekonataPaghoShanghasNenion();
    void rekomencoEnSamaLeciono_data();
    void rekomencoEnSamaLeciono();
    void aliaLecionoKomencasDeUnua();
    void paghojAranghatajNurKiamMontrataj();
    void aliaFenestroNeShovasRekomencon();
    void navigiloRondiras();
    void navigiloPerKlavaro();
    void sagojLauDirekto_data();
    void sagojLauDirekto();
    void fermoElLecionoIrasHejmen();
    void fermoElHejmoKonservas();

private:
    void klakas(const QString& butono);
    QTabWidget* langetoj(int leciono);

    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
};

void tst_lernilo::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    fenestro = new lernilo;
    // The resume point follows the pages only while the main window is active.
    QVERIFY(aktivigas(fenestro));
}

void tst_lernilo::cleanup()
{
    delete fenestro;
    delete ujo;
}

void tst_lernilo::klakas(const QString& butono)
{
    auto* b = fenestro->findChild<QAbstractButton*>(butono);
    QVERIFY2(b, qPrintable(butono));
    b->click();
}

QTabWidget* tst_lernilo::langetoj(int leciono)
{
    QFrame* kadro = fenestro->leciono(leciono);
    return kadro ? kadro->findChild<QTabWidget*>() : nullptr;
}

void tst_lernilo::ikonoKajMonitoroj()
{
    QVERIFY(!QApplication::windowIcon().isNull());
    QVERIFY(QApplication::windowIcon().availableSizes().value(0).width() >= 64);
    const QString ligilo = fenestro->findChild<QLabel*>("label_126")->text();
    QVERIFY2(ligilo.contains("href=\"" + sServilo + "/monitoroj\""), qPrintable(ligilo));
}

void tst_lernilo::lecionoKonstruataUnufoje()
{
    klakas("Leciono3");
    QFrame* unua = fenestro->leciono(3);
    QVERIFY(unua);
    klakas("Hejmo");
    klakas("Leciono3");
    QCOMPARE(fenestro->leciono(3), unua);
    QCOMPARE(fenestro->findChild<QWidget*>("Pagho03")->findChildren<QTabWidget*>().size(), 1);
    QCOMPARE(fenestro->leciono(4), nullptr);
}

void tst_lernilo::nekonataPaghoShanghasNenion()
{
    LastaLeciono = 4;
    LastaPagxo = 2;
    fenestro->ShanghasPaghon("Pagho14", nullptr);
    auto* paghujo = fenestro->findChild<QStackedWidget*>("Paghujo");
    QCOMPARE(paghujo->currentIndex(), 0);
    QCOMPARE(LastaLeciono, 4);
    QCOMPARE(LastaPagxo, 2);
}

void tst_lernilo::rekomencoEnSamaLeciono_data()
{
    QTest::addColumn<QString>("butono");
    QTest::newRow("by the lesson button") << "Leciono5";
    QTest::newRow("by 'where I stopped'") << "KieButono";
}

void tst_lernilo::rekomencoEnSamaLeciono()
{
    QFETCH(QString, butono);
    // As read from the settings of a run that ended on lesson 5, page 7.
    LastaLeciono = 5;
    LastaPagxo = 7;
    klakas(butono);
    QCOMPARE(langetoj(5)->currentIndex(), 7);
    QCOMPARE(LastaLeciono, 5);
    QCOMPARE(LastaPagxo, 7);
    QCOMPARE(fenestro->findChild<QLabel*>("kiom_da_paghoj")->text(), QStringLiteral("8/12"));
}

void tst_lernilo::aliaLecionoKomencasDeUnua()
{
    // Lesson 3's source names tab 9 as its current one; the learner sees page 0.
    klakas("Leciono3");
    QCOMPARE(langetoj(3)->currentIndex(), 0);
    klakas("dekstren");
    klakas("dekstren");
    klakas("Hejmo");
    QCOMPARE(LastaPagxo, 2);
    klakas("Leciono3");   // home kept the resume point
    QCOMPARE(langetoj(3)->currentIndex(), 2);
    klakas("Hejmo");
    klakas("Leciono4");
    QCOMPARE(LastaLeciono, 4);
    klakas("Hejmo");
    klakas("Leciono3");
    QCOMPARE(langetoj(3)->currentIndex(), 0);
    QCOMPARE(LastaPagxo, 0);
}

void tst_lernilo::paghojAranghatajNurKiamMontrataj()
{
    klakas("Leciono1");
    QTabWidget* l = langetoj(1);
    auto rulumoDe = [l](int i) { return l->widget(i)->findChild<QScrollArea*>(); };
    // Tab 0 is shown without any change of tab, and still laid out.
    QVERIFY(rulumoDe(0)->widgetResizable());
    QVERIFY(!rulumoDe(2)->widgetResizable());
    QVERIFY(!rulumoDe(3)->widgetResizable());
    klakas("dekstren");
    klakas("dekstren");
    QCOMPARE(l->currentIndex(), 2);
    QVERIFY(rulumoDe(2)->widgetResizable());
    QVERIFY(!rulumoDe(3)->widgetResizable());
}

void tst_lernilo::aliaFenestroNeShovasRekomencon()
{
    klakas("Leciono2");
    langetoj(2)->setCurrentIndex(3);
    QCOMPARE(LastaPagxo, 3);

    QWidget alia;
    QVERIFY(aktivigas(&alia));
    langetoj(2)->setCurrentIndex(5);
    QCOMPARE(LastaPagxo, 3);
}

void tst_lernilo::navigiloRondiras()
{
    klakas("Leciono3");
    QTabWidget* l = langetoj(3);
    auto* nombrilo = fenestro->findChild<QLabel*>("kiom_da_paghoj");
    QCOMPARE(nombrilo->text(), QStringLiteral("1/10"));
    klakas("maldekstren");
    QCOMPARE(l->currentIndex(), 9);
    QCOMPARE(nombrilo->text(), QStringLiteral("10/10"));
    QCOMPARE(LastaPagxo, 9);
    klakas("dekstren");
    QCOMPARE(l->currentIndex(), 0);
    QCOMPARE(nombrilo->text(), QStringLiteral("1/10"));
    // The picture of the lesson stands beside the counter.
    const QImage bildo = fenestro->findChild<QLabel*>("leciono")->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(bildo, QPixmap(":/ikonoj_androjdo/hejmo/leciono03.png").toImage());
}

void tst_lernilo::navigiloPerKlavaro()
{
    klakas("Leciono3");
    QTabWidget* l = langetoj(3);
    QTest::keyClick(fenestro, Qt::Key_PageDown);
    QCOMPARE(l->currentIndex(), 1);
    QTest::keyClick(fenestro, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(l->currentIndex(), 2);
    QCOMPARE(fenestro->findChild<QLabel*>("kiom_da_paghoj")->text(), QStringLiteral("3/10"));
    QTest::keyClick(fenestro, Qt::Key_PageUp);
    QTest::keyClick(fenestro, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(fenestro, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(l->currentIndex(), 9);

    auto* paghujo = fenestro->findChild<QStackedWidget*>("Paghujo");
    QTest::keyClick(fenestro, Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(paghujo->currentIndex(), 0);
    // The page keys turn no hidden lesson's pages from the home page.
    QTest::keyClick(fenestro, Qt::Key_PageDown);
    QCOMPARE(paghujo->currentIndex(), 0);
    QCOMPARE(l->currentIndex(), 9);
}

void tst_lernilo::sagojLauDirekto_data()
{
    QTest::addColumn<QString>("dosiero");
    QTest::addColumn<QByteArray>("direkto");   // written to the file first, unless empty
    QTest::addColumn<bool>("dekstrenMontrasDekstren");
    QTest::newRow("left to right") << "provo.trd" << QByteArray("LTR") << true;
    QTest::newRow("right to left") << "provo.trd" << QByteArray("RTL") << false;
    // And every language the course ships that is written from right to left.
    for (const QString& d : QDir(":/tradukoj", "*.trd").entryList()) {
        if (legasKapon(":/tradukoj/" + d).value("Direkto") == QLatin1String("RTL"))
            QTest::newRow(qPrintable(d)) << d << QByteArray() << false;
    }
}

void tst_lernilo::sagojLauDirekto()
{
    QFETCH(QString, dosiero);
    QFETCH(QByteArray, direkto);
    QFETCH(bool, dekstrenMontrasDekstren);
    // A translation in the writable folder comes before the one built in.
    if (!direkto.isEmpty())
        QVERIFY(skribas(dosiero, "[Traduko]\r\nLingvoID=xx\r\nDirekto=" + direkto + "\r\n"));
    sTradukoDosiero = dosiero;
    fenestro->Traduku();
    QCOMPARE(QGuiApplication::layoutDirection() == Qt::LeftToRight, dekstrenMontrasDekstren);

    klakas("Leciono4");
    const QImage antauen = QPixmap(":/ikonoj_androjdo/baseline_arrow_forward_black_36.png").toImage();
    const QImage malantauen = QPixmap(":/ikonoj_androjdo/baseline_arrow_back_black_36.png").toImage();
    auto bildoDe = [this](const char* nomo) {
        return fenestro->findChild<QAbstractButton*>(nomo)->icon().pixmap(36, 36).toImage();
    };
    QCOMPARE(bildoDe("dekstren") == antauen, dekstrenMontrasDekstren);
    QCOMPARE(bildoDe("maldekstren") == malantauen, dekstrenMontrasDekstren);
    // Whatever the arrows show, "dekstren" goes on to the next page, and so
    // does Alt with the arrow it shows.
    klakas("dekstren");
    QCOMPARE(langetoj(4)->currentIndex(), 1);
    QTest::keyClick(fenestro, dekstrenMontrasDekstren ? Qt::Key_Right : Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(langetoj(4)->currentIndex(), 2);
    sTradukoDosiero.clear();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_lernilo::fermoElLecionoIrasHejmen()
{
    klakas("Leciono1");
    QCloseEvent evento;
    QApplication::sendEvent(fenestro, &evento);
    QVERIFY(!evento.isAccepted());
    QCOMPARE(fenestro->findChild<QStackedWidget*>("Paghujo")->currentIndex(), 0);
    inidosiero agordoj(agordoVojo());
    QVERIFY(!agordoj.contains("Gxenerala/LastaLeciono"));
}

void tst_lernilo::fermoElHejmoKonservas()
{
    klakas("Leciono6");
    langetoj(6)->setCurrentIndex(4);
    klakas("Hejmo");
    QCloseEvent evento;
    QApplication::sendEvent(fenestro, &evento);
    QVERIFY(evento.isAccepted());

    inidosiero agordoj(agordoVojo());
    agordoj.beginGroup("Gxenerala");
    QCOMPARE(agordoj.value("LastaLeciono").toInt(), 6);
    QCOMPARE(agordoj.value("LastaPagxo").toInt(), 4);
}

QTEST_MAIN(tst_lernilo)
#include "tst_lernilo.moc"
