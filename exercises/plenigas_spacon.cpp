#include "plenigas_spacon.h"
#include "ui_plenigas_spacon.h"

#include "ekzercfolio.h"
#include "funkcioj.h"
#include "klavoj.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QInputMethod>
#include <QLayout>

plenigas_spacon::plenigas_spacon(QWidget* parent)
    : QFrame(parent)
    , ui(new Ui::plenigas_spacon)
{
    ui->setupUi(this);
    klavoj::komenco(ui->BitBtn4);
    klavoj::sekva(ui->antauen);
    etikedoj = {ui->Vorto1, ui->KorektaVorto1, ui->Vorto2, ui->KorektaVorto2, ui->Vorto3, ui->KorektaVorto3,
                ui->Vorto4, ui->KorektaVorto4, ui->Vorto5, ui->KorektaVorto5, ui->Vorto6};
    kampoj = {ui->Edit1, ui->Edit2, ui->Edit3, ui->Edit4, ui->Edit5};

    // The layouts of the fragments' columns, 1, 3, ... 11 after the row itself:
    // one pixel of margin below puts the fragments on the line of the fields' text.
    const QList<QLayout*> aranghoj = ui->Tajpujo->findChildren<QLayout*>();
    for (int i = 1; i <= 11 && i < aranghoj.size(); i += 2) {
        QMargins m = aranghoj.at(i)->contentsMargins();
        m.setBottom(1);
        aranghoj.at(i)->setContentsMargins(m);
    }

    ui->Tajpujo->hide();
    ui->antauen->hide();
    for (QLineEdit* kampo : qAsConst(kampoj))
        kampo->setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoAutoUppercase | Qt::ImhPreferLatin);
    if (sSistemo != QLatin1String("windows") && sSistemo != QLatin1String("osx"))
        ui->printilo_ps->hide();
}

plenigas_spacon::~plenigas_spacon()
{
    delete ui;
}

void plenigas_spacon::on_BitBtn4_clicked()
{
    identigilo = objectName().right(4);
    kiom = _Matriz2(&datumoj, identigilo, QStringLiteral("D"), 6);
    _Matriz2(&respondoj, identigilo, QStringLiteral("R"), 6);
    _Matriz(&tradukoj, identigilo, QStringLiteral("T"));
    while (tradukoj.size() < kiom)
        tradukoj.append(QString());
    // A sentence without its answers has no gaps rather than no row.
    while (respondoj.size() < kiom)
        respondoj.append(QStringList({QString(), QString(), QString(), QString(), QString(), QString()}));
    ++rulado;
    atendas = false;
    if (kiom < 1) {
        on_BitBtn5_clicked();
        return;
    }

    ui->Tajpujo->show();
    ui->Tajpujo->setEnabled(true);
    ui->BitBtn5->setEnabled(true);
    ui->BitBtn4->setEnabled(false);

    ui->Placar25->setValue(limigo(kiom));
    ui->Placar26->setValue(0);
    ui->Placar27->setValue(0);
    ui->Placar28->setValue(0);
    sukcesoj = 0;
    eraroj = 0;

    uzitaj = neniuUzita(kiom);
    ui->BitBtn6->setEnabled(true);
    novafrazo();
}

