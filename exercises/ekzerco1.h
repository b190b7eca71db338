#ifndef EKZERCO1_H
#define EKZERCO1_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QPushButton;

namespace Ui {
class ekzerco1;
}

// The listening drill of lesson 1: a word is played and the learner clicks
// the one of six words on screen that he heard. Rounds of four: six buttons
// are dealt, four with the round's words and two with false words, and the
// four are asked in random order.
class ekzerco1 : public QFrame
{
    Q_OBJECT

public:
    explicit ekzerco1(QWidget* parent = nullptr);
    ~ekzerco1() override;

public slots:
    void on_BitBtn1_clicked();
    void on_BitBtn2_clicked();
    void on_BitBtn3_clicked();
    void on_butono0_clicked();
    void on_butono1_clicked();
    void on_butono2_clicked();
    void on_butono3_clicked();
    void on_butono4_clicked();
    void on_butono5_clicked();

protected:
    void novafrazo();
    void novavorto();
    void vortoklako(int i);

    int kiom = 0;
    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<bool> uzitaj;

    QStringList vortoj;
    QList<QPushButton*> butonoj;   // in grid order, row by row
    int elektitaj[4] = {};
    int pozicioj[4] = {};
    int falsaj[2] = {};
    bool faritaj[6] = {};
    QString sonvojo;
    bool okupita = false;
    bool nova_rondo = false;

private:
    // Right answers that end a run: whole rounds of four.
    int celo() const;

    Ui::ekzerco1* ui;
    // Counts the Starts, so that a wrong click whose pause or blink outlived
    // its run (Stop and Start meanwhile) leaves the new run alone.
    int rulado = 0;
};

#endif
