#include "audkompreno.h"
#include "ui_audkompreno.h"

#include "funkcioj.h"
#include "klavoj.h"
#include "klakbutono_nova.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QInputMethod>
#include <QLabel>

audkompreno::audkompreno(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::audkompreno)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn8);
    klavoj::reaudo(ui->BitBtn9);
    ltr_marko = QString(QChar(0x200E));
    ebligasTrenon(ui->scrollArea);

    // The panel of answers: four columns that fill one after the other.
    ui->vortujo->setStyleSheet(QStringLiteral("QLabel { font-weight: bold; color: #2E4272; }"));
    auto* vico = new QHBoxLayout(ui->vortujo);
    const int enKolumno = limigo(48) / 4;
    for (int k = 0; k < 4; ++k) {
        auto* kolumno = new QVBoxLayout;
        kolumno->setSpacing(2);
        for (int i = 0; i < enKolumno; ++i) {
            auto* etikedo = new QLabel(QStringLiteral(" "), ui->vortujo);
            etikedo->setWordWrap(true);   // a long sentence keeps to its column
            kolumno->addWidget(etikedo);
        }
        kolumno->addStretch();
        vico->addLayout(kolumno, 1);
    }
}

audkompreno::~audkompreno()
{
    delete ui;
}

void audkompreno::on_BitBtn8_clicked()
{
    etikedoj = ui->vortujo->findChildren<QLabel*>();
    kodo = objectName().right(4);
    leciono = objectName().left(5);
    kiom = _Matriz(&datumoj, kodo, QStringLiteral("D"));
    ui->BitBtn8->setEnabled(false);
    ui->BitBtn9->setEnabled(true);
    ui->BitBtn10->setEnabled(true);
    ui->Edit1->setEnabled(true);
    ui->finita->setEnabled(true);
    nulasPoentaron(ui->Placar1, ui->Placar2, ui->Placar3, ui->Placar4, limigo(kiom));
    uzitaj = neniuUzita(kiom);
    sukcesoj = 0;
    eraroj = 0;
    for (QLabel* etikedo : qAsConst(etikedoj))
        etikedo->setText(QStringLiteral(" "));
    // Without data there is nothing to say.
    if (kiom == 0) {
        on_BitBtn10_clicked();
        return;
    }
    novavorto();
}

void audkompreno::novavorto()
{
    do
        nuna = random(kiom);
    while (uzitaj[nuna]);
    sono = ekzercaSono(kodo.left(2), datumoj[nuna], true);
    mp3(sono);
    ui->Edit1->clear();
    ui->Edit1->setFocus(Qt::OtherFocusReason);
    QGuiApplication::inputMethod()->show();
}

void audkompreno::on_BitBtn9_clicked()
{
    ui->Edit1->setFocus(Qt::OtherFocusReason);
    QGuiApplication::inputMethod()->show();
    mp3(sono);
}

void audkompreno::on_Edit1_returnPressed()
{
    analizu();
}

void audkompreno::on_finita_clicked()
{
    analizu();
}

QString audkompreno::atendata() const
{
    const QString vico = datumoj.value(nuna);
    if (vico.toInt() < 1)
        return vico;
    QWidget* o = praulo(this, "QTabWidget");
    if (!o)
        return QString();
    const auto vortoj = o->findChildren<klakbutono_nova*>(leciono + QStringLiteral("_Button") + vico);
    if (vortoj.isEmpty())
        return QString();
    return vortoj.first()->text().trimmed().remove(ltr_marko);
}

void audkompreno::analizu()
{
    // Only while a run waits for an answer (a click that was queued during a
    // correction, or a stray Enter, finds nothing to check).
    if (!ui->BitBtn10->isEnabled())
        return;
    const QString respondo = ui->Edit1->text().trimmed();
    if (respondo.isEmpty())
        return;
    const QString purigita = purigas(respondo, true);
    const QString ghusta = purigas(atendata(), true);

    if (purigita == ghusta) {
        ++sukcesoj;
        ui->Placar2->setValue(sukcesoj);
        ui->Placar1->setValue(limigo(kiom) - sukcesoj);
        uzitaj[nuna] = true;
        if (QLabel* etikedo = etikedoj.value(sukcesoj - 1))
            etikedo->setText(purigita);
        Sinkronigu();
    } else {
        Noteto(false);
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        ui->BitBtn9->setEnabled(false);
        ui->BitBtn10->setEnabled(false);
        ui->Edit1->setEnabled(false);
        ui->finita->setEnabled(false);
        ui->Korekta->setText(ghusta);
        tekstoblinko(ui->Korekta);
        ui->BitBtn9->setEnabled(true);
        ui->BitBtn10->setEnabled(true);
        ui->Edit1->setEnabled(true);
        ui->Korekta->clear();
        ui->finita->setEnabled(true);
    }

    ui->Placar4->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
    if (ui->Placar1->value() <= 0) {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn10_clicked();
    } else {
        novavorto();
    }
}

void audkompreno::on_BitBtn10_clicked()
{
    ui->BitBtn8->setEnabled(true);
    ui->BitBtn9->setEnabled(false);
    ui->BitBtn10->setEnabled(false);
    ui->Edit1->clear();
    ui->Edit1->setEnabled(false);
    ui->finita->setEnabled(false);
    ui->BitBtn8->setFocus();
}
