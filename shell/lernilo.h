#ifndef LERNILO_H
#define LERNILO_H

#include "funkcioj.h"

#include <QList>
#include <QMainWindow>
#include <QDate>
#include <QStringList>

class QFrame;
class QLabel;
class QMediaPlayer;
class FileDownloader;
class traduko;

namespace Ui {
class lernilo;
}

// The course's one main window. Everything the learner sees is a page of the
// stacked widget Paghujo: the home page, the thirteen lessons, the settings
// and the credits.
class lernilo : public QMainWindow
{
    Q_OBJECT

public:
    explicit lernilo(QWidget* parent = nullptr);
    ~lernilo() override;

    // The player of every short sound: words, praise, greeting.
    QMediaPlayer* ludilo = nullptr;

    // The frame of lesson `numero` (1 to KiomDaLecionoj), null until first opened.
    QFrame* leciono(int numero) const;

public slots:
    void ShanghasPaghon(QString pagho, QFrame* leciono);
    void komencas_navigujon();
    void montras_koverton(bool sendas, int pagho);
    void Centrigas_Fenestron();
    void SavasKonfig();
    void Stilo();
    void Traduku();
    void ListigasLingvojn();
    void Konfiguru();
    void ShanghasTiparStilon();
    void ShanghasTiparon();
    void shanghitajKonfiguroj();
    void aktualigasTradukon();
    void Saluton();

    // The translator's editor and the course following its sentence.
    void on_tradukilo_clicked();
    void lokigas_paghotrad(QString pagho);
    void lokigas_frazotrad(QString pagho, QString objekto);
    // Maintenance for the course's makers: writes the list of things to
    // translate from the lessons built so far (over a writable copy of the
    // list put at its resource path).
    void listigas_trad();

    void on_shanghasKonfigurojn_clicked();
    void on_Lingvo_activated(int indekso);
    void on_Tiparo_currentIndexChanged(QString tiparo);
    void on_TiparoEo_currentIndexChanged(QString tiparo);
    void on_LiterGrando_valueChanged(int grando);
    void on_LiterGrandoEo_valueChanged(int grando);
    void on_glitilo_traduko_valueChanged(int valoro);
    void on_glitilo_eo_valueChanged(int valoro);
    void on_Cxapeligo_toggled(bool b);
    void on_Parolo_toggled(bool b);
    void on_Noteto_toggled(bool b);

    void on_Leciono1_clicked();
    void on_Leciono2_clicked();
    void on_Leciono3_clicked();
    void on_Leciono4_clicked();
    void on_Leciono5_clicked();
    void on_Leciono6_clicked();
    void on_Leciono7_clicked();
    void on_Leciono8_clicked();
    void on_Leciono9_clicked();
    void on_Leciono10_clicked();
    void on_Leciono11_clicked();
    void on_Leciono12_clicked();
    void on_Leciono13_clicked();

    void on_KieButono_clicked();
    void on_label_Kie_clicked();
    void on_Hejmo_clicked();
    void on_butono_androjdo_clicked();
    void on_dekstren_clicked();
    void on_maldekstren_clicked();
    void on_Eliri_clicked();
    void on_label_Eliri_clicked();
    void on_Kreditoj_clicked();
    void on_label_Kreditoj_clicked();
    void on_Konfigurado_clicked();
    void on_label_Konfiguroj_clicked();
    void on_Sendas_clicked();
    void on_printilo_clicked();
    void on_KioEstas_clicked();
    void on_KielUzi_clicked();
    void on_label_Kio_clicked();
    void on_label_Kiel_clicked();

    // Kept for the window's look; they have nothing to do.
    void Ghustigas_fenestron();
    void ReGrandigas_Fenestron();
    void Malgrandigas();
    void Fenestra_Stilo();
    void on_radioButton_clicked(bool);
    void on_radioButton_2_clicked(bool);
    void on_radioButton_3_clicked(bool);

protected:
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

public:
    // The language list is refreshed when it is older than a week.
    static bool listoMalnova(const QDate& naskigho, const QDate& hodiau);
    // The greeting's phrase for an hour of the day and two draws of 0 or 1.
    static QString salutoRadiko(int horo, int unuaHazardo, int duaHazardo);
    // Reads group Gxenerala of the settings file into the globals, each value
    // brought into its range; a file name that is not safe is dropped.
    static void legasAgordojn();
    // The style of a sample text: the font and its scaled size.
    static QString specimenStilo(const QString& tiparo, int grando);
    // What listigas_trad does, into the list file at `vojo`.
    void listigasTradukendajn(const QString& vojo);
    // The label that has the editor's frame, if any.
    QLabel* kadrita() const { return kadroEtikedo; }

private:
    void komencakonfiguro();
    void elshutas(const QString& vojo, const QString& nomo, const char* poste);
    void malfermasLecionon(int numero);
    void metasApudKurso(QWidget* dialogo);
    void kadras(QLabel* etikedo);

    Ui::lernilo* ui;
    traduko* tradukilo = nullptr;
    QList<QStringList> lingvoListo;
    QStringList tradukitaj;
    FileDownloader* elshutilo = nullptr;
    QLabel* kadroEtikedo = nullptr;
    QFrame* lecionoj[KiomDaLecionoj] = {};
};

#endif
