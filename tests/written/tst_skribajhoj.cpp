// Written work: model answers shown and hidden, answers kept between runs,
// and hand-in by the clipboard.

#include "cx_edit.h"
#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "korekta_butono.h"
#include "lernilo.h"
#include "sendas_butono.h"
#include "testaj_helpoj.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

// A lesson frame "lecNN" with its tab widget and written pages built by hand,
// so that the expected hand-in text can be written out exactly.
struct Leciono
{
    QFrame kadro;
    QTabWidget* langetoj;

    explicit Leciono(const QString& nn)
    {
        kadro.setObjectName("lec" + nn);
        langetoj = new QTabWidget(&kadro);
        langetoj->setObjectName("Lec" + nn);
    }

    QWidget* pagho(const QString& nomo)
    {
        auto* p = new QWidget;
        p->setObjectName(nomo);
        auto* rulumo = new QScrollArea(p);
        auto* enhavo = new QWidget;
        new QVBoxLayout(enhavo);
        rulumo->setWidget(enhavo);
        rulumo->setWidgetResizable(true);
        langetoj->addTab(p, nomo);
        return enhavo;
    }

    static QLabel* etikedo(QWidget* enhavo, const QString& teksto, QWidget* amiko = nullptr)
    {
        auto* e = new QLabel(teksto, enhavo);
        e->setBuddy(amiko);
        enhavo->layout()->addWidget(e);
        return e;
    }

    template <typename T>
    static T* kampo(QWidget* enhavo, const QString& nomo)
    {
        auto* k = new T(enhavo);
        k->setObjectName(nomo);
        enhavo->layout()->addWidget(k);
        return k;
    }
};

} // namespace

class tst_skribajhoj : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void korektojMontrataj();
    void respondojKonservataj();
    void nemalfermitaLecionoRestas();
    void plenaDiskoLasasDosieron();
    void sendadoDePagho();
    void sendadoDeFinaEkzameno();

private:
    QTemporaryDir* ujo = nullptr;
};

void tst_skribajhoj::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    lCxapeligo = true;
    iSistemo = 0;
    smTondujo = "Copied.";
}

void tst_skribajhoj::cleanup()
{
    delete ujo;
}

void tst_skribajhoj::korektojMontrataj()
{
    Leciono l("04");
    QWidget* unua = l.pagho("Sendas1_Lec04");
    QWidget* dua = l.pagho("Sendas2_Lec04");
    auto* respondo1 = Leciono::kampo<korekta>(unua, "label");
    auto* respondo2 = Leciono::kampo<korekta>(unua, "label_2");
    auto* alia = Leciono::kampo<korekta>(dua, "label_3");
    auto* butono = Leciono::kampo<korekta_butono>(unua, "pushButton");
    QVERIFY(respondo1->isHidden() && respondo2->isHidden() && respondo1->wordWrap());
    l.kadro.show();

    butono->click();
    QVERIFY(!respondo1->isHidden());
    QVERIFY(!respondo2->isHidden());
    QVERIFY(alia->isHidden());   // another page stays as it was
    butono->click();
    QVERIFY(respondo1->isHidden());
    QVERIFY(respondo2->isHidden());
}

void tst_skribajhoj::respondojKonservataj()
{
    {
        lernilo fenestro;
        fenestro.findChild<QAbstractButton*>("Leciono2")->click();
        auto* paghoj = fenestro.leciono(2)->findChild<QTabWidget*>();
        QWidget* skriba = paghoj->findChild<QWidget*>("Sendas1_Lec02");
        QTest::keyClicks(skriba->findChild<QLineEdit*>("lineEdit"), "Mi sxatas cxokoladon.");
        skriba->findChild<QLineEdit*>("lineEdit_2")->setText("Jes, mi, vi.");
        lCxapeligo = false;
        QTest::keyClicks(skriba->findChild<QLineEdit*>("lineEdit_3"), "sx");
        lCxapeligo = true;

        fenestro.findChild<QAbstractButton*>("Leciono13")->click();
        auto* longa = fenestro.leciono(13)->findChild<QWidget*>("Sendas5_Lec13")->findChild<QPlainTextEdit*>();
        QVERIFY(longa);
        longa->setPlainText(QString::fromUtf8("Unua linio.\nDua linio, kun ĉ."));
        fenestro.findChild<QAbstractButton*>("Hejmo")->click();
        QCloseEvent fermo;
        QApplication::sendEvent(&fenestro, &fermo);
        QVERIFY(fermo.isAccepted());
    }
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QWidget* skriba = fenestro.leciono(2)->findChild<QWidget*>("Sendas1_Lec02");
    QCOMPARE(skriba->findChild<QLineEdit*>("lineEdit")->text(), QString::fromUtf8("Mi ŝatas ĉokoladon."));
    QCOMPARE(skriba->findChild<QLineEdit*>("lineEdit_2")->text(), QStringLiteral("Jes, mi, vi."));
    QCOMPARE(skriba->findChild<QLineEdit*>("lineEdit_3")->text(), QStringLiteral("sx"));
    QCOMPARE(skriba->findChild<QLineEdit*>("lineEdit_4")->text(), QString());
    fenestro.findChild<QAbstractButton*>("Leciono13")->click();
    auto* longa = fenestro.leciono(13)->findChild<QWidget*>("Sendas5_Lec13")->findChild<QPlainTextEdit*>();
    QCOMPARE(longa->toPlainText(), QString::fromUtf8("Unua linio.\nDua linio, kun ĉ."));
}

