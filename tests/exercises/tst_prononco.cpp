// Pronunciation, step by step as the learner lives it: the model, the
// recording with its progress bar, then the model and the learner's own
// recording. The recording is real: the test's sound server (sonservilo.h)
// gives a sine tone as the microphone, the recorder writes the file and the
// exercise plays that very file back.

#include "lernilo.h"
#include "prononco.h"
#include "sonservilo.h"
#include "testaj_helpoj.h"

#include <QFileInfo>
#include <QLabel>
#include <QMediaPlayer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

class tst_prononco : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { delete fenestro; delete ujo; }
    void registrasKajReludas();
    void haltoDumRegistrado();
    void senMikrofono();

private:
    // What the learner sees: the phase of a step, or "" between phases.
    QString fazo() const;
    QString ludataDe(QMediaPlayer* ludilo) const { return ludilo->media().request().url().toLocalFile(); }
    QPushButton* butono(const char* nomo) const { return ekz->findChild<QPushButton*>(nomo); }
    QWidget* w(const char* nomo) const { return ekz->findChild<QWidget*>(nomo); }
    int restas() const { return ekz->findChild<QSpinBox*>("Placar")->value(); }

    SonServilo servilo;
    QTemporaryDir* ujo = nullptr;
    lernilo* fenestro = nullptr;
    prononco* ekz = nullptr;
    QMediaPlayer* ludilo = nullptr;   // the exercise's own player
};

QString tst_prononco::fazo() const
{
    if (ekz->findChild<QLabel*>("bildo")->pixmap(Qt::ReturnByValue).isNull())
        return QString();
    if (!w("PP_Prog")->isHidden())
        return QStringLiteral("registras");
    // The comparison plays the model through the main window's player.
    return ludataDe(fenestro->ludilo).isEmpty() ? QStringLiteral("modelo") : QStringLiteral("komparas");
}

void tst_prononco::initTestCase()
{
    QVERIFY2(servilo.startas(), qPrintable(servilo.eraro));
    ujo = new QTemporaryDir;
    preparasLerninton(*ujo);
    mrLoko = QStringLiteral(LERNILO_MEDIOJ "/");   // the course's own models
    fenestro = new lernilo;
    lNoteto = false;
    lSxaltilo = false;
    fenestro->show();
    fenestro->findChild<QAbstractButton*>("Leciono1")->click();
    ekz = fenestro->leciono(1)->findChild<prononco*>("Lec01_Ekz_Pron_0102");
    QVERIFY(ekz);
    fenestro->leciono(1)->findChild<QTabWidget*>()->setCurrentWidget(ekz->parentWidget());
    ludilo = ekz->findChild<QMediaPlayer*>();
}

void tst_prononco::init()
{
    QVERIFY(aktivigas(fenestro));
    ekz->findChild<QSpinBox*>("spinBox")->setValue(2);
    fenestro->ludilo->setMedia(QMediaContent());
    if (butono("PP_Haltu")->isEnabled())
        butono("PP_Haltu")->click();   // left running by a failed test
}

void tst_prononco::registrasKajReludas()
{
    iMsEnSekundo = 750;   // a recording of 2 "seconds" lasts 1.5 s
    QFile::remove(ekz->registrajho(0));
    QStringList fazoj;
    QSet<int> restasDum;
    int progreso = 0;
    bool libera = false;   // a control the learner should not reach during the step
    QString modelo, reludata;
    QTimer rigardo;
    connect(&rigardo, &QTimer::timeout, this, [&] {
        const QString f = fazo();
        if (f.isEmpty())
            return;
        if (fazoj.isEmpty() || fazoj.last() != f)
            fazoj << f;
        restasDum << restas();
        progreso = qMax(progreso, ekz->findChild<QProgressBar*>("PP_Prog")->value());
        libera |= w("butonujo")->isEnabled() || w("Tempujo")->isEnabled() || butono("PP_Startu")->isEnabled();
        if (f == QLatin1String("komparas")) {
            modelo = ludataDe(fenestro->ludilo);
            reludata = ludataDe(ludilo);
        }
    });
    rigardo.start(5);
    butono("PP_Startu")->click();   // returns when the step has ended
    rigardo.stop();

    QCOMPARE(fazoj, QStringList() << "modelo" << "registras" << "komparas");
    QCOMPARE(restasDum, QSet<int>() << 40);
    QCOMPARE(restas(), 39);
    QVERIFY(!libera);
    QVERIFY(modelo.startsWith(mrLoko + "sonoj/lec01/"));
    QVERIFY(QFile::exists(modelo));

    // The recorder wrote exactly the name that is played back, and it plays.
    QCOMPARE(reludata, ekz->registrajho(0));
    QVERIFY(QFileInfo(ekz->registrajho(0)).size() > 0);
    QTRY_VERIFY(ludilo->duration() > 0);
    QCOMPARE(ludilo->error(), QMediaPlayer::NoError);
    qInfo("recorded %lld ms in a recording time of 1500 ms, bar up to %d%%", ludilo->duration(), progreso);

    // Waiting for the learner: listening again does not count a word.
    QVERIFY(w("butonujo")->isEnabled() && w("Tempujo")->isEnabled() && butono("PP_Haltu")->isEnabled());
    QVERIFY(ekz->findChild<QLabel*>("PP_Vorto")->text().isEmpty());
    iMsEnSekundo = 20;
    butono("PP_Aud_re")->click();
    QCOMPARE(restas(), 39);
    QCOMPARE(ludataDe(ludilo), ekz->registrajho(0));
    butono("PP_Haltu")->click();
}

void tst_prononco::haltoDumRegistrado()
{
    iMsEnSekundo = 20;
    bool haltita = false;
    QTimer rigardo;
    connect(&rigardo, &QTimer::timeout, this, [&] {
        if (!haltita && fazo() == QLatin1String("registras")) {
            haltita = true;
            butono("PP_Haltu")->click();
        }
    });
    rigardo.start(1);
    butono("PP_Startu")->click();
    rigardo.stop();

    QVERIFY(haltita);
    // Idle: the step ran out its recording, and no comparison followed.
    QVERIFY(butono("PP_Startu")->isEnabled() && !butono("PP_Haltu")->isEnabled());
    QVERIFY(!w("butonujo")->isEnabled() && w("Tempujo")->isEnabled() && w("PP_Prog")->isHidden());
    QCOMPARE(restas(), 0);
    QCOMPARE(fazo(), QString());
    QVERIFY(ekz->findChild<QLabel*>("PP_Vorto")->text().isEmpty());
    QCOMPARE(ludataDe(fenestro->ludilo), QString());
}

void tst_prononco::senMikrofono()
{
    // No sound server to record from: the step runs its time and the
    // comparison plays the model and whatever the recorder left.
    const QByteArray servilo = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse.sock");
    iMsEnSekundo = 20;
    QElapsedTimer t;
    t.start();
    butono("PP_Startu")->click();
    qputenv("PULSE_SERVER", servilo);
    QVERIFY(t.elapsed() < 5000);
    QCOMPARE(restas(), 39);
    QVERIFY(w("butonujo")->isEnabled() && butono("PP_Haltu")->isEnabled());
    QVERIFY(!ludataDe(fenestro->ludilo).isEmpty());
    QCOMPARE(ludataDe(ludilo), ekz->registrajho(0));
    butono("PP_Haltu")->click();
}

int main(int argc, char** argv)
{
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakesink");
    QApplication app(argc, argv);
    tst_prononco t;
    return QTest::qExec(&t, argc, argv);
}
#include "tst_prononco.moc"
