#ifndef INIDOSIERO_H
#define INIDOSIERO_H

#include <QSettings>

// An INI file read and written as UTF-8, opened for one use: the settings,
// a translation, the language list, the exercise data.
class inidosiero : public QSettings
{
public:
    explicit inidosiero(const QString& vojo)
        : QSettings(vojo, QSettings::IniFormat)
    {
        setIniCodec("UTF-8");
    }
};

#endif
