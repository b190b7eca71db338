// The strip that plays a reading text or the song, inside the lessons that
// hold it: its three states, what a change of page does to it, and the end
// of a recording.
//
// The sound goes to the test's own sound server (sonservilo.h), which takes
// it at the pace of a clock, so that a recording plays for its real length
// and can be paused in the middle.

#include "lecionkadro.h"
#include "mp3ludilo.h"
#include "sonservilo.h"
#include "testaj_helpoj.h"

#include <QMediaPlayer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QtTest>

class tst_mp3ludilo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void statoj();
    void paghoShanghoHaltigasNurLudantan();
    void kantoPluLudasUnuPaghonAntauen();
    void finoRevenasAlKomenco();

private:
    QString stato(mp3ludilo* s) const;
    QMediaPlayer* ludiloDe(mp3ludilo* s) const { return s->findChild<QMediaPlayer*>(); }
    void klakas(mp3ludilo* s, const char* butono) { s->findChild<QPushButton*>(butono)->click(); }
    // Shows the lesson on the page of the strip and returns the strip.
    mp3ludilo* strio(lecionkadro* kadro, const char* nomo) const;

    QTemporaryDir ujo;
    SonServilo servilo;
};

// The state as the learner sees it, from the buttons shown, checked against
// the player's own state.
QString tst_mp3ludilo::stato(mp3ludilo* s) const
{
    const auto montrata = [s](const char* b) { return !s->findChild<QPushButton*>(b)->isHidden(); };
    const QString videbla = montrata("Ludu") && !montrata("Pauzu") && !montrata("Chesu")  ? "haltigita"
                            : !montrata("Ludu") && montrata("Pauzu") && montrata("Chesu") ? "ludanta"
                            : montrata("Ludu") && !montrata("Pauzu") && montrata("Chesu") ? "paŭzita"
                                                                                            : "?";
    static const char* const nomoj[] = {"haltigita", "ludanta", "paŭzita"};
    const QString ludila = QString::fromUtf8(nomoj[ludiloDe(s)->state()]);
    return videbla == ludila ? videbla : videbla + "/" + ludila;
}

mp3ludilo* tst_mp3ludilo::strio(lecionkadro* kadro, const char* nomo) const
{
    auto* s = kadro->findChild<mp3ludilo*>(nomo);
    if (!s)
        return nullptr;
    QWidget* pagho = s;
    while (pagho->parentWidget() && qobject_cast<QStackedWidget*>(pagho->parentWidget()) == nullptr)
        pagho = pagho->parentWidget();
    kadro->langetoj()->setCurrentWidget(pagho);
    return s;
}

void tst_mp3ludilo::initTestCase()
{
    QVERIFY2(servilo.startas(), qPrintable(servilo.eraro));
    preparasLokojn(ujo);
    const QString arbo = QStringLiteral(LERNILO_MEDIOJ "/sonoj/");
    QVERIFY2(QFile::exists(arbo + "lec04/memo1.oga"), "the sound tree has not been made");
    QDir().mkpath(mrLoko + "sonoj/lec04");
    QDir().mkpath(mrLoko + "sonoj/lec12");
    // A reading text of a minute, and a song as short as the note for right.
    QVERIFY(QFile::copy(arbo + "lec04/memo1.oga", mrLoko + "sonoj/lec04/memo1.oga"));
    QVERIFY(QFile::copy(arbo + "noteto_jes.oga", mrLoko + "sonoj/lec12/fragoj.oga"));
}

void tst_mp3ludilo::statoj()
{
    QWidget gepatro;
    lecionkadro kadro(4, &gepatro);
    mp3ludilo* s = strio(&kadro, "Lec04_memo1");
    QVERIFY(s);
    QCOMPARE(stato(s), QStringLiteral("haltigita"));

    klakas(s, "Ludu");
    QCOMPARE(ludiloDe(s)->media().request().url().toLocalFile(), mrLoko + "sonoj/lec04/memo1.oga");
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    QTRY_VERIFY(ludiloDe(s)->position() > 300);

    klakas(s, "Pauzu");
    QCOMPARE(stato(s), QString::fromUtf8("paŭzita"));
    const qint64 loko = ludiloDe(s)->position();
    QTest::qWait(300);
    QVERIFY(qAbs(ludiloDe(s)->position() - loko) < 100);

    // Play goes on from where it was paused.
    klakas(s, "Ludu");
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    QTRY_VERIFY(ludiloDe(s)->position() > loko + 200);
    QVERIFY(ludiloDe(s)->position() < loko + 2000);

    klakas(s, "Chesu");
    QCOMPARE(stato(s), QStringLiteral("haltigita"));
    klakas(s, "Ludu");
    klakas(s, "Pauzu");
    klakas(s, "Chesu");
    QCOMPARE(stato(s), QStringLiteral("haltigita"));
}

