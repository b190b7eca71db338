#include "lernilo.h"
#include "ui_lernilo.h"

#include "funkcioj.h"
#include "lecionkadro.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QUrl>
#include <QFile>
#include <QGuiApplication>
#include <QMediaPlayer>
#include <QScreen>
#include <QScrollArea>
#include <QScroller>
#include <QSettings>
#include <QTabWidget>

namespace {

QString agordoDosiero()
{
    QString loko = savasLoko;
    if (!loko.endsWith(QLatin1Char('/')))
        loko += QLatin1Char('/');
    return loko + QStringLiteral("lernilomelo.ini");
}

QString lecionaPagho(int numero)
{
    return QStringLiteral("Pagho%1").arg(numero, 2, 10, QLatin1Char('0'));
}

} // namespace

lernilo::lernilo(QWidget* parent)
    : QMainWindow(parent), ui(new Ui::lernilo)
{
    randomize();
    ui->setupUi(this);

    // The pages scroll by dragging.
    for (const char* nomo : {"scrollArea", "scrollArea_3", "scrollArea_2", "scrollArea_5"}) {
        if (auto* rulumo = findChild<QScrollArea*>(QLatin1String(nomo)))
            QScroller::grabGesture(rulumo->viewport(), QScroller::LeftMouseButtonGesture);
    }
    QApplication::setWindowIcon(QIcon(QStringLiteral(":lernilo5.ico")));

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
    for (int i = 0; i < 13; ++i)
        tradukitaj.append(QString());
    komencakonfiguro();
    Stilo();
    ui->Paghujo->setCurrentIndex(0);
}

void lernilo::Stilo()
{
    setUpdatesEnabled(false);
    QFile stilo(QStringLiteral(":stiloj/lernilo.qss"));
    stilo.open(QIODevice::ReadOnly);
    ui->Paghujo->setStyleSheet(QString::fromUtf8(stilo.readAll()));
    setUpdatesEnabled(true);
}

lernilo::~lernilo()
{
    delete ui;
}

QFrame* lernilo::leciono(int numero) const
{
    return numero >= 1 && numero <= 13 ? lecionoj[numero - 1] : nullptr;
}

void lernilo::komencakonfiguro()
{
    QSettings agordoj(agordoDosiero(), QSettings::IniFormat);
    agordoj.setIniCodec("UTF-8");
    const QString tiparo = sSistemo == QLatin1String("osx") ? QStringLiteral("Helvetica Neue")
                                                             : QStringLiteral("DejaVu Sans");
    agordoj.beginGroup(QStringLiteral("Gxenerala"));
    sLingvo = agordoj.value(QStringLiteral("Lingvo"), QString()).toString();
    sTradukoDosiero = agordoj.value(QStringLiteral("Dosiero"), QString()).toString();
    iLiterGrando = agordoj.value(QStringLiteral("LiterGrando"), 11).toInt();
    sTiparo = agordoj.value(QStringLiteral("Tiparo"), tiparo).toString();
    sTiparoEo = agordoj.value(QStringLiteral("TiparoEo"), tiparo).toString();
    lCxapeligo = agordoj.value(QStringLiteral("Cxapeligo"), true).toBool();
    iSistemo = agordoj.value(QStringLiteral("Sistemo"), 0).toInt();
    LastaLeciono = agordoj.value(QStringLiteral("LastaLeciono"), 1).toInt();
    LastaPagxo = agordoj.value(QStringLiteral("LastaPagxo"), 0).toInt();
    lSxaltilo = agordoj.value(QStringLiteral("Sxaltilo"), true).toBool();
    lNoteto = agordoj.value(QStringLiteral("Noteto"), true).toBool();
    iLiterGrandoEo = agordoj.value(QStringLiteral("LiterGrandoEo"), 11).toInt();
    iFenestraStilo = agordoj.value(QStringLiteral("FenestraStilo"), 0).toInt();
    agordoj.endGroup();
}

