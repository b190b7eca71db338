#ifndef MP3LUDILO_H
#define MP3LUDILO_H

#include <QFrame>

class QMediaPlayer;

namespace Ui {
class mp3ludilo;
}

// The strip that plays a long recording of a lesson page, a reading text or
// a song: play, pause, stop. Its object name says what it plays: Lec04_memo1
// plays sonoj/lec04/memo1. Turning the page stops a playing strip.
class mp3ludilo : public QFrame
{
    Q_OBJECT

public:
    explicit mp3ludilo(QWidget* parent = nullptr);
    ~mp3ludilo() override;

public slots:
    void on_Ludu_clicked();
    void on_Pauzu_clicked();
    void on_Chesu_clicked();
    void finite();
    void PaghoShanghita(int indekso);
    void PaghoFragoj(int indekso);

private:
    Ui::mp3ludilo* ui;
    QMediaPlayer* ludilo;
    int tabo = -1;   // the page on which play was pressed
};

#endif
