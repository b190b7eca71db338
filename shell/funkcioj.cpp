#include "funkcioj.h"
#include "klavoj.h"
#include "lernilo.h"
#include "klakbutono_nova.h"
#include "korekta.h"
#include "label_klakebla.h"
#include "label_sago.h"
#include "label_sago_reversa.h"
#include "neklakebla_nova.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMediaPlayer>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QUrl>

#include <QCoreApplication>
#include <QRandomGenerator64>
#include <QStandardPaths>
#include <QTime>

QString sSistemo;
QString Loko;
QString mrLoko;
QString savasLoko;

int LastaLeciono = 1;
int LastaPagxo = 1;

int Ofteco = 400;
int NumSec = 3;
int iMsEnSekundo = 1000;

QString sLingvo;
QString sLingvoID;
QString sTradukoDosiero;
QString sTradukoDato;
QString sTradukinto;
QString Direkto;

QString sTiparo;
QString sTiparoEo;
int iLiterGrando = 0;
int iLiterGrandoEo = 0;
int iSistemo = 0;
int iFenestraStilo = 0;
int iLastaFojo = 0;
bool lCxapeligo = false;
bool lSxaltilo = false;
bool lNoteto = false;
bool lKorektanto = false;
QString sKorNomo;
QString sKorAdreso;
bool NeEkzistasTraduko = false;
bool Tradukilo = false;
QString EkzercoAkuzativoTrad;

QString sServilo = QStringLiteral("http://" LERNILO_SERVILO);
QString sEksteraRetejo = QStringLiteral("https://" LERNILO_EKSTERA_RETEJO);

QString smRekomencu, smGratulon, smDenove, smModifis, smTondujo,
    smDevasHaviKor, smDevasSavi, smKoverto, smDisketo, smPordo, smLigilo,
    smNeSono, Antauen, Nuligi;

