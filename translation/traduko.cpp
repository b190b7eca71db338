#include "traduko.h"
#include "ui_traduko.h"

#include "funkcioj.h"
#include "inidosiero.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QScroller>
#include <QSettings>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextOption>
#include <QUrl>

namespace {

const char* const sekcioj[] = {
    "Gheneralaj", "Lec01", "Lec02", "Lec03", "Lec04", "Lec05", "Lec06", "Lec07", "Lec08", "Lec09",
    "Lec10", "Lec11", "Lec12", "Lec13", "Konfig", "Menuo", "Menuo4", "Mesagxoj",
    "Ekzerco-0204", "Ekzerco-0502", "Ekzerco-0602", "Ekzerco-0605", "Ekzerco-0702", "Ekzerco-0801",
    "Ekzerco-0802", "Ekzerco-0902", "Ekzerco-1001", "Ekzerco-1002", "Ekzerco-1202", "Ekzerco-Klarigoj",
};

const QString netradukita = QStringLiteral("Ne tradukita.");

QString tradukujo()
{
    return Loko + QStringLiteral("tradukoj/");
}

// The language files the course ships, in the order of their names.
QStringList senditajDosieroj()
{
    return QDir(tradukujo(), QStringLiteral("*.trd"), QDir::Name | QDir::IgnoreCase, QDir::Files).entryList();
}

bool ekzerca(const QString& sekcio)
{
    return sekcio.left(3) == QLatin1String("Ekz");
}

QString stilo(const QString& familio, int grando, const char* fino)
{
    return QStringLiteral("font-family: \"") + familio + QStringLiteral("\"; font-size: ") + QString::number(grando)
           + QLatin1String(fino);
}

} // namespace

traduko::traduko(QWidget* parent)
    : QDialog(parent), ui(new Ui::traduko)
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Tradukilo"));
    QScroller::grabGesture(ui->scrollArea->viewport(), QScroller::LeftMouseButtonGesture);
    connect(ui->scrollArea->verticalScrollBar(), &QScrollBar::rangeChanged, this, &traduko::moveScrollBarToBottom);
    // The file lies in the writable folder: a name, not a path.
    ui->Edit_dosiero->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^/\\\\:]*")), this));
    // A click into the empty code field puts the cursor at its start, not
    // behind the blanks of the mask where no letter can be typed.
    connect(ui->dulitera_lingvokodo, &QLineEdit::cursorPositionChanged, this, [this](int, int nova) {
        const int fino = ui->dulitera_lingvokodo->text().size();
        if (nova > fino)
            ui->dulitera_lingvokodo->setCursorPosition(fino);
    });

    // A section that has nothing to translate is not offered.
    for (const char* s : sekcioj) {
        if (havasShlosilojn(QLatin1String(s)))
            ui->Listo->addItem(QLatin1String(s));
    }
    ListigasLingvojn();
    konfiguro();
}

traduko::~traduko()
{
    delete ui;
}

bool traduko::havasShlosilojn(const QString& sekcio)
{
    if (!ekzerca(sekcio))
        return !Ordigas(sekcio).isEmpty();
    // An exercise's sentences are counted in a reference language.
    for (const QString& dosiero : senditajDosieroj()) {
        inidosiero s(tradukujo() + dosiero);
        s.beginGroup(sekcio);
        if (!s.childKeys().isEmpty())
            return true;
    }
    return false;
}

void traduko::ListigasLingvojn()
{
    for (const QString& dosiero : senditajDosieroj()) {
        const QHash<QString, QString> kapo = legasKapon(tradukujo() + dosiero);
        const QStringList vico = {kapo.value(QStringLiteral("LingvoID"), QStringLiteral("??")),
                                  kapo.value(QStringLiteral("Lingvo"), QStringLiteral("?????????")), dosiero};
        lingvoj.append(vico);
        ui->lingvoj1->addItem(vico.at(1));
        ui->lingvoj2->addItem(vico.at(1));
    }
}

