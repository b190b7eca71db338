#ifndef TESTAJ_HELPOJ_H
#define TESTAJ_HELPOJ_H

#include "funkcioj.h"

#include <QDir>
#include <QTemporaryDir>

// Points the program's folders at a fresh temporary folder, as main() would
// on Linux, so that no test reads or writes the user's own files.
inline void preparasLokojn(const QTemporaryDir& ujo)
{
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = ujo.path() + QStringLiteral("/media/");
    savasLoko = ujo.path() + QStringLiteral("/skribebla/");
    QDir().mkpath(mrLoko);
    QDir().mkpath(savasLoko);
}

#endif
