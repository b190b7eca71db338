// Applying a translation: the file formats as they are read, the main
// window's own pages, and the relabelling of a lesson by object names.

#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "label_sago_reversa.h"
#include "lernilo.h"
#include "neklakebla_nova.h"
#include "testaj_helpoj.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QMessageBox>
#include <QtTest>

class tst_traduko : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void kapoSubAliaGrupo();
    void chefajPaghoj();
    void dekstrenMaldekstrenSpegulas();
    void mankantaDosieroDonasAnglan();
    void tradEtikedoj();
    void tradDirektoKajMarkoj();
    void samaLingvoNeRetradukas();
    void ruslingvajDuVicoj();

private:
    QWidget* lecionaArbo(QWidget* radiko);

    QTemporaryDir* ujo = nullptr;
};

void tst_traduko::init()
{
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo, "provo.trd", "Provo");
}

void tst_traduko::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    delete ujo;
}

// The header is found after another group too.
void tst_traduko::kapoSubAliaGrupo()
{
    QVERIFY(skribas("provo.trd", "[General]\r\nfoo=bar\r\n\r\n[Traduko]\r\nLingvo=Provo\r\nTradukinto=Ana\r\nLingvoID=xx\r\n\r\n"
                                   "[Menuo4]\r\nLabel3=Autor\r\n"));
    lernilo fenestro;
    QCOMPARE(sTradukinto, QStringLiteral("Ana"));
    QCOMPARE(sLingvoID, QStringLiteral("xx"));
    QCOMPARE(fenestro.findChild<QLabel*>("Tradukinto")->text(), QStringLiteral("Ana"));
    QCOMPARE(fenestro.findChild<QLabel*>("Kredit_Label3")->text(), QStringLiteral("Autor"));
    // A credits heading the file does not have shows the default.
    QCOMPARE(fenestro.findChild<QLabel*>("Kredit_Titolo")->text(), QStringLiteral("Ne Tradukita"));
}

void tst_traduko::chefajPaghoj()
{
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n\r\n"
                         "[Menuo]\r\nKioEstas=What\r\nKielUzi=How\r\nKonfigurado=Settings\r\nKreditoj=Credits\r\nEliri=Exit\r\nKieButono=Where\r\n"));
    lernilo fenestro;
    // One key may name two labels.
    QCOMPARE(fenestro.findChild<QLabel*>("label_Konfiguroj")->text(), QStringLiteral("Settings"));
    QCOMPARE(fenestro.findChild<QLabel*>("Label_Konfigurado")->text(), QStringLiteral("Settings"));
    QCOMPARE(fenestro.findChild<QLabel*>("label_Kie")->text(), QStringLiteral("Where"));
    // Every run of the translation adds one mark to the letter-system options.
    const QString antaue = fenestro.findChild<QAbstractButton*>("radioButton")->text();
    QVERIFY(antaue.endsWith(QChar(0x200E)));
    fenestro.Traduku();
    QCOMPARE(fenestro.findChild<QAbstractButton*>("radioButton")->text(), antaue + QChar(0x200E));
}