void traduko::konfiguro()
{
    inidosiero agordoj(agordoVojo());
    agordoj.beginGroup(QStringLiteral("Tradukilo"));
    ui->dulitera_lingvokodo->setText(agordoj.value(QStringLiteral("LingvoID"), QString()).toString());
    ui->Edit1->setText(agordoj.value(QStringLiteral("Lingvo"), QString()).toString());
    ui->Edit2->setText(agordoj.value(QStringLiteral("Tradukinto"), QString()).toString());
    ui->Edit_dosiero->setText(agordoj.value(QStringLiteral("Dosiero"), QStringLiteral("mia_traduko.trd")).toString());
    ui->dulitera_lingvokodo->setPlaceholderText(QStringLiteral("aa"));
    ui->Edit1->setPlaceholderText(QString::fromUtf8("Skribu ĉi tie la nomon de via lingvo"));
    ui->Edit2->setPlaceholderText(QString::fromUtf8("Skribu ĉi tie vian nomon"));
    ui->Edit_dosiero->setPlaceholderText(QString::fromUtf8("Skribu ĉi tie la nomon de la dosiero"));
    literGrandoEditoro = agordoj.value(QStringLiteral("LiterGrando"), 12).toInt();
    const QString tiparo = agordoj.value(QStringLiteral("Tiparo"), QStringLiteral("DejaVu Sans")).toString();
    dosiero1 = agordoj.value(QStringLiteral("Referenca1"), QStringLiteral("esperanto.trd")).toString();
    dosiero2 = agordoj.value(QStringLiteral("Referenca2"), QStringLiteral("angla.trd")).toString();
    legitaSekcio = agordoj.value(QStringLiteral("LastaLeciono"), 0).toInt();
    legitaPozicio = agordoj.value(QStringLiteral("Pozicio"), 0).toInt();
    agordoj.endGroup();
    dosierujo = savasLoko;
    ui->vojo_dosierujo->setText(dosierujo);

    {
        const QSignalBlocker b1(ui->tiparo), b2(ui->literGrando), b3(ui->horizontalSlider);
        ui->tiparo->setCurrentFont(QFont(tiparo));
        ui->literGrando->setValue(literGrandoEditoro);
        ui->horizontalSlider->setValue(literGrandoEditoro);
    }
    on_tiparo_currentIndexChanged(ui->tiparo->currentText());

    // Written from right to left: the file says so once the translator has chosen it.
    inidosiero propra(legataDosiero());
    ui->direktoRTL->setChecked(propra.value(QStringLiteral("Traduko/Direkto"), QStringLiteral("LTR")).toString()
                               == QLatin1String("RTL"));

    bool trovita1 = false, trovita2 = false;
    for (int i = 0; i < lingvoj.size(); ++i) {
        if (lingvoj.at(i).at(2) == dosiero1) {
            ui->lingvoj1->setCurrentIndex(i);
            trovita1 = true;
        }
        if (lingvoj.at(i).at(2) == dosiero2) {
            ui->lingvoj2->setCurrentIndex(i);
            trovita2 = true;
        }
    }
    if (!trovita1 || !trovita2) {
        QMessageBox averto(QMessageBox::Warning, windowTitle(),
                           QString::fromUtf8("Mankas la tradukdosiero por antaŭe elektita referenca lingvo.\n"
                                             "Alia lingvo estas elektita por referenco.\nBonvolu kontroli tion."),
                           QMessageBox::Ok, QApplication::activeWindow());
        averto.exec();
        const QString unua = lingvoj.isEmpty() ? QString() : lingvoj.first().at(2);
        if (!trovita1) {
            dosiero1 = unua;
            ui->lingvoj1->setCurrentIndex(0);
            ui->lingvoj1->setFocus();
        }
        if (!trovita2) {
            dosiero2 = unua;
            ui->lingvoj2->setCurrentIndex(0);
            ui->lingvoj2->setFocus();
        }
    }

    {
        const QSignalBlocker blokilo(ui->Listo);
        ui->Listo->setCurrentIndex(legitaSekcio >= 0 && legitaSekcio < ui->Listo->count() ? legitaSekcio : 0);
    }
    QCoreApplication::processEvents();

    sekcio = ui->Listo->currentText();
    SharghasTrad(sekcio);
    pozicio = legitaPozicio;
    Movighas(QString());
}

QStringList traduko::Ordigas(QString sekcio)
{
    // The list holds plain ASCII and is read without a codec.
    QSettings listo(tradukujo() + QStringLiteral("tradukendaj.tdf"), QSettings::IniFormat);
    listo.beginGroup(sekcio);
    QStringList shlosiloj;
    for (const QString& numero : listo.childKeys())
        shlosiloj << listo.value(numero, QStringLiteral("Eraro")).toString();
    listo.endGroup();
    return shlosiloj;
}

QString traduko::propraDosiero() const
{
    return dosierujo + ui->Edit_dosiero->text();
}

