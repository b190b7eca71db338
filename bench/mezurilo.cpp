// Speed figures of the course, measured offscreen, each the median of
// several runs and each next to the floor or target it is compared with,
// the floor measured in the same run:
//   - from process start to the home page shown, against the main form with
//     its style sheets and player alone; and to lesson 1 shown;
//   - for each lesson, the time to build it and show its first page, against
//     the same widget tree built in plain code (planko.cpp);
//   - a press and a click on a word to the first audio buffer at the sink,
//     against the player's own time from play to that buffer;
//   - each exercise's Start to its first item;
//   - a change of language with none, two and all lessons built;
//   - in the translator's editor, a click to the course showing the framed
//     label, in a lesson already built and in one not built yet.
// Run: mezurilo [runs]; mezurilo tradukilo for the editor's figures alone,
// mezurilo lingvo [runs] for the change of language alone.

#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "lecionfonto.h"
#include "lernilo.h"
#include "planko.h"
#include "ui_lernilo.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include "lecionkadro.h"
#include "inidosiero.h"
#include "mp3ludilo.h"
#include "traduko.h"
#include <QAudioProbe>
#include <QMediaPlayer>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFrame>
#include <QMainWindow>
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

// The floor of the start: the main form alone with the style sheets and the
// font the course sets (as the parent process found them) and the player.
void fundoDeKomenco(const QString& stiloj)
{
    QFile dosiero(stiloj);
    dosiero.open(QIODevice::ReadOnly);
    const QStringList partoj = QString::fromUtf8(dosiero.readAll()).split(QChar(0));
    QMainWindow fenestro;
    Ui::lernilo ui;
    ui.setupUi(&fenestro);
    QFont tiparo;
    tiparo.fromString(partoj.value(0));
    QApplication::setFont(tiparo);
    ui.centralWidget->setStyleSheet(partoj.value(1));
    ui.Paghujo->setStyleSheet(partoj.value(2));
    for (QWidget* w : {static_cast<QWidget*>(ui.prog_printilo), static_cast<QWidget*>(ui.printilo),
                       static_cast<QWidget*>(ui.Sendas), static_cast<QWidget*>(ui.Konfig_Label4),
                       static_cast<QWidget*>(ui.konfig_send_literoj), static_cast<QWidget*>(ui.shanghasKonfigurojn),
                       static_cast<QWidget*>(ui.butonujo), static_cast<QWidget*>(ui.navigujo),
                       static_cast<QWidget*>(ui.paghopiedo)})
        w->hide();
    QMediaPlayer ludilo(&fenestro);
    ui.Paghujo->setCurrentIndex(0);
    atendasMontron(&fenestro);
    std::puts("preta");
    std::fflush(stdout);
}

