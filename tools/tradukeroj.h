#ifndef TRADUKEROJ_H
#define TRADUKEROJ_H

#include <QString>
#include <QVector>

class QTabWidget;

// The texts of a lesson that a translator has to write (the labels chosen by
// tradukendajEtikedoj), in the order of the tabs, with the form's own text.
struct Tradukero
{
    int numero = 0;     // place in reading order, counted over every label taken
    QString shlosilo;   // key in the lesson's group of a translation file
    QString teksto;     // the form's built-in text
};

class tradukeroj
{
public:
    static QVector<Tradukero> deLeciono(QTabWidget* langetoj);

    // The list of things to translate, tradukendaj.tdf, for all lessons.
    static QString tdf();
    // The lesson groups [Lec01] ... [Lec13] with the built-in texts.
    static QString lecionajGrupoj();

    // One INI line "key=value", the value quoted and escaped where needed.
    static QString iniLinio(const QString& shlosilo, const QString& valoro);
};

#endif
