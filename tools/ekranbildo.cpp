// Shows a lesson page as the learner sees it and saves it as a picture, for
// course authors who check their pages without clicking through the course.
//
//   ekranbildo LESSON PAGE picture.png [translation.trd] [width height]

#include "funkcioj.h"
#include "lernilo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFrame>
#include <QScrollArea>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc < 4) {
        std::fprintf(stderr, "usage: ekranbildo LESSON PAGE picture.png [translation.trd] [width height]\n");
        return 2;
    }
    const int leciono = QByteArray(argv[1]).toInt();
    const int pagho = QByteArray(argv[2]).toInt();
    const QString dosiero = argc > 4 ? QString::fromLocal8Bit(argv[4]) : QStringLiteral("angla.trd");

    QTemporaryDir ujo;
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = QCoreApplication::applicationDirPath() + QStringLiteral("/../");
    savasLoko = ujo.path() + QLatin1Char('/');
    sServilo = QStringLiteral("http://127.0.0.1:9");
    {
        QSettings agordoj(savasLoko + QStringLiteral("lernilomelo.ini"), QSettings::IniFormat);
        agordoj.setValue(QStringLiteral("Gxenerala/Lingvo"), QStringLiteral("-"));
        agordoj.setValue(QStringLiteral("Gxenerala/Dosiero"), dosiero);
        QFile(savasLoko + QStringLiteral("traduklisto.ini")).open(QIODevice::WriteOnly);
    }

    lernilo fenestro;
    if (argc > 6)
        fenestro.resize(QByteArray(argv[5]).toInt(), QByteArray(argv[6]).toInt());
    fenestro.show();
    if (leciono >= 1 && leciono <= KiomDaLecionoj) {
        fenestro.findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(leciono))->click();
        if (QTabWidget* langetoj = lecionLangetoj(fenestro.leciono(leciono))) {
            langetoj->setCurrentIndex(pagho);
            fenestro.komencas_navigujon();   // the counter shows the page shown
        }
    }
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
    return fenestro.grab().save(QString::fromLocal8Bit(argv[3])) ? 0 : 1;
}
