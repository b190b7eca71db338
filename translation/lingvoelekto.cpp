#include "lingvoelekto.h"
#include "ui_lingvoelekto.h"

#include "filedownloader.h"
#include "funkcioj.h"
#include "inidosiero.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QSettings>

lingvoelekto::lingvoelekto(QWidget* parent)
    : QDialog(parent), ui(new Ui::lingvoelekto)
{
    ui->setupUi(this);
    setWindowTitle(QStringLiteral("Elektu vian lingvon / Choose your language"));
}

lingvoelekto::~lingvoelekto()
{
    delete ui;
}

void lingvoelekto::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    const QList<QScreen*> ekranoj = QGuiApplication::screens();
    if (!ekranoj.isEmpty()) {
        QScreen* ekrano = ekranoj.first();
        setMinimumHeight(int(ekrano->geometry().height() * 0.9));
        adjustSize();
        QRect kadro = frameGeometry();
        kadro.moveCenter(ekrano->availableGeometry().center());
        move(kadro.topLeft());
    }
    elshutilo = new FileDownloader(QUrl(sServilo + QStringLiteral("/datumoj/traduklisto.ini")),
                                   QStringLiteral("traduklisto.ini"), this);
    connect(elshutilo, &FileDownloader::downloaded, this, &lingvoelekto::elektasTradukFonton);
    QCoreApplication::processEvents();
}

void lingvoelekto::elshutas()
{
}

void lingvoelekto::aldonas(const QStringList& vico, int i, int& sistema, int& angla)
{
    lingvoj.append(vico);
    ui->Lingvo->addItem(vico.at(1));
    const QString sistemaLingvo = QLocale().name().left(2);
    if (vico.at(0) == sistemaLingvo)
        sistema = i;
    if (vico.at(0) == QLatin1String("en"))
        angla = i;
}

void lingvoelekto::elektas(int sistema, int angla)
{
    const int elekto = sistema >= 0 ? sistema : angla;
    if (elekto < 0)
        return;
    const QList<QListWidgetItem*> trovitaj = ui->Lingvo->findItems(lingvoj.at(elekto).at(1), Qt::MatchStartsWith);
    if (!trovitaj.isEmpty())
        ui->Lingvo->setCurrentItem(trovitaj.first());
}

void lingvoelekto::elektasTradukFonton()
{
    const QString vojo = savasLoko + QStringLiteral("traduklisto.ini");
    inidosiero listo(vojo);
    if (!QFile::exists(vojo) || listaVico(listo, 0).at(0) == QLatin1String("??")) {
        komencasElDosierujo();
        return;
    }
    int sistema = -1, angla = -1;
    for (int i = 0; i < 200; ++i) {
        const QStringList vico = listaVico(listo, i);
        if (vico.at(0) == QLatin1String("??"))
            break;
        if (!sekuraDosierNomo(vico.at(2)))
            continue;   // a name that would lead out of the writable folder
        aldonas(vico, lingvoj.size(), sistema, angla);
    }
    elektas(sistema, angla);
}

void lingvoelekto::komencasElDosierujo()
{
    const QDir dosierujo(QStringLiteral(":/tradukoj/"), QStringLiteral("*.trd"), QDir::Name, QDir::Files);
    int sistema = -1, angla = -1;
    for (const QString& nomo : dosierujo.entryList())
        aldonas(dosieraVico(nomo, QStringLiteral("10.05.2020")), lingvoj.size(), sistema, angla);
    elektas(sistema, angla);
}

void lingvoelekto::on_pushButton_clicked()
{
    QListWidgetItem* ero = ui->Lingvo->currentItem();
    const int vico = ui->Lingvo->currentRow();
    if (ero && ero->isSelected() && vico >= 0 && vico < lingvoj.size()) {
        sLingvo = lingvoj.at(vico).at(1);
        sTradukoDosiero = lingvoj.at(vico).at(2);
        sTradukoDato = lingvoj.at(vico).at(3);
    } else {
        sLingvo = QStringLiteral("English - angla");
        sTradukoDosiero = QStringLiteral("angla.trd");
        sTradukoDato = QStringLiteral("10.05.2020");
    }
    auto* elshuto = new FileDownloader(QUrl(sServilo + QStringLiteral("/datumoj/tradukoj/") + sTradukoDosiero),
                                       sTradukoDosiero, this);
    connect(elshuto, &FileDownloader::downloaded, this, &lingvoelekto::fermasFenestron);
    QCoreApplication::processEvents();
}

void lingvoelekto::fermasFenestron()
{
    close();
}

void lingvoelekto::closeEvent(QCloseEvent* evento)
{
    if (sLingvo.isEmpty() || sTradukoDosiero.isEmpty())
        on_pushButton_clicked();
    evento->accept();
}