void plenigas_spacon::novafrazo()
{
    if (kiom < 1 || datumoj.size() < kiom || respondoj.size() < kiom || !uzitaj.mid(0, kiom).contains(false))
        return;
    do {
        nuna = random(kiom);
    } while (uzitaj.value(nuna));

    const QStringList& fragmentoj = datumoj.at(nuna);
    const QStringList& r = respondoj.at(nuna);
    for (int k = 0; k < 6; ++k)
        vorto(k)->setText(fragmentoj.value(k));
    for (int k = 0; k < 5; ++k)
        korektaVorto(k)->setText(r.value(k));
    ui->Traduko->setText(tradukoj.value(nuna));

    const QFontMetrics metriko(ui->Vorto1->font());
    const int m = metriko.horizontalAdvance(QLatin1Char('M'));
    QLineEdit* unua = nullptr;
    for (int k = 0; k < 5; ++k) {
        QLineEdit* kampo = kampoj.at(k);
        QLabel* korekta = korektaVorto(k);
        const QString respondo = r.value(k);
        if (!respondo.isEmpty()) {
            // One M of slack: the field's length gives the answer's length away.
            kampo->setFixedWidth(metriko.horizontalAdvance(respondo) + m);
            kampo->show();
            kampo->setEnabled(true);
            korekta->hide();
            // A gap after a blank and glued to what follows is a prefix: it
            // leans right against its word. Endings and words lean left.
            const bool prefikso = fragmentoj.value(k).endsWith(QLatin1Char(' '))
                                  && !fragmentoj.value(k + 1).startsWith(QLatin1Char(' '));
            const Qt::Alignment flanko = prefikso ? Qt::AlignRight : Qt::AlignLeft;
            kampo->setAlignment((kampo->alignment() & Qt::AlignVertical_Mask) | flanko);
            korekta->setAlignment((korekta->alignment() & Qt::AlignVertical_Mask) | flanko);
            if (!unua)
                unua = kampo;
        } else {
            kampo->hide();
            korekta->hide();
        }
        kampo->clear();
    }

    faldasFragmentojn();

    if (unua)
        unua->setFocus();
    else
        ui->BitBtn6->setFocus();
    QGuiApplication::inputMethod()->show();
}

// A fragment on one line is the easiest to read, but a sentence wider than
// the exercise would make the row, and with it the window, wider: such a
// sentence wraps inside its fragments instead.
void plenigas_spacon::faldasFragmentojn()
{
    for (int k = 0; k < 6; ++k)
        vorto(k)->setWordWrap(false);
    // The columns keep the measures of the sentence before until laid out.
    for (QLayout* arangho : ui->Tajpujo->findChildren<QLayout*>())
        arangho->invalidate();
    QLayout* vico = ui->Tajpujo->layout();
    const QMargins m = ui->frame->layout()->contentsMargins();
    const int loko = ui->frame->contentsRect().width() - m.left() - m.right() - 2 * ui->Tajpujo->frameWidth();
    const bool faldu = vico->minimumSize().width() > loko;
    for (int k = 0; k < 6; ++k)
        vorto(k)->setWordWrap(faldu);
}

void plenigas_spacon::on_BitBtn6_clicked()
{
    if (okupita || atendas || !ui->BitBtn5->isEnabled() || nuna < 0 || nuna >= respondoj.size())
        return;
    const QStringList& r = respondoj.at(nuna);
    QList<bool> malghustaj;
    for (int k = 0; k < 5; ++k)
        malghustaj.append(purigas(kampoj.at(k)->text(), true) != r.value(k));
    const bool ghusta = !malghustaj.contains(true);

    okupita = true;
    const int mia = rulado;
    ui->BitBtn6->setEnabled(false);
    for (QLineEdit* kampo : qAsConst(kampoj))
        kampo->setEnabled(false);
    if (ghusta) {
        ++sukcesoj;
        ui->Placar25->setValue(limigo(kiom) - sukcesoj);
        ui->Placar26->setValue(sukcesoj);
        if (nuna < uzitaj.size())
            uzitaj[nuna] = true;
    } else {
        ++eraroj;
        ui->Placar27->setValue(eraroj);
    }
    ui->Placar28->setValue(sukcesoj * 100 / (sukcesoj + eraroj));
    if (ghusta)
        Jes();
    else
        Ne();
    okupita = false;
    if (mia != rulado)
        return;
    ui->BitBtn6->setEnabled(true);

    if (!ghusta) {
        for (int k = 0; k < 5; ++k)
            korektaVorto(k)->setVisible(malghustaj.at(k));
        atendas = true;
        ui->BitBtn6->hide();
        ui->antauen->show();
        return;
    }
    atendas = false;
    if (ui->Placar25->value() > 0) {
        novafrazo();
    } else {
        Mesagxo(eraroj, sukcesoj);
        on_BitBtn5_clicked();
    }
}

