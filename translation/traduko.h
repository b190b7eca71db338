#ifndef TRADUKO_H
#define TRADUKO_H

#include <QDialog>
#include <QList>
#include <QStringList>

namespace Ui {
class traduko;
}

// The translator's editor: one sentence at a time, the texts of two reference
// languages above and the translator's own text below. What is written goes
// to a .trd file in the writable folder and into the language list, and the
// course behind the dialog follows the sentence being translated.
class traduko : public QDialog
{
    Q_OBJECT

public:
    explicit traduko(QWidget* parent = nullptr);
    ~traduko() override;

    void konfiguro();
    void ListigasLingvojn();
    void SharghasTrad(QString sekcio);
    QStringList Ordigas(QString sekcio);
    bool SavasTrad();

signals:
    void novapagho(QString pagho);
    void novafrazo(QString pagho, QString objekto);

public slots:
    // "posta", "antaua", "komenca", "fina" move and store the box first;
    // "nenien" only stores it; an empty text only shows the sentence anew.
    void Movighas(QString direkto);
    void lokigas_paghotrad(QString sekcio);
    void lokigas_frazotrad(QString shlosilo);
    void moveScrollBarToBottom(int minimumo, int maksimumo);

    void on_lingvoj1_activated(int i);
    void on_lingvoj2_activated(int i);
    void on_Listo_activated(const QString& nova);
    void on_tiparo_currentIndexChanged(const QString& familio);
    void on_literGrando_valueChanged(int grando);
    void on_horizontalSlider_valueChanged(int grando);
    void on_direktoRTL_toggled(bool dekstre);
    void on_pushButton_clicked();
    void on_dosierujo_clicked();
    void on_Button1_clicked();
    void on_Button2_clicked();
    void on_Button5_clicked();
    void on_Button6_clicked();
    void on_Button4_clicked();
    void on_Button7_clicked();

    // Escape closes the editor as its button does, so nothing typed is lost.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    bool havasShlosilojn(const QString& sekcio);
    QStringList referenco(const QString& dosiero, const QString& sekcio);
    QString propraDosiero() const;
    QString legataDosiero() const;

    Ui::traduko* ui;
    QString dosiero1, dosiero2;
    QString sekcio;
    QString dosierujo;
    int literGrandoEditoro = 12;
    int pozicio = 0;
    QList<QStringList> lingvoj;
    QStringList referenco1, referenco2, tradukoj, slosiloj;
    int legitaSekcio = 0;    // LastaLeciono as read, until applied
    int legitaPozicio = 0;   // Pozicio as read, until applied
};

#endif
