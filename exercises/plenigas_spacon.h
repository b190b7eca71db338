#ifndef PLENIGAS_SPACON_H
#define PLENIGAS_SPACON_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;
class QLineEdit;

namespace Ui {
class plenigas_spacon;
}

// Fill the gap: a sentence in up to six fragments with up to five fields
// between them, its translation above. The learner types the missing words,
// prefixes or endings; a run ends after limigo(kiom) right sentences.
class plenigas_spacon : public QFrame
{
    Q_OBJECT
public:
    explicit plenigas_spacon(QWidget* parent = nullptr);
    ~plenigas_spacon() override;

    // Draws a sentence not yet answered right and lays it out.
    void novafrazo();

    int kiom = 0;
    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<bool> uzitaj;

    QList<QStringList> datumoj;     // per sentence its six fragments
    QList<QStringList> respondoj;   // per sentence the answers of its gaps
    QStringList tradukoj;
    QString identigilo;
    bool atendas = false;           // a wrong check waits for Next

    QList<QLabel*> etikedoj;        // Vorto1, KorektaVorto1, ... KorektaVorto5, Vorto6
    QList<QLineEdit*> kampoj;       // Edit1 to Edit5

private slots:
    void on_BitBtn4_clicked();
    void on_BitBtn5_clicked();
    void on_BitBtn6_clicked();
    void on_antauen_clicked();
    void on_Edit1_returnPressed();
    void on_Edit2_returnPressed();
    void on_Edit3_returnPressed();
    void on_Edit4_returnPressed();
    void on_Edit5_returnPressed();
    void on_printilo_ps_clicked();

private:
    QString folio() const;   // the paper sheet of the whole exercise, as HTML
    // Return in field k (0 to 4): on to the next field in use, or Check.
    void revenas(int k);
    // Lets the fragments wrap when the sentence is wider than its row.
    void faldasFragmentojn();
    QLabel* vorto(int k) const { return etikedoj.at(2 * k); }
    QLabel* korektaVorto(int k) const { return etikedoj.at(2 * k + 1); }

    Ui::plenigas_spacon* ui;
    // Jes() and Ne() run the event loop: a second Check meanwhile is refused,
    // and a Stop or a new Start meanwhile ends the first one's work.
    bool okupita = false;
    int rulado = 0;
};

#endif
