#include "filedownloader.h"
#include "funkcioj.h"

#include <QFile>
#include <QNetworkReply>
#include <QNetworkRequest>

FileDownloader::FileDownloader(QUrl url, QString dosierNomo, QObject* parent)
    : QObject(parent), dosierNomo(dosierNomo)
{
    connect(&reto, &QNetworkAccessManager::finished, this, &FileDownloader::fileDownloaded);
    QNetworkRequest peto(url);
    peto.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("LerniloAndrojdo"));
    peto.setTransferTimeout(atendoMs);   // a silent server must not keep the learner waiting
    reto.get(peto);
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
