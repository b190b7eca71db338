#include "vortoludo.h"
#include "ui_vortoludo.h"

#include "ekzercfolio.h"
#include "funkcioj.h"
#include "klavoj.h"
#include "klakbutono_nova.h"
#include "neklakebla_nova.h"

#include <QRadioButton>
#include <QVector>

namespace {

// Places of a question: five, or as many as there are items when fewer.
int lokoj(int kiom)
{
    return qMin(5, kiom);
}

// A value that does not read as a positive number is the word itself.
QString vorto(QWidget* langetoj, const QString& prefikso, const QString& valoro, bool ankauNeklakebla)
{
    if (valoro.toInt() < 1)
        return valoro;
    if (!langetoj)
        return QString();
    const QString nomo = prefikso + QStringLiteral("Button") + valoro;
    if (auto* b = langetoj->findChild<klakbutono_nova*>(nomo))
        return b->text();
    if (ankauNeklakebla) {
        if (auto* n = langetoj->findChild<neklakebla_nova*>(nomo))
            return n->text();
    }
    return QString();
}

QString signifo(QWidget* langetoj, const QString& prefikso, const QString& numero)
{
    QLabel* e = langetoj ? langetoj->findChild<QLabel*>(prefikso + QStringLiteral("Label") + numero) : nullptr;
    return e ? e->text() : QString();
}

} // namespace

vortoludo::vortoludo(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::vortoludo)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn18);
    const QList<QAbstractButton*> respondoj = {ui->frazo0, ui->frazo1, ui->frazo2, ui->frazo3, ui->frazo4};
    for (int i = 0; i < respondoj.size(); ++i)
        klavoj::elekto(respondoj.at(i), i + 1);
    ui->Grupo->hide();
    if (sSistemo != QLatin1String("windows") && sSistemo != QLatin1String("osx"))
        ui->printilo_ps->hide();
}

vortoludo::~vortoludo()
{
    delete ui;
}

// A button of an exclusive group cannot be unchecked by itself.
void vortoludo::malmarkas(int j)
{
    QRadioButton* r = radioj.value(j);
    if (!r)
        return;
    r->setAutoExclusive(false);
    r->setChecked(false);
    r->setAutoExclusive(true);
}

void vortoludo::on_BitBtn18_clicked()
{
    ++rulado;
    radioj = ui->Grupo->findChildren<QRadioButton*>();
    etikedoj = ui->Grupo->findChildren<QLabel*>();   // Vorto first, as the first label made
    const QString id = objectName().right(4);
    prefikso = objectName().left(6);
    kiom = _Matriz(&datumoj, id, QStringLiteral("D"));
    _Matriz(&respondoj, id, QStringLiteral("R"));
    ui->BitBtn18->setEnabled(false);
    ui->BitBtn20->setEnabled(true);
    uzitaj.clear();
    elektitaj.clear();
    for (int i = 0; i < kiom; ++i) {
        uzitaj.append(false);
        elektitaj.append(false);
    }
    nulasPoentaron(ui->Placar1, ui->Placar2, ui->Placar3, ui->Placar4, limigo(kiom));
    sukcesoj = 0;
    eraroj = 0;
    okupita = false;
    if (kiom < 1) {
        on_BitBtn20_clicked();
        return;
    }
    ui->Grupo->show();
    ui->Grupo->setEnabled(true);
    novafrazo();
    ui->Grupo->setFocus();
}

void vortoludo::on_BitBtn20_clicked()
{
    ui->BitBtn18->setEnabled(true);
    ui->BitBtn20->setEnabled(false);
    ui->Grupo->hide();
    ui->BitBtn18->setFocus();
}

void vortoludo::on_frazo0_clicked(bool checked) { if (checked) grupoclick(0); }
void vortoludo::on_frazo1_clicked(bool checked) { if (checked) grupoclick(1); }
void vortoludo::on_frazo2_clicked(bool checked) { if (checked) grupoclick(2); }
void vortoludo::on_frazo3_clicked(bool checked) { if (checked) grupoclick(3); }
void vortoludo::on_frazo4_clicked(bool checked) { if (checked) grupoclick(4); }

void vortoludo::on_teksto0_clicked() { ui->frazo0->click(); }
void vortoludo::on_teksto1_clicked() { ui->frazo1->click(); }
void vortoludo::on_teksto2_clicked() { ui->frazo2->click(); }
void vortoludo::on_teksto3_clicked() { ui->frazo3->click(); }
void vortoludo::on_teksto4_clicked() { ui->frazo4->click(); }

void vortoludo::novafrazo()
{
    if (kiom < 1 || etikedoj.size() < 6 || radioj.size() < 5)
        return;
    // Only right answers use items up; should none be left, there is nothing to ask.
    if (!uzitaj.contains(false)) {
        on_BitBtn20_clicked();
        return;
    }
    for (bool& e : elektitaj)
        e = false;
    do
        nuna = random(kiom);
    while (uzitaj.at(nuna));

    QWidget* radiko = praulo(this, "QTabWidget");   // holds the words and meanings the data names
    etikedoj.at(0)->setText(vorto(radiko, prefikso, datumoj.value(nuna), true));

    const int n = lokoj(kiom);
    ghusta = random(n);
    elektitaj[nuna] = true;
    etikedoj.at(ghusta + 1)->setText(signifo(radiko, prefikso, respondoj.value(nuna)));
    for (int j = 1; j <= 5; ++j) {
        const bool uzata = j <= n;
        radioj.at(j - 1)->setVisible(uzata);
        etikedoj.at(j)->setVisible(uzata);
        if (j == ghusta + 1)
            continue;
        if (!uzata) {
            etikedoj.at(j)->clear();
            continue;
        }
        // False meanings may come from items already done.
        int v;
        do
            v = random(kiom);
        while (elektitaj.at(v));
        elektitaj[v] = true;
        etikedoj.at(j)->setText(signifo(radiko, prefikso, respondoj.value(v)));
    }
    ui->Grupo->setEnabled(true);
}

