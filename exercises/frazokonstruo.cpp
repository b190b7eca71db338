#include "frazokonstruo.h"
#include "ui_frazokonstruo.h"

#include "flowlayout_nova.h"
#include "funkcioj.h"
#include "klavoj.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "neklakebla_nova.h"

#include <QCoreApplication>
#include <QFile>
#include <QPushButton>
#include <QSet>

namespace {

// The longest sentence the exercise takes, and so the buttons on each side.
const int butonoj = 18;

QString legasStilon(const QString& vojo)
{
    QFile dosiero(vojo);
    if (!dosiero.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLatin1(dosiero.readAll());
}

} // namespace

frazokonstruo::frazokonstruo(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::frazokonstruo)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn1);
    klavoj::kontrolo(ui->BitBtn2);
    klavoj::sekva(ui->Antauen);
    setUpdatesEnabled(false);

    auto* vicaranghilo = new FlowLayout(6, 9);
    auto* provizaranghilo = new FlowLayout(12, 12);
    for (int i = 0; i < butonoj; ++i)
        vicaranghilo->addWidget(new QPushButton(QString::number(i), ui->Vortoj));
    for (int i = 0; i < butonoj; ++i)
        provizaranghilo->addWidget(new QPushButton(QString::number(i), ui->Disponeblaj));
    ui->Vortoj->setLayout(vicaranghilo);
    ui->Disponeblaj->setLayout(provizaranghilo);

    ui->Vortoj->hide();
    ui->Disponeblaj->hide();
    ui->Antauen->hide();
    ui->Korekta->clear();
    ui->Traduko1->clear();

    vortbutonoj = ui->Vortoj->findChildren<QPushButton*>();
    disponeblaj = ui->Disponeblaj->findChildren<QPushButton*>();

    const QString vicstilo = legasStilon(QStringLiteral(":stiloj/butono_vortoj.qss"));
    const QString provizstilo = legasStilon(QStringLiteral(":stiloj/butono_disponeblaj.qss"));
    for (QPushButton* b : qAsConst(vortbutonoj)) {
        b->setStyleSheet(vicstilo);
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        b->hide();
        connect(b, &QPushButton::clicked, this, &frazokonstruo::vortoforigo);
    }
    for (QPushButton* b : qAsConst(disponeblaj)) {
        b->setStyleSheet(provizstilo);
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        b->hide();
        connect(b, &QPushButton::clicked, this, &frazokonstruo::vortoklako);
    }

    ebligasTrenon(ui->scrollArea);
    setUpdatesEnabled(true);
    QCoreApplication::processEvents();
}

frazokonstruo::~frazokonstruo()
{
    delete ui;
}