void tst_skribajhoj::nemalfermitaLecionoRestas()
{
    inidosiero(agordoVojo()).setValue("Lec05/lineEdit", QString::fromUtf8("Ŝi kantas."));
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono1")->click();
    fenestro.findChild<QAbstractButton*>("Hejmo")->click();
    QCloseEvent fermo;
    QApplication::sendEvent(&fenestro, &fermo);
    inidosiero agordoj(agordoVojo());
    QCOMPARE(agordoj.value("Lec05/lineEdit").toString(), QString::fromUtf8("Ŝi kantas."));
    QVERIFY(agordoj.childGroups().contains("Lec01"));
}

void tst_skribajhoj::plenaDiskoLasasDosieron()
{
    // A disk that fills while the course closes: the file it had stays whole.
    inidosiero(agordoVojo()).setValue("Lec05/lineEdit", QString::fromUtf8("Ŝi kantas."));
    QFile dosiero(agordoVojo());
    QVERIFY(dosiero.open(QIODevice::ReadOnly));
    const QByteArray antaue = dosiero.readAll();
    dosiero.close();

    lernilo fenestro;
    lSxaltilo = false;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    fenestro.leciono(2)->findChild<QLineEdit*>("lineEdit")->setText(QString(2000, 'a'));
    fenestro.findChild<QAbstractButton*>("Hejmo")->click();

    rlimit limo;
    getrlimit(RLIMIT_FSIZE, &limo);
    const rlimit malgranda = {rlim_t(antaue.size()), limo.rlim_max};
    const auto signalo = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &malgranda);
    QCloseEvent fermo;
    QApplication::sendEvent(&fenestro, &fermo);
    setrlimit(RLIMIT_FSIZE, &limo);
    std::signal(SIGXFSZ, signalo);

    QVERIFY(dosiero.open(QIODevice::ReadOnly));
    QCOMPARE(dosiero.readAll(), antaue);
}

void tst_skribajhoj::sendadoDePagho()
{
    Leciono l("04");
    QWidget* p = l.pagho("Sendas1_Lec04");
    Leciono::etikedo(p, "Traduza:");
    auto* k1 = Leciono::kampo<cx_edit>(p, "lineEdit");
    Leciono::etikedo(p, " 1. O menino. ", k1);
    k1->setText(QString::fromUtf8("La knabo ŝatas."));
    auto* k2 = Leciono::kampo<cx_edit>(p, "lineEdit_2");
    Leciono::etikedo(p, "2. A menina.", k2);
    auto* k3 = Leciono::kampo<QPlainTextEdit>(p, "plainTextEdit");
    Leciono::etikedo(p, "3. Um texto.", k3);
    k3->setPlainText("Unu.\nDu.");
    Leciono::kampo<korekta>(p, "label")->setText("La knabo.");
    Leciono::kampo<klakbutono_nova>(p, "Lec04_Button3")->setText("vorto");
    auto* butono = Leciono::kampo<sendas_butono>(p, "pushButton_2");

    // The page's own button: no model answers, no Esperanto words.
    QString skatolo;
    akceptasMesaghon(&skatolo);
    butono->click();
    QCOMPARE(skatolo, QStringLiteral("Copied."));
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(
        "Leciono 04 - Paĝo 1\n\n"
        "\n\nTraduza:\n\n"
        "1. O menino.\nLa knabo ŝatas.\n\n"
        "2. A menina.\n"
        "3. Um texto.\n\n\nUnu.\nDu.\n\n"));

    // The footer's path takes every label as it comes, here in the x-system.
    iSistemo = 1;
    akceptasMesaghon();
    Sendas(p->parentWidget()->parentWidget()->parentWidget(), 1);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(
        "Leciono 04 - Pagxo 1\n\n"
        "Traduza:\n\n"
        "1. O menino.\nLa knabo sxatas.\n\n"
        "2. A menina.\n"
        "3. Um texto.\n\n\nUnu.\nDu.\n\n"
        "La knabo.\n\n"
        "vorto\n\n"));
}

void tst_skribajhoj::sendadoDeFinaEkzameno()
{
    Leciono l("13");
    QList<QWidget*> paghoj;
    for (const char* nomo : {"tab", "tab_2", "tab_3", "tab_4", "Sendas5_Lec13"})
        paghoj << l.pagho(nomo);
    Leciono::etikedo(paghoj.at(0), "Parte 1");
    auto* k = Leciono::kampo<cx_edit>(paghoj.at(1), "lineEdit");
    Leciono::etikedo(paghoj.at(1), "1. Casa.", k);
    k->setText("domo");
    Leciono::etikedo(paghoj.at(4), "Redação");
    auto* butono = Leciono::kampo<sendas_butono>(paghoj.at(4), "pushButton");
    l.langetoj->setCurrentIndex(4);

    akceptasMesaghon();
    butono->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(
        "Leciono 13\n\nParte 1\n\n1. Casa.\ndomo\n\n\n\nRedação\n\n"));
    // The footer's path: the title runs straight into the first label.
    l.langetoj->setCurrentIndex(1);
    akceptasMesaghon();
    Sendas(l.langetoj->currentWidget(), 2);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(
        "Leciono 13Parte 1\n\n1. Casa.\ndomo\n\nRedação\n\n"));
}

QTEST_MAIN(tst_skribajhoj)
#include "tst_skribajhoj.moc"
