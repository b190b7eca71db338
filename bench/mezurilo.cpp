// Speed figures of the course, measured offscreen:
//   - from process start to the home page shown, and to lesson 1 shown
//     (median over several runs of a fresh process);
//   - for each lesson, the time to build it and show its first page, and
//     its number of widgets (median over several fresh windows);
//   - in the translator's editor, a click to the course showing the framed
//     label, in a lesson already built and in one not built yet.
// Run: mezurilo [runs], or mezurilo tradukilo for the editor's figures alone

#include "funkcioj.h"
#include "lernilo.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include "lecionkadro.h"
#include "inidosiero.h"
#include "mp3ludilo.h"
#include "traduko.h"
#include <QMediaPlayer>
#include <QTabWidget>
#include <QTest>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFrame>
#include <QTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdio>

namespace {

double mediano(QVector<double> v)
{
    std::sort(v.begin(), v.end());
    const int n = v.size();
    return n % 2 ? v.at(n / 2) : (v.at(n / 2 - 1) + v.at(n / 2)) / 2.0;
}

// A learner who chose English, with a fresh language list, and the sounds
// of the build beside the program.
void preparas(const QTemporaryDir& ujo)
{
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = QCoreApplication::applicationDirPath() + QStringLiteral("/../");
    savasLoko = ujo.path() + QStringLiteral("/");
    sServilo = QStringLiteral("http://127.0.0.1:9");
    inidosiero agordoj(savasLoko + QStringLiteral("lernilomelo.ini"));
    agordoj.setValue(QStringLiteral("Gxenerala/Lingvo"), QString::fromUtf8("English — angla"));
    agordoj.setValue(QStringLiteral("Gxenerala/Dosiero"), QStringLiteral("angla.trd"));
    agordoj.sync();
    QFile listo(savasLoko + QStringLiteral("traduklisto.ini"));
    listo.open(QIODevice::WriteOnly);
}

void atendasMontron(QWidget* w)
{
    w->show();
    QApplication::processEvents();
    w->repaint();
    QApplication::processEvents();
}

// Child process: shows the window (and lesson 1), then says so and ends.
int infano(const QString& celo)
{
    QTemporaryDir ujo;
    preparas(ujo);
    lernilo fenestro;
    atendasMontron(&fenestro);
    if (celo == QLatin1String("leciono1")) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono1"))->click();
        fenestro.repaint();
        QApplication::processEvents();
    }
    std::puts("preta");
    std::fflush(stdout);
    return 0;
}

double tempoDeProceso(const QString& celo)
{
    QProcess p;
    QElapsedTimer t;
    t.start();
    p.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--infano"), celo});
    while (p.waitForReadyRead(30000)) {
        if (p.readAll().contains("preta"))
            break;
    }
    const double ms = t.nsecsElapsed() / 1e6;
    p.waitForFinished(30000);
    return ms;
}