void frazokonstruo::on_BitBtn1_clicked()
{
    // The sentences live in the lesson's other pages; a frame shown outside
    // a tab widget searches its whole window instead.
    langeto = praulo(this, "QTabWidget");
    if (!langeto)
        langeto = window();

    const QFont tiparo = ui->Korekta->font();
    for (QPushButton* b : qAsConst(vortbutonoj))
        b->setFont(tiparo);
    for (QPushButton* b : qAsConst(disponeblaj))
        b->setFont(tiparo);

    uzitaj.clear();
    identigiloj.clear();
    tradukoj.clear();
    frazvortoj.clear();
    etikedoj.clear();
    frazoj.clear();

    const QString id = objectName().right(4);
    const QString prefikso = objectName().left(6);
    kiom = _Matriz(&identigiloj, id, QStringLiteral("D"));
    _Matriz(&etikedoj, id, QStringLiteral("R"));
    while (etikedoj.size() < kiom)
        etikedoj.append(QStringLiteral("ERARO"));

    for (int i = 0; i < kiom; ++i) {
        const QString nomo = prefikso + QStringLiteral("Button") + identigiloj.at(i);
        QLabel* frazo = langeto->findChild<klakbutono_nova*>(nomo);
        if (!frazo)
            frazo = langeto->findChild<neklakebla_nova*>(nomo);
        if (!frazo)
            frazo = langeto->findChild<korekta*>(nomo);
        if (frazo) {
            frazoj.append(frazo->text());
            frazvortoj.append(frazo->text().trimmed().split(QLatin1Char(' ')));
        } else {
            frazoj.append(QString());
            frazvortoj.append(QStringList(QString()));
        }

        const QString etikedNomo = prefikso + QStringLiteral("Label") + etikedoj.at(i);
        if (QLabel* etikedo = langeto->findChild<QLabel*>(etikedNomo)) {
            // Lesson labels read "10. The boys will be great friends.": the
            // sentence alone goes above the words.
            QString teksto = etikedo->text().trimmed();
            if (!teksto.isEmpty() && teksto.at(0).isDigit()) {
                while (!teksto.isEmpty() && (teksto.at(0).isDigit() || teksto.at(0) == QLatin1Char('.')))
                    teksto.remove(0, 1);
            }
            tradukoj.append(teksto.trimmed());
        } else {
            tradukoj.append(QStringLiteral("ERARO"));
        }
        uzitaj.append(false);
    }

    if (kiom < 1) {
        on_BitBtn3_clicked();
        return;
    }

    ui->BitBtn1->setEnabled(false);
    ui->BitBtn3->setEnabled(true);
    nulasPoentaron(ui->Placar1, ui->Placar2, ui->Placar3, ui->Placar4, kiom);
    sukcesoj = 0;
    eraroj = 0;
    atendas = false;

    ui->Vortoj->show();
    ui->Disponeblaj->show();
    ui->BitBtn2->setEnabled(true);
    ui->BitBtn2->setFocus();
    novafrazo();
}

void frazokonstruo::novafrazo()
{
    if (kiom < 1 || frazvortoj.size() < kiom || !uzitaj.mid(0, kiom).contains(false))
        return;
    setUpdatesEnabled(false);

    for (QPushButton* b : qAsConst(vortbutonoj))
        b->hide();
    for (QPushButton* b : qAsConst(disponeblaj)) {
        b->setText(QString());
        b->hide();
    }

    do {
        nuna = random(kiom);
    } while (uzitaj.at(nuna));
    ui->Korekta->clear();
    ui->Traduko1->setText(tradukoj.value(nuna));
    ui->Vortoj->setEnabled(true);
    ui->Disponeblaj->setEnabled(true);

    vortlisto = frazvortoj.at(nuna);
    const int n = vortlisto.size();
    // round(n × 1.7), halves away from zero, in whole numbers.
    const int T = qMin(butonoj, (n * 17 + 5) / 10);

    // Places are marked taken apart from their text, so that an empty word
    // (a sentence whose widget is missing) still holds its place.
    QList<bool> okupitaj;
    for (int i = 0; i < T; ++i)
        okupitaj.append(false);
    int plenaj = 0;
    QStringList proponitaj;
    auto metas = [&](const QString& vorto) {
        int loko;
        do {
            loko = random(T);
        } while (okupitaj.at(loko));
        okupitaj[loko] = true;
        ++plenaj;
        disponeblaj.at(loko)->setText(vorto);
        disponeblaj.at(loko)->show();
        proponitaj.append(vorto);
    };

    // A sentence longer than the pool is dealt as far as it goes.
    for (int i = 0; i < n && plenaj < T; ++i)
        metas(vortlisto.at(i));

    // The false words come from the other sentences. Only words not yet on
    // offer may be added, and none may be blank: when no such word is left,
    // the pool stays smaller instead of drawing for ever.
    QSet<QString> fremdaj;
    for (int s = 0; s < kiom; ++s) {
        if (s == nuna)
            continue;
        for (const QString& v : frazvortoj.at(s)) {
            if (!v.trimmed().isEmpty())
                fremdaj.insert(v.trimmed());
        }
    }
    auto restasFremda = [&]() {
        for (const QString& v : qAsConst(fremdaj)) {
            if (!proponitaj.contains(v))
                return true;
        }
        return false;
    };

    while (plenaj < T && restasFremda()) {
        auto alia = [&]() {
            int s;
            do {
                s = random(kiom);
            } while (s == nuna);
            return s;
        };
        int s = alia();
        int provoj = 0;
        int p;
        QString vorto;
        for (;;) {
            p = random(frazvortoj.at(s).size());
            if (provoj > frazvortoj.at(s).size()) {
                s = alia();
                provoj = 0;
                // The position belonged to the sentence before, which may
                // have been longer: draw it again in the new one.
                p = random(frazvortoj.at(s).size());
            } else {
                ++provoj;
            }
            vorto = frazvortoj.at(s).value(p).trimmed();
            if (!vorto.isEmpty() && !proponitaj.contains(vorto))
                break;
        }
        metas(frazvortoj.at(s).value(p));
    }

    ui->BitBtn2->setEnabled(true);
    ui->BitBtn2->show();
    ui->BitBtn3->setEnabled(true);
    setUpdatesEnabled(true);
    QCoreApplication::processEvents();
}

