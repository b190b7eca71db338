#ifndef AUDKOMPRENO_H
#define AUDKOMPRENO_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;

namespace Ui {
class audkompreno;
}

// Dictation: the program says a word or a phrase of the lesson, the learner
// types what he heard. A right answer joins the panel of answers, a wrong one
// makes the right text blink. The run ends at 40 right answers, or at the
// number of items when there are fewer.
class audkompreno : public QFrame
{
    Q_OBJECT

public:
    explicit audkompreno(QWidget* parent = nullptr);
    ~audkompreno() override;

public slots:
    void on_BitBtn8_clicked();
    void novavorto();
    void analizu();
    void on_BitBtn10_clicked();
    void on_BitBtn9_clicked();
    void on_Edit1_returnPressed();
    void on_finita_clicked();

protected:
    // The text the learner must type for the current row.
    QString atendata() const;

    QList<QLabel*> etikedoj;
    QString kodo;
    int kiom = 0;
    QList<bool> uzitaj;
    QStringList datumoj;
    int sukcesoj = 0;
    int eraroj = 0;
    int nuna = 0;
    QString sono;
    QString leciono;
    QString ltr_marko;

private:
    Ui::audkompreno* ui;
};

#endif
