#ifndef FUZZHELPOJ_H
#define FUZZHELPOJ_H

// What every fuzz target shares: an application without a display, the
// program's folders in a temporary folder of its own, and a way to hand an
// input to a reader that takes a file.

#include "funkcioj.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

// Sets up the application once; returns the temporary folder (which ends in "/").
inline QString fuzzKomenco(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.debug=false;*.warning=false");
    // Never destroyed: its caches stay reachable, and the leak check at the
    // end sees only what an input left behind.
    static QApplication* app = new QApplication(*argc, *argv);
    Q_UNUSED(app);
    static QTemporaryDir ujo;
    const QString radiko = ujo.path() + QLatin1Char('/');
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = radiko + QStringLiteral("media/");
    savasLoko = radiko + QStringLiteral("skribebla/");
    sServilo = QStringLiteral("http://127.0.0.1:9");
    iMsEnSekundo = 0;
    for (const QString& u : {mrLoko, savasLoko, radiko + QStringLiteral("ekzercoj/"), radiko + QStringLiteral("tradukoj/")})
        QDir().mkpath(u);
    return radiko;
}

// Writes an input to a file. QSettings keeps files it has read and reads one
// again only when its size or time has changed, so each write gets a time of
// its own.
inline void fuzzSkribas(const QString& vojo, const uint8_t* datumoj, size_t grando)
{
    static qint64 horlogho = 0;
    QFile f(vojo);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    f.write(reinterpret_cast<const char*>(datumoj), qint64(grando));
    f.flush();
    f.setFileTime(QDateTime::fromMSecsSinceEpoch(1000000000000 + ++horlogho), QFileDevice::FileModificationTime);
    f.close();
}

// A property that must hold whatever the input: its failure is a finding.
inline void fuzzCerte(bool kondicho, const char* kio)
{
    if (!kondicho) {
        std::fprintf(stderr, "broken: %s\n", kio);
        std::abort();
    }
}

#endif
