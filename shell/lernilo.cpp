#include "lernilo.h"
#include "ui_lernilo.h"

#include "filedownloader.h"
#include "klavoj.h"
#include "funkcioj.h"
#include "lecionfonto.h"
#include "lecionkadro.h"
#include "lingvoelekto.h"
#include "inidosiero.h"
#include "traduko.h"

#include <QCloseEvent>
#include <QDirIterator>
#include <QFileInfo>
#include <QMessageBox>
#include <QTime>
#include <QElapsedTimer>
#include <QDir>
#include <QDesktopServices>
#include <QUrl>
#include <QFile>
#include <QGuiApplication>
#include <QMediaPlayer>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>

#include <limits>

namespace {

// Setting a style sheet restyles every widget beneath, even when the sheet
// is the same: an unchanged sheet is left alone, so that a change of language
// costs nothing however many lessons are built.
void metasStilon(QWidget* w, const QString& stilo)
{
    if (w->styleSheet() != stilo)
        w->setStyleSheet(stilo);
}

// The font of the learner's language, for the whole program.
QFont lingvaTiparo()
{
    QFont tiparo(sTiparo);
    tiparo.setPointSize(ghustigas_tiparon(iLiterGrando));
    return tiparo;
}

// The part of the style that follows the settings: sizes and the font of
// Esperanto.
QString tiparaStilo()
{
    const int eo = ghustigas_tiparon(iLiterGrandoEo);
    const int lingvo = ghustigas_tiparon(iLiterGrando);
    const int lingvo125 = int(lingvo * 1.25);
    const int eo125 = int(eo * 1.25);
    return QStringLiteral("myLabel#label_Kie, #label_Kreditoj, #label_Kio, #label_Konfiguroj, #label_Kiel, #label_Eliri { font-size: ")
           + QString::number(lingvo - 1) + QStringLiteral("pt; font-weight: bold; } ")
           + QStringLiteral("titolo { font-size: ") + QString::number(lingvo125)
           + QStringLiteral("pt; font-weight: bold; min-height: 1.2em;} ")
           + QStringLiteral("QLabel[lingvo=\"eo\"], klakbutono_nova, neklakebla_nova, korekta, cx_edit, cx_plainedit, cx_edit_minuskla { font-family: \"")
           + sTiparoEo + QStringLiteral("\";  font-size: ") + QString::number(eo) + QStringLiteral("pt;} ")
           + QStringLiteral("titolo[lingvo=\"eo\"], QPushButton[tipo=\"speciala\"], QLabel[tipo=\"afikso\"]  { font-family: \"")
           + sTiparoEo + QStringLiteral("\"; font-size: ") + QString::number(eo125)
           + QStringLiteral("pt; font-weight: bold; min-height: 1.2em;} ");
}

QString lecionaPagho(int numero)
{
    return QStringLiteral("Pagho%1").arg(numero, 2, 10, QLatin1Char('0'));
}

// One setting of group Gxenerala: its key, the global it fills (a text, a
// number or a switch) and its value where the file has none. A number that
// is no number reads as the default, one out of its range as the nearest
// bound, so that a damaged file never makes the window unusable.
struct Agordo
{
    const char* shlosilo;
    QString* teksto;
    int* nombro;
    bool* shaltilo;
    QVariant defaulto;
    int minimumo = std::numeric_limits<int>::min();
    int maksimumo = std::numeric_limits<int>::max();

    void legas(const QSettings& agordoj) const
    {
        const QVariant v = agordoj.value(QLatin1String(shlosilo), defaulto);
        if (teksto) {
            *teksto = v.toString();
        } else if (nombro) {
            bool bone = false;
            const int n = v.toInt(&bone);
            *nombro = qBound(minimumo, bone ? n : defaulto.toInt(), maksimumo);
        } else {
            *shaltilo = v.toBool();
        }
    }

    void skribas(QSettings& agordoj) const
    {
        agordoj.setValue(QLatin1String(shlosilo),
                         teksto ? QVariant(*teksto) : nombro ? QVariant(*nombro) : QVariant(*shaltilo));
    }
};

// Font sizes as the settings page's spin boxes allow them.
const int minimumaGrando = 9;
const int maksimumaGrando = 16;

// Every setting the program keeps, read at the start and written at the end.
QVector<Agordo> agordoj()
{
    const QString tiparo = sSistemo == QLatin1String("osx") ? QStringLiteral("Helvetica Neue")
                                                             : QStringLiteral("DejaVu Sans");
    return {
        {"Lingvo", &sLingvo, nullptr, nullptr, QString()},
        {"Tiparo", &sTiparo, nullptr, nullptr, tiparo},
        {"TiparoEo", &sTiparoEo, nullptr, nullptr, tiparo},
        {"Dosiero", &sTradukoDosiero, nullptr, nullptr, QString()},
        {"Cxapeligo", nullptr, nullptr, &lCxapeligo, true},
        {"Sistemo", nullptr, &iSistemo, nullptr, 0, 0, 2},
        {"LastaLeciono", nullptr, &LastaLeciono, nullptr, 1, 1, KiomDaLecionoj},
        {"LastaPagxo", nullptr, &LastaPagxo, nullptr, 0, 0},
        {"Sxaltilo", nullptr, nullptr, &lSxaltilo, true},
        {"Noteto", nullptr, nullptr, &lNoteto, true},
        {"LiterGrando", nullptr, &iLiterGrando, nullptr, 11, minimumaGrando, maksimumaGrando},
        {"LiterGrandoEo", nullptr, &iLiterGrandoEo, nullptr, 11, minimumaGrando, maksimumaGrando},
        {"FenestraStilo", nullptr, &iFenestraStilo, nullptr, 0},
    };
}

} // namespace

