#include "prononco.h"
#include "ui_prononco.h"

#include "funkcioj.h"
#include "klavoj.h"
#include "klakbutono_nova.h"

#include <QAudioEncoderSettings>
#include <QAudioRecorder>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>

namespace {

const char* const auskultilo = ":ikonoj/auskultilo.png";
const char* const mikrofono = ":ikonoj/mikrofono.png";

// The ending the recorder's file has when it is played back. On Linux the
// recorder writes exactly the name it is given, so there is none.
QString finajho()
{
    if (sSistemo == QLatin1String("android"))
        return QStringLiteral(".mp4");
    if (sSistemo == QLatin1String("linux"))
        return QString();
    if (sSistemo == QLatin1String("windows") || sSistemo == QLatin1String("osx"))
        return QStringLiteral(".wav");
    return QStringLiteral(".mp4");
}

QAudioEncoderSettings kodigo()
{
    QAudioEncoderSettings agordoj;
    if (sSistemo == QLatin1String("android")) {
        agordoj.setCodec(QStringLiteral("audio/mpeg"));
    } else if (sSistemo == QLatin1String("linux")) {
        agordoj.setCodec(QStringLiteral("audio/x-vorbis"));
    } else {
        agordoj.setCodec(QStringLiteral("audio/amr"));
        agordoj.setEncodingMode(QMultimedia::ConstantQualityEncoding);
    }
    agordoj.setQuality(QMultimedia::NormalQuality);
    return agordoj;
}

} // namespace

prononco::prononco(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::prononco)
{
    ui->setupUi(this);
    klavoj::komenco(ui->PP_Startu);
    klavoj::reaudo(ui->PP_Aud_re);
    klavoj::sekva(ui->PP_Antauen);
    // The bar keeps its place while hidden, so the buttons below stay put.
    QSizePolicy politiko = ui->PP_Prog->sizePolicy();
    politiko.setRetainSizeWhenHidden(true);
    ui->PP_Prog->setSizePolicy(politiko);
    ui->PP_Prog->hide();
    ui->PP_Kiomope->hide();
    ebligasTrenon(ui->scrollArea);
    savejo = savasLoko;
    registrilo = new QAudioRecorder;
    registrilo->setEncodingSettings(kodigo());
    connect(registrilo, &QAudioRecorder::durationChanged, this, &prononco::Progreso);
    ludilo = new QMediaPlayer(this);
}

prononco::~prononco()
{
    delete registrilo;
    delete ui;
}

QString prononco::registrajho(int i) const
{
    return savejo + QStringLiteral("prononco") + QString::number(i);
}

bool prononco::kuras() const
{
    return ui->PP_Haltu->isEnabled();
}

void prononco::montrasBildon(const QString& bildo)
{
    if (bildo.isEmpty())
        ui->bildo->clear();
    else
        ui->bildo->setPixmap(QPixmap(bildo));
}

void prononco::on_PP_Startu_clicked()
{
    ui->PP_Startu->setEnabled(false);
    ui->PP_Haltu->setEnabled(true);
    kiom = _Matriz(&datumoj, objectName().right(4), QStringLiteral("D"));
    ui->Placar->setValue(limigo(kiom));
    uzitaj = neniuUzita(kiom);
    ui->PP_Haltu->setFocus();
    novafrazo();
}