// A translator who improves a language the course ships starts from its
// texts, until the first save makes the file of their own.
QString traduko::legataDosiero() const
{
    const QString nomo = ui->Edit_dosiero->text();
    const QString sendita = tradukujo() + nomo;
    if (nomo.isEmpty() || QFile::exists(propraDosiero()) || !QFileInfo(sendita).isFile())
        return propraDosiero();
    return sendita;
}

QStringList traduko::referenco(const QString& dosiero, const QString& sekcio)
{
    inidosiero s(tradukujo() + dosiero);
    s.beginGroup(sekcio);
    QStringList tekstoj;
    for (const QString& shlosilo : qAsConst(slosiloj))
        tekstoj << s.value(shlosilo, netradukita).toString();
    s.endGroup();
    return tekstoj;
}

void traduko::SharghasTrad(QString sekcio)
{
    inidosiero unua(tradukujo() + dosiero1);
    unua.beginGroup(sekcio);
    if (!ekzerca(sekcio)) {
        slosiloj = Ordigas(sekcio);
    } else {
        // An exercise's sentences are numbered 0, 1, 2 ... in its data.
        slosiloj.clear();
        const int kiom = unua.childKeys().size();
        for (int i = 0; i < kiom; ++i)
            slosiloj << QString::number(i);
    }
    unua.endGroup();

    referenco1 = referenco(dosiero1, sekcio);
    referenco2 = referenco(dosiero2, sekcio);
    inidosiero propra(legataDosiero());
    propra.beginGroup(sekcio);
    tradukoj.clear();
    for (const QString& shlosilo : qAsConst(slosiloj))
        tradukoj << propra.value(shlosilo, QString()).toString();
    propra.endGroup();

    this->sekcio = sekcio;
    lokigas_paghotrad(sekcio);
}

void traduko::on_lingvoj1_activated(int i)
{
    if (i < 0 || i >= lingvoj.size())
        return;
    dosiero1 = lingvoj.at(i).at(2);
    referenco1 = referenco(dosiero1, ui->Listo->currentText());
    Movighas(QString());
}

void traduko::on_lingvoj2_activated(int i)
{
    if (i < 0 || i >= lingvoj.size())
        return;
    dosiero2 = lingvoj.at(i).at(2);
    referenco2 = referenco(dosiero2, ui->Listo->currentText());
    Movighas(QString());
}

bool traduko::SavasTrad()
{
    for (const QLineEdit* kampo : {static_cast<QLineEdit*>(ui->Edit_dosiero), static_cast<QLineEdit*>(ui->Edit1),
                                   static_cast<QLineEdit*>(ui->Edit2), ui->dulitera_lingvokodo}) {
        if (kampo->text().trimmed().isEmpty()) {
            QMessageBox eraro(QMessageBox::Critical, windowTitle(),
                              QStringLiteral("Bonvolu plenigi devigajn informojn (en la kampoj kun flava fono)."),
                              QMessageBox::Ok, QApplication::activeWindow());
            eraro.exec();
            return false;
        }
    }
    if (pozicio >= 0 && pozicio < tradukoj.size())
        tradukoj[pozicio] = ui->Memo1->toPlainText();

    // The new file takes the place of the shipped one for every text, so it
    // starts as a copy of it.
    const QString sendita = legataDosiero();
    if (sendita != propraDosiero() && QFile::copy(sendita, propraDosiero()))
        QFile::setPermissions(propraDosiero(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup
                                                   | QFileDevice::ReadOther);
    inidosiero propra(propraDosiero());
    propra.beginGroup(QStringLiteral("Traduko"));
    propra.setValue(QStringLiteral("LingvoID"), ui->dulitera_lingvokodo->text());
    propra.setValue(QStringLiteral("Lingvo"), ui->Edit1->text());
    propra.setValue(QStringLiteral("Tradukinto"), ui->Edit2->text());
    propra.setValue(QStringLiteral("LiterGrando"), ui->literGrando->value());
    propra.setValue(QStringLiteral("Direkto"), ui->direktoRTL->isChecked() ? QStringLiteral("RTL") : QStringLiteral("LTR"));
    propra.endGroup();
    // An emptied box is not written: a text once saved stays.
    propra.beginGroup(sekcio);
    for (int i = 0; i < slosiloj.size() && i < tradukoj.size(); ++i) {
        if (!tradukoj.at(i).isEmpty())
            propra.setValue(slosiloj.at(i), tradukoj.at(i));
    }
    propra.endGroup();
    propra.sync();

    const QString listoVojo = savasLoko + QStringLiteral("traduklisto.ini");
    const QString nomo = ui->Edit_dosiero->text().trimmed();
    if (QFile::exists(listoVojo) && !nomo.isEmpty()) {
        inidosiero listo(listoVojo);
        int i = 0;
        for (; i < 200; ++i) {
            const QStringList vico = listaVico(listo, i);
            if (vico.at(0) == QLatin1String("??") || vico.at(2) == nomo)
                break;
        }
        listo.beginGroup(QString::number(i));
        listo.setValue(QStringLiteral("LingvoID"), ui->dulitera_lingvokodo->text().trimmed());
        listo.setValue(QStringLiteral("Lingvo"), ui->Edit1->text().trimmed());
        listo.setValue(QStringLiteral("DosierNomo"), nomo);
        listo.setValue(QStringLiteral("Dato"), QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));
        listo.endGroup();
        listo.sync();
    }
    return true;
}