void vortoludo::grupoclick(int j)
{
    if (okupita)
        return;
    ui->Grupo->setEnabled(false);
    okupita = true;
    const int mia = rulado;

    if (j == ghusta) {
        Jes();
        if (mia != rulado) {
            malmarkas(j);
            return;
        }
        ++sukcesoj;
        ui->Placar2->setValue(sukcesoj);
        ui->Placar1->setValue(limigo(kiom) - sukcesoj);
        uzitaj[nuna] = true;
        Pauzu(2);
    } else {
        Ne();
        if (mia != rulado) {
            malmarkas(j);
            return;
        }
        ++eraroj;
        ui->Placar3->setValue(eraroj);
        tekstoblinko(etikedoj.at(ghusta + 1));
        ui->Grupo->setEnabled(true);
    }
    // A new Start during the wait has a run of its own: this answer is void.
    if (mia != rulado) {
        malmarkas(j);
        return;
    }

    ui->Placar4->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
    if (sukcesoj < limigo(kiom)) {
        novafrazo();
    } else {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn20_clicked();
    }
    malmarkas(j);
    okupita = false;
}

// A sheet of the whole exercise: every word with five meanings to tick, two
// words a row, in the order of the data, and the letters of the right
// meanings at the end. It reads the data itself and leaves a run as it is.
void vortoludo::on_printilo_ps_clicked()
{
    ekzercfolio::presas(objectName(), [this] { return folio(); });
}

QString vortoludo::folio() const
{
    const QChar LRM(0x200E), PDF(0x202C), RLE(0x202B), LRE(0x202A), RLO(0x202E);
    const bool ltr = Direkto == QLatin1String("LTR");
    QString korpo = ekzercfolio::kapo(this, QStringLiteral("<body  dir="), {ui->Ekz_Vort1->text()},
                                      ui->Ekz_Vort2->text(), QStringLiteral("</P><P>&nbsp;</P>"));

    const QString id = objectName().right(4);
    QStringList vortoj, signifoj;
    const int n = _Matriz(&vortoj, id, QStringLiteral("D"));
    _Matriz(&signifoj, id, QStringLiteral("R"));

    const QString folioPrefikso = objectName().left(6);
    QWidget* radiko = praulo(this, "QTabWidget");   // holds the words and meanings the data names
    const QStringList literoj = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                 QString::fromUtf8("ĉ"), QStringLiteral("d")};
    const QString skatolo = ltr ? QStringLiteral("[&nbsp;&nbsp;]&nbsp;") : QStringLiteral("&nbsp;[&nbsp;&nbsp;]") + LRM;
    const int m = lokoj(n);

    korpo += QStringLiteral("<table>");
    QString solvoj = QStringLiteral("<P dir=\"LTR\">Respondoj: <br>");
    for (int i = 0; i < n; ++i) {
        const QString N = QString::number(i + 1);
        QVector<bool> flagoj(n, false);

        // Only a speaking word is looked for on a sheet.
        const QString v = vorto(radiko, folioPrefikso, vortoj.at(i), false);
        korpo += (i % 2 ? QStringLiteral("<td><B>") : QStringLiteral("<tr><td><B>"));
        if (ltr)
            korpo += N + QStringLiteral(") ") + v + QStringLiteral("</B><br>");
        else
            korpo += QString(v).remove(LRM) + QStringLiteral(" (") + N + QStringLiteral("</B><br>");

        QStringList lokaj;
        for (int q = 0; q < m; ++q)
            lokaj.append(QString());
        const int p = random(m);
        flagoj[i] = true;
        lokaj[p] = signifo(radiko, folioPrefikso, signifoj.value(i));
        solvoj += N + QStringLiteral(")&nbsp;") + literoj.at(p) + QStringLiteral("&nbsp;&nbsp;&nbsp; ");
        for (int q = 0; q < m; ++q) {
            if (q == p)
                continue;
            int alia;
            do
                alia = random(n);
            while (flagoj.at(alia));
            flagoj[alia] = true;
            lokaj[q] = signifo(radiko, folioPrefikso, signifoj.value(alia));
        }

        for (int q = 0; q < m; ++q) {
            if (ltr) {
                korpo += literoj.at(q) + QStringLiteral(") ") + skatolo + lokaj.at(q) + QStringLiteral("<br>");
            } else {
                // Keeps the brackets from turning round in a right-to-left line.
                QString s = lokaj.at(q);
                s.replace(QLatin1Char('('), QString(RLO) + QLatin1Char('(') + PDF);
                s.replace(QLatin1Char(')'), QString(RLO) + QLatin1Char(')') + PDF);
                korpo += RLE + s + PDF + LRE + skatolo + QLatin1Char('(') + literoj.at(q) + PDF + QStringLiteral("<br>");
            }
        }
        if (i % 2) {
            korpo += QStringLiteral("<br></td></tr>");
        } else {
            korpo += QStringLiteral("<br></td>");
            if (i == n - 1)
                korpo += QStringLiteral("</tr>");
        }
    }
    korpo += QStringLiteral("</table>");
    solvoj += QStringLiteral("</P></body>");
    return korpo + solvoj;
}
