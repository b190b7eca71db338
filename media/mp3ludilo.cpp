#include "mp3ludilo.h"
#include "ui_mp3ludilo.h"

#include "funkcioj.h"

#include <QMediaPlayer>
#include <QTabWidget>
#include <QUrl>

mp3ludilo::mp3ludilo(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::mp3ludilo)
{
    ui->setupUi(this);
    ludilo = new QMediaPlayer(this);
    connect(ludilo, &QMediaPlayer::mediaStatusChanged, this, &mp3ludilo::finite);
    ui->Ludu->setEnabled(true);
    ui->Pauzu->hide();
    ui->Chesu->hide();
}

mp3ludilo::~mp3ludilo()
{
    delete ui;
}

void mp3ludilo::on_Ludu_clicked()
{
    QWidget* o = praulo(this, "QTabWidget");
    if (o)
        tabo = static_cast<QTabWidget*>(o)->currentIndex();

    if (ludilo->state() == QMediaPlayer::PlayingState) {
        ludilo->pause();
        setUpdatesEnabled(false);
        ui->Pauzu->hide();
        ui->Ludu->show();
        setUpdatesEnabled(true);
        return;
    }
    if (ludilo->state() == QMediaPlayer::PausedState) {
        ludilo->play();
        setUpdatesEnabled(false);
        ui->Pauzu->show();
        ui->Ludu->hide();
        setUpdatesEnabled(true);
        return;
    }
    const QString vojo = mrLoko + legoSono(objectName());
    ludilo->setMedia(sSistemo == QLatin1String("android") ? QUrl(vojo) : QUrl::fromLocalFile(vojo));
    ludilo->play();
    ui->Chesu->show();
    ui->Pauzu->show();
    ui->Pauzu->setEnabled(true);
    ui->Ludu->hide();
}

void mp3ludilo::on_Pauzu_clicked()
{
    if (ludilo->state() != QMediaPlayer::PlayingState)
        return;
    ludilo->pause();
    setUpdatesEnabled(false);
    ui->Pauzu->hide();
    ui->Ludu->show();
    setUpdatesEnabled(true);
    repaint();
}

void mp3ludilo::on_Chesu_clicked()
{
    ui->Chesu->hide();
    ui->Pauzu->hide();
    ui->Ludu->show();
    ludilo->stop();
    repaint();
}

void mp3ludilo::finite()
{
    if (ludilo->mediaStatus() == QMediaPlayer::EndOfMedia)
        on_Chesu_clicked();
}

void mp3ludilo::PaghoShanghita(int indekso)
{
    if (tabo < 0 || indekso == tabo || ludilo->state() != QMediaPlayer::PlayingState)
        return;
    on_Chesu_clicked();
}

// The song plays on while the learner turns to its words on the next page.
void mp3ludilo::PaghoFragoj(int indekso)
{
    if (indekso == tabo + 1)
        return;
    PaghoShanghita(indekso);
}
