#include "videoludilo.h"
#include "funkcioj.h"

#include <QLabel>
#include <QMediaPlayer>
#include <QMouseEvent>
#include <QScrollArea>
#include <QUrl>
#include <QVideoWidget>

namespace {
const char* const maldika = "border: 8px solid Black; ";
const char* const dika = "border: 16px solid Black; ";
}

videoludilo::videoludilo(QWidget* parent)
    : QFrame(parent), ui(new Formo)
{
    if (objectName().isEmpty())
        setObjectName(QStringLiteral("videoludilo"));
    resize(377, 255);
    setWindowOpacity(1.0);
    setFrameShape(QFrame::NoFrame);
    setFrameShadow(QFrame::Raised);

    ui->startilo = new QLabel(this);
    ui->startilo->setObjectName(QStringLiteral("startilo"));
    ui->startilo->setGeometry(QRect(12, 12, 353, 231));
    ui->startilo->setPixmap(QPixmap(QStringLiteral(":/ikonoj_androjdo/jen_video_startu.png")));
    ui->startilo->setScaledContents(false);
    ui->startilo->setAlignment(Qt::AlignLeading | Qt::AlignLeft | Qt::AlignTop);
    setWindowTitle(QStringLiteral("Frame"));
    QMetaObject::connectSlotsByName(this);

    if (sSistemo == QLatin1String("android"))
        return;   // only the picture there

    ludilo = new QMediaPlayer(this);
    ujo = new QWidget;
    videujo = new QVideoWidget(ujo);
    ludilo->setVideoOutput(videujo);
    auto* ujoAranghilo = new QVBoxLayout(ujo);
    ujoAranghilo->setSpacing(0);
    ujoAranghilo->setContentsMargins(0, 0, 0, 0);
    ujoAranghilo->addWidget(videujo);

    setMinimumSize(352, 272);
    setMaximumSize(352, 272);
    videujo->setMinimumSize(320, 240);
    ui->startilo->setMinimumSize(320, 240);
    setStyleSheet(QLatin1String(maldika));

    vertikala.addWidget(ui->startilo, 0, Qt::AlignCenter);
    vertikala.addWidget(ujo, 0, Qt::AlignCenter);
    vertikala.setSpacing(0);
    vertikala.setContentsMargins(0, 0, 0, 0);
    setLayout(&vertikala);

    connect(ludilo, &QMediaPlayer::mediaStatusChanged, this, &videoludilo::finite);
    ujo->hide();
}

videoludilo::~videoludilo()
{
    delete ui;
}

QString videoludilo::filmoVojo()
{
    return mrLoko + QStringLiteral("video/lec02/jen_video") + video_finajho;
}

void videoludilo::showEvent(QShowEvent* evento)
{
    QFrame::showEvent(evento);
    if (rulujo || !ludilo)
        return;
    rulujo = static_cast<QScrollArea*>(praulo(this, "QScrollArea"));
    ludilo->setMedia(QUrl::fromLocalFile(filmoVojo()));
}

void videoludilo::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton || !ludilo) {
        evento->ignore();
        return;
    }
    if (ludilo->state() != QMediaPlayer::PlayingState) {
        ui->startilo->hide();
        setStyleSheet(QLatin1String(dika));
        ujo->show();
        ludilo->play();
        if (rulujo)
            rulujo->setWidgetResizable(true);
    } else {
        ludilo->pause();
    }
    evento->accept();
}

void videoludilo::finite()
{
    if (ludilo->mediaStatus() != QMediaPlayer::EndOfMedia)
        return;
    ujo->hide();
    setStyleSheet(QLatin1String(maldika));
    ui->startilo->show();
    if (rulujo)
        rulujo->setWidgetResizable(true);
}
