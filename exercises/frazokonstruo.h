#ifndef FRAZOKONSTRUO_H
#define FRAZOKONSTRUO_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QPushButton;

namespace Ui {
class frazokonstruo;
}

// Sentence building: the learner rebuilds an Esperanto sentence from its
// translation by clicking word buttons of a mixed pool, false words among
// them, into the sentence row, and checks it. The data holds only numbers:
// the sentence is read from the lesson's widget prefix + "Button" + N and
// its translation from the lesson's label prefix + "Label" + M, so the frame
// works only inside its lesson.
class frazokonstruo : public QFrame
{
    Q_OBJECT

public:
    explicit frazokonstruo(QWidget* parent = nullptr);
    ~frazokonstruo() override;

    // Draws a sentence not yet built right and deals its words to the pool.
    void novafrazo();
    // Shows the right sentence after a mistake and waits for Next.
    void tekstoblinko();

    int kiom = 0;
    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<bool> uzitaj;

    QStringList identigiloj;            // column D: numbers of the sentence widgets
    QStringList etikedoj;               // column R: numbers of the translation labels
    QStringList frazoj;                 // each sentence as the lesson shows it
    QList<QStringList> frazvortoj;      // the words of each sentence, in order
    QStringList tradukoj;
    QStringList vortlisto;              // the words of the current sentence
    QList<QPushButton*> vortbutonoj;    // the sentence row, 18 buttons
    QList<QPushButton*> disponeblaj;    // the pool, 18 buttons
    QWidget* langeto = nullptr;         // the lesson's tab widget, not owned
    bool atendas = false;               // a wrong check waits for Next

private slots:
    void on_BitBtn1_clicked();
    void on_BitBtn3_clicked();
    void on_BitBtn2_clicked();
    void on_Antauen_clicked();
    void vortoklako();
    void vortoforigo();

private:
    Ui::frazokonstruo* ui;
};

#endif
