#include "akuzativo.h"
#include "ui_akuzativo.h"

#include "flowlayout_nova.h"
#include "funkcioj.h"
#include "klavoj.h"

#include <QBitmap>
#include <QCoreApplication>
#include <QScroller>

akuzativo::akuzativo(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::akuzativo)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn1);
    klavoj::kontrolo(ui->BitBtn2);
    // The words flow and wrap like a line of text, so that a long sentence
    // never needs sideways scrolling.
    auto* fluo = new FlowLayout(ui->Vortoj, 9, 8);
    QPixmap n(QStringLiteral(":ikonoj/kursoro_n.png"));
    n.setMask(QBitmap(QStringLiteral(":ikonoj/kursoro_n_masko.png")));
    etikedoj = ui->Vortoj->findChildren<QLabel*>();
    for (QLabel* etikedo : qAsConst(etikedoj)) {
        etikedo->setCursor(QCursor(n, -1, -1));
        fluo->addWidget(etikedo);
    }
    // The sentence stands on the exercise's own background, as in the others.
    ui->scrollArea->viewport()->setAutoFillBackground(false);
    ui->scrollAreaWidgetContents->setAutoFillBackground(false);
    QScroller::grabGesture(ui->scrollArea->viewport(), QScroller::LeftMouseButtonGesture);
}

akuzativo::~akuzativo()
{
    delete ui;
}

bool akuzativo::bezonasN(int i) const
{
    return respondoj.value(nuna).value(i) == QLatin1String("1");
}

void akuzativo::montrasProcenton()
{
    if (sukcesoj + eraroj > 0)
        ui->Placar4->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
}

void akuzativo::on_BitBtn1_clicked()
{
    const QString id = objectName().right(4);
    kiom = _Matriz2(&datumoj, id, QStringLiteral("D"), 11);
    _Matriz2(&respondoj, id, QStringLiteral("R"), 11);
    _Matriz2(&klarigindicoj, id, QStringLiteral("K"), 11);
    _Matriz(&tradukoj, EkzercoAkuzativoTrad, QStringLiteral("T"));
    while (tradukoj.size() < kiom)
        tradukoj.append(QString());
    _Matriz(&klarigoj, QStringLiteral("Klarigoj"), QStringLiteral("T"));
    while (klarigoj.size() <= 12)
        klarigoj.append(QString());

    ++rulado;
    fermas = false;
    ui->BitBtn1->setEnabled(false);
    ui->BitBtn3->setEnabled(true);
    nulasPoentaron(ui->Placar1, ui->Placar2, ui->Placar3, ui->Placar4, kiom);
    sukcesoj = 0;
    eraroj = 0;
    uzitaj = neniuUzita(kiom);
    if (kiom < 1) {
        on_BitBtn3_clicked();
        return;
    }

    novafrazo();
    ui->Vortoj->setEnabled(true);
    ui->BitBtn2->setEnabled(true);
    ui->BitBtn2->setFocus();
}

void akuzativo::novafrazo()
{
    if (!uzitaj.contains(false))
        return;
    for (QString& marko : markoj)
        marko.clear();
    do
        nuna = random(kiom);
    while (uzitaj.at(nuna));
    const QStringList vortoj = datumoj.value(nuna);
    for (int i = 0; i < etikedoj.size(); ++i) {
        const QString vorto = vortoj.value(i);
        etikedoj.at(i)->setText(vorto);
        etikedoj.at(i)->setVisible(!vorto.isEmpty());
    }
    ui->Traduko1->setText(tradukoj.value(nuna));
    ui->Klarigo->clear();
    for (QLabel* etikedo : qAsConst(etikedoj))
        etikedo->setStyleSheet(QStringLiteral("color: rgb(0, 0, 0);"));
    ui->BitBtn2->setEnabled(true);
    ui->BitBtn3->setEnabled(true);
}

void akuzativo::vortoklako(int i)
{
    QLabel* etikedo = etikedoj.value(i);
    if (!etikedo || etikedo->text().isEmpty())
        return;
    if (!bezonasN(i)) {
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        Noteto(false);
        montrasProcenton();
        etikedo->setStyleSheet(QStringLiteral("color: rgb(150, 0, 0);"));
    } else if (markoj[i] != QLatin1String("1")) {
        etikedo->setText(etikedo->text() + QLatin1Char('n'));
        etikedo->setStyleSheet(QStringLiteral("color: rgb(0, 150, 0);"));
        markoj[i] = QStringLiteral("1");
        Noteto(true);
    }
    ui->Klarigo->setText(klarigoj.value(klarigindicoj.value(nuna).value(i).toInt()));
    Pauzu(1);
}

void akuzativo::on_label_164_clicked() { vortoklako(0); }
void akuzativo::on_label_165_clicked() { vortoklako(1); }
void akuzativo::on_label_166_clicked() { vortoklako(2); }
void akuzativo::on_label_167_clicked() { vortoklako(3); }
void akuzativo::on_label_168_clicked() { vortoklako(4); }
void akuzativo::on_label_169_clicked() { vortoklako(5); }
void akuzativo::on_label_170_clicked() { vortoklako(6); }
void akuzativo::on_label_171_clicked() { vortoklako(7); }
void akuzativo::on_label_172_clicked() { vortoklako(8); }
void akuzativo::on_label_173_clicked() { vortoklako(9); }

void akuzativo::on_BitBtn2_clicked()
{
    if (fermas || !ui->BitBtn2->isEnabled())
        return;
    const QStringList respondo = respondoj.value(nuna);
    bool ghusta = true;
    for (int i = 0; i < 10; ++i) {
        if (markoj[i] != respondo.value(i) && !respondo.value(i).trimmed().isEmpty())
            ghusta = false;
    }

    fermas = true;
    const int mia = rulado;
    if (ghusta) {
        ++sukcesoj;
        ui->Placar1->setValue(kiom - sukcesoj);
        ui->Placar2->setValue(sukcesoj);
        Jes();
        if (mia == rulado) {
            ui->BitBtn3->setEnabled(false);
            ui->BitBtn2->setEnabled(false);
            Pauzu(1);
            uzitaj[nuna] = true;
        }
    } else {
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        Ne();
        if (mia == rulado)
            tekstoblinko();
    }
    if (mia != rulado)
        return;   // stopped, or started anew, while the verdict was spoken
    fermas = false;
    montrasProcenton();
    if (ui->Placar1->value() < 1) {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn3_clicked();
    } else {
        novafrazo();
    }
}

void akuzativo::tekstoblinko()
{
    ui->BitBtn2->setEnabled(false);
    ui->BitBtn3->setEnabled(false);
    blinkas([this](int k) {
        for (int i = 0; i < etikedoj.size(); ++i) {
            if (!markoj[i].isEmpty() || !bezonasN(i))
                continue;
            etikedoj.at(i)->setStyleSheet(k % 2 ? QStringLiteral("color: rgb(200, 0, 0);")
                                                : QStringLiteral("color: rgb(255, 255, 255);"));
            etikedoj.at(i)->repaint();
        }
    });
}

void akuzativo::on_BitBtn3_clicked()
{
    ++rulado;
    fermas = false;
    ui->BitBtn1->setEnabled(true);
    ui->BitBtn2->setEnabled(false);
    ui->BitBtn3->setEnabled(false);
    ui->Vortoj->setEnabled(false);
    ui->Traduko1->clear();
    ui->Klarigo->clear();
    for (QLabel* etikedo : qAsConst(etikedoj))
        etikedo->clear();
    ui->BitBtn1->setFocus();
}