void traduko::on_Listo_activated(const QString& nova)
{
    if (SavasTrad()) {
        pozicio = 0;
        SharghasTrad(nova);
        QCoreApplication::processEvents();
        Movighas(QString());
        lokigas_paghotrad(nova);
    } else {
        ui->Listo->setCurrentText(sekcio);
        ui->scrollArea->ensureWidgetVisible(ui->Edit_dosiero, 50, 50);
        ui->Edit_dosiero->setFocus();
    }
}

void traduko::on_tiparo_currentIndexChanged(const QString& familio)
{
    const int grando = ghustigas_tiparon(ui->literGrando->value());
    ui->Memo1->setStyleSheet(stilo(familio, grando, "pt;"));
    ui->Memo2->setStyleSheet(stilo(familio, grando, "pt;background-color: rgb(199, 227, 255); padding: 5px;"));
    ui->Memo3->setStyleSheet(stilo(familio, grando, "pt;background-color: rgb(213, 255, 191); padding: 5px;"));
}

void traduko::on_literGrando_valueChanged(int grando)
{
    {
        const QSignalBlocker blokilo(ui->horizontalSlider);
        ui->horizontalSlider->setValue(grando);
    }
    on_tiparo_currentIndexChanged(ui->tiparo->currentText());
}

void traduko::on_horizontalSlider_valueChanged(int grando)
{
    ui->literGrando->setValue(grando);
}

void traduko::on_direktoRTL_toggled(bool dekstre)
{
    const Qt::LayoutDirection direkto = dekstre ? Qt::RightToLeft : Qt::LeftToRight;
    ui->Memo1->setLayoutDirection(direkto);
    QTextOption opcio = ui->Memo1->document()->defaultTextOption();
    opcio.setTextDirection(direkto);
    ui->Memo1->document()->setDefaultTextOption(opcio);
}

void traduko::on_pushButton_clicked()
{
    close();
}

void traduko::reject()
{
    close();
}

void traduko::on_dosierujo_clicked()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(savasLoko));
}

void traduko::on_Button7_clicked()
{
    QDesktopServices::openUrl(QUrl(sServilo + QStringLiteral("/datumoj/tradukoj/rekomendoj.html")));
}

void traduko::Movighas(QString direkto)
{
    const int lasta = slosiloj.size() - 1;
    if (lasta < 0) {
        // Nothing to show: such a section is not offered, but the files may change under us.
        ui->Memo1->clear();
        ui->Memo2->clear();
        ui->Memo3->clear();
        for (QWidget* b : {ui->Button1, ui->Button2, ui->Button5, ui->Button6})
            b->setEnabled(false);
        ui->pozicio->setText(QStringLiteral("Pozicio: 0 / 0"));
        return;
    }
    pozicio = qBound(0, pozicio, lasta);
    if (!direkto.isEmpty())
        tradukoj[pozicio] = ui->Memo1->toPlainText();

    if (direkto == QLatin1String("posta") && pozicio < lasta)
        ++pozicio;
    else if (direkto == QLatin1String("antaua") && pozicio > 0)
        --pozicio;
    else if (direkto == QLatin1String("komenca"))
        pozicio = 0;
    else if (direkto == QLatin1String("fina"))
        pozicio = lasta;

    ui->Memo1->setPlainText(tradukoj.value(pozicio));
    ui->Memo2->setText(referenco1.value(pozicio));
    ui->Memo3->setText(referenco2.value(pozicio));
    ui->Button1->setEnabled(pozicio > 0);
    ui->Button5->setEnabled(pozicio > 0);
    ui->Button6->setEnabled(pozicio < lasta);
    ui->Button2->setEnabled(pozicio < lasta);
    const QString shlosilo = slosiloj.at(pozicio);
    ui->pozicio->setText(QStringLiteral("Pozicio: ") + QString::number(pozicio + 1) + QStringLiteral(" / ")
                         + QString::number(slosiloj.size()) + QStringLiteral("        (") + shlosilo + QStringLiteral(")   "));
    lokigas_frazotrad(shlosilo);
    ui->Memo1->setFocus();
}