lernilo::lernilo(QWidget* parent)
    : QMainWindow(parent), ui(new Ui::lernilo)
{
    randomize();
    ui->setupUi(this);
    // The window keeps the size it was given. Without this its layout would
    // raise the window's minimum to that of the widest page, and the window
    // would widen by itself whenever a page's contents asked for more room.
    layout()->setSizeConstraint(QLayout::SetNoConstraint);

    // The pages scroll by dragging.
    for (const char* nomo : {"scrollArea", "scrollArea_3", "scrollArea_2", "scrollArea_5"}) {
        if (auto* rulumo = findChild<QScrollArea*>(QLatin1String(nomo)))
            ebligasTrenon(rulumo);
    }
    QApplication::setWindowIcon(QIcon(QStringLiteral(":lernilo5.ico")));
    // Course monitors are listed on this build's own server.
    ui->label_126->setText(ui->label_126->text().replace(
        QRegularExpression(QStringLiteral("href=\"[^\"]*\"")),
        QStringLiteral("href=\"%1/monitoroj\"").arg(sServilo)));

    // Controls of this edition that the learner never sees.
    ui->prog_printilo->hide();
    ui->printilo->hide();
    ui->Sendas->hide();
    ui->Konfig_Label4->hide();
    ui->konfig_send_literoj->hide();
    if (sSistemo == QLatin1String("android") || sSistemo == QLatin1String("ios"))
        ui->tradukilo->hide();
    ui->shanghasKonfigurojn->hide();
    ui->butonujo->hide();
    ui->navigujo->hide();
    ui->paghopiedo->hide();

    ludilo = new QMediaPlayer(this);
    for (int i = 0; i < KiomDaLecionoj; ++i)
        tradukitaj.append(QString());
    komencakonfiguro();
    ui->Paghujo->setCurrentIndex(0);
}

void lernilo::Stilo()
{
    QFile dosiero(QStringLiteral(":stiloj/lernilo.qss"));
    dosiero.open(QIODevice::ReadOnly);
    const QString fiksa = QString::fromUtf8(dosiero.readAll());
    // Turning updates off and on walks every widget of every built lesson:
    // not needed when nothing changes.
    if (QApplication::font() == lingvaTiparo() && ui->centralWidget->styleSheet() == tiparaStilo()
        && ui->Paghujo->styleSheet() == fiksa)
        return;
    setUpdatesEnabled(false);
    ShanghasTiparStilon();
    metasStilon(ui->Paghujo, fiksa);
    setUpdatesEnabled(true);
}

lernilo::~lernilo()
{
    delete ui;
}

QFrame* lernilo::leciono(int numero) const
{
    return numero >= 1 && numero <= KiomDaLecionoj ? lecionoj[numero - 1] : nullptr;
}

void lernilo::legasAgordojn()
{
    inidosiero dosiero(agordoVojo());
    dosiero.beginGroup(QStringLiteral("Gxenerala"));
    for (const Agordo& a : agordoj())
        a.legas(dosiero);
    dosiero.endGroup();
    if (LastaPagxo >= lecionfonto::kiomDaPaghoj(LastaLeciono))
        LastaPagxo = 0;   // a page the lesson does not have: its first one
    if (!sekuraDosierNomo(sTradukoDosiero))
        sTradukoDosiero.clear();   // a damaged setting: choose the language anew
}

void lernilo::komencakonfiguro()
{
    legasAgordojn();
    // Fonts and style sheets before anything is polished, so that no widget
    // is styled twice; Konfiguru finds them set.
    Stilo();

    if (sLingvo.isEmpty() || sTradukoDosiero.isEmpty()) {
        // First run: the language comes before the window.
        auto* elekto = new lingvoelekto(nullptr);
        elekto->exec();
        iLiterGrando = 11;
        Traduku();
        delete elekto;
        return;
    }
    const QFileInfo listo(savasLoko + QStringLiteral("traduklisto.ini"));
    if (listo.exists() && !listoMalnova(listo.birthTime().date(), QDate::currentDate()))
        Traduku();
    else
        elshutas(QStringLiteral("/datumoj/traduklisto.ini"), QStringLiteral("traduklisto.ini"), "aktualigasTradukon");
}

bool lernilo::listoMalnova(const QDate& naskigho, const QDate& hodiau)
{
    // Where the file system keeps no birth time the date is invalid, and so old.
    return !naskigho.isValid() || naskigho.addDays(7) < hodiau;
}

void lernilo::elshutas(const QString& vojo, const QString& nomo, const char* poste)
{
    elshutilo = new FileDownloader(QUrl(sServilo + vojo), nomo, this);
    connect(elshutilo, SIGNAL(downloaded()), this, QByteArray(QByteArray("1") + poste + "()").constData());
}

