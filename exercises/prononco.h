#ifndef PRONONCO_H
#define PRONONCO_H

#include <QAudio>
#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QAudioRecorder;
class QMediaPlayer;

namespace Ui {
class prononco;
}

// Pronunciation: the program says a word, records the learner saying it, and
// then plays the model and the learner's own voice one after the other, for
// the learner to compare by ear. Nothing is marked; the counter shows the
// words left.
//
// The enabled state of the Stop button is the run flag: the long routines
// test it when they begin and between items, so Stop takes effect there.
class prononco : public QFrame
{
    Q_OBJECT

public:
    explicit prononco(QWidget* parent = nullptr);
    ~prononco() override;
    // The file item i of a step is recorded to and played back from.
    QString registrajho(int i) const;

public slots:
    void on_PP_Startu_clicked();
    void novafrazo();
    void RegistrasVocxon();
    void on_PP_Haltu_clicked();
    void on_PP_Antauen_clicked();
    void on_PP_Mik_re_clicked();
    void on_PP_Aud_re_clicked();
    void LudoFinita(QAudio::State stato);
    void ChesasRegistri();
    void LudasRegistrita(int i);
    void Registru(int i);
    void Progreso(qint64 ms);

protected:
    struct Elemento
    {
        QString vorto;   // what PP_Vorto shows
        QString sono;    // the model, relative to the media folder
    };

    QStringList datumoj;
    Elemento elementoj[4];
    int dauroj[4] = {};   // seconds to wait while each model plays
    QList<bool> uzitaj;
    int nuna = 0;
    int kiom = 0;
    int kiomope = 1;
    int indekso = 0;
    QAudioRecorder* registrilo;
    QMediaPlayer* ludilo;
    QString savejo;

private:
    bool kuras() const;
    void montrasBildon(const QString& bildo);

    Ui::prononco* ui;
};

#endif
