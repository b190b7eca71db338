#ifndef KLASREGISTRO_H
#define KLASREGISTRO_H

#include <QString>

class QWidget;

// Makes a widget of a class given by name. Lesson sources name their widgets'
// classes; every class that a lesson may hold is listed here, in one place.
class klasregistro
{
public:
    static bool konas(const QString& klaso);
    // The new widget, or null for a class that is not listed.
    static QWidget* kreas(const QString& klaso, QWidget* gepatro);
    // The class a widget of a lesson stands for. A class whose code is not
    // part of the program yet is stood in for by a plain widget that carries
    // the name of the class it stands for in its property "klaso".
    static QString klasoDe(const QWidget* w);
};

#endif
