#include "filedownloader.h"
#include "funkcioj.h"

#include <QCoreApplication>
#include <QFile>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>

namespace {

// A manager of its own would cost each download a new network thread and
// set-up; the one manager lives as long as the application.
QNetworkAccessManager& komunaReto()
{
    static QPointer<QNetworkAccessManager> reto;
    if (!reto)
        reto = new QNetworkAccessManager(QCoreApplication::instance());
    return *reto;
}

} // namespace

FileDownloader::FileDownloader(QUrl url, QString dosierNomo, QObject* parent)
    : QObject(parent), reto(komunaReto()), dosierNomo(dosierNomo)
{
    QNetworkRequest peto(url);
    peto.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("LerniloAndrojdo"));
    peto.setTransferTimeout(atendoMs);   // a silent server must not keep the learner waiting
    // The reply is this download's own: it ends with the downloader.
    QNetworkReply* respondo = reto.get(peto);
    respondo->setParent(this);
    connect(respondo, &QNetworkReply::finished, this, [this, respondo] { fileDownloaded(respondo); });
}

void FileDownloader::fileDownloaded(QNetworkReply* respondo)
{
    datumoj = respondo->readAll();
    const int stato = respondo->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool sukcesa = respondo->error() == QNetworkReply::NoError && stato >= 200 && stato < 300;
    // A server's error page must never replace a working file, and a name
    // from a list must never lead out of the writable folder.
    if (!datumoj.isEmpty() && sukcesa && sekuraDosierNomo(dosierNomo)) {
        QFile dosiero(savasLoko + dosierNomo);
        if (dosiero.open(QIODevice::WriteOnly)) {
            dosiero.write(datumoj);
            dosiero.close();
        }
    }
    respondo->deleteLater();
    emit downloaded();
}

QByteArray FileDownloader::downloadedData() const
{
    return datumoj;
}