void tst_mp3ludilo::paghoShanghoHaltigasNurLudantan()
{
    QWidget gepatro;
    lecionkadro kadro(4, &gepatro);
    QTabWidget* langetoj = kadro.langetoj();
    mp3ludilo* s = strio(&kadro, "Lec04_memo1");
    const int pagho = langetoj->currentIndex();

    // A strip that never played is left alone.
    langetoj->setCurrentIndex(0);
    langetoj->setCurrentIndex(pagho);
    QCOMPARE(stato(s), QStringLiteral("haltigita"));

    klakas(s, "Ludu");
    langetoj->setCurrentIndex(pagho + 1);
    QCOMPARE(stato(s), QStringLiteral("haltigita"));

    langetoj->setCurrentIndex(pagho);
    klakas(s, "Ludu");
    QTRY_VERIFY(ludiloDe(s)->position() > 300);
    klakas(s, "Pauzu");
    const qint64 loko = ludiloDe(s)->position();
    langetoj->setCurrentIndex(0);
    QCOMPARE(stato(s), QString::fromUtf8("paŭzita"));
    langetoj->setCurrentIndex(pagho);
    klakas(s, "Ludu");
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    QTRY_VERIFY(ludiloDe(s)->position() > loko + 100);
    QVERIFY(ludiloDe(s)->position() < loko + 2000);
}

void tst_mp3ludilo::kantoPluLudasUnuPaghonAntauen()
{
    QFile::remove(mrLoko + "sonoj/lec12/fragoj.oga");
    QVERIFY(QFile::copy(mrLoko + "sonoj/lec04/memo1.oga", mrLoko + "sonoj/lec12/fragoj.oga"));

    QWidget gepatro;
    lecionkadro kadro(12, &gepatro);
    QTabWidget* langetoj = kadro.langetoj();
    mp3ludilo* s = strio(&kadro, "Lec12_fragoj");
    QVERIFY(s);
    const int pagho = langetoj->currentIndex();

    klakas(s, "Ludu");
    langetoj->setCurrentIndex(pagho + 1);   // to the words of the song
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    langetoj->setCurrentIndex(pagho);
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    langetoj->setCurrentIndex(pagho + 2);
    QCOMPARE(stato(s), QStringLiteral("haltigita"));

    langetoj->setCurrentIndex(pagho);
    klakas(s, "Ludu");
    langetoj->setCurrentIndex(pagho - 1);
    QCOMPARE(stato(s), QStringLiteral("haltigita"));

    QFile::remove(mrLoko + "sonoj/lec12/fragoj.oga");
    QVERIFY(QFile::copy(QStringLiteral(LERNILO_MEDIOJ "/sonoj/noteto_jes.oga"), mrLoko + "sonoj/lec12/fragoj.oga"));
}

void tst_mp3ludilo::finoRevenasAlKomenco()
{
    QWidget gepatro;
    lecionkadro kadro(12, &gepatro);
    mp3ludilo* s = strio(&kadro, "Lec12_fragoj");
    klakas(s, "Ludu");
    QTRY_COMPARE_WITH_TIMEOUT(stato(s), QStringLiteral("haltigita"), 5000);
    klakas(s, "Ludu");
    QCOMPARE(stato(s), QStringLiteral("ludanta"));
    QVERIFY(ludiloDe(s)->position() < 300);
}

int main(int argc, char** argv)
{
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "pulsesink");
    QApplication app(argc, argv);
    tst_mp3ludilo t;
    return QTest::qExec(&t, argc, argv);
}
#include "tst_mp3ludilo.moc"
