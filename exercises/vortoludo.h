#ifndef VORTOLUDO_H
#define VORTOLUDO_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;
class QRadioButton;

namespace Ui {
class vortoludo;
}

// The word game: an Esperanto word at the top and five meanings below it,
// one of them right; choosing a meaning is answering. Words and meanings are
// the lesson's own widgets, named by numbers in the exercise data, so the
// meanings come in the learner's language with the rest of the lesson.
class vortoludo : public QFrame
{
    Q_OBJECT

public:
    explicit vortoludo(QWidget* parent = nullptr);
    ~vortoludo() override;

    // Asks the next word not yet answered right.
    void novafrazo();
    // Judges choice j (0 to 4).
    void grupoclick(int j);

    int kiom = 0;
    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<bool> uzitaj;

    QStringList datumoj;           // column D: a widget number or the word itself
    QStringList respondoj;         // column R: numbers of the labels with the meanings
    QList<bool> elektitaj;         // items whose meaning is on screen now
    QList<QRadioButton*> radioj;   // frazo0 to frazo4
    QList<QLabel*> etikedoj;       // Vorto, then teksto0 to teksto4
    QString prefikso;              // such as "Lec01_"
    int ghusta = 0;
    bool okupita = false;          // an answer is being judged

public slots:
    void on_BitBtn18_clicked();
    void on_BitBtn20_clicked();
    void on_frazo0_clicked(bool checked);
    void on_frazo1_clicked(bool checked);
    void on_frazo2_clicked(bool checked);
    void on_frazo3_clicked(bool checked);
    void on_frazo4_clicked(bool checked);
    void on_teksto0_clicked();
    void on_teksto1_clicked();
    void on_teksto2_clicked();
    void on_teksto3_clicked();
    void on_teksto4_clicked();
    void on_printilo_ps_clicked();

private:
    QString folio() const;   // the paper sheet of the whole exercise, as HTML
    void malmarkas(int j);

    Ui::vortoludo* ui;
    // Counts the Starts. Jes, Pauzu and the blink run the event loop: an
    // answer whose wait outlived its run leaves the new run alone.
    int rulado = 0;
};

#endif