void plenigas_spacon::on_antauen_clicked()
{
    if (!atendas)
        return;
    ui->BitBtn6->show();
    ui->antauen->hide();
    atendas = false;
    novafrazo();
}

void plenigas_spacon::on_BitBtn5_clicked()
{
    ++rulado;
    atendas = false;
    ui->BitBtn4->setEnabled(true);
    ui->BitBtn5->setEnabled(false);
    ui->BitBtn6->show();
    ui->antauen->hide();
    ui->BitBtn6->setEnabled(false);
    ui->Tajpujo->hide();
    ui->Traduko->clear();
    ui->BitBtn4->setFocus();
}

void plenigas_spacon::revenas(int k)
{
    for (int j = k + 1; j < kampoj.size(); ++j) {
        if (!kampoj.at(j)->isHidden()) {
            kampoj.at(j)->setFocus();
            return;
        }
    }
    on_BitBtn6_clicked();
}

void plenigas_spacon::on_Edit1_returnPressed()
{
    revenas(0);
}

void plenigas_spacon::on_Edit2_returnPressed()
{
    revenas(1);
}

void plenigas_spacon::on_Edit3_returnPressed()
{
    revenas(2);
}

void plenigas_spacon::on_Edit4_returnPressed()
{
    revenas(3);
}

void plenigas_spacon::on_Edit5_returnPressed()
{
    revenas(4);
}

// A sheet of the whole exercise, every sentence in the order of the data with
// a line for each gap, and the answers at the end. It reads the data itself
// and leaves a run as it is.
void plenigas_spacon::on_printilo_ps_clicked()
{
    ekzercfolio::presas(objectName(), [this] { return folio(); });
}

QString plenigas_spacon::folio() const
{
    const QChar PDF(0x202C), LRE(0x202A);
    const bool dekstre = Direkto == QLatin1String("RTL");
    QString korpo = ekzercfolio::kapo(this, QStringLiteral("<body dir="), {ui->Ekz_Plen1->text()},
                                      ui->Ekz_Plen2->text(), QStringLiteral("</P><P>&nbsp;</P>"));

    const QString id = objectName().right(4);
    QList<QStringList> fragmentaro, respondaro;
    QStringList tradukaro;
    const int n = _Matriz2(&fragmentaro, id, QStringLiteral("D"), 6);
    _Matriz2(&respondaro, id, QStringLiteral("R"), 6);
    _Matriz(&tradukaro, id, QStringLiteral("T"));
    while (tradukaro.size() < n)
        tradukaro.append(QString());

    korpo += QStringLiteral("<ol>");
    QString solvoj = QStringLiteral("<P dir=\"ltr\">Respondoj: <br>");
    for (int i = 0; i < n; ++i) {
        const QStringList& d = fragmentaro.at(i);
        const QStringList r = respondaro.value(i);
        korpo += QStringLiteral("<li>") + tradukaro.at(i) + QStringLiteral("<br>");
        solvoj += QString::number(i + 1) + QStringLiteral(")&nbsp;");
        if (dekstre)
            korpo += LRE;
        for (int k = 1; k <= 6; ++k) {
            // HTML would swallow the blanks at the seams of a gap: keep them.
            korpo += d.value(k - 1);
            if (k == 6)
                break;
            if (d.value(k - 1).endsWith(QLatin1Char(' ')))
                korpo += QStringLiteral("&nbsp;");
            korpo += QStringLiteral("__").repeated(r.value(k - 1).size());
            if (!r.value(k - 1).isEmpty())
                solvoj += r.value(k - 1);
            if (!r.value(k).isEmpty())
                solvoj += QStringLiteral(",&nbsp;&nbsp;");
            if (d.value(k).startsWith(QLatin1Char(' ')))
                korpo += QStringLiteral("&nbsp;");
        }
        if (dekstre)
            korpo += PDF;
        solvoj += QStringLiteral("&nbsp;&nbsp;&nbsp; ");
        korpo += QStringLiteral("<br></li>");
    }
    korpo += QStringLiteral("</ol>");
    solvoj += QStringLiteral("</P></body>");
    return korpo + solvoj;
}