void lernilo::aktualigasTradukon()
{
    const QHash<QString, QString> kapo = legasKapon(savasLoko + sTradukoDosiero);
    sLingvoID = kapo.value(QStringLiteral("LingvoID"), QStringLiteral("en"));
    const QDate loka = QDate::fromString(kapo.value(QStringLiteral("Dato"), QStringLiteral("01.01.2000")),
                                         QStringLiteral("dd.MM.yyyy"));

    const QString listoVojo = savasLoko + QStringLiteral("traduklisto.ini");
    if (!QFile::exists(listoVojo)) {
        Traduku();
        return;
    }
    inidosiero listo(listoVojo);
    bool trovita = false;
    for (int i = 0; i < 200 && !trovita; ++i) {
        listo.beginGroup(QString::number(i));
        if (sLingvoID.trimmed() == listo.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString().trimmed())
            trovita = true;
        else
            listo.endGroup();
    }
    if (!trovita) {
        Traduku();
        return;
    }
    const QDate malproksima = QDate::fromString(listo.value(QStringLiteral("Dato"), QStringLiteral("01.01.2000")).toString(),
                                                QStringLiteral("dd.MM.yyyy"));
    listo.endGroup();
    if (malproksima.isValid() && loka.isValid() ? malproksima > loka : false)
        elshutas(QStringLiteral("/datumoj/tradukoj/") + sTradukoDosiero, sTradukoDosiero, "Traduku");
    else
        Traduku();
}

void lernilo::Traduku()
{
    QString vojo = legotaTraduko();
    if (sTradukoDosiero.isEmpty() || !QFile::exists(vojo)) {
        vojo = QStringLiteral(":/tradukoj/angla.trd");
        if (QFile::exists(vojo)) {
            QMessageBox averto(QMessageBox::Warning, QString(),
                QStringLiteral("The translation file ") + sTradukoDosiero
                    + QStringLiteral(" could not be found. English translation will be used as default."),
                QMessageBox::Ok, QApplication::activeWindow());
            averto.exec();
            sTradukoDosiero = QStringLiteral("angla.trd");
            sLingvo = QStringLiteral("English — Angla");
        } else {
            QMessageBox eraro(QMessageBox::Critical, QString(),
                QStringLiteral("The translation file ") + sTradukoDosiero
                    + QStringLiteral(" could not be found. The English translation file (angla.trd) could not be found either. \n"
                                     "Please check the path or reinstall Lernilo. \nProgram will quit now."),
                QMessageBox::Ok, QApplication::activeWindow());
            eraro.exec();
            NeEkzistasTraduko = true;
            QCoreApplication::exit(1);
        }
    }

    // Only the groups the main window needs: the lessons' groups, the bulk
    // of the file, are read when a lesson is entered.
    const auto traduko = legasGrupojn(vojo, {QStringLiteral("Traduko"), QStringLiteral("Mesagxoj"), QStringLiteral("Menuo"),
                                             QStringLiteral("Konfig"), QStringLiteral("Menuo4")});
    const QString ne = QStringLiteral("Ne Tradukita");
    const QHash<QString, QString> kapo = traduko.value(QStringLiteral("Traduko"));
    sTradukinto = kapo.value(QStringLiteral("Tradukinto"));
    sLingvoID = kapo.value(QStringLiteral("LingvoID"), QStringLiteral("en"));

    const QHash<QString, QString> mesaghojDeDosiero = traduko.value(QStringLiteral("Mesagxoj"));
    const std::pair<QString*, const char*> mesaghoj[] = {
        {&smRekomencu, "smRekomencu"}, {&smGratulon, "smGratulon"}, {&smDenove, "smDenove"},
        {&smModifis, "smModifis"}, {&smTondujo, "smTondujo"}, {&smDevasHaviKor, "smDevasHaviKor"},
        {&smDevasSavi, "smDevasSavi"}, {&smKoverto, "smKoverto"}, {&smDisketo, "smDisketo"},
        {&smPordo, "smPordo"}, {&smLigilo, "smLigilo"}, {&Antauen, "Antauen"}, {&Nuligi, "Nuligi"},
        {&smNeSono, "smNeSono"},
    };
    for (const auto& m : mesaghoj)
        *m.first = mesaghojDeDosiero.value(QLatin1String(m.second), ne);

    Direkto = kapo.value(QStringLiteral("Direkto"), QStringLiteral("LTR"));
    QGuiApplication::setLayoutDirection(Direkto == QLatin1String("LTR") ? Qt::LeftToRight : Qt::RightToLeft);

    const QHash<QString, QString> menuoDeDosiero = traduko.value(QStringLiteral("Menuo"));
    const std::pair<const char*, QList<QLabel*>> menuo[] = {
        {"KioEstas", {ui->label_Kio}},
        {"KielUzi", {ui->label_Kiel}},
        {"Konfigurado", {ui->label_Konfiguroj, ui->Label_Konfigurado}},
        {"Kreditoj", {ui->label_Kreditoj, ui->Label_Kreditoj}},
        {"Eliri", {ui->label_Eliri}},
        {"KieButono", {ui->label_Kie}},
    };
    for (const auto& m : menuo) {
        const QString teksto = menuoDeDosiero.value(QLatin1String(m.first), ne);
        for (QLabel* etikedo : m.second)
            etikedo->setText(teksto);
    }

    const QHash<QString, QString> konfig = traduko.value(QStringLiteral("Konfig"));
    for (QLabel* etikedo : ui->Pagho_Konfigurado->findChildren<QLabel*>()) {
        if (etikedo->objectName().left(6) == QLatin1String("Konfig"))
            etikedo->setText(konfig.value(etikedo->objectName().mid(7), ne));
    }
    for (QAbstractButton* butono : {static_cast<QAbstractButton*>(ui->radioButton), static_cast<QAbstractButton*>(ui->radioButton_2),
                                    static_cast<QAbstractButton*>(ui->radioButton_3)})
        butono->setText(butono->text() + QChar(0x200E));

    const QHash<QString, QString> kreditoj = traduko.value(QStringLiteral("Menuo4"));
    for (QLabel* etikedo : ui->Kredit->findChildren<QLabel*>()) {
        if (etikedo->objectName().left(6) == QLatin1String("Kredit"))
            etikedo->setText(kreditoj.value(etikedo->objectName().mid(7), ne));
    }

    ui->Tradukinto->setText(sTradukinto);
    ListigasLingvojn();
}

