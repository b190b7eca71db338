#ifndef LECIONFONTO_H
#define LECIONFONTO_H

// A lesson as its source file describes it: the tabs, and on each tab the
// tree of widgets and layouts with their names, properties and texts. The
// file format is told in lessons/enhavo/README.md. Reading a source never
// fails as a whole: a line that is wrong is reported and left out.

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

// One widget, layout or spacer of a page.
struct LecionEro
{
    int linio = 0;
    QString klaso;      // class to create; QVBoxLayout, QHBoxLayout, spaco and hspaco are no widgets
    QString nomo;       // object name (every widget and layout has one)
    QString teksto;
    bool havasTekston = false;
    QHash<QString, QString> atributoj;
    QVector<LecionEro> idoj;

    bool estasAranghilo() const;
    bool estasSpaco() const;
};

struct LecionPagho
{
    int linio = 0;
    QString nomo;
    QString teksto;
    QString ikono;      // resource path, empty for none
    QString aranghilo;  // object name of the page's vertical layout
    QVector<LecionEro> idoj;
};

struct LecionKonekto
{
    int linio = 0;
    QString sendinto, signalo, ricevanto, loko;
};

// A mistake of the course author: where it is and what is wrong.
struct LecionEraro
{
    QString dosiero;
    int linio = 0;
    QString kialo;

    QString teksto() const;
};

class lecionfonto
{
public:
    // Reads a source text; `dosiero` only names it in the reports.
    static lecionfonto legas(const QString& teksto, const QString& dosiero);
    // Reads the source of lesson `numero` (1 to 13) from the resources.
    static lecionfonto deRimedoj(int numero);
    static QString rimedoVojo(int numero);
    // How many pages the source of lesson `numero` holds, without building
    // it: its page lines. 0 for a lesson that does not exist.
    static int kiomDaPaghoj(int numero);

    QString dosiero;
    QString numero;     // the lesson's two digits, "02"
    int nuna = 0;       // the tab the form stores as current
    QVector<LecionPagho> paghoj;
    QVector<LecionKonekto> konektoj;
    QVector<LecionEraro> eraroj;

    QString langetujo() const { return QStringLiteral("Lec") + numero; }
    QString kadro() const { return QStringLiteral("lec") + numero; }
};

#endif