void lernilo::SavasKonfig()
{
    QSettings agordoj(agordoDosiero(), QSettings::IniFormat);
    agordoj.setIniCodec("UTF-8");
    agordoj.beginGroup(QStringLiteral("Gxenerala"));
    agordoj.setValue(QStringLiteral("Lingvo"), sLingvo);
    agordoj.setValue(QStringLiteral("Tiparo"), sTiparo);
    agordoj.setValue(QStringLiteral("TiparoEo"), sTiparoEo);
    agordoj.setValue(QStringLiteral("Dosiero"), sTradukoDosiero);
    agordoj.setValue(QStringLiteral("Cxapeligo"), lCxapeligo);
    agordoj.setValue(QStringLiteral("Sistemo"), iSistemo);
    agordoj.setValue(QStringLiteral("LastaLeciono"), LastaLeciono);
    agordoj.setValue(QStringLiteral("LastaPagxo"), LastaPagxo);
    agordoj.setValue(QStringLiteral("Sxaltilo"), lSxaltilo);
    agordoj.setValue(QStringLiteral("Noteto"), lNoteto);
    agordoj.setValue(QStringLiteral("LiterGrando"), iLiterGrando);
    agordoj.setValue(QStringLiteral("LiterGrandoEo"), iLiterGrandoEo);
    agordoj.setValue(QStringLiteral("FenestraStilo"), iFenestraStilo);
    agordoj.endGroup();
    agordoj.sync();
}

void lernilo::ShanghasPaghon(QString pagho, QFrame* leciono)
{
    const QList<QWidget*> paghoj = ui->Paghujo->findChildren<QWidget*>(pagho);
    if (paghoj.isEmpty())
        return;
    QWidget* pagh = paghoj.first();

    if (!leciono) {
        bool bone = false;
        const int numero = pagho.startsWith(QLatin1String("Pagho")) ? pagho.mid(5).toInt(&bone) : 0;
        if (bone && pagho.size() == 7 && numero >= 1 && numero <= 13) {
            // Built once a run: a click during the build finds the pointer set.
            auto* kadro = new lecionkadro(numero, pagh);
            lecionoj[numero - 1] = kadro;
            if (pagh->layout())
                pagh->layout()->addWidget(kadro);
        }
        // The learner moves with the navigator: the tab bars take no place.
        pagh->setStyleSheet(sSistemo == QLatin1String("osx")
            ? QStringLiteral("QTabWidget::pane {top: -1em;}   QTabBar::tab {height: 0px; width: 0px;} QTabWidget::tab-bar {height: 0px; width: 0px;}")
            : QStringLiteral("QTabBar::tab {height: 0px; width: 0px;} QTabWidget::tab-bar {height: 0px; width: 0px;}"));
        // Pages are laid out when first shown, not all at once now.
        for (QScrollArea* rulumo : pagh->findChildren<QScrollArea*>())
            rulumo->setWidgetResizable(false);
        QCoreApplication::processEvents();
    }

    ui->Paghujo->setCurrentWidget(pagh);
    const QList<QTabWidget*> abas = pagh->findChildren<QTabWidget*>();
    if (!abas.isEmpty()) {
        QTabWidget* langetoj = abas.first();
        const int nuna = langetoj->currentIndex();
        if (nuna == 0 || (nuna == LastaPagxo && ui->Paghujo->currentIndex() == LastaLeciono)) {
            // No currentChanged will come for these: lay the page out here.
            if (QWidget* langeto = langetoj->currentWidget()) {
                for (QScrollArea* rulumo : langeto->findChildren<QScrollArea*>())
                    rulumo->setWidgetResizable(true);
            }
        }
        if (ui->Paghujo->currentIndex() != LastaLeciono) {
            LastaPagxo = 0;
            langetoj->setCurrentIndex(0);
        } else {
            langetoj->setCurrentIndex(LastaPagxo);
        }
        LastaLeciono = ui->Paghujo->currentIndex();
    }

    ui->butonujo->show();
    ui->paghopiedo->hide();
    ui->navigujo->show();
    ui->Paghujo->updateGeometry();
    komencas_navigujon();
}