void lernilo::ListigasLingvojn()
{
    const QString listoVojo = savasLoko + QStringLiteral("traduklisto.ini");
    inidosiero listo(listoVojo);
    if (QFile::exists(listoVojo) && listaVico(listo, 0).at(0) != QLatin1String("??")) {
        for (int i = 0; i < 200; ++i) {
            const QStringList vico = listaVico(listo, i);
            if (vico.at(0) == QLatin1String("??"))
                break;
            if (!sekuraDosierNomo(vico.at(2)))
                continue;   // never a file outside the writable folder
            lingvoListo.append(vico);
            ui->Lingvo->addItem(vico.at(1));
        }
    }
    for (QDirIterator it(QStringLiteral(":/tradukoj")); it.hasNext();) {
        it.next();
        if (!it.fileName().endsWith(QLatin1String("trd")))
            continue;
        const QStringList vico = dosieraVico(it.fileName(), QStringLiteral("?????????"));
        lingvoListo.append(vico);
        ui->Lingvo->addItem(vico.at(1));
    }
    Konfiguru();
}

void lernilo::Konfiguru()
{
    {
        const QSignalBlocker blokilo(ui->Lingvo);
        ui->Lingvo->setCurrentIndex(ui->Lingvo->findData(sLingvo, Qt::DisplayRole, Qt::MatchCaseSensitive));
    }
    if (iSistemo == 0)
        ui->radioButton->setChecked(true);
    else if (iSistemo == 1)
        ui->radioButton_2->setChecked(true);
    else
        ui->radioButton_3->setChecked(true);
    ui->Cxapeligo->setChecked(lCxapeligo);
    ui->Parolo->setChecked(lSxaltilo);
    ui->Noteto->setChecked(lNoteto);

    {
        const QSignalBlocker b1(ui->Tiparo), b2(ui->TiparoEo), b3(ui->LiterGrando),
            b4(ui->LiterGrandoEo), b5(ui->glitilo_eo), b6(ui->glitilo_traduko);
        ui->Tiparo->setCurrentFont(QFont(sTiparo));
        ui->TiparoEo->setCurrentFont(QFont(sTiparoEo));
        ui->LiterGrando->setValue(iLiterGrando);
        ui->glitilo_traduko->setValue(iLiterGrando);
        ui->LiterGrandoEo->setValue(iLiterGrandoEo);
        ui->glitilo_eo->setValue(iLiterGrandoEo);
        metasStilon(ui->tekstoEo, specimenStilo(sTiparoEo, iLiterGrandoEo));
        metasStilon(ui->tekstoLingvo, specimenStilo(sTiparo, iLiterGrando));
    }
    ui->tekstoLingvo->setText(sLingvo);
    QCoreApplication::processEvents();
    Stilo();
}

QString lernilo::specimenStilo(const QString& tiparo, int grando)
{
    return QStringLiteral("font-family: \"") + tiparo + QStringLiteral("\"; font-size: ")
           + QString::number(ghustigas_tiparon(grando)) + QStringLiteral("pt;");
}

void lernilo::ShanghasTiparStilon()
{
    const QFont tiparo = lingvaTiparo();
    if (QApplication::font() != tiparo)
        QApplication::setFont(tiparo);
    metasStilon(ui->centralWidget, tiparaStilo());
}

void lernilo::ShanghasTiparon()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QCoreApplication::processEvents();
    ShanghasTiparStilon();
    QCoreApplication::processEvents();
    QApplication::restoreOverrideCursor();
}

void lernilo::shanghitajKonfiguroj()
{
    const int sistemo = ui->radioButton_3->isChecked() ? 2 : ui->radioButton_2->isChecked() ? 1 : 0;
    const bool shanghita = ui->Lingvo->currentText() != sLingvo || ui->Tiparo->currentText() != sTiparo
                           || ui->TiparoEo->currentText() != sTiparoEo || ui->LiterGrando->value() != iLiterGrando
                           || ui->LiterGrandoEo->value() != iLiterGrandoEo || sistemo != iSistemo;
    ui->shanghasKonfigurojn->setEnabled(shanghita);
}

void lernilo::on_Lingvo_activated(int)
{
    ui->tekstoLingvo->setText(ui->Lingvo->currentText());
    shanghitajKonfiguroj();
}

void lernilo::on_Tiparo_currentIndexChanged(QString tiparo)
{
    ui->tekstoLingvo->setStyleSheet(specimenStilo(tiparo, ui->LiterGrando->value()));
    shanghitajKonfiguroj();
}

void lernilo::on_TiparoEo_currentIndexChanged(QString tiparo)
{
    ui->tekstoEo->setStyleSheet(specimenStilo(tiparo, ui->LiterGrandoEo->value()));
    shanghitajKonfiguroj();
}

