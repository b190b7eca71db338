#ifndef AKUZATIVO_H
#define AKUZATIVO_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;

namespace Ui {
class akuzativo;
}

// Where the accusative ending goes: a sentence of up to ten words stands
// without any "n" ending above its translation, and the learner clicks the
// words that need it. Each click is marked at once and explained; closing
// the sentence judges what is still missing. Every wrong click is a mistake
// of its own, so one sentence may cost several.
class akuzativo : public QFrame
{
    Q_OBJECT

public:
    explicit akuzativo(QWidget* parent = nullptr);
    ~akuzativo() override;

    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<QStringList> datumoj;        // column D: the words
    QList<QStringList> respondoj;      // column R: "1" where a word takes the ending
    QList<QStringList> klarigindicoj;  // column K: the explanation of each word
    QList<bool> uzitaj;
    QStringList tradukoj;              // one a sentence, from the section the lesson names
    QStringList klarigoj;              // the thirteen explanations
    QString markoj[11];                // "1" where the learner has added the ending
    int kiom = 0;
    QList<QLabel*> etikedoj;           // label_164 to label_173: word 0 to word 9

public slots:
    void on_BitBtn1_clicked();
    void novafrazo();
    void vortoklako(int i);
    // Flashes the words that still lack their ending; not the blink that
    // points at one right answer in the other exercises.
    void tekstoblinko();
    void on_BitBtn3_clicked();
    void on_BitBtn2_clicked();
    void on_label_164_clicked();
    void on_label_165_clicked();
    void on_label_166_clicked();
    void on_label_167_clicked();
    void on_label_168_clicked();
    void on_label_169_clicked();
    void on_label_170_clicked();
    void on_label_171_clicked();
    void on_label_172_clicked();
    void on_label_173_clicked();

private:
    bool bezonasN(int i) const;
    void montrasProcenton();

    Ui::akuzativo* ui;
    // Jes(), Ne() and the blink run the event loop: a second close of the
    // same sentence meanwhile is refused, and a Stop or Start meanwhile ends
    // the first close's work.
    bool fermas = false;
    int rulado = 0;
};

#endif
