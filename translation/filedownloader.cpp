#include "filedownloader.h"
#include "funkcioj.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTextCodec>

namespace {

const QString listoNomo = QStringLiteral("traduklisto.ini");

// A manager of its own would cost each download a new network thread and
// set-up; the one manager lives as long as the application.
QNetworkAccessManager& komunaReto()
{
    static QPointer<QNetworkAccessManager> reto;
    if (!reto)
        reto = new QNetworkAccessManager(QCoreApplication::instance());
    return *reto;
}

// Whether group `grupo` of an INI text gives `shlosilo` a value.
bool grupoHavas(const QString& teksto, const QString& grupo, const QString& shlosilo)
{
    bool ene = false;
    for (QString linio : teksto.split(QLatin1Char('\n'))) {
        linio = linio.trimmed();
        if (linio.startsWith(QLatin1Char('['))) {
            ene = linio == QLatin1Char('[') + grupo + QLatin1Char(']');
            continue;
        }
        const int egala = linio.indexOf(QLatin1Char('='));
        if (ene && egala > 0 && linio.left(egala).trimmed() == shlosilo && !linio.mid(egala + 1).trimmed().isEmpty())
            return true;
    }
    return false;
}

} // namespace

int FileDownloader::templimoMs = 120000;

bool FileDownloader::akceptebla(const QString& nomo)
{
    return nomo == listoNomo || sekuraDosierNomo(nomo);
}

bool FileDownloader::legebla(const QByteArray& korpo, const QString& nomo)
{
    if (korpo.isEmpty() || korpo.size() > maksimumo || korpo.contains('\0'))
        return false;
    QTextCodec::ConverterState stato;
    QString teksto = QTextCodec::codecForName("UTF-8")->toUnicode(korpo.constData(), korpo.size(), &stato);
    if (stato.invalidChars > 0)
        return false;
    if (teksto.startsWith(QChar(0xFEFF)))
        teksto.remove(0, 1);
    if (nomo == listoNomo)
        return grupoHavas(teksto, QStringLiteral("0"), QStringLiteral("LingvoID"));
    return grupoHavas(teksto, QStringLiteral("Traduko"), QStringLiteral("LingvoID"));
}

FileDownloader::FileDownloader(QUrl url, QString dosierNomo, QObject* parent)
    : QObject(parent), reto(komunaReto()), dosierNomo(dosierNomo)
{
    if (!akceptebla(dosierNomo)) {
        // Never asked for: the caller goes on as after any other failure.
        QMetaObject::invokeMethod(this, &FileDownloader::downloaded, Qt::QueuedConnection);
        return;
    }
    QNetworkRequest peto(url);
    peto.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("LerniloAndrojdo"));
    peto.setTransferTimeout(atendoMs);   // a silent server must not keep the learner waiting
    // The reply is this download's own: it ends with the downloader.
    respondo = reto.get(peto);
    respondo->setParent(this);
    connect(respondo, &QNetworkReply::finished, this, [this, r = respondo.data()] { fileDownloaded(r); });
    // Nor may one that trickles, or that sends without end.
    connect(respondo, &QNetworkReply::downloadProgress, this, &FileDownloader::kontrolasGrandon);
    templimo.setSingleShot(true);
    connect(&templimo, &QTimer::timeout, this, [this] {
        rifuzita = true;
        if (respondo)
            respondo->abort();
    });
    templimo.start(templimoMs);
}

void FileDownloader::kontrolasGrandon(qint64 ricevitaj, qint64 entute)
{
    if ((ricevitaj > maksimumo || entute > maksimumo) && respondo) {
        rifuzita = true;
        respondo->abort();
    }
}

void FileDownloader::fileDownloaded(QNetworkReply* r)
{
    templimo.stop();
    datumoj = rifuzita ? QByteArray() : r->read(maksimumo + 1);
    const int stato = r->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // A connection closed early ends without an error: the announced length
    // tells a cut body (that of a compressed body counts the packed bytes).
    const QVariant longo = r->header(QNetworkRequest::ContentLengthHeader);
    const bool pakita = !r->rawHeader("Content-Encoding").isEmpty();
    const bool tuta = pakita || !longo.isValid() || longo.toLongLong() == datumoj.size();
    const bool sukcesa = !rifuzita && tuta && r->error() == QNetworkReply::NoError && stato >= 200 && stato < 300;
    // A server's error page, a network's login page or a cut transfer must
    // never replace a working file.
    if (sukcesa && legebla(datumoj, dosierNomo)) {
        QSaveFile dosiero(savasLoko + dosierNomo);
        if (dosiero.open(QIODevice::WriteOnly) && dosiero.write(datumoj) == datumoj.size())
            dosiero.commit();
    }
    r->deleteLater();
    emit downloaded();
}

QByteArray FileDownloader::downloadedData() const
{
    return datumoj;
}