QString kiuSistemo(QString kiu)
{
    QString vojo;
    const QString skribebla = QStandardPaths::writableLocation(QStandardPaths::DataLocation);
    const bool media = kiu == QLatin1String("multrimedoj");
    const bool skribo = kiu == QLatin1String("skribebla");

    if (sSistemo == QLatin1String("android")) {
        if (media) vojo = QStringLiteral("assets:/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("windows")) {
        if (media) vojo = QCoreApplication::applicationDirPath();
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("osx")) {
        if (media) vojo = QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("ios")) {
        if (media) vojo = QCoreApplication::applicationDirPath() + QStringLiteral("/assets/");
        else if (skribo) vojo = skribebla;
    } else if (sSistemo == QLatin1String("linux")) {
        if (media) vojo = QCoreApplication::applicationDirPath();
        else if (skribo) vojo = skribebla;
    }
    if (!vojo.endsWith(QLatin1Char('/')))
        vojo += QLatin1Char('/');
    return vojo;
}

int random(int n)
{
    // Multiply-and-shift: maps 32 random bits onto 0..n-1 without a modulo.
    const quint64 bitoj = QRandomGenerator64::global()->generate() & 0xFFFFFFFFu;
    return int((quint64(quint32(n)) * bitoj) >> 32);
}

void randomize()
{
    // Kept for the old random functions; the shared draw does not need it.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
    qsrand(uint(QTime::currentTime().msec()));
QT_WARNING_POP
}

namespace {

struct Litero
{
    ushort unikodo;
    const char* x;
    const char* h;
};

// Every conversion walks these rows in this order.
const Litero literoj[] = {
    {0x0109, "cx", "ch"}, {0x011D, "gx", "gh"}, {0x0125, "hx", "hh"},
    {0x0135, "jx", "jh"}, {0x015D, "sx", "sh"}, {0x016D, "ux", "u"},
    {0x0108, "Cx", "Ch"}, {0x011C, "Gx", "Gh"}, {0x0124, "Hx", "Hh"},
    {0x0134, "Jx", "Jh"}, {0x015C, "Sx", "Sh"}, {0x016C, "Ux", "U"},
};

} // namespace

QString CxSist(QString teksto, int sistemo)
{
    for (const Litero& l : literoj) {
        const QString unikodo(QChar(l.unikodo));
        if (sistemo == 1)
            teksto.replace(unikodo, QLatin1String(l.x));
        else if (sistemo == 2)
            teksto.replace(unikodo, QLatin1String(l.h));
        else if (sistemo == 3)
            teksto.replace(QLatin1String(l.x), unikodo);
    }
    return teksto;
}

QString vortoSono(const QString& ciferoj, const QString& vorto, bool auh)
{
    QString nomo = CxSist(vorto, 1);
    if (auh && nomo == QLatin1String("aux"))
        nomo = QStringLiteral("auh");
    return QStringLiteral("sonoj/lec") + ciferoj + QLatin1Char('/') + nomo + mp3_finajho;
}

QString frazoSono(const QString& ciferoj, const QString& numero)
{
    return QStringLiteral("sonoj/lec") + ciferoj + QStringLiteral("/btn") + numero + mp3_finajho;
}

void mp3(QString dosiero)
{
    auto* fenestro = qobject_cast<lernilo*>(QApplication::activeWindow());
    if (!fenestro)
        return;
    const QString vojo = mrLoko + dosiero.toLower();
    const QUrl adreso = sSistemo == QLatin1String("android") ? QUrl(vojo) : QUrl::fromLocalFile(vojo);
    fenestro->ludilo->setMedia(QMediaContent(adreso));
    fenestro->ludilo->play();
}

QString helpdosiero(QString kiu)
{
    if (kiu == QLatin1String("kio"))
        return sEksteraRetejo + QStringLiteral("/info/") + sLingvoID + QStringLiteral("/ghisdate_pri_esperanto");
    QString pagho = sTradukoDosiero;
    pagho.replace(QLatin1String(".trd"), QLatin1String(".html"));
    return sServilo + QStringLiteral("/datumoj/kiel/kiel_") + pagho;
}

QString purigas(QString teksto, bool minuskle)
{
    while (teksto.contains(QLatin1String("  ")))
        teksto.replace(QLatin1String("  "), QLatin1String(" "));
    teksto = teksto.trimmed();
    teksto.remove(QLatin1Char('.'));
    teksto.remove(QLatin1Char(','));
    if (minuskle)
        teksto = teksto.toLower();
    return teksto;
}

int ghustigas_tiparon(int grando)
{
    const QScreen* ekrano = QGuiApplication::primaryScreen();
    const qreal punktoj = ekrano ? ekrano->logicalDotsPerInch() : 96.0;
    return qRound(96.0 / punktoj * grando);
}

void Noteto(bool ghuste)
{
    if (!lNoteto)
        return;
    mp3(QStringLiteral("sonoj/") + (ghuste ? QStringLiteral("noteto_jes") : QStringLiteral("noteto_ne")) + mp3_finajho);
}

namespace {

// Plays one of the recorded variants of a word, "sonoj/" + word + one character.
void ludasVarianton(const QString& vorto)
{
    QDir ujo(mrLoko + QStringLiteral("sonoj/"), vorto + QLatin1Char('?') + mp3_finajho);
    const int n = int(ujo.count());
    const int r = random(n);
    if (n >= 1)
        mp3(QStringLiteral("sonoj/") + ujo.entryList().value(r));
}

// The spoken verdict: the first draw is used if such a file is there;
// otherwise a few more draws, and the last one is played as it is.
void parolasVerdikton(const QString& radiko)
{
    random(8);
    int k = random(8) + 1;
    QString nomo = radiko + QString::number(k) + mp3_finajho;
    const QFile unua(nomo);
    for (int provoj = 0; !unua.exists() && provoj < 8; ++provoj) {
        k = random(8) + 1;
        nomo = radiko + QString::number(k) + mp3_finajho;
    }
    mp3(nomo);
}

} // namespace

void Jes()
{
    if (lNoteto) {
        mp3(QStringLiteral("sonoj/noteto_jes") + mp3_finajho);
        Pauzu(2);
    }
    if (!lSxaltilo)
        return;
    static const char* const vortoj[] = {"jes", "trebone", "bonege", "prave", "trafe", "korekte"};
    int elekto;
    do {
        elekto = random(6);
    } while (elekto == iLastaFojo);
    iLastaFojo = elekto;
    ludasVarianton(QLatin1String(vortoj[elekto]));
}

void Ne()
{
    if (lNoteto) {
        mp3(QStringLiteral("sonoj/noteto_ne") + mp3_finajho);
        Pauzu(2);
    }
    if (!lSxaltilo)
        return;
    ludasVarianton(QStringLiteral("ne"));
}

void Mesagxo(int eraroj, int sukcesoj)
{
    QMessageBox skatolo(QApplication::activeWindow());
    const bool bona = sukcesoj * 100 / (eraroj + sukcesoj) >= 70;
    if (lSxaltilo)
        parolasVerdikton(bona ? QStringLiteral("sonoj/gratulo") : QStringLiteral("sonoj/nebona"));
    else if (lNoteto)
        mp3(QStringLiteral("sonoj/") + (bona ? QStringLiteral("noteto_jes") : QStringLiteral("noteto_ne")) + mp3_finajho);
    skatolo.setText(bona ? smGratulon : smDenove);
    skatolo.setIcon(QMessageBox::Information);
    skatolo.exec();
}

void Pauzu(int sekundoj)
{
    // A busy wait on purpose: the window repaints and takes clicks meanwhile.
    QElapsedTimer tempo;
    tempo.start();
    while (tempo.elapsed() < qint64(sekundoj) * iMsEnSekundo)
        QCoreApplication::processEvents();
}

void Sinkronigu()
{
}

bool sekuraDosierNomo(const QString& nomo)
{
    return !nomo.isEmpty() && !nomo.contains(QLatin1Char('/')) && !nomo.contains(QLatin1Char('\\'))
           && !nomo.contains(QLatin1String("..")) && !nomo.contains(QLatin1Char(':'))
           && !QDir::isAbsolutePath(nomo);
}

namespace {

// Labels of the exercise forms whose text is common to all exercises of a kind.
const QHash<QString, QString>& gheneralaj()
{
    static const QHash<QString, QString> tabelo = {
        {QStringLiteral("Ekz_Akuz1"), QStringLiteral("TFrame5.Label6")},
        {QStringLiteral("Ekz_Akuz2"), QStringLiteral("TFrame5.Label1")},
        {QStringLiteral("Ekz_Pron1"), QStringLiteral("TFrame2.PP_Label1")},
        {QStringLiteral("Ekz_Pron2"), QStringLiteral("TFrame2.PP_Label41")},
        {QStringLiteral("Ekz_Audk1"), QStringLiteral("TFrame3.Label59")},
        {QStringLiteral("Ekz_Audk2"), QStringLiteral("TFrame3.Label68")},
        {QStringLiteral("Ekz_Vort1"), QStringLiteral("TFrame4.Label83")},
        {QStringLiteral("Ekz_Vort2"), QStringLiteral("TFrame1.Label7")},
        {QStringLiteral("Ekz_Plen1"), QStringLiteral("TFrame4.Label83")},
        {QStringLiteral("Ekz_FrazoKonstruo"), QStringLiteral("Ekz_FrazoKonstruo")},
    };
    return tabelo;
}

} // namespace

void Trad(QWidget* radiko, QString grupo)
{
    QString vojo = savasLoko + sTradukoDosiero;
    if (!sekuraDosierNomo(sTradukoDosiero) || !QFile::exists(vojo))
        vojo = QStringLiteral(":/tradukoj/") + sTradukoDosiero;
    QSettings traduko(vojo, QSettings::IniFormat);
    traduko.setIniCodec("UTF-8");
    const QString direkto = traduko.value(QStringLiteral("Traduko/Direkto"), QStringLiteral("LTR")).toString();
    const bool ltr = direkto == QLatin1String("LTR");
    const QString ne = QStringLiteral("Ne Tradukita");
    const QChar ltrMarko(0x200E);

    const QList<QLabel*> etikedoj = radiko->findChildren<QLabel*>();
    const QPixmap revena(ltr ? QStringLiteral(":ikonoj/sago_revena.png") : QStringLiteral(":ikonoj/sago_revena_RTL.png"));
    const QPixmap antauen(ltr ? QStringLiteral(":ikonoj/sago_antauen.png") : QStringLiteral(":ikonoj/sago_antauen_RTL.png"));
    for (label_sago_reversa* sago : radiko->findChildren<label_sago_reversa*>()) {
        sago->setPixmap(revena);
        sago->setStyleSheet(ltr ? QStringLiteral("margin-left: 15px;") : QStringLiteral("margin-right: 15px;"));
    }
    for (label_sago* sago : radiko->findChildren<label_sago*>()) {
        sago->setPixmap(antauen);
        sago->setStyleSheet(QString());
    }
    const Qt::Alignment flanko = (ltr ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
    for (neklakebla_nova* vorto : radiko->findChildren<neklakebla_nova*>())
        vorto->setAlignment(flanko);
    for (klakbutono_nova* vorto : radiko->findChildren<klakbutono_nova*>())
        vorto->setAlignment(flanko);

    for (QLabel* etikedo : etikedoj) {
        const QString nomo = etikedo->objectName();
        const bool klakebla = qobject_cast<label_klakebla*>(etikedo) != nullptr;
        if (nomo.left(5) == grupo) {
            if (qobject_cast<neklakebla_nova*>(etikedo) || qobject_cast<klakbutono_nova*>(etikedo)
                || qobject_cast<korekta*>(etikedo))
                continue;   // Esperanto
            const QString shlosilo = klakebla ? nomo.mid(12) : nomo.mid(6);
            etikedo->setText(traduko.value(grupo + QLatin1Char('/') + shlosilo, ne).toString());
            continue;
        }
        const QString shlosilo = klakebla ? nomo.mid(12) : nomo;
        if (shlosilo == QLatin1String("Ekz_Plen2")) {
            // The second gap exercise of a lesson has a "B" after the lesson number.
            const QObject* gepatro = etikedo->parent();
            const bool b = gepatro && gepatro->objectName().mid(5, 1) == QLatin1String("B");
            const QString sh = b ? QStringLiteral("Frame42.Label84") : QStringLiteral("TFrame41.Label84");
            etikedo->setText(traduko.value(grupo + QLatin1Char('/') + sh, ne).toString());
        } else if (gheneralaj().contains(shlosilo)) {
            etikedo->setText(traduko.value(QStringLiteral("Gheneralaj/") + gheneralaj().value(shlosilo), ne).toString());
        } else if (etikedo->property("tipo").toString() == QLatin1String("esperanta")) {
            if (direkto == QLatin1String("RTL")) {
                etikedo->setText(etikedo->text() + ltrMarko);
                etikedo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            } else {
                etikedo->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
            }
        }
    }
    klavoj::konsiletoj(radiko, traduko);
}

void Adiau()
{
    if (!lSxaltilo)
        return;
    static const char* const radikoj[] = {"ghis", "revido", "baldau", "adiau"};
    const QString radiko = QLatin1String(radikoj[random(4)]);
    QDir ujo(mrLoko + QStringLiteral("sonoj/"), radiko + QLatin1Char('?') + mp3_finajho);
    if (ujo.count() != 0)
        mp3(QStringLiteral("sonoj/") + ujo.entryList().value(random(4)));
}

QString agordoVojo()
{
    QString loko = savasLoko;
    if (!loko.endsWith(QLatin1Char('/')))
        loko += QLatin1Char('/');
    return loko + QStringLiteral("lernilomelo.ini");
}

QStringList listaVico(QSettings& listo, int grupo)
{
    const QString demando = QStringLiteral("?????????");
    listo.beginGroup(QString::number(grupo));
    const QStringList vico = {listo.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString(),
                              listo.value(QStringLiteral("Lingvo"), demando).toString(),
                              listo.value(QStringLiteral("DosierNomo"), demando).toString(),
                              listo.value(QStringLiteral("Dato"), demando).toString()};
    listo.endGroup();
    return vico;
}

QStringList dosieraVico(const QString& nomo, const QString& datoDefaulto)
{
    QSettings dosiero(QStringLiteral(":/tradukoj/") + nomo, QSettings::IniFormat);
    dosiero.setIniCodec("UTF-8");
    dosiero.beginGroup(QStringLiteral("Traduko"));
    return {dosiero.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString(),
            dosiero.value(QStringLiteral("Lingvo"), QStringLiteral("?????????")).toString(),
            nomo,
            dosiero.value(QStringLiteral("Dato"), datoDefaulto).toString()};
}

namespace {

void trairasPaghon(QWidget* pagho, QSettings& agordoj, bool savas)
{
    for (QLineEdit* kampo : pagho->findChildren<QLineEdit*>()) {
        if (savas)
            agordoj.setValue(kampo->objectName(), kampo->text());
        else
            kampo->insert(agordoj.value(kampo->objectName(), QString()).toString());
    }
    for (QPlainTextEdit* kampo : pagho->findChildren<QPlainTextEdit*>()) {
        if (savas)
            agordoj.setValue(kampo->objectName(), kampo->document()->toPlainText());
        else
            kampo->insertPlainText(agordoj.value(kampo->objectName(), QString()).toString());
    }
}

} // namespace

void SxargxasEk(QTabWidget* langetoj, bool savas)
{
    QSettings agordoj(agordoVojo(), QSettings::IniFormat);
    agordoj.setIniCodec("UTF-8");
    agordoj.beginGroup(langetoj->objectName());
    for (int i = 0; i < langetoj->count(); ++i) {
        QWidget* pagho = langetoj->widget(i);
        if (pagho->objectName().left(6) == QLatin1String("Sendas"))
            trairasPaghon(pagho, agordoj, savas);
    }
    agordoj.endGroup();
}

void SavasEk(QTabWidget* langetoj)
{
    QSettings agordoj(agordoVojo(), QSettings::IniFormat);
    agordoj.setIniCodec("UTF-8");
    agordoj.beginGroup(langetoj->objectName());
    for (QWidget* pagho : langetoj->findChildren<QWidget*>()) {
        if (pagho->objectName().left(6) == QLatin1String("Sendas"))
            trairasPaghon(pagho, agordoj, true);
    }
    agordoj.endGroup();
    agordoj.sync();
}

QString SendasTeksto(QTabWidget* langetoj, QWidget* pagho, int numero, const QString& leciono, bool propraButono)
{
    const QString linio(QLatin1Char('\n'));
    QString teksto = QStringLiteral("Leciono ") + leciono;
    QList<QLabel*> etikedoj;
    if (leciono != QLatin1String("13")) {
        etikedoj = pagho->findChildren<QLabel*>();
        teksto += QStringLiteral(" - Paĝo ") + QString::number(numero) + linio + linio;
    } else {
        // The final exam goes out whole.
        for (int i = 0; i <= 4 && i < langetoj->count(); ++i)
            etikedoj += langetoj->widget(i)->findChildren<QLabel*>();
    }
    for (QLabel* etikedo : etikedoj) {
        if (propraButono && (qobject_cast<korekta*>(etikedo) || qobject_cast<neklakebla_nova*>(etikedo)
                             || qobject_cast<klakbutono_nova*>(etikedo)))
            continue;
        QWidget* amiko = etikedo->buddy();
        if (!amiko) {
            teksto += (propraButono ? linio + linio : QString()) + etikedo->text() + linio + linio;
            continue;
        }
        QString demando, respondo;
        if (auto* kampo = qobject_cast<QLineEdit*>(amiko)) {
            demando = etikedo->text().trimmed();
            respondo = kampo->text();
        } else if (auto* kampo = qobject_cast<QPlainTextEdit*>(amiko)) {
            demando = etikedo->text().trimmed();
            respondo = linio + linio + kampo->toPlainText();
        }
        if (!demando.isEmpty())
            teksto += demando + linio;
        if (!respondo.isEmpty())
            teksto += respondo + linio + linio;
    }
    return CxSist(teksto, iSistemo);
}

void KopiasPorSendi(const QString& teksto)
{
    QGuiApplication::clipboard()->setText(teksto, QClipboard::Clipboard);
    QMessageBox skatolo(QMessageBox::Information, QString(), smTondujo, QMessageBox::Ok, QApplication::activeWindow());
    skatolo.exec();
}

void Sendas(QWidget* pagho, int numero)
{
    auto* langetoj = pagho && pagho->parent() ? qobject_cast<QTabWidget*>(pagho->parent()->parent()) : nullptr;
    if (!langetoj)
        return;
    KopiasPorSendi(SendasTeksto(langetoj, pagho, numero, langetoj->objectName().mid(3, 2), false));
}

void Sendas_Printilo(QTabWidget* langetoj, QString titolo, QProgressBar* progreso)
{
    QPrinter printilo(QPrinter::HighResolution);
    if (titolo == QLatin1String("Leciono 13"))
        titolo = QStringLiteral("Fina Ekzameno");
    printilo.setDocName(titolo);
    QPrintDialog dialogo(&printilo, langetoj);
    if (dialogo.exec() != QDialog::Accepted)
        return;

    QPainter farbisto;
    if (!farbisto.begin(&printilo))
        return;
    QWidget* montrata = langetoj->currentWidget();
    const int w = montrata->width();
    const int h = montrata->height();
    const QRect pagho = printilo.pageLayout().paintRectPixels(printilo.resolution());
    const double xSkalo = double(pagho.width()) / double(w + 140);
    const double ySkalo = double(pagho.height() / 2) / double(h + 140);
    const double skalo = qMin(xSkalo, ySkalo);
    farbisto.scale(skalo, skalo);
    farbisto.translate(70, 70);
    QFont tiparo = QApplication::font();
    tiparo.setPixelSize(20);
    farbisto.setFont(tiparo);
    farbisto.drawText(0, 0, QStringLiteral("Lernilo  -  ") + titolo + QStringLiteral("   (") + sServilo + QLatin1Char(')'));

    progreso->show();
    progreso->setMaximum(langetoj->count() + 1);
    progreso->reset();
    const int antaua = langetoj->currentIndex();
    bool duaDuono = false;
    for (int i = 0; i < langetoj->count(); ++i) {
        langetoj->setCurrentIndex(i);
        QCoreApplication::processEvents();
        QWidget* langeto = langetoj->widget(i);
        if (langeto->objectName().left(7) != QLatin1String("Ekzerco")) {
            langeto->render(&farbisto, langeto->pos(), QRegion(langeto->rect()), QWidget::DrawChildren);
            if (!duaDuono) {
                farbisto.translate(0, h + 70);
                duaDuono = true;
            } else if (i != langetoj->count() - 1) {
                printilo.newPage();
                farbisto.translate(0, -(h + 70));
                duaDuono = false;
            }
        }
        progreso->setValue(i + 1);
    }
    langetoj->setCurrentIndex(antaua);
    progreso->reset();
    progreso->hide();
    farbisto.end();
}

int _Matriz(QStringList* lista, QString id, QString tipo)
{
    lista->clear();
    const bool traduko = tipo == QLatin1String("T");
    const QString dosiero = traduko ? Loko + QStringLiteral("tradukoj/") + sTradukoDosiero
                                    : QStringLiteral(":ekzercoj/ekz") + id.left(2) + QStringLiteral(".dat");
    QSettings datumoj(dosiero, QSettings::IniFormat);
    datumoj.setIniCodec("UTF-8");
    datumoj.beginGroup(traduko ? QStringLiteral("Ekzerco-") + id : id + tipo);
    const int kiom = datumoj.allKeys().size();
    const QString defaulto = traduko ? QStringLiteral("Ne tradukita") : QString();
    for (int i = 0; i < kiom; ++i)
        lista->append(datumoj.value(QString::number(i), defaulto).toString());
    datumoj.endGroup();
    return kiom;
}

int _Matriz2(QList<QStringList>* lista, QString id, QString tipo, int largho)
{
    lista->clear();
    QSettings datumoj(QStringLiteral(":ekzercoj/ekz") + id.left(2) + QStringLiteral(".dat"), QSettings::IniFormat);
    datumoj.setIniCodec("UTF-8");
    datumoj.beginGroup(id + tipo);
    const int kiom = datumoj.allKeys().size();
    for (int i = 0; i < kiom; ++i) {
        const QString valoro = datumoj.value(QString::number(i), QString()).toString();
        QStringList vico;
        QString kampo;
        for (const QChar c : valoro) {
            if (c == QLatin1Char('~')) {
                vico << kampo;
                kampo.clear();
            } else {
                kampo += c;
            }
        }
        vico << kampo;
        while (vico.size() < largho)
            vico << QString();
        lista->append(vico);
    }
    datumoj.endGroup();
    return kiom;
}

int limigo(int n)
{
    return qMin(n, 40);
}

void tekstoblinko(QWidget* w)
{
    const QString antaua = w->styleSheet();
    QString unua, dua;
    if (qobject_cast<QRadioButton*>(w)) {
        unua = QStringLiteral("background: lightBlue;");
        dua = QStringLiteral("background: white;");
    } else {
        const QFont f = w->font();
        const bool pikseloj = f.pointSize() < 1;
        const QString grando = QString::number(pikseloj ? f.pixelSize() : f.pointSize())
                               + (pikseloj ? QStringLiteral("px") : QStringLiteral("pt"));
        const QString resto = QStringLiteral("; font-size: ") + grando + QStringLiteral("; font-family: ") + f.family();
        unua = QStringLiteral("font-weight: bold; color: red") + resto;
        dua = QStringLiteral("font-weight: bold; color: white") + resto;
    }
    QElapsedTimer tempo;
    tempo.start();
    int k = 0;
    for (;;) {
        QCoreApplication::processEvents();
        if (tempo.elapsed() > qint64(Ofteco) * k * iMsEnSekundo / 1000) {
            ++k;
            w->setStyleSheet(k % 2 ? unua : dua);
            w->update();
        }
        if (tempo.elapsed() >= qint64(NumSec) * iMsEnSekundo) {
            w->setStyleSheet(antaua);
            return;
        }
    }
}