void frazokonstruo::vortoklako()
{
    auto* sendinto = qobject_cast<QPushButton*>(sender());
    if (!sendinto)
        return;
    for (QPushButton* b : qAsConst(vortbutonoj)) {
        if (b->isHidden()) {
            b->setText(sendinto->text());
            b->show();
            sendinto->hide();
            return;
        }
    }
}

void frazokonstruo::vortoforigo()
{
    auto* sendinto = qobject_cast<QPushButton*>(sender());
    if (!sendinto)
        return;
    for (QPushButton* b : qAsConst(disponeblaj)) {
        if (b->isHidden() && b->text() == sendinto->text()) {
            b->show();
            sendinto->hide();
            return;
        }
    }
}

void frazokonstruo::on_BitBtn2_clicked()
{
    if (nuna < 0 || nuna >= frazvortoj.size() || !ui->BitBtn2->isEnabled())
        return;
    const QStringList& ghustaj = frazvortoj.at(nuna);
    int videblaj = 0;
    for (QPushButton* b : qAsConst(vortbutonoj)) {
        if (!b->isHidden())
            ++videblaj;
    }
    bool ghusta = videblaj == ghustaj.size();
    if (ghusta) {
        int k = 0;
        for (QPushButton* b : qAsConst(vortbutonoj)) {
            if (b->isHidden())
                continue;
            if (b->text() != ghustaj.at(k++)) {
                ghusta = false;
                break;
            }
        }
    }

    // Jes() and Ne() run the event loop: no second Check, and no Stop that
    // would leave this one to finish a run already ended.
    ui->BitBtn2->setEnabled(false);
    ui->BitBtn3->setEnabled(false);
    if (ghusta) {
        Jes();
        ++sukcesoj;
        ui->Placar1->setValue(kiom - sukcesoj);
        ui->Placar2->setValue(sukcesoj);
        uzitaj[nuna] = true;
        atendas = false;
        Pauzu(1);
    } else {
        Ne();
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        atendas = true;
        ui->BitBtn3->setEnabled(true);
        tekstoblinko();
    }
    ui->Placar4->setValue(sukcesoj * 100 / (sukcesoj + eraroj));

    if (atendas)
        return;
    if (kiom - sukcesoj < 1) {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn3_clicked();
    } else {
        novafrazo();
    }
}

void frazokonstruo::tekstoblinko()
{
    ui->Antauen->show();
    ui->BitBtn2->hide();
    ui->Vortoj->setEnabled(false);
    ui->Disponeblaj->setEnabled(false);
    ui->Korekta->setText(frazoj.value(nuna));
    ui->Antauen->setFocus();
}

void frazokonstruo::on_Antauen_clicked()
{
    ui->Korekta->clear();
    ui->Antauen->hide();
    ui->BitBtn2->show();
    atendas = false;
    novafrazo();
}

void frazokonstruo::on_BitBtn3_clicked()
{
    ui->BitBtn1->setEnabled(true);
    ui->BitBtn2->setEnabled(false);
    ui->BitBtn3->setEnabled(false);
    ui->Vortoj->hide();
    ui->Disponeblaj->hide();
    ui->Antauen->hide();
    ui->Traduko1->clear();
    ui->Korekta->clear();
    ui->BitBtn1->setFocus();
}