void lernilo::on_LiterGrando_valueChanged(int grando)
{
    ui->tekstoLingvo->setStyleSheet(specimenStilo(ui->Tiparo->currentText(), grando));
    {
        const QSignalBlocker blokilo(ui->glitilo_traduko);
        ui->glitilo_traduko->setValue(grando);
    }
    shanghitajKonfiguroj();
}

void lernilo::on_LiterGrandoEo_valueChanged(int grando)
{
    ui->tekstoEo->setStyleSheet(specimenStilo(ui->TiparoEo->currentText(), grando));
    {
        const QSignalBlocker blokilo(ui->glitilo_eo);
        ui->glitilo_eo->setValue(grando);
    }
    shanghitajKonfiguroj();
}

void lernilo::on_glitilo_traduko_valueChanged(int valoro)
{
    ui->LiterGrando->setValue(valoro);
}

void lernilo::on_glitilo_eo_valueChanged(int valoro)
{
    ui->LiterGrandoEo->setValue(valoro);
}

void lernilo::on_Cxapeligo_toggled(bool b) { lCxapeligo = b; }
void lernilo::on_Parolo_toggled(bool b) { lSxaltilo = b; }
void lernilo::on_Noteto_toggled(bool b) { lNoteto = b; }

void lernilo::on_shanghasKonfigurojn_clicked()
{
    iSistemo = ui->radioButton_3->isChecked() ? 2 : ui->radioButton_2->isChecked() ? 1 : 0;

    if (ui->Lingvo->currentText() != sLingvo) {
        const int vico = ui->Lingvo->currentIndex();
        if (vico >= 0 && vico < lingvoListo.size()) {
            sLingvo = lingvoListo.at(vico).at(1);
            sTradukoDosiero = lingvoListo.at(vico).at(2);
            elshutas(QStringLiteral("/datumoj/tradukoj/") + sTradukoDosiero, sTradukoDosiero, "Traduku");
        }
    }

    bool shanghita = false;
    if (ui->Tiparo->currentText() != sTiparo) {
        sTiparo = ui->Tiparo->currentText();
        shanghita = true;
    }
    if (ui->TiparoEo->currentText() != sTiparoEo) {
        sTiparoEo = ui->TiparoEo->currentText();
        shanghita = true;
    }
    if (ui->LiterGrando->value() != iLiterGrando) {
        iLiterGrando = ui->LiterGrando->value();
        shanghita = true;
    }
    if (ui->LiterGrandoEo->value() != iLiterGrandoEo) {
        iLiterGrandoEo = ui->LiterGrandoEo->value();
        shanghita = true;
    }
    if (shanghita)
        ShanghasTiparStilon();
    ui->shanghasKonfigurojn->setEnabled(false);
    ui->shanghasKonfigurojn->hide();
    ui->Hejmo->click();
}

QString lernilo::salutoRadiko(int horo, int unuaHazardo, int duaHazardo)
{
    if (unuaHazardo == 0)
        return QStringLiteral("saluton");
    if (horo >= 16 && horo <= 20)
        return QStringLiteral("vespero");
    if (horo >= 5 && horo <= 11)
        return duaHazardo != 0 ? QStringLiteral("tagon") : QStringLiteral("matenon");
    if (horo >= 12 && horo <= 15)
        return QStringLiteral("tagon");
    return QStringLiteral("nokton");
}

void lernilo::Saluton()
{
    if (!lSxaltilo)
        return;
    const int unua = random(2);
    const QString radiko = salutoRadiko(QTime::currentTime().hour(), unua, random(2));
    QDir ujo(mrLoko + QStringLiteral("sonoj/"), radiko + QLatin1Char('?') + mp3_finajho);
    if (ujo.count() == 0)
        return;
    const QString vojo = mrLoko + (QStringLiteral("sonoj/") + ujo.entryList().value(random(4))).toLower();
    ludilo->setMedia(QMediaContent(sSistemo == QLatin1String("android") ? QUrl(vojo) : QUrl::fromLocalFile(vojo)));
    ludilo->play();
}

void lernilo::SavasKonfig()
{
    inidosiero dosiero(agordoVojo());
    dosiero.beginGroup(QStringLiteral("Gxenerala"));
    for (const Agordo& a : agordoj())
        a.skribas(dosiero);
    dosiero.endGroup();
    dosiero.sync();
}

