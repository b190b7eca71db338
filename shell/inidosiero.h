#ifndef INIDOSIERO_H
#define INIDOSIERO_H

#include <QSettings>

// An INI file read and written as UTF-8, opened for one use: the settings,
// a translation, the language list, the exercise data. A write replaces the
// file only once the new one is complete, so a crash or a full disk leaves
// the old file whole.
class inidosiero : public QSettings
{
public:
    explicit inidosiero(const QString& vojo)
        : QSettings(vojo, QSettings::IniFormat)
    {
        setIniCodec("UTF-8");
        setAtomicSyncRequired(true);
    }
};

#endif
