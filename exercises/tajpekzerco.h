#ifndef TAJPEKZERCO_H
#define TAJPEKZERCO_H

#include <QFrame>
#include <QList>
#include <QString>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

// What the numbers and the clock exercises share: an item in words, a field
// where the learner types it in digits, judged at once; after a mistake the
// right answer blinks under the item. Each subclass has its own form, with
// the same widget names, and says how a typed text is judged.
class tajpekzerco : public QFrame
{
    Q_OBJECT

public:
    ~tajpekzerco() override;

    // Asks the next item not yet answered right.
    void novafrazo();
    // The paper sheet of the whole exercise, as HTML: every item in the
    // order of the data with a line to write on, and the answers at the end.
    QString folio() const;

    int kiom = 0;
    int nuna = 0;
    int sukcesoj = 0;
    int eraroj = 0;
    QList<bool> uzitaj;

    QStringList datumoj;     // column D: the items in words
    QStringList respondoj;   // column R: the same in digits

public slots:
    void on_BitBtn1_clicked();
    void on_BitBtn2_clicked();
    void on_BitBtn3_clicked();
    void on_Edit1_returnPressed();
    void on_printilo_ps_clicked();

protected:
    enum Takso { Netaksebla, Malghusta, Ghusta };

    explicit tajpekzerco(QWidget* parent);
    // Finds the shared widgets by name; the subclass calls it once its form
    // is set up and the fields below are filled.
    void preparas();
    // How the typed text compares with the answer of the data; an answer
    // that is not there yet is not judged.
    virtual Takso taksas(const QString& teksto, const QString& respondo) const = 0;
    // Readies the field for typing, after it has been emptied and focused.
    virtual void pretigasKampon() {}

    QString identigilo;        // the exercise's group in the data
    QString linio;             // the line to write on, on a sheet
    QList<QLabel*> titolaj;    // the form's bold title lines
    QLabel* instrukcia = nullptr;

private:
    QPushButton* komenco = nullptr;   // BitBtn1
    QPushButton* kontrolo = nullptr;  // BitBtn2
    QPushButton* halto = nullptr;     // BitBtn3
    QLineEdit* kampo = nullptr;       // Edit1
    QLabel* vorto = nullptr;          // Vorto0
    QLabel* korekta = nullptr;        // Korekta
    QList<QSpinBox*> placar;          // Placar1 to Placar4
    // Counts the Starts and Stops: Jes() runs the event loop, and an answer
    // whose wait outlived its run leaves the state after it alone.
    int rulado = 0;
};

#endif