void lernilo::ShanghasPaghon(QString pagho, QFrame* leciono)
{
    const QList<QWidget*> paghoj = ui->Paghujo->findChildren<QWidget*>(pagho);
    if (paghoj.isEmpty())
        return;
    QWidget* pagh = paghoj.first();

    if (!leciono) {
        // The learner moves with the navigator: the tab bars take no place.
        // (Set before the lesson is built, so that its many widgets are
        // styled once and not twice.)
        pagh->setStyleSheet(sSistemo == QLatin1String("osx")
            ? QStringLiteral("QTabWidget::pane {top: -1em;}   QTabBar::tab {height: 0px; width: 0px;} QTabWidget::tab-bar {height: 0px; width: 0px;}")
            : QStringLiteral("QTabBar::tab {height: 0px; width: 0px;} QTabWidget::tab-bar {height: 0px; width: 0px;}"));
        bool bone = false;
        const int numero = pagho.startsWith(QLatin1String("Pagho")) ? pagho.mid(5).toInt(&bone) : 0;
        if (bone && pagho.size() == 7 && numero >= 1 && numero <= KiomDaLecionoj) {
            // Built once a run: a click during the build finds the pointer set.
            auto* kadro = new lecionkadro(numero, pagh);
            lecionoj[numero - 1] = kadro;
            if (pagh->layout())
                pagh->layout()->addWidget(kadro);
        }
        for (QTabWidget* langetoj : pagh->findChildren<QTabWidget*>()) {
            if (langetoj->objectName().startsWith(QLatin1String("Lec")) || langetoj->objectName() == QLatin1String("Fina_Ekzameno"))
                SxargxasEk(langetoj, false);
        }
        // Pages are laid out when first shown, not all at once now. (Setting
        // the state again would lay out the contents all the same.)
        for (QScrollArea* rulumo : pagh->findChildren<QScrollArea*>()) {
            if (rulumo->widgetResizable())
                rulumo->setWidgetResizable(false);
        }
        QCoreApplication::processEvents();
    }

    // The lesson is relabelled and turned to its page while still hidden, so
    // that showing it lays out its texts once, and only on the page shown.
    if (QTabWidget* langetoj = lecionLangetoj(pagh)) {
        const int numero = pagho.right(2).toInt();
        if (numero >= 1 && numero <= KiomDaLecionoj && tradukitaj.at(numero - 1) != sTradukoDosiero) {
            Trad(pagh, langetoj->objectName());
            tradukitaj[numero - 1] = sTradukoDosiero;
        }
        // The page where the learner stopped, in the lesson where they
        // stopped; the first page of any other.
        const int leciono = ui->Paghujo->indexOf(pagh);
        if (leciono != LastaLeciono || LastaPagxo < 0 || LastaPagxo >= langetoj->count())
            LastaPagxo = 0;
        if (langetoj->currentIndex() == LastaPagxo) {
            // No currentChanged will come: lay the page out here.
            for (QScrollArea* rulumo : langetoj->currentWidget()->findChildren<QScrollArea*>())
                rulumo->setWidgetResizable(true);
        }
        langetoj->setCurrentIndex(LastaPagxo);
        LastaLeciono = leciono;
    }
    ui->Paghujo->setCurrentWidget(pagh);

    ui->butonujo->show();
    ui->paghopiedo->hide();
    ui->navigujo->show();
    ui->Paghujo->updateGeometry();
    komencas_navigujon();
}

void lernilo::komencas_navigujon()
{
    inidosiero traduko(legotaTraduko());
    const QString direkto = traduko.value(QStringLiteral("Traduko/Direkto"), QStringLiteral("LTR")).toString();

    const QIcon malantauen(QStringLiteral(":/ikonoj_androjdo/baseline_arrow_back_black_36.png"));
    const QIcon antauen(QStringLiteral(":/ikonoj_androjdo/baseline_arrow_forward_black_36.png"));
    const bool ltr = direkto == QLatin1String("LTR");
    ui->maldekstren->setIcon(ltr ? malantauen : antauen);
    ui->dekstren->setIcon(ltr ? antauen : malantauen);
    // Alt with an arrow works the button that shows that arrow.
    const QKeySequence altDekstren(Qt::ALT | Qt::Key_Right), altMaldekstren(Qt::ALT | Qt::Key_Left);
    klavoj::donas(ui->dekstren, "Antauen", {QKeySequence(Qt::Key_PageDown), ltr ? altDekstren : altMaldekstren});
    klavoj::donas(ui->maldekstren, "Malantauen", {QKeySequence(Qt::Key_PageUp), ltr ? altMaldekstren : altDekstren});
    klavoj::donas(ui->Hejmo, "Hejmo", {QKeySequence(Qt::ALT | Qt::Key_Home)});
    klavoj::konsiletoj(ui->navigujo, traduko);
    klavoj::konsiletoj(ui->butonujo, traduko);

    if (QTabWidget* langetoj = lecionLangetoj(ui->Paghujo->currentWidget())) {
        ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(langetoj->currentIndex() + 1).arg(langetoj->count()));
        if (QObject* kadro = langetoj->parent()) {
            const QString ciferoj = kadro->objectName().mid(3);
            ui->leciono->setPixmap(QPixmap(QStringLiteral(":/ikonoj_androjdo/hejmo/leciono") + ciferoj + QStringLiteral(".png")));
        }
    }
    ui->shanghasKonfigurojn->hide();
}

void lernilo::on_dekstren_clicked()
{
    QTabWidget* langetoj = lecionLangetoj(ui->Paghujo->currentWidget());
    if (!langetoj)
        return;
    const int kiom = langetoj->count();
    const int nuna = langetoj->currentIndex();
    const int nova = nuna == kiom - 1 ? 0 : nuna + 1;
    ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(nova + 1).arg(kiom));
    langetoj->setCurrentIndex(nova);
}

void lernilo::on_maldekstren_clicked()
{
    QTabWidget* langetoj = lecionLangetoj(ui->Paghujo->currentWidget());
    if (!langetoj)
        return;
    const int kiom = langetoj->count();
    const int nuna = langetoj->currentIndex();
    const int nova = nuna == 0 ? kiom - 1 : nuna - 1;
    ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(nova + 1).arg(kiom));
    langetoj->setCurrentIndex(nova);
}