// Child process: shows the window (and lesson 1), or the floor of the
// start, then says so and ends.
int infano(const QString& celo, const QString& stiloj)
{
    QTemporaryDir ujo;
    preparas(ujo);
    if (celo == QLatin1String("fundo")) {
        fundoDeKomenco(stiloj);
        return 0;
    }
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

double tempoDeProceso(const QString& celo, const QString& stiloj = QString())
{
    QProcess p;
    QElapsedTimer t;
    t.start();
    p.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--infano"), celo, stiloj});
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

// A change of language from the settings page until the home page reads in
// the new language: with none, two and all lessons built, and to each
// shipped language with two lessons built.
void lingvoShanghoj(QTextStream& el, int kiom)
{
    auto shanghas = [](lernilo& f, const QString& cela) {
        f.findChild<QAbstractButton*>(QStringLiteral("Konfigurado"))->click();
        auto* lingvoj = f.findChild<QComboBox*>(QStringLiteral("Lingvo"));
        lingvoj->setCurrentIndex(lingvoj->findText(cela));
        QMetaObject::invokeMethod(&f, "on_Lingvo_activated", Q_ARG(int, lingvoj->currentIndex()));
        auto* kio = f.findChild<QLabel*>(QStringLiteral("label_Kio"));
        const QString antaua = kio->text();
        QElapsedTimer t;
        t.start();
        f.findChild<QAbstractButton*>(QStringLiteral("shanghasKonfigurojn"))->click();
        while (kio->text() == antaua && t.elapsed() < 10000)
            QApplication::processEvents();
        f.repaint();
        return t.nsecsElapsed() / 1e6;
    };
    // Another language than the one in use, to change to.
    auto alia = [] {
        return sTradukoDosiero == QLatin1String("esperanto.trd") ? QStringLiteral("English — angla")
                                                                 : QStringLiteral("Esperanto");
    };
    auto malfermas = [](lernilo& f, int kiomDaLecionoj) {
        atendasMontron(&f);
        for (int n = 1; n <= kiomDaLecionoj; ++n)
            f.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(n))->click();
        f.findChild<QAbstractButton*>(QStringLiteral("Hejmo"))->click();
        QApplication::processEvents();
    };
    el << "\nChange of language, apply to the home page relabelled (target 15 ms):\n";
    for (int kiomDaLecionoj : {0, 2, 13}) {
        lernilo f;
        malfermas(f, kiomDaLecionoj);
        QVector<double> shanghoj, tradukoj;
        for (int i = 0; i < kiom; ++i) {
            shanghoj << shanghas(f, alia());
            // The relabelling alone, without the request for the file.
            QElapsedTimer t;
            t.start();
            QMetaObject::invokeMethod(&f, "Traduku");
            f.repaint();
            tradukoj << t.nsecsElapsed() / 1e6;
        }
        el << QStringLiteral("  %1 lessons built: %2 ms, of which relabelling and restyling (Traduku) %3 ms\n")
                  .arg(kiomDaLecionoj, 2).arg(mediano(shanghoj), 0, 'f', 1).arg(mediano(tradukoj), 0, 'f', 1);
        el.flush();
    }

    el << "To each shipped language, 2 lessons built (median ms):\n";
    lernilo f;
    malfermas(f, 2);
    for (const QString& dosiero : QDir(QStringLiteral(":/tradukoj"), QStringLiteral("*.trd")).entryList()) {
        const QString nomo = legasKapon(QStringLiteral(":/tradukoj/") + dosiero).value(QStringLiteral("Lingvo"));
        QVector<double> tempoj;
        for (int i = 0; i < kiom; ++i) {
            if (sTradukoDosiero == dosiero)
                shanghas(f, alia());
            tempoj << shanghas(f, nomo);
        }
        el << QStringLiteral("  %1 %2\n").arg(dosiero, -16).arg(mediano(tempoj), 5, 'f', 1);
        el.flush();
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakesink");
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() > 2 && args.at(1) == QLatin1String("--infano"))
        return infano(args.at(2), args.value(3));

    QTextStream el(stdout);
    if (args.size() > 1 && args.at(1) == QLatin1String("tradukilo")) {
        tradukilo(el, 7);
        return 0;
    }
    if (args.size() > 1 && args.at(1) == QLatin1String("lingvo")) {
        QTemporaryDir ujo;
        preparas(ujo);
        lingvoShanghoj(el, args.size() > 2 ? qMax(1, args.at(2).toInt()) : 7);
        return 0;
    }
    const int kiom = args.size() > 1 ? qMax(1, args.at(1).toInt()) : 7;

    QTemporaryDir ujo;
    preparas(ujo);
    // The style sheets and the font the course sets, for the floor of the start.
    const QString stiloj = ujo.path() + QStringLiteral("/stiloj");
    {
        lernilo fenestro;
        QFile dosiero(stiloj);
        dosiero.open(QIODevice::WriteOnly);
        dosiero.write((QApplication::font().toString() + QChar(0)
                       + fenestro.findChild<QWidget*>(QStringLiteral("centralWidget"))->styleSheet() + QChar(0)
                       + fenestro.findChild<QWidget*>(QStringLiteral("Paghujo"))->styleSheet()).toUtf8());
    }

    QVector<double> hejmo, fundo, unua;
    for (int i = 0; i < kiom; ++i) {
        hejmo << tempoDeProceso(QStringLiteral("hejmo"));
        fundo << tempoDeProceso(QStringLiteral("fundo"), stiloj);
        unua << tempoDeProceso(QStringLiteral("leciono1"));
    }
    el << "Median over " << kiom << " runs, offscreen:\n";
    el << QStringLiteral("  process start to home page shown:      %1 ms, floor %2 ms (main form, sheets, player): %3 x (target 1.2)\n")
              .arg(mediano(hejmo), 0, 'f', 1).arg(mediano(fundo), 0, 'f', 1).arg(mediano(hejmo) / mediano(fundo), 0, 'f', 2);
    el << QStringLiteral("  process start to lesson 1 shown:       %1 ms\n").arg(mediano(unua), 0, 'f', 1);
    el << "\nLesson built and shown, against the same tree built in plain code (target 1.3 x)\n"
          "Lesson   course (ms)   floor (ms)   ratio   widgets (course/floor)\n";
    el.flush();

    const QString langetajStiloj = QStringLiteral("QTabBar::tab {height: 0px; width: 0px;} QTabWidget::tab-bar {height: 0px; width: 0px;}");
    for (int n = 1; n <= 13; ++n) {
        const lecionfonto fonto = lecionfonto::deRimedoj(n);
        QVector<double> tempoj, fundoj;
        int fenestrajhoj = 0, fundajhoj = 0;
        for (int i = 0; i < kiom; ++i) {
            {
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
            {
                lernilo fenestro;
                atendasMontron(&fenestro);
                auto* paghujo = fenestro.findChild<QStackedWidget*>(QStringLiteral("Paghujo"));
                QWidget* pagho = paghujo->findChild<QWidget*>(QStringLiteral("Pagho%1").arg(n, 2, 10, QLatin1Char('0')));
                QElapsedTimer t;
                t.start();
                pagho->setStyleSheet(langetajStiloj);
                QFrame* kadro = planko::konstruas(fonto, pagho);
                paghujo->setCurrentWidget(pagho);
                auto* langetoj = kadro->findChild<QTabWidget*>();
                langetoj->setCurrentIndex(0);
                for (QScrollArea* rulumo : langetoj->widget(0)->findChildren<QScrollArea*>())
                    rulumo->setWidgetResizable(true);
                fenestro.repaint();
                QApplication::processEvents();
                fundoj << t.nsecsElapsed() / 1e6;
                fundajhoj = kadro->findChildren<QWidget*>().size();
            }
        }
        el << QStringLiteral("  %1     %2      %3      %4   %5/%6\n")
                  .arg(n, 2).arg(mediano(tempoj), 8, 'f', 1).arg(mediano(fundoj), 8, 'f', 1)
                  .arg(mediano(tempoj) / mediano(fundoj), 5, 'f', 2).arg(fenestrajhoj).arg(fundajhoj);
        el.flush();
    }

    lernilo fenestro;
    atendasMontron(&fenestro);
    fenestro.activateWindow();
    if (!QTest::qWaitForWindowActive(&fenestro))
        el << "(the window did not become active: no sound will play)\n";

    // A press on a word, held, and a click (press and release at once), to
    // the first buffer of its sound at the audio sink; the floor is the
    // player's own time from play to that buffer.
    {
        QAudioProbe sondilo;
        QElapsedTimer horlogho;
        horlogho.start();
        qint64 bufro = -1;
        QObject::connect(&sondilo, &QAudioProbe::audioBufferProbed, [&] {
            if (bufro < 0)
                bufro = horlogho.nsecsElapsed();
        });
        if (!sondilo.setSource(fenestro.ludilo))
            el << "\n(the media back-end has no audio probe: no figures of sound)\n";
        auto silento = [&] {
            fenestro.ludilo->stop();
            QElapsedTimer t;
            t.start();
            while (t.elapsed() < 30)
                QApplication::processEvents();
            bufro = -1;
        };
        auto atendas = [&](qint64 ek) {
            while (bufro < 0 && horlogho.nsecsElapsed() - ek < 3000000000LL)
                QApplication::processEvents();
            return bufro < 0 ? -1.0 : (bufro - ek) / 1e6;
        };
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono1"))->click();
        QVector<double> premoj, klakoj, ludoj;
        int silentaj = 0;
        for (QLabel* vorto : fenestro.leciono(1)->findChildren<QLabel*>()) {
            if (qstrcmp(vorto->metaObject()->className(), "klakbutono_nova") != 0 || !vorto->isVisible()
                || premoj.size() >= 3 * kiom)
                continue;
            if (!QFileInfo::exists(mrLoko + klakbutono_nova::sonoVojo(vorto->text(), vorto->objectName()).toLower())) {
                ++silentaj;
                continue;
            }
            fenestro.activateWindow();
            if (!QTest::qWaitForWindowActive(&fenestro))
                continue;
            silento();
            qint64 ek = horlogho.nsecsElapsed();
            QTest::mousePress(vorto, Qt::LeftButton);
            const double premo = atendas(ek);
            QTest::mouseRelease(vorto, Qt::LeftButton);

            silento();
            ek = horlogho.nsecsElapsed();
            QTest::mouseClick(vorto, Qt::LeftButton);
            const double klako = atendas(ek);

            silento();
            ek = horlogho.nsecsElapsed();
            mp3(klakbutono_nova::sonoVojo(vorto->text(), vorto->objectName()));
            const double ludo = atendas(ek);
            if (premo >= 0 && klako >= 0 && ludo >= 0) {
                premoj << premo;
                klakoj << klako;
                ludoj << ludo;
            }
        }
        fenestro.ludilo->stop();
        el << QStringLiteral("\nA word to the first audio buffer at the sink (median of %1 words of lesson 1%2; target 15 ms):\n")
                  .arg(premoj.size()).arg(silentaj ? QStringLiteral(", %1 without a recording left out").arg(silentaj) : QString());
        el << QStringLiteral("  press, held:          %1 ms\n").arg(mediano(premoj), 0, 'f', 1);
        el << QStringLiteral("  click (press, release): %1 ms\n").arg(mediano(klakoj), 0, 'f', 1);
        el << QStringLiteral("  floor, play to buffer:  %1 ms\n").arg(mediano(ludoj), 0, 'f', 1);
        el.flush();
    }

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

    lingvoShanghoj(el, kiom);
    {
        QVector<double> tradoj;
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono1"))->click();
        for (int i = 0; i < kiom; ++i) {
            QElapsedTimer t;
            t.start();
            Trad(fenestro.leciono(1), QStringLiteral("Lec01"));
            tradoj << t.nsecsElapsed() / 1e6;
        }
        el << QStringLiteral("Relabelling lesson 1 (Trad): %1 ms\n").arg(mediano(tradoj), 0, 'f', 1);
    }

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
    el.flush();
    tradukilo(el, kiom);
    return 0;
}