// The translator's editor: a click on forward until the course shows the
// framed label of the next sentence, in lesson 2 once it is built; and the
// choice of a lesson's section until its first label is framed, when the
// lesson has still to be built.
void tradukilo(QTextStream& el, int kiom)
{
    QTemporaryDir ujo;
    preparas(ujo);
    auto elektas = [](traduko* d, const QString& sekcio) {
        auto* listo = d->findChild<QComboBox*>(QStringLiteral("Listo"));
        listo->setCurrentIndex(listo->findText(sekcio));
        QMetaObject::invokeMethod(listo, "activated", Q_ARG(QString, sekcio));
    };
    auto malfermas = [](lernilo& fenestro) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Konfigurado"))->click();
        fenestro.findChild<QAbstractButton*>(QStringLiteral("tradukilo"))->click();
        auto* d = fenestro.findChild<traduko*>();
        d->findChild<QLineEdit*>(QStringLiteral("Edit1"))->setText(QStringLiteral("Mezuro"));
        d->findChild<QLineEdit*>(QStringLiteral("Edit2"))->setText(QStringLiteral("Mezuro"));
        d->findChild<QLineEdit*>(QStringLiteral("dulitera_lingvokodo"))->setText(QStringLiteral("xx"));
        return d;
    };

    QVector<double> antauen;
    {
        lernilo fenestro;
        atendasMontron(&fenestro);
        traduko* d = malfermas(fenestro);
        elektas(d, QStringLiteral("Lec02"));
        auto* posta = d->findChild<QAbstractButton*>(QStringLiteral("Button2"));
        for (int i = 0; i < 150 && posta->isEnabled(); ++i) {
            QElapsedTimer t;
            t.start();
            posta->click();
            fenestro.repaint();
            QApplication::processEvents();
            antauen << t.nsecsElapsed() / 1e6;
        }
    }
    QVector<double> konstruoj;
    for (int i = 0; i < kiom; ++i) {
        lernilo fenestro;
        atendasMontron(&fenestro);
        traduko* d = malfermas(fenestro);
        QElapsedTimer t;
        t.start();
        elektas(d, QStringLiteral("Lec02"));
        fenestro.repaint();
        QApplication::processEvents();
        konstruoj << t.nsecsElapsed() / 1e6;
    }
    QVector<double> ordigitaj = antauen;
    std::sort(ordigitaj.begin(), ordigitaj.end());
    el << QStringLiteral("\nTranslator's editor, to the framed label shown in the course:\n");
    el << QStringLiteral("  forward in lesson 2, built:          median %1 ms, slowest %2 ms (%3 sentences)\n")
              .arg(mediano(antauen), 0, 'f', 1).arg(ordigitaj.isEmpty() ? 0.0 : ordigitaj.last(), 0, 'f', 1).arg(antauen.size());
    el << QStringLiteral("  section Lec02, lesson not yet built: median %1 ms\n").arg(mediano(konstruoj), 0, 'f', 1);
    el.flush();
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakesink");
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() > 2 && args.at(1) == QLatin1String("--infano"))
        return infano(args.at(2));

    QTextStream el(stdout);
    if (args.size() > 1 && args.at(1) == QLatin1String("tradukilo")) {
        tradukilo(el, 7);
        return 0;
    }
    const int kiom = args.size() > 1 ? qMax(1, args.at(1).toInt()) : 7;

    QVector<double> hejmo, unua;
    for (int i = 0; i < kiom; ++i) {
        hejmo << tempoDeProceso(QStringLiteral("hejmo"));
        unua << tempoDeProceso(QStringLiteral("leciono1"));
    }
    el << "Median over " << kiom << " runs, offscreen:\n";
    el << QStringLiteral("  process start to home page shown:      %1 ms\n").arg(mediano(hejmo), 0, 'f', 1);
    el << QStringLiteral("  process start to lesson 1 shown:       %1 ms\n").arg(mediano(unua), 0, 'f', 1);
    el << "\nLesson   build and show (ms)   widgets\n";
    el.flush();

    QTemporaryDir ujo;
    preparas(ujo);
    for (int n = 1; n <= 13; ++n) {
        QVector<double> tempoj;
        int fenestrajhoj = 0;
        for (int i = 0; i < kiom; ++i) {
            lernilo fenestro;
            atendasMontron(&fenestro);
            QElapsedTimer t;
            t.start();
            fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(n))->click();
            fenestro.repaint();
            QApplication::processEvents();
            tempoj << t.nsecsElapsed() / 1e6;
            fenestrajhoj = fenestro.leciono(n)->findChildren<QWidget*>().size();
        }
        el << QStringLiteral("  %1     %2              %3\n")
                  .arg(n, 2).arg(mediano(tempoj), 8, 'f', 1).arg(fenestrajhoj, 6);
        el.flush();
    }

    lernilo fenestro;
    atendasMontron(&fenestro);
    fenestro.activateWindow();
    if (!QTest::qWaitForWindowActive(&fenestro))
        el << "(the window did not become active: no sound will play)\n";

    // A click on a word until its sound plays.
    fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono2"))->click();
    QVector<double> klakoj;
    const QList<QLabel*> vortoj = fenestro.leciono(2)->findChildren<QLabel*>();
    for (QLabel* vorto : vortoj) {
        if (qstrcmp(vorto->metaObject()->className(), "klakbutono_nova") != 0 || !vorto->isVisible()
            || klakoj.size() >= 4 * kiom)
            continue;
        fenestro.ludilo->stop();
        fenestro.activateWindow();
        if (!QTest::qWaitForWindowActive(&fenestro))
            continue;
        QElapsedTimer t;
        t.start();
        QTest::mousePress(vorto, Qt::LeftButton);
        while (fenestro.ludilo->state() != QMediaPlayer::PlayingState && t.elapsed() < 5000)
            QApplication::processEvents();
        klakoj << t.nsecsElapsed() / 1e6;
        QTest::mouseRelease(vorto, Qt::LeftButton);
    }
    el << QStringLiteral("\nClick on a word to its sound playing: %1 ms (median of %2 words)\n")
              .arg(mediano(klakoj), 0, 'f', 1).arg(klakoj.size());

    // Start on an exercise until its first item is drawn on the screen.
    struct Ekzerco { int leciono; const char* nomo; const char* komenco; const char* halto; };
    const Ekzerco ekzercoj[] = {{1, "frame", "BitBtn1", "BitBtn2"},
                                {1, "Lec01_Ekz_Frazo_0107", "BitBtn1", "BitBtn3"},
                                {1, "Lec01_0103", "BitBtn18", "BitBtn20"},
                                {2, "Lec02_Ekz_Plen_0204", "BitBtn4", "BitBtn5"},
                                {3, "Lec03_Ekz_0301", "BitBtn1", "BitBtn3"},
                                {11, "Lec11_Ekzerco_Horo", "BitBtn1", "BitBtn3"},
                                {2, "Lec02_Ekz_Akuz_0202", "BitBtn1", "BitBtn3"}};
    el << "\nExercise, Start to the first item shown (median ms):\n";
    for (const Ekzerco& e : ekzercoj) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(e.leciono))->click();
        QWidget* kadro = nullptr;   // lesson pages hold other frames of the same name
        for (QWidget* w : fenestro.leciono(e.leciono)->findChildren<QWidget*>(QLatin1String(e.nomo))) {
            if (w->findChild<QAbstractButton*>(QLatin1String(e.komenco)))
                kadro = w;
        }
        fenestro.leciono(e.leciono)->findChild<QTabWidget*>()->setCurrentWidget(kadro->parentWidget());
        QApplication::processEvents();
        QVector<double> komencoj;
        bool ruligis = true;   // an exercise without data stops at once
        for (int i = 0; i < 3 * kiom; ++i) {
            QElapsedTimer t;
            t.start();
            kadro->findChild<QAbstractButton*>(QLatin1String(e.komenco))->click();
            kadro->repaint();
            QApplication::processEvents();
            komencoj << t.nsecsElapsed() / 1e6;
            auto* halto = kadro->findChild<QAbstractButton*>(QLatin1String(e.halto));
            ruligis = ruligis && halto->isEnabled();
            halto->click();
            QApplication::processEvents();
        }
        const QString klaso = QLatin1String(kadro->metaObject()->className());
        if (ruligis)
            el << QStringLiteral("  %1 %2\n").arg(klaso, -16).arg(mediano(komencoj), 6, 'f', 1);
        else
            el << QStringLiteral("  %1 (no data yet)\n").arg(klaso, -16);
        el.flush();
    }
    fenestro.ludilo->stop();

    // Start on the dictation and on the pronunciation until the first word
    // sounds: the player is playing and its sound has begun to flow. The pronunciation plays its model through a player of
    // its own, and its Start returns only when the step is over: a timer
    // watches the player, notes the moment and stops the step.
    el << "\nStart to the first sound (median ms):\n";
    struct Lauta { int leciono; const char* nomo; const char* komenco; const char* halto; };
    const Lauta lautaj[] = {{1, "Lec01_Ekz_0102", "BitBtn8", "BitBtn10"},
                            {4, "Lec04_Ekz_Aud_0403", "BitBtn8", "BitBtn10"},
                            {1, "Lec01_Ekz_Pron_0102", "PP_Startu", "PP_Haltu"},
                            {7, "Lec07_Ekzerco_0709", "PP_Startu", "PP_Haltu"}};
    for (const Lauta& e : lautaj) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(e.leciono))->click();
        QWidget* kadro = fenestro.leciono(e.leciono)->findChild<QWidget*>(QLatin1String(e.nomo));
        fenestro.leciono(e.leciono)->findChild<QTabWidget*>()->setCurrentWidget(kadro->parentWidget());
        QMediaPlayer* ludilo = kadro->findChild<QMediaPlayer*>();
        if (!ludilo)
            ludilo = fenestro.ludilo;
        auto* halto = kadro->findChild<QAbstractButton*>(QLatin1String(e.halto));
        QVector<double> tempoj;
        for (int i = 0; i < 3 * kiom; ++i) {
            fenestro.activateWindow();
            if (!QTest::qWaitForWindowActive(&fenestro))
                continue;
            ludilo->stop();
            QElapsedTimer t;
            double ms = -1;
            QTimer rigardo;
            QObject::connect(&rigardo, &QTimer::timeout, [&] {
                if (ms < 0 && ludilo->state() == QMediaPlayer::PlayingState
                    && (ludilo->position() > 0 || ludilo->mediaStatus() == QMediaPlayer::EndOfMedia)) {
                    ms = t.nsecsElapsed() / 1e6;
                    iMsEnSekundo = 1;   // the rest of the step at once
                    halto->click();
                } else if (ms < 0 && t.elapsed() > 5000) {
                    iMsEnSekundo = 1;
                    halto->click();
                }
            });
            rigardo.start(0);
            t.start();
            kadro->findChild<QAbstractButton*>(QLatin1String(e.komenco))->click();
            while (ms < 0 && t.elapsed() < 6000)
                QApplication::processEvents();
            rigardo.stop();
            iMsEnSekundo = 1000;
            if (halto->isEnabled())
                halto->click();
            if (ms >= 0)
                tempoj << ms;
        }
        el << QStringLiteral("  %1 %2 %3\n").arg(QLatin1String(kadro->metaObject()->className()), -12)
                  .arg(QLatin1String(e.nomo), -22)
                  .arg(tempoj.isEmpty() ? QStringLiteral("no sound") : QString::number(mediano(tempoj), 'f', 1));
        el.flush();
    }
    fenestro.ludilo->stop();

    // The reading texts and the song: file size and playing time.
    el << "\nReading text            size (KiB)   playing time (s)\n";
    for (int n = 1; n <= 13; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (mp3ludilo* l : kadro.findChildren<mp3ludilo*>()) {
            const QString vojo = mrLoko + legoSono(l->objectName());
            if (!QFileInfo::exists(vojo)) {
                el << QStringLiteral("  %1 (no recording yet)\n").arg(l->objectName(), -20);
                continue;
            }
            QMediaPlayer ludilo;
            ludilo.setMedia(QUrl::fromLocalFile(vojo));
            QElapsedTimer t;
            t.start();
            while (ludilo.duration() <= 0 && t.elapsed() < 5000)
                QApplication::processEvents();
            el << QStringLiteral("  %1 %2 %3\n").arg(l->objectName(), -20)
                      .arg(QFileInfo(vojo).size() / 1024.0, 10, 'f', 1)
                      .arg(ludilo.duration() / 1000.0, 14, 'f', 1);
        }
    }
    el.flush();

    // Relabelling lesson 1, and a change of language from the settings page
    // until the home page reads in the new language.
    QVector<double> tradoj, shanghoj;
    for (int i = 0; i < kiom; ++i) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono1"))->click();
        QElapsedTimer t;
        t.start();
        Trad(fenestro.leciono(1), QStringLiteral("Lec01"));
        tradoj << t.nsecsElapsed() / 1e6;
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Hejmo"))->click();

        fenestro.findChild<QAbstractButton*>(QStringLiteral("Konfigurado"))->click();
        auto* lingvoj = fenestro.findChild<QComboBox*>(QStringLiteral("Lingvo"));
        const QString cela = sTradukoDosiero == QLatin1String("esperanto.trd") ? QStringLiteral("English — angla")
                                                                                : QStringLiteral("Esperanto");
        lingvoj->setCurrentIndex(lingvoj->findText(cela));
        QMetaObject::invokeMethod(&fenestro, "on_Lingvo_activated", Q_ARG(int, lingvoj->currentIndex()));
        auto* kio = fenestro.findChild<QLabel*>(QStringLiteral("label_Kio"));
        const QString antaua = kio->text();
        t.start();
        fenestro.findChild<QAbstractButton*>(QStringLiteral("shanghasKonfigurojn"))->click();
        while (kio->text() == antaua && t.elapsed() < 10000)
            QApplication::processEvents();
        fenestro.repaint();
        shanghoj << t.nsecsElapsed() / 1e6;
    }
    el << QStringLiteral("Relabelling lesson 1 (Trad): %1 ms\n").arg(mediano(tradoj), 0, 'f', 1);

    // Saved answers: every field of every lesson filled, stored as at close,
    // and loaded again into a freshly built lesson.
    for (int n = 1; n <= 13; ++n)
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(n))->click();
    QList<QTabWidget*> lecionoj;
    for (int n = 1; n <= 13; ++n) {
        QTabWidget* l = fenestro.leciono(n)->findChild<QTabWidget*>();
        lecionoj << l;
        for (QLineEdit* k : l->findChildren<QLineEdit*>())
            k->setText(QString::fromUtf8("Ĉu vi ŝatas la novan libron, kiun mi aĉetis?"));
        for (QPlainTextEdit* k : l->findChildren<QPlainTextEdit*>())
            k->setPlainText(QString::fromUtf8("Unua linio.\nDua linio, kun ĉ kaj ŭ."));
    }
    QVector<double> konservoj, sharghoj;
    for (int i = 0; i < kiom; ++i) {
        QElapsedTimer t;
        t.start();
        for (QTabWidget* l : lecionoj)
            SxargxasEk(l, true);
        konservoj << t.nsecsElapsed() / 1e6;
        for (int n : {1, 7, 13}) {
            QWidget pagho;
            lecionkadro kadro(n, &pagho);
            t.start();
            SxargxasEk(kadro.langetoj(), false);
            sharghoj << t.nsecsElapsed() / 1e6;
        }
    }
    el << QStringLiteral("Saved answers: storing all 13 lessons %1 ms, loading one lesson %2 ms\n")
              .arg(mediano(konservoj), 0, 'f', 1).arg(mediano(sharghoj), 0, 'f', 1);
    el << QStringLiteral("Change of language, apply to home page relabelled: %1 ms\n").arg(mediano(shanghoj), 0, 'f', 1);
    el.flush();
    tradukilo(el, kiom);
    return 0;
}
