#ifndef LINGVOELEKTO_H
#define LINGVOELEKTO_H

#include <QDialog>
#include <QList>
#include <QStringList>

class FileDownloader;

namespace Ui {
class lingvoelekto;
}

// The first-run dialog: the learner picks the language of the course,
// among the server's languages or, offline, those built into the program.
class lingvoelekto : public QDialog
{
    Q_OBJECT
public:
    explicit lingvoelekto(QWidget* parent = nullptr);
    ~lingvoelekto() override;

public slots:
    void komencasElDosierujo();
    void elshutas();
    void elektasTradukFonton();
    void on_pushButton_clicked();
    void fermasFenestron();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void aldonas(const QStringList& vico, int i, int& sistema, int& angla);
    void elektas(int sistema, int angla);

    Ui::lingvoelekto* ui;
    QList<QStringList> lingvoj;
    FileDownloader* elshutilo = nullptr;
};

#endif