void lernilo::malfermasLecionon(int numero)
{
    // These lessons hold an accusative exercise that reads the sentences and
    // translations of another exercise of the lesson.
    const std::pair<int, const char*> akuzativaj[] = {{2, "0204"}, {6, "0605"}, {8, "0802"}, {10, "1001"}, {12, "1202"}};
    for (const auto& a : akuzativaj) {
        if (a.first == numero)
            EkzercoAkuzativoTrad = QLatin1String(a.second);
    }
    ShanghasPaghon(lecionaPagho(numero), lecionoj[numero - 1]);
}

void lernilo::on_Leciono1_clicked() { malfermasLecionon(1); }
void lernilo::on_Leciono2_clicked() { malfermasLecionon(2); }
void lernilo::on_Leciono3_clicked() { malfermasLecionon(3); }
void lernilo::on_Leciono4_clicked() { malfermasLecionon(4); }
void lernilo::on_Leciono5_clicked() { malfermasLecionon(5); }
void lernilo::on_Leciono6_clicked() { malfermasLecionon(6); }
void lernilo::on_Leciono7_clicked() { malfermasLecionon(7); }
void lernilo::on_Leciono8_clicked() { malfermasLecionon(8); }
void lernilo::on_Leciono9_clicked() { malfermasLecionon(9); }
void lernilo::on_Leciono10_clicked() { malfermasLecionon(10); }
void lernilo::on_Leciono11_clicked() { malfermasLecionon(11); }
void lernilo::on_Leciono12_clicked() { malfermasLecionon(12); }
void lernilo::on_Leciono13_clicked() { malfermasLecionon(13); }

void lernilo::on_KieButono_clicked()
{
    if (LastaLeciono < 1 || LastaLeciono > KiomDaLecionoj)
        return;
    if (auto* butono = findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(LastaLeciono)))
        butono->click();
}

void lernilo::on_label_Kie_clicked() { on_KieButono_clicked(); }

void lernilo::on_Hejmo_clicked()
{
    ui->shanghasKonfigurojn->hide();
    ui->navigujo->hide();
    ui->butonujo->hide();
    ui->paghopiedo->hide();
    ui->Paghujo->setCurrentIndex(0);
}

void lernilo::on_butono_androjdo_clicked()
{
    ui->paghopiedo->setVisible(!ui->paghopiedo->isVisible());
}

void lernilo::on_Eliri_clicked() { close(); }
void lernilo::on_label_Eliri_clicked() { close(); }

void lernilo::on_Kreditoj_clicked()
{
    if (auto* pagho = ui->Paghujo->findChild<QWidget*>(QStringLiteral("Pagho_Kreditoj")))
        ui->Paghujo->setCurrentWidget(pagho);
    ui->Kredit->setCurrentIndex(0);
    ui->butonujo->show();
}

void lernilo::on_label_Kreditoj_clicked() { on_Kreditoj_clicked(); }

void lernilo::on_Konfigurado_clicked()
{
    if (auto* pagho = ui->Paghujo->findChild<QWidget*>(QStringLiteral("Pagho_Konfigurado")))
        ui->Paghujo->setCurrentWidget(pagho);
    ui->butonujo->show();
    ui->shanghasKonfigurojn->show();
}

void lernilo::on_label_Konfiguroj_clicked() { on_Konfigurado_clicked(); }
void lernilo::on_Sendas_clicked()
{
    QTabWidget* langetoj = lecionLangetoj(ui->Paghujo->currentWidget());
    if (!langetoj)
        return;
    Sendas(langetoj->currentWidget(), langetoj->currentIndex() + 1);
}

void lernilo::on_printilo_clicked()
{
    QTabWidget* langetoj = lecionLangetoj(ui->Paghujo->currentWidget());
    if (!langetoj)
        return;
    Sendas_Printilo(langetoj, QStringLiteral("Leciono ") + langetoj->objectName().mid(3, 2), ui->prog_printilo);
}

void lernilo::on_KioEstas_clicked()
{
    QDesktopServices::openUrl(QUrl(helpdosiero(QStringLiteral("kio"))));
}

void lernilo::on_KielUzi_clicked()
{
    QDesktopServices::openUrl(QUrl(helpdosiero(QStringLiteral("kiel"))));
}

void lernilo::on_label_Kio_clicked() { on_KioEstas_clicked(); }
void lernilo::on_label_Kiel_clicked() { on_KielUzi_clicked(); }

void lernilo::montras_koverton(bool, int pagho)
{
    LastaPagxo = pagho;
}

void lernilo::Centrigas_Fenestron()
{
    adjustSize();
    QCoreApplication::processEvents();
    const QList<QScreen*> ekranoj = QGuiApplication::screens();
    if (ekranoj.isEmpty())
        return;
    QRect kadro = frameGeometry();
    kadro.moveCenter(ekranoj.first()->availableGeometry().center());
    move(kadro.topLeft());
}

