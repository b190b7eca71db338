// A clickable word names its sound from its own text and object name, and
// plays it on a press of any mouse button, at once even on a page that
// scrolls by dragging; a drag that starts on it silences it, and one that
// starts on a button leaves the button up and unclicked.

#include "klakbutono_nova.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QMediaPlayer>
#include <QPushButton>
#include <QScrollArea>
#include <QScroller>
#include <QtTest>

class tst_klakbutono_nova : public QObject
{
    Q_OBJECT

private slots:
    void sonoVojo_data();
    void sonoVojo();
    void premoLudas();
    void trenoSilentigas();
};

void tst_klakbutono_nova::sonoVojo_data()
{
    QTest::addColumn<QString>("teksto");
    QTest::addColumn<QString>("nomo");
    QTest::addColumn<QString>("atendo");

    QTest::newRow("8 letters is a word") << "knabinoj" << "Lec01_Button7" << "sonoj/lec01/knabinoj.oga";
    QTest::newRow("9 letters is a phrase") << "knabinojn" << "Lec01_Button7" << "sonoj/lec01/btn7.oga";
    QTest::newRow("length after conversion") << QString::fromUtf8("ŝanĝiĝi") << "Lec03_Button77" << "sonoj/lec03/btn77.oga";
    QTest::newRow("exclamation mark") << "Saluton!" << "Lec01_Button12" << "sonoj/lec01/btn12.oga";
    QTest::newRow("the word au") << QString::fromUtf8("aŭ") << "Lec05_Button2" << "sonoj/lec05/auh.oga";
    QTest::newRow("right-to-left mark removed") << QString::fromUtf8("viro\u200E") << "Lec02_Button254" << "sonoj/lec02/viro.oga";
}

void tst_klakbutono_nova::sonoVojo()
{
    QFETCH(QString, teksto);
    QFETCH(QString, nomo);
    QFETCH(QString, atendo);
    QCOMPARE(klakbutono_nova::sonoVojo(teksto, nomo), atendo);
}

// Moves the held mouse up from `ek` by 70 pixels, far enough to drag the page.
static void treno(QWidget* w, QPoint ek, ulong& tempo)
{
    for (int y = ek.y() - 1; y >= ek.y() - 70; y -= 3) {
        QMouseEvent movo(QEvent::MouseMove, QPoint(ek.x(), y), w->mapToGlobal(QPoint(ek.x(), y)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        movo.setTimestamp(tempo += 10);
        QApplication::sendEvent(w, &movo);
    }
}

// A word on a page that scrolls by dragging, as on every lesson page.
static klakbutono_nova* vortoEnRulumo(QWidget* gepatro, QScrollArea*& rulumo)
{
    rulumo = new QScrollArea(gepatro);
    rulumo->setGeometry(0, 0, 200, 100);
    auto* enhavo = new QWidget;
    enhavo->setMinimumSize(200, 1000);
    auto* vorto = new klakbutono_nova(enhavo);
    vorto->setObjectName("Lec04_Button5");
    vorto->setText("Kial?");
    vorto->setGeometry(10, 10, 80, 20);
    rulumo->setWidget(enhavo);
    ebligasTrenon(rulumo);
    rulumo->show();
    return vorto;
}

void tst_klakbutono_nova::premoLudas()
{
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    QVERIFY(aktivigas(&fenestro));

    QScrollArea* rulumo = nullptr;
    klakbutono_nova* vorto = vortoEnRulumo(&fenestro, rulumo);
    // Feedback switched off does not silence the words.
    lSxaltilo = false;
    lNoteto = false;
    // The press itself plays, with no wait for a drag that might follow.
    QTest::mousePress(vorto, Qt::RightButton);
    QCOMPARE(fenestro.ludilo->media().request().url().toLocalFile(), mrLoko + "sonoj/lec04/kial?.oga");
    QTest::mouseRelease(vorto, Qt::RightButton);
    fenestro.ludilo->setMedia(QMediaContent());
    QTest::mousePress(vorto, Qt::LeftButton);
    QCOMPARE(fenestro.ludilo->media().request().url().toLocalFile(), mrLoko + "sonoj/lec04/kial?.oga");
    QTest::mouseRelease(vorto, Qt::LeftButton);
}

void tst_klakbutono_nova::trenoSilentigas()
{
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakesink");
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    fenestro.show();
    fenestro.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenestro));
    QScrollArea* rulumo = nullptr;
    klakbutono_nova* vorto = vortoEnRulumo(&fenestro, rulumo);
    QDir().mkpath(mrLoko + "sonoj/lec04");
    QVERIFY(QFile::copy(LERNILO_MEDIOJ "/sonoj/lec12/fragoj.oga", mrLoko + "sonoj/lec04/kial?.oga"));

    // A still press speaks and goes on speaking.
    QTest::mousePress(vorto, Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    QCOMPARE(fenestro.ludilo->state(), QMediaPlayer::PlayingState);
    QTest::mouseMove(vorto, QPoint(21, 10));
    QTest::mouseRelease(vorto, Qt::LeftButton, Qt::NoModifier, QPoint(21, 10));
    QCOMPARE(fenestro.ludilo->state(), QMediaPlayer::PlayingState);

    // A press that turns into a drag of the page falls silent.
    QTest::mousePress(vorto, Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    QCOMPARE(fenestro.ludilo->state(), QMediaPlayer::PlayingState);
    ulong tempo = QDateTime::currentMSecsSinceEpoch();
    treno(vorto, QPoint(20, 10), tempo);
    QCOMPARE(fenestro.ludilo->state(), QMediaPlayer::StoppedState);
    QTest::mouseRelease(vorto, Qt::LeftButton, Qt::NoModifier, QPoint(20, -60));

    // A button dragged with the page comes up again, and is not clicked.
    QScroller::scroller(rulumo->viewport())->stop();   // a press would only stop the page's glide
    auto* butono = new QPushButton("Ek", vorto->parentWidget());
    butono->setGeometry(10, 40, 80, 60);
    butono->show();
    QSignalSpy klakoj(butono, &QPushButton::clicked);
    QTest::mousePress(butono, Qt::LeftButton, Qt::NoModifier, QPoint(20, 55));
    QVERIFY(butono->isDown());
    treno(butono, QPoint(20, 55), tempo);
    QTest::mouseRelease(butono, Qt::LeftButton, Qt::NoModifier, QPoint(20, -15));
    QVERIFY(!butono->isDown());
    QCOMPARE(klakoj.count(), 0);
}

QTEST_MAIN(tst_klakbutono_nova)
#include "tst_klakbutono_nova.moc"
