#include "funkcioj.h"
#include "lernilo.h"

#include <QApplication>
#include <QSysInfo>

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("LerniloMelo"));
    QCoreApplication::setApplicationVersion(QStringLiteral("5.0 melo"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lernilo Melo"));
    QGuiApplication::setDesktopFileName(QStringLiteral(LERNILO_ID));
    QCoreApplication::setOrganizationName(QStringLiteral("Lernilo"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("lernilo.example.org"));

    sSistemo = QSysInfo::productType();
    sSistemo = QStringLiteral("linux");   // the program behaves as on Linux everywhere
    mrLoko = kiuSistemo(QStringLiteral("multrimedoj"));
    savasLoko = kiuSistemo(QStringLiteral("skribebla"));
    Loko = QStringLiteral(":/");

    lernilo fenestro;
    fenestro.setWindowFlag(Qt::MaximizeUsingFullscreenGeometryHint, false);
    fenestro.setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
    fenestro.show();
    fenestro.Saluton();
    return app.exec();
}