void traduko::on_Button1_clicked() { Movighas(QStringLiteral("antaua")); }
void traduko::on_Button2_clicked() { Movighas(QStringLiteral("posta")); }
void traduko::on_Button5_clicked() { Movighas(QStringLiteral("komenca")); }
void traduko::on_Button6_clicked() { Movighas(QStringLiteral("fina")); }

void traduko::on_Button4_clicked()
{
    Movighas(QStringLiteral("nenien"));
    for (int i = 0; i < tradukoj.size(); ++i) {
        if (tradukoj.at(i).trimmed().isEmpty()) {
            pozicio = i;
            Movighas(QString());
            return;
        }
    }
    QMessageBox informo(QMessageBox::Information, windowTitle(),
                        QString::fromUtf8("En ĉi tiu sekcio, ĉiuj frazoj estas tradukitaj. \n"
                                          "Bonvolu kontroli ankaŭ la aliajn sekciojn."),
                        QMessageBox::Ok, QApplication::activeWindow());
    informo.exec();
}

void traduko::lokigas_paghotrad(QString sekcio)
{
    QCoreApplication::processEvents();
    if (sekcio.left(3) == QLatin1String("Lec"))
        emit novapagho(QStringLiteral("Pagho") + sekcio.right(2));
    else if (sekcio == QLatin1String("Konfig"))
        emit novapagho(QStringLiteral("Pagho_Konfigurado"));
    else if (sekcio == QLatin1String("Menuo4"))
        emit novapagho(QStringLiteral("Pagho_Kreditoj"));
}

void traduko::lokigas_frazotrad(QString shlosilo)
{
    const QString sekcio = ui->Listo->currentText();
    if (sekcio.left(3) == QLatin1String("Lec"))
        emit novafrazo(QStringLiteral("Pagho") + sekcio.right(2), sekcio + QLatin1Char('_') + shlosilo);
    else if (sekcio == QLatin1String("Menuo4"))
        emit novafrazo(QStringLiteral("Pagho_Kreditoj"), QStringLiteral("Kredit_") + shlosilo);
    else if (sekcio == QLatin1String("Konfig"))
        emit novafrazo(QStringLiteral("Pagho_Konfigurado"), QStringLiteral("Konfig_") + shlosilo);
}

void traduko::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    // Opened again, the editor takes the course back to its sentence.
    lokigas_paghotrad(ui->Listo->currentText());
    if (pozicio >= 0 && pozicio < slosiloj.size())
        lokigas_frazotrad(slosiloj.at(pozicio));
}

void traduko::moveScrollBarToBottom(int, int maksimumo)
{
    // The editing box lies at the bottom: keep it in view on small screens.
    ui->scrollArea->verticalScrollBar()->setValue(maksimumo);
}

void traduko::closeEvent(QCloseEvent* evento)
{
    SavasTrad();   // after its message, the editor closes all the same
    QCoreApplication::processEvents();
    inidosiero agordoj(agordoVojo());
    agordoj.beginGroup(QStringLiteral("Tradukilo"));
    agordoj.setValue(QStringLiteral("Lingvo"), ui->Edit1->text());
    agordoj.setValue(QStringLiteral("LingvoID"), ui->dulitera_lingvokodo->text());
    agordoj.setValue(QStringLiteral("Dosiero"), ui->Edit_dosiero->text());
    agordoj.setValue(QStringLiteral("Tradukinto"), ui->Edit2->text());
    agordoj.setValue(QStringLiteral("LiterGrando"), ui->literGrando->value());
    agordoj.setValue(QStringLiteral("Tiparo"), ui->tiparo->currentText());
    agordoj.setValue(QStringLiteral("Referenca1"), dosiero1);
    agordoj.setValue(QStringLiteral("Referenca2"), dosiero2);
    agordoj.setValue(QStringLiteral("LastaLeciono"), ui->Listo->currentIndex());
    agordoj.setValue(QStringLiteral("Pozicio"), pozicio);
    agordoj.endGroup();
    agordoj.sync();
    evento->accept();
}
