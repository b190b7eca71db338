#ifndef SONLISTO_H
#define SONLISTO_H

#include <QString>
#include <QVector>

// One sound file the course plays, and what it says.
struct Sono
{
    QString vojo;       // relative to the media folder, as the program opens it
    QString vocxo;      // voice: an espeak-ng voice, "noto" for a note, "kanto" for the song
    int rapido = 140;   // words a minute
    QString teksto;     // what is said (for a note: "jes" or "ne"; for the song: its score)
};

// Every sound of the course: the words and phrases of the lessons, the
// sounds their exercise data names, the reading texts of the players, and
// the spoken feedback, greetings and notes. Builds the lessons to find them,
// so it needs a running application.
class sonlisto
{
public:
    static QVector<Sono> kolektas();
    static QVector<Sono> lecionaj();
    static QVector<Sono> fiksaj();
};

#endif
