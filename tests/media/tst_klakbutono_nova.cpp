// A clickable word names its sound from its own text and object name, and
// plays it on a press of any mouse button.

#include "klakbutono_nova.h"
#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QMediaPlayer>
#include <QtTest>

class tst_klakbutono_nova : public QObject
{
    Q_OBJECT

private slots:
    void sonoVojo_data();
    void sonoVojo();
    void premoLudas();
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

void tst_klakbutono_nova::premoLudas()
{
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    QVERIFY(aktivigas(&fenestro));

    auto* vorto = new klakbutono_nova(&fenestro);
    vorto->setObjectName("Lec04_Button5");
    vorto->setText("Kial?");
    vorto->setGeometry(10, 10, 80, 20);
    vorto->show();
    // Feedback switched off does not silence the words.
    lSxaltilo = false;
    lNoteto = false;
    QTest::mousePress(vorto, Qt::RightButton);
    QCOMPARE(fenestro.ludilo->media().request().url().toLocalFile(), mrLoko + "sonoj/lec04/kial?.oga");
}

QTEST_MAIN(tst_klakbutono_nova)
#include "tst_klakbutono_nova.moc"