void lernilo::komencas_navigujon()
{
    QString vojo = savasLoko + sTradukoDosiero;
    if (sTradukoDosiero.isEmpty() || !QFile::exists(vojo))
        vojo = QStringLiteral(":/tradukoj/") + sTradukoDosiero;
    QSettings traduko(vojo, QSettings::IniFormat);
    traduko.setIniCodec("UTF-8");
    const QString direkto = traduko.value(QStringLiteral("Traduko/Direkto"), QStringLiteral("LTR")).toString();

    const QIcon malantauen(QStringLiteral(":/ikonoj_androjdo/baseline_arrow_back_black_36.png"));
    const QIcon antauen(QStringLiteral(":/ikonoj_androjdo/baseline_arrow_forward_black_36.png"));
    const bool ltr = direkto == QLatin1String("LTR");
    ui->maldekstren->setIcon(ltr ? malantauen : antauen);
    ui->dekstren->setIcon(ltr ? antauen : malantauen);

    if (QWidget* pagho = ui->Paghujo->currentWidget()) {
        const QList<QTabWidget*> abas = pagho->findChildren<QTabWidget*>();
        if (!abas.isEmpty()) {
            QTabWidget* langetoj = abas.first();
            ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(langetoj->currentIndex() + 1).arg(langetoj->count()));
            if (QObject* kadro = langetoj->parent()) {
                const QString ciferoj = kadro->objectName().mid(3);
                ui->leciono->setPixmap(QPixmap(QStringLiteral(":/ikonoj_androjdo/hejmo/leciono") + ciferoj + QStringLiteral(".png")));
            }
        }
    }
    ui->shanghasKonfigurojn->hide();
}

void lernilo::on_dekstren_clicked()
{
    QWidget* pagho = ui->Paghujo->currentWidget();
    const QList<QTabWidget*> abas = pagho ? pagho->findChildren<QTabWidget*>() : QList<QTabWidget*>();
    if (abas.isEmpty())
        return;
    QTabWidget* langetoj = abas.first();
    const int kiom = langetoj->count();
    const int nuna = langetoj->currentIndex();
    const int nova = nuna == kiom - 1 ? 0 : nuna + 1;
    ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(nova + 1).arg(kiom));
    langetoj->setCurrentIndex(nova);
}

void lernilo::on_maldekstren_clicked()
{
    QWidget* pagho = ui->Paghujo->currentWidget();
    const QList<QTabWidget*> abas = pagho ? pagho->findChildren<QTabWidget*>() : QList<QTabWidget*>();
    if (abas.isEmpty())
        return;
    QTabWidget* langetoj = abas.first();
    const int kiom = langetoj->count();
    const int nuna = langetoj->currentIndex();
    const int nova = nuna == 0 ? kiom - 1 : nuna - 1;
    ui->kiom_da_paghoj->setText(QStringLiteral("%1/%2").arg(nova + 1).arg(kiom));
    langetoj->setCurrentIndex(nova);
}

void lernilo::malfermasLecionon(int numero)
{
    ShanghasPaghon(lecionaPagho(numero), lecionoj[numero - 1]);
}

void lernilo::on_Leciono1_clicked() { malfermasLecionon(1); }
void lernilo::on_Leciono2_clicked()
{
    EkzercoAkuzativoTrad = QStringLiteral("0204");
    malfermasLecionon(2);
}
void lernilo::on_Leciono3_clicked() { malfermasLecionon(3); }
void lernilo::on_Leciono4_clicked() { malfermasLecionon(4); }
void lernilo::on_Leciono5_clicked() { malfermasLecionon(5); }
void lernilo::on_Leciono6_clicked()
{
    EkzercoAkuzativoTrad = QStringLiteral("0605");
    malfermasLecionon(6);
}
void lernilo::on_Leciono7_clicked() { malfermasLecionon(7); }
void lernilo::on_Leciono8_clicked()
{
    EkzercoAkuzativoTrad = QStringLiteral("0802");
    malfermasLecionon(8);
}
void lernilo::on_Leciono9_clicked() { malfermasLecionon(9); }
void lernilo::on_Leciono10_clicked()
{
    EkzercoAkuzativoTrad = QStringLiteral("1001");
    malfermasLecionon(10);
}
void lernilo::on_Leciono11_clicked() { malfermasLecionon(11); }
void lernilo::on_Leciono12_clicked()
{
    EkzercoAkuzativoTrad = QStringLiteral("1202");
    malfermasLecionon(12);
}
void lernilo::on_Leciono13_clicked() { malfermasLecionon(13); }

void lernilo::on_KieButono_clicked()
{
    if (LastaLeciono < 1 || LastaLeciono > 13)
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
    SavasKonfig();
    evento->accept();
}

void lernilo::showEvent(QShowEvent*) {}
void lernilo::Ghustigas_fenestron() {}
void lernilo::ReGrandigas_Fenestron() {}
void lernilo::Malgrandigas() {}
void lernilo::Fenestra_Stilo() {}
void lernilo::on_radioButton_clicked(bool) {}
void lernilo::on_radioButton_2_clicked(bool) {}
void lernilo::on_radioButton_3_clicked(bool) {}
