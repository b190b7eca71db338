#include "tajpekzerco.h"

#include "ekzercfolio.h"
#include "funkcioj.h"
#include "klavoj.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

tajpekzerco::tajpekzerco(QWidget* parent)
    : QFrame(parent)
{
}

tajpekzerco::~tajpekzerco() = default;

void tajpekzerco::preparas()
{
    komenco = findChild<QPushButton*>(QStringLiteral("BitBtn1"));
    kontrolo = findChild<QPushButton*>(QStringLiteral("BitBtn2"));
    halto = findChild<QPushButton*>(QStringLiteral("BitBtn3"));
    kampo = findChild<QLineEdit*>(QStringLiteral("Edit1"));
    vorto = findChild<QLabel*>(QStringLiteral("Vorto0"));
    korekta = findChild<QLabel*>(QStringLiteral("Korekta"));
    klavoj::komenco(komenco);
    for (int i = 1; i <= 4; ++i)
        placar << findChild<QSpinBox*>(QStringLiteral("Placar%1").arg(i));
    if (sSistemo != QLatin1String("windows") && sSistemo != QLatin1String("osx"))
        findChild<QWidget*>(QStringLiteral("printilo_ps"))->hide();
}

void tajpekzerco::on_BitBtn1_clicked()
{
    ++rulado;
    komenco->setEnabled(false);
    halto->setEnabled(true);
    kiom = _Matriz(&datumoj, identigilo, QStringLiteral("D"));
    _Matriz(&respondoj, identigilo, QStringLiteral("R"));
    placar.at(0)->setValue(kiom);
    for (int i = 1; i < 4; ++i)
        placar.at(i)->setValue(0);
    sukcesoj = 0;
    eraroj = 0;
    vorto->clear();
    kontrolo->setEnabled(true);
    uzitaj = neniuUzita(kiom);
    if (kiom < 1) {
        on_BitBtn3_clicked();
        return;
    }
    novafrazo();
}

void tajpekzerco::novafrazo()
{
    if (!uzitaj.contains(false))
        return;
    do
        nuna = random(kiom);
    while (uzitaj.at(nuna));
    vorto->setText(datumoj.value(nuna));
    kampo->clear();
    kontrolo->setEnabled(true);
    kampo->setEnabled(true);
    kampo->setFocus();
    pretigasKampon();
}

void tajpekzerco::on_BitBtn2_clicked()
{
    if (!kontrolo->isEnabled() || !kampo->isEnabled())
        return;
    const QString respondo = respondoj.value(nuna);
    const Takso takso = taksas(kampo->text(), respondo);
    if (takso == Netaksebla) {
        kampo->setFocus();
        return;
    }
    kontrolo->setEnabled(false);
    kampo->setEnabled(false);
    const int mia = rulado;
    if (takso == Ghusta) {
        ++sukcesoj;
        placar.at(0)->setValue(kiom - sukcesoj);
        placar.at(1)->setValue(sukcesoj);
        uzitaj[nuna] = true;
        Jes();
    } else {
        // Nothing may stop the exercise while the right answer blinks.
        halto->setEnabled(false);
        ++eraroj;
        placar.at(2)->setValue(eraroj);
        Ne();
        korekta->setText(respondo);
        tekstoblinko(korekta);
        korekta->clear();
        halto->setEnabled(true);
    }
    if (mia != rulado)
        return;   // stopped, or started anew, during the spoken praise
    placar.at(3)->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
    if (sukcesoj < kiom) {
        novafrazo();
    } else {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn3_clicked();
    }
}

void tajpekzerco::on_Edit1_returnPressed()
{
    on_BitBtn2_clicked();
}

void tajpekzerco::on_BitBtn3_clicked()
{
    ++rulado;
    komenco->setEnabled(true);
    halto->setEnabled(false);
    kontrolo->setEnabled(false);
    vorto->clear();
    kampo->clear();
    kampo->setEnabled(false);
    komenco->setFocus();
}

void tajpekzerco::on_printilo_ps_clicked()
{
    ekzercfolio::presas(objectName(), [this] { return folio(); });
}

QString tajpekzerco::folio() const
{
    const QChar PDF(0x202C), LRE(0x202A);
    const bool dekstre = Direkto == QLatin1String("RTL");
    QStringList titoloj;
    for (const QLabel* titolo : titolaj)
        titoloj << titolo->text();
    QString korpo = ekzercfolio::kapo(this, QStringLiteral("<body dir="), titoloj, instrukcia->text(),
                                      QStringLiteral("</P>"));

    QStringList vortoj, solvoj;
    const int n = _Matriz(&vortoj, identigilo, QStringLiteral("D"));
    _Matriz(&solvoj, identigilo, QStringLiteral("R"));

    korpo += QStringLiteral("<ol>");
    QString fino = QStringLiteral("<P dir=\"ltr\">Respondoj: <br>");
    for (int i = 0; i < n; ++i) {
        korpo += QStringLiteral("<li>");
        if (dekstre)
            korpo += LRE;
        korpo += vortoj.at(i) + QStringLiteral(" : ") + linio;
        if (dekstre)
            korpo += PDF;
        korpo += QStringLiteral("<br></li>");
        fino += QString::number(i + 1) + QStringLiteral(")&nbsp;") + solvoj.value(i) + QStringLiteral("&nbsp;&nbsp;&nbsp; ");
    }
    korpo += QStringLiteral("</ol>");
    fino += QStringLiteral("</P></body>");
    return korpo + fino;
}