void prononco::novafrazo()
{
    const QString ciferoj = objectName().right(4).left(2);
    const QString prefikso = QStringLiteral("Lec") + ciferoj;
    if (!kuras())
        return;
    ui->butonujo->setEnabled(false);
    ui->PP_Kiomope->setEnabled(false);
    ui->Tempujo->setEnabled(false);

    kiomope = ui->radio4->isChecked() ? 4 : ui->radio2->isChecked() ? 2 : 1;
    kiomope = qMin(kiomope, ui->Placar->value());
    for (int i = 0; i < kiomope; ++i) {
        do
            nuna = random(kiom);
        while (uzitaj[nuna]);
        uzitaj[nuna] = true;
        const QString vico = datumoj[nuna];
        elementoj[i].sono = ekzercaSono(ciferoj, vico, false);  // the model of "aŭ" keeps its x-system name
        if (vico.toInt() < 1) {
            elementoj[i].vorto = vico;
            continue;
        }
        QWidget* o = praulo(this, "QTabWidget");
        const auto vortoj = o ? o->findChildren<klakbutono_nova*>(prefikso + QStringLiteral("_Button") + vico)
                              : QList<klakbutono_nova*>();
        elementoj[i].vorto = vortoj.isEmpty() ? QString() : vortoj.first()->text();
    }

    RegistrasVocxon();

    ui->butonujo->setEnabled(true);
    ui->PP_Kiomope->setEnabled(true);
    ui->Tempujo->setEnabled(true);
    ui->Placar->setValue(ui->Placar->value() - kiomope);
    if (ui->Placar->value() < 1)
        on_PP_Haltu_clicked();
}

void prononco::RegistrasVocxon()
{
    if (!kuras())
        return;
    for (int i = 0; i < kiomope && kuras(); ++i) {
        ui->PP_Vorto->setText(elementoj[i].vorto);
        montrasBildon(QLatin1String(auskultilo));
        const QString vojo = mrLoko + elementoj[i].sono;
        ludilo->setMedia(sSistemo == QLatin1String("android") ? QUrl(vojo) : QUrl::fromLocalFile(vojo));
        ludilo->play();
        dauroj[i] = int(ludilo->duration() / 1000) + 2;
        Pauzu(dauroj[i]);

        montrasBildon(QLatin1String(mikrofono));
        ui->PP_Prog->show();
        indekso = i;
        Registru(i);
        Pauzu(ui->spinBox->value());
        montrasBildon(QString());
        ui->PP_Prog->hide();
        ui->PP_Prog->setValue(0);
    }
    on_PP_Aud_re_clicked();
}

void prononco::Registru(int i)
{
    QTimer::singleShot(ui->spinBox->value() * iMsEnSekundo, this, &prononco::ChesasRegistri);
    registrilo->setOutputLocation(QUrl::fromLocalFile(registrajho(i)));
    registrilo->record();
}

void prononco::ChesasRegistri()
{
    registrilo->stop();
}

void prononco::Progreso(qint64 ms)
{
    const qint64 plena = qint64(ui->spinBox->value()) * iMsEnSekundo;
    ui->PP_Prog->setValue(int(ms * 100 / plena));
}

void prononco::on_PP_Aud_re_clicked()
{
    if (!kuras())
        return;
    ui->butonujo->setEnabled(false);
    montrasBildon(QLatin1String(auskultilo));
    ui->PP_Kiomope->setEnabled(false);
    for (int i = 0; i < kiomope && kuras(); ++i) {
        ui->PP_Vorto->setText(elementoj[i].vorto);
        mp3(elementoj[i].sono);
        Pauzu(dauroj[i]);
        LudasRegistrita(i);
        Pauzu(ui->spinBox->value());
    }
    montrasBildon(QString());
    ui->butonujo->setEnabled(true);
    ui->PP_Kiomope->setEnabled(true);
    ui->PP_Vorto->clear();
    ui->PP_Antauen->setFocus();
}

void prononco::LudasRegistrita(int i)
{
    ludilo->setMedia(QUrl::fromLocalFile(registrajho(i) + finajho()));
    ludilo->play();
}

void prononco::on_PP_Antauen_clicked()
{
    if (ui->Placar->value() < 1)
        on_PP_Haltu_clicked();
    else
        novafrazo();
}

void prononco::on_PP_Mik_re_clicked()
{
    RegistrasVocxon();
}

void prononco::LudoFinita(QAudio::State)
{
}

void prononco::on_PP_Haltu_clicked()
{
    ui->PP_Kiomope->setEnabled(true);
    montrasBildon(QString());
    ui->PP_Vorto->clear();
    ui->butonujo->setEnabled(false);
    ui->PP_Startu->setEnabled(true);
    ui->PP_Haltu->setEnabled(false);
    ui->Tempujo->setEnabled(true);
    ui->PP_Prog->hide();
    ui->Placar->setValue(0);
    ui->PP_Startu->setFocus();
}
