// Writes the files that are made from the lesson sources:
//   resources/tradukoj/tradukendaj.tdf  the list of things to translate
//   resources/tradukoj/portugala.trd    Portuguese, the lessons' own language:
//       the groups of resources/tradukoj/partoj/portugala_komuna.trd followed
//       by the lesson groups with the texts of the lesson sources.
//
//   listigilo SOURCE_FOLDER

#include "funkcioj.h"
#include "tradukeroj.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace {

bool skribas(const QString& vojo, const QByteArray& enhavo)
{
    QFile f(vojo);
    if (f.open(QIODevice::ReadOnly) && f.readAll() == enhavo)
        return true;   // unchanged: keep the file's time
    f.close();
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    f.write(enhavo);
    std::printf("wrote %s\n", qPrintable(vojo));
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: listigilo SOURCE_FOLDER\n");
        return 2;
    }
    QTemporaryDir ujo;
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = savasLoko = ujo.path() + QLatin1Char('/');

    const QString fontoj = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/resources/tradukoj/");
    QFile komuna(fontoj + QStringLiteral("partoj/portugala_komuna.trd"));
    if (!komuna.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "listigilo: cannot read %s\n", qPrintable(komuna.fileName()));
        return 1;
    }
    const QByteArray portugala = komuna.readAll() + "\r\n" + tradukeroj::lecionajGrupoj().toUtf8();
    const bool bone = skribas(fontoj + QStringLiteral("tradukendaj.tdf"), tradukeroj::tdf().toUtf8())
                      && skribas(fontoj + QStringLiteral("portugala.trd"), portugala);
    return bone ? 0 : 1;
}
