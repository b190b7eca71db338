// The generated sound tree holds every sound the course plays, and a
// generated file plays to its end.
//
// The test machines have no sound card. Qt's GStreamer back-end takes the
// audio sink named by QT_GSTREAMER_PLAYBIN_AUDIOSINK; "fakesink" accepts
// the decoded sound without a device, so the whole pipeline (file, Ogg,
// Vorbis, sink) runs as it does for a learner.

#include "audkompreno.h"
#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "lecionkadro.h"
#include "mp3ludilo.h"
#include "prononco.h"
#include "sonlisto.h"
#include "testaj_helpoj.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLabel>
#include <QMediaPlayer>
#include <QSignalSpy>
#include <QtTest>

class tst_sonarbo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void chiuSonoEkzistas();
    void chiuVortoDeLecionoEkzistas();
    void chiuEkzercaKajLegataSonoEkzistas();
    void nomojMinusklaj();
    void salutojKvarope();
    void ludasGhisFino();

private:
    QTemporaryDir ujo;
    QString arbo;
};

void tst_sonarbo::initTestCase()
{
    preparasLokojn(ujo);
    arbo = QStringLiteral(LERNILO_MEDIOJ "/");
    QVERIFY2(QDir(arbo + "sonoj").exists(), "the sound tree has not been made");
}

void tst_sonarbo::chiuSonoEkzistas()
{
    const QVector<Sono> sonoj = sonlisto::kolektas();
    QStringList mankas;
    for (const Sono& s : sonoj) {
        if (!QFile::exists(arbo + s.vojo))
            mankas << s.vojo;
    }
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(", ")));
    int dosieroj = 0;
    for (QDirIterator it(arbo + "sonoj", {"*.oga"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext(); it.next())
        ++dosieroj;
    qInfo("%d sounds in the list, %d files in the tree", int(sonoj.size()), dosieroj);
}

void tst_sonarbo::chiuVortoDeLecionoEkzistas()
{
    // Checked against the lessons themselves, by the words' own rule.
    int vortoj = 0;
    QStringList mankas;
    for (int n = 1; n <= 13; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (klakbutono_nova* v : kadro.findChildren<klakbutono_nova*>()) {
            if (v->text().isEmpty())
                continue;
            ++vortoj;
            const QString vojo = klakbutono_nova::sonoVojo(v->text(), v->objectName()).toLower();
            if (!QFile::exists(arbo + vojo))
                mankas << v->objectName() + " " + vojo;
        }
    }
    qInfo("%d clickable words, %d without a sound", vortoj, int(mankas.size()));
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(", ")));
}

void tst_sonarbo::chiuEkzercaKajLegataSonoEkzistas()
{
    // By the exercises' and the players' own naming: every row of every
    // dictation and pronunciation exercise, and every reading text that its
    // lesson shows.
    QStringList mankas;
    int sonoj = 0;
    for (int n = 1; n <= 13; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        QStringList vojoj;
        QList<QWidget*> ekzercoj;
        for (QWidget* e : kadro.findChildren<QWidget*>()) {
            if (qobject_cast<audkompreno*>(e) || qobject_cast<prononco*>(e))
                ekzercoj << e;
        }
        for (QWidget* e : qAsConst(ekzercoj)) {
            QStringList vicoj;
            _Matriz(&vicoj, e->objectName().right(4), "D");
            const bool diktado = qobject_cast<audkompreno*>(e);
            for (const QString& v : qAsConst(vicoj)) {
                const QString ciferoj = e->objectName().right(4).left(2);
                // The dictation plays through mp3, which lower-cases the name.
                vojoj << (diktado ? audkompreno::sonoDe(v, ciferoj).toLower() : prononco::sonoDe(v, ciferoj));
            }
        }
        for (mp3ludilo* l : kadro.findChildren<mp3ludilo*>()) {
            const QString ero = l->objectName().mid(6);
            const QString teksto = ero.left(1).toUpper() + ero.mid(1) + "_" + l->objectName().left(5);
            if (kadro.findChild<QLabel*>(teksto))
                vojoj << mp3ludilo::dosiero(l->objectName());
        }
        for (const QString& v : qAsConst(vojoj)) {
            ++sonoj;
            if (!QFile::exists(arbo + v))
                mankas << v;
        }
    }
    qInfo("%d sounds of exercises and reading texts", sonoj);
    QVERIFY(sonoj >= 633);   // the 633 rows of the seven lessons at least
    QVERIFY2(mankas.isEmpty(), qPrintable(mankas.join(", ")));
}

void tst_sonarbo::nomojMinusklaj()
{
    QStringList majusklaj;
    for (QDirIterator it(arbo + "sonoj", QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories); it.hasNext();) {
        it.next();
        if (it.fileName() != it.fileName().toLower())
            majusklaj << it.filePath();
    }
    QVERIFY2(majusklaj.isEmpty(), qPrintable(majusklaj.join(", ")));
}

void tst_sonarbo::salutojKvarope()
{
    // The greeting and the farewell pick one of four recordings of a phrase.
    for (const char* radiko : {"saluton", "matenon", "tagon", "vespero", "nokton", "ghis", "revido", "baldau", "adiau"}) {
        const QDir d(arbo + "sonoj", QString::fromLatin1(radiko) + "?" + mp3_finajho);
        QVERIFY2(d.count() == 4, radiko);
    }
    for (int i = 1; i <= 8; ++i) {
        QVERIFY(QFile::exists(arbo + QStringLiteral("sonoj/gratulo%1.oga").arg(i)));
        QVERIFY(QFile::exists(arbo + QStringLiteral("sonoj/nebona%1.oga").arg(i)));
    }
}

void tst_sonarbo::ludasGhisFino()
{
    for (const char* dosiero : {"sonoj/noteto_jes.oga", "sonoj/bonegea.oga", "sonoj/lec12/fragoj.oga"}) {
        QMediaPlayer ludilo;
        QSignalSpy stato(&ludilo, &QMediaPlayer::mediaStatusChanged);
        ludilo.setMedia(QUrl::fromLocalFile(arbo + dosiero));
        ludilo.play();
        QTRY_COMPARE_WITH_TIMEOUT(ludilo.mediaStatus(), QMediaPlayer::EndOfMedia, 10000);
        QCOMPARE(ludilo.error(), QMediaPlayer::NoError);
        QVERIFY(ludilo.duration() > 0);
    }
    // The song of lesson 12 lasts a song's length: one to two and a half minutes.
    QMediaPlayer kanto;
    kanto.setMedia(QUrl::fromLocalFile(arbo + "sonoj/lec12/fragoj.oga"));
    QTRY_VERIFY_WITH_TIMEOUT(kanto.duration() > 0, 10000);
    QVERIFY2(kanto.duration() >= 60000 && kanto.duration() <= 150000, qPrintable(QString::number(kanto.duration())));
}

int main(int argc, char** argv)
{
    qputenv("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakesink");
    QApplication app(argc, argv);
    tst_sonarbo t;
    return QTest::qExec(&t, argc, argv);
}
#include "tst_sonarbo.moc"