void lernilo::closeEvent(QCloseEvent* evento)
{
    // From a lesson, the settings or the credits, closing only leads home.
    if (ui->Paghujo->currentIndex() > 0) {
        ui->Hejmo->click();
        evento->ignore();
        return;
    }
    // The editor saves what the translator wrote when it closes.
    if (tradukilo && tradukilo->isVisible())
        tradukilo->close();
    Adiau();
    for (QTabWidget* langetoj : ui->Paghujo->findChildren<QTabWidget*>()) {
        if (langetoj->objectName().startsWith(QLatin1String("Lec")) || langetoj->objectName() == QLatin1String("Fina_Ekzameno"))
            SxargxasEk(langetoj, true);
    }
    SavasKonfig();
    QString provizora = QDir::tempPath();
    if (!provizora.endsWith(QLatin1Char('/')))
        provizora += QLatin1Char('/');
    for (int i = 0; i < 4; ++i)
        QFile::remove(provizora + QStringLiteral("prononco%1.raw").arg(i));
    if (lSxaltilo) {
        // Let the farewell finish; a sound that never ends must not keep the
        // program from closing.
        QElapsedTimer atendo;
        atendo.start();
        while ((ludilo->mediaStatus() == QMediaPlayer::LoadingMedia || ludilo->state() == QMediaPlayer::PlayingState
                || ludilo->mediaStatus() == QMediaPlayer::BufferingMedia)
               && atendo.elapsed() < 15000)
            QCoreApplication::processEvents();
    }
    evento->accept();
}

void lernilo::on_tradukilo_clicked()
{
    if (!tradukilo) {
        tradukilo = new traduko(this);
        tradukilo->setWindowModality(Qt::NonModal);
        QCoreApplication::processEvents();
        tradukilo->setFont(QFont(sTiparoEo, ghustigas_tiparon(iLiterGrandoEo)));
        connect(tradukilo, &traduko::novapagho, this, &lernilo::lokigas_paghotrad, Qt::DirectConnection);
        connect(tradukilo, &traduko::novafrazo, this, &lernilo::lokigas_frazotrad, Qt::DirectConnection);
        metasApudKurso(tradukilo);
    }
    tradukilo->show();
    tradukilo->raise();
    tradukilo->activateWindow();
}

// The editor stands beside the course, so that both can be seen at once:
// to its right, else to its left, else at the screen's right edge.
void lernilo::metasApudKurso(QWidget* dialogo)
{
    const QScreen* ekrano = screen();
    if (!ekrano)
        return;
    const QRect libera = ekrano->availableGeometry();
    const QRect kurso = frameGeometry();
    const int alto = qMin(dialogo->height(), libera.height() - 40);
    dialogo->resize(dialogo->width(), alto);
    const int largho = dialogo->frameGeometry().width();
    int x = kurso.right() + 1;
    if (x + largho > libera.right())
        x = kurso.left() - largho >= libera.left() ? kurso.left() - largho : libera.right() - largho;
    dialogo->move(qMax(libera.left(), x), qMax(libera.top(), kurso.top()));
}

void lernilo::lokigas_paghotrad(QString pagho)
{
    bool bone = false;
    const int numero = pagho.startsWith(QLatin1String("Pagho")) && pagho.size() == 7 ? pagho.mid(5).toInt(&bone) : 0;
    if (bone && numero >= 1 && numero <= 13)
        malfermasLecionon(numero);
}

void lernilo::lokigas_frazotrad(QString pagho, QString objekto)
{
    QWidget* paghejo = ui->Paghujo->findChild<QWidget*>(pagho);
    if (!paghejo)
        return;
    if (objekto.left(3) == QLatin1String("Lec")) {
        auto* langetoj = lecionLangetoj(paghejo);
        auto* etikedo = paghejo->findChild<QLabel*>(objekto);
        if (!langetoj || !etikedo)
            return;   // keys such as TFrame41.Label84 name no widget
        QWidget* rulumo = praulo(etikedo, "QScrollArea");
        for (int i = 0; i < langetoj->count(); ++i) {
            if (langetoj->widget(i)->isAncestorOf(etikedo)) {
                langetoj->setCurrentIndex(i);
                break;
            }
        }
        komencas_navigujon();
        kadras(etikedo);
        if (auto* skatolo = qobject_cast<QScrollArea*>(rulumo))
            skatolo->ensureWidgetVisible(etikedo, 50, 50);
    } else if (pagho == QLatin1String("Pagho_Konfigurado")) {
        if (auto* etikedo = paghejo->findChild<QLabel*>(objekto))
            kadras(etikedo);
    }
}

// One label at a time carries the frame of the sentence being translated.
void lernilo::kadras(QLabel* etikedo)
{
    if (kadroEtikedo)
        kadroEtikedo->setFrameShape(QFrame::NoFrame);
    etikedo->setFrameShape(QFrame::Box);
    kadroEtikedo = etikedo;
}

void lernilo::listigas_trad()
{
    listigasTradukendajn(QStringLiteral(":/tradukoj/tradukendaj.tdf"));
}

void lernilo::listigasTradukendajn(const QString& vojo)
{
    QSettings listo(vojo, QSettings::IniFormat);
    listo.setIniCodec("UTF-8");
    for (QTabWidget* langetoj : ui->Paghujo->findChildren<QTabWidget*>()) {
        listo.beginGroup(langetoj->objectName());
        for (const TradukendaEtikedo& e : tradukendajEtikedoj(langetoj))
            listo.setValue(QStringLiteral("000%1").arg(e.numero).right(3), e.shlosilo);
        listo.endGroup();
    }
    listo.sync();
}

void lernilo::showEvent(QShowEvent*) {}
void lernilo::Ghustigas_fenestron() {}
void lernilo::ReGrandigas_Fenestron() {}
void lernilo::Malgrandigas() {}
void lernilo::Fenestra_Stilo() {}
void lernilo::on_radioButton_clicked(bool) {}
void lernilo::on_radioButton_2_clicked(bool) {}
void lernilo::on_radioButton_3_clicked(bool) {}
