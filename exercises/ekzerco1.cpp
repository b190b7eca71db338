#include "ekzerco1.h"
#include "ui_ekzerco1.h"

#include "funkcioj.h"
#include "klavoj.h"

#include <QPushButton>

ekzerco1::ekzerco1(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::ekzerco1)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn1);
    klavoj::reaudo(ui->BitBtn3);
}

ekzerco1::~ekzerco1()
{
    delete ui;
}

int ekzerco1::celo() const
{
    return kiom / 4 * 4;
}

void ekzerco1::on_BitBtn1_clicked()
{
    ++rulado;
    butonoj = ui->butonujo->findChildren<QPushButton*>();
    kiom = _Matriz(&vortoj, QStringLiteral("0101"), QStringLiteral("D"));
    ui->BitBtn1->setEnabled(false);
    ui->BitBtn2->setEnabled(true);
    nulasPoentaron(ui->Placar1, ui->Placar2, ui->Placar3, ui->Placar4, celo());
    sukcesoj = 0;
    eraroj = 0;
    uzitaj = neniuUzita(kiom);
    // Fewer than four words make no round: there is nothing to ask.
    if (celo() == 0) {
        on_BitBtn2_clicked();
        return;
    }
    novafrazo();
}

void ekzerco1::on_BitBtn2_clicked()
{
    ui->BitBtn1->setEnabled(true);
    ui->BitBtn2->setEnabled(false);
    ui->BitBtn3->setEnabled(false);
    for (QPushButton* b : ui->butonujo->findChildren<QPushButton*>())
        b->setEnabled(false);
    ui->BitBtn1->setFocus();
}

void ekzerco1::on_BitBtn3_clicked()
{
    mp3(sonvojo);
}

void ekzerco1::on_butono0_clicked() { vortoklako(0); }
void ekzerco1::on_butono3_clicked() { vortoklako(1); }
void ekzerco1::on_butono1_clicked() { vortoklako(2); }
void ekzerco1::on_butono4_clicked() { vortoklako(3); }
void ekzerco1::on_butono2_clicked() { vortoklako(4); }
void ekzerco1::on_butono5_clicked() { vortoklako(5); }

void ekzerco1::novafrazo()
{
    // Words are used up when dealt, and the last two rounds take the words
    // left in file order.
    for (int k = 0; k < 4; ++k) {
        if (ui->Placar1->value() > 11) {
            do
                nuna = random(kiom);
            while (uzitaj[nuna]);
        } else {
            nuna = 0;
            while (nuna < kiom - 1 && uzitaj[nuna])
                ++nuna;
        }
        uzitaj[nuna] = true;
        elektitaj[k] = nuna;
    }

    // Loose on purpose: a false word differs from the round word it is
    // compared with, not always from those passed before, and the two false
    // words may be equal.
    for (int f = 0; f < 2; ++f) {
        int hazardo = random(kiom);
        for (int k = 0; k < 4; ++k) {
            while (elektitaj[k] == hazardo)
                hazardo = random(kiom);
        }
        falsaj[f] = hazardo;
    }

    int i = 0;
    int w = 0;
    int f = 0;
    while (i < 6) {
        butonoj[i]->setEnabled(true);
        if (random(3) == 0 && f < 2) {
            butonoj[i]->setText(vortoj[falsaj[f]]);
            ++f;
            ++i;
        } else if (w < 4) {
            butonoj[i]->setText(vortoj[elektitaj[w]]);
            pozicioj[w] = i;
            ++w;
            ++i;
        }
    }

    for (bool& farita : faritaj)
        farita = false;
    nova_rondo = true;
    novavorto();
}

void ekzerco1::novavorto()
{
    do
        nuna = random(4);
    while (faritaj[nuna]);
    sonvojo = vortoSono(QStringLiteral("01"), vortoj[elektitaj[nuna]], true);
    mp3(sonvojo);
    ui->BitBtn3->setEnabled(true);
    // The learner answers with Tab and Space from the first word on.
    for (QPushButton* b : qAsConst(butonoj)) {
        if (b->isEnabled()) {
            b->setFocus();
            break;
        }
    }
    okupita = false;
}

void ekzerco1::vortoklako(int i)
{
    if (okupita)
        return;

    if (butonoj[i]->text() == vortoj[elektitaj[nuna]]) {
        ++sukcesoj;
        ui->Placar2->setValue(sukcesoj);
        ui->Placar1->setValue(celo() - sukcesoj);
        faritaj[nuna] = true;
        butonoj[i]->setEnabled(false);
        nova_rondo = false;
    } else {
        const int mia = rulado;
        okupita = true;
        ui->BitBtn3->setEnabled(false);
        Ne();
        if (mia != rulado)
            return;
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        ui->butonujo->setEnabled(false);
        tekstoblinko(butonoj[pozicioj[nuna]]);
        ui->butonujo->setEnabled(true);
        if (mia != rulado)
            return;
        ui->BitBtn3->setEnabled(true);
        okupita = false;
    }

    ui->Placar4->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
    if (sukcesoj >= celo()) {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn2_clicked();
    } else if (sukcesoj % 4 == 0 && !nova_rondo) {
        novafrazo();
    } else {
        novavorto();
    }
}