void tst_traduko::dekstrenMaldekstrenSpegulas()
{
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=ar\r\nDirekto=RTL\r\n"));
    {
        lernilo fenestro;
        QCOMPARE(Direkto, QStringLiteral("RTL"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    }
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n"));
    lernilo fenestro;
    QCOMPARE(Direkto, QStringLiteral("LTR"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

void tst_traduko::mankantaDosieroDonasAnglan()
{
    preparasLerninton(*ujo, "mankas.trd", "Mankas");
    akceptasMesaghon();
    lernilo fenestro;
    QCOMPARE(sTradukoDosiero, QStringLiteral("angla.trd"));
    QCOMPARE(sLingvo, QString::fromUtf8("English — Angla"));
    QCOMPARE(sLingvoID, QStringLiteral("en"));
    QVERIFY(!NeEkzistasTraduko);
    // The capital A matches no row of the list.
    QCOMPARE(fenestro.findChild<QComboBox*>("Lingvo")->currentIndex(), -1);
}

// A lesson-like tree with the names that the relabelling must tell apart.
QWidget* tst_traduko::lecionaArbo(QWidget* radiko)
{
    auto etikedo = [](QWidget* gepatro, const char* nomo, const char* teksto) {
        auto* e = new QLabel(QString::fromLatin1(teksto), gepatro);
        e->setObjectName(nomo);
        return e;
    };
    auto kadro = [](QWidget* gepatro, const char* nomo) {
        auto* f = new QFrame(gepatro);
        f->setObjectName(nomo);
        return f;
    };
    etikedo(radiko, "Lec10_Label5", "pt");
    QFrame* ekzerco = kadro(radiko, "Lec10_Ekz_Plen_1002");
    etikedo(ekzerco, "Ekz_Plen2", "pt");
    etikedo(ekzerco, "Ekz_Plen1", "pt");
    QFrame* duaEkzerco = kadro(radiko, "Lec10B_Ekz_Plen_1001");
    etikedo(duaEkzerco, "Ekz_Plen2", "pt");
    QFrame* numeroj = kadro(radiko, "Lec10_Ekz_0301");
    etikedo(numeroj, "Lec10_Label11", "pt");
    etikedo(radiko, "Titolo_ekzerco_frazo", "Frazo");
    etikedo(radiko, "Ekz_Vort2", "pt");
    auto* vorto = new klakbutono_nova(radiko);
    vorto->setObjectName("Lec10_Button3");
    vorto->setText("viro");
    auto* silenta = new neklakebla_nova(radiko);
    silenta->setObjectName("label_9");
    silenta->setText("virino");
    silenta->setProperty("tipo", "esperanta");
    auto* modelo = new korekta(radiko);
    modelo->setObjectName("Lec10_Label12");
    modelo->setText("La viro.");
    auto* sago = new label_sago_reversa(radiko);
    sago->setObjectName("label_10");
    return radiko;
}

void tst_traduko::tradEtikedoj()
{
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n\r\n"
                         "[Lec10]\r\nLabel5=five\r\nLabel11=eleven\r\nTFrame41.Label84=gap one\r\nFrame42.Label84=gap two\r\nButton3=never\r\nLabel12=never\r\n\r\n"
                         "[Gheneralaj]\r\nTFrame4.Label83=Vocabulary\r\nTFrame1.Label7=Choose\r\n"));
    sTradukoDosiero = "provo.trd";
    QWidget radiko;
    lecionaArbo(&radiko);
    Trad(&radiko, "Lec10");
    auto teksto = [&radiko](const char* nomo) { return radiko.findChild<QLabel*>(nomo)->text(); };
    QCOMPARE(teksto("Lec10_Label5"), QStringLiteral("five"));
    // Inside an exercise, a label of the lesson still belongs to the lesson.
    QCOMPARE(teksto("Lec10_Label11"), QStringLiteral("eleven"));
    QCOMPARE(radiko.findChild<QFrame*>("Lec10_Ekz_Plen_1002")->findChild<QLabel*>("Ekz_Plen2")->text(), QStringLiteral("gap one"));
    QCOMPARE(radiko.findChild<QFrame*>("Lec10B_Ekz_Plen_1001")->findChild<QLabel*>("Ekz_Plen2")->text(), QStringLiteral("gap two"));
    QCOMPARE(teksto("Ekz_Plen1"), QStringLiteral("Vocabulary"));
    QCOMPARE(teksto("Ekz_Vort2"), QStringLiteral("Choose"));
    QCOMPARE(teksto("Titolo_ekzerco_frazo"), QStringLiteral("Frazo"));
    // The Esperanto words and model answers are never relabelled.
    QCOMPARE(teksto("Lec10_Button3"), QStringLiteral("viro"));
    QCOMPARE(teksto("Lec10_Label12"), QStringLiteral("La viro."));
    QCOMPARE(teksto("label_9"), QStringLiteral("virino"));
    QCOMPARE(radiko.findChild<QLabel*>("label_9")->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(radiko.findChild<QLabel*>("label_10")->styleSheet(), QStringLiteral("margin-left: 15px;"));
    QCOMPARE(radiko.findChild<QLabel*>("label_10")->pixmap(Qt::ReturnByValue).toImage(),
             QPixmap(":ikonoj/sago_revena.png").toImage());

    // A key the file lacks shows the default.
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n"));
    Trad(&radiko, "Lec10");
    QCOMPARE(teksto("Lec10_Label5"), QStringLiteral("Ne Tradukita"));
}

void tst_traduko::tradDirektoKajMarkoj()
{
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=ar\r\nDirekto=RTL\r\n"));
    sTradukoDosiero = "provo.trd";
    QWidget radiko;
    lecionaArbo(&radiko);
    Trad(&radiko, "Lec10");
    auto* silenta = radiko.findChild<QLabel*>("label_9");
    QCOMPARE(silenta->text(), QString::fromUtf8("virino\u200E"));
    QCOMPARE(silenta->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(radiko.findChild<QLabel*>("Lec10_Button3")->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(radiko.findChild<QLabel*>("label_10")->styleSheet(), QStringLiteral("margin-right: 15px;"));
    QCOMPARE(radiko.findChild<QLabel*>("label_10")->pixmap(Qt::ReturnByValue).toImage(),
             QPixmap(":ikonoj/sago_revena_RTL.png").toImage());
    Trad(&radiko, "Lec10");
    QCOMPARE(silenta->text(), QString::fromUtf8("virino\u200E\u200E"));
}

void tst_traduko::samaLingvoNeRetradukas()
{
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n\r\n[Lec02]\r\nLabel1=first\r\n"));
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    auto* etikedo = fenestro.findChild<QLabel*>("Lec02_Label1");
    QVERIFY(etikedo);
    QCOMPARE(etikedo->text(), QStringLiteral("first"));
    etikedo->setText("changed by hand");
    fenestro.findChild<QAbstractButton*>("Hejmo")->click();
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QCOMPARE(etikedo->text(), QStringLiteral("changed by hand"));

    // Another language: relabelled at the next entry, not before.
    QVERIFY(skribas("alia.trd", "[Traduko]\r\nLingvoID=yy\r\n\r\n[Lec02]\r\nLabel1=second\r\n"));
    sTradukoDosiero = "alia.trd";
    fenestro.findChild<QAbstractButton*>("Hejmo")->click();
    QCOMPARE(etikedo->text(), QStringLiteral("changed by hand"));
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QCOMPARE(etikedo->text(), QStringLiteral("second"));
}

void tst_traduko::ruslingvajDuVicoj()
{
    QVERIFY(skribas("traduklisto.ini", QString::fromUtf8(
        "[0]\r\nLingvoID=ru\r\nLingvo=Русский — rusa_1\r\nDosierNomo=rusa.trd\r\nDato=09.07.2020\r\n\r\n"
        "[1]\r\nLingvoID=ru\r\nLingvo=Русский — rusa_2\r\nDosierNomo=rusa2.trd\r\nDato=09.07.2020\r\n\r\n"
        "[2]\r\nLingvoID=xx\r\nLingvo=Malica\r\nDosierNomo=../../malica.trd\r\nDato=09.07.2020\r\n\r\n"
        "[3]\r\nLingvoID=en\r\nLingvo=English\r\nDosierNomo=angla.trd\r\nDato=09.07.2020\r\n").toUtf8()));
    QVERIFY(skribas("provo.trd", "[Traduko]\r\nLingvoID=xx\r\n"));
    lernilo fenestro;
    auto* lingvoj = fenestro.findChild<QComboBox*>("Lingvo");
    QCOMPARE(lingvoj->itemText(0), QString::fromUtf8("Русский — rusa_1"));
    QCOMPARE(lingvoj->itemText(1), QString::fromUtf8("Русский — rusa_2"));
    // A name leading out of the writable folder is left out of the list.
    QCOMPARE(lingvoj->itemText(2), QStringLiteral("English"));
    QCOMPARE(lingvoj->findText("Malica"), -1);
}

QTEST_MAIN(tst_traduko)
#include "tst_traduko.moc"
