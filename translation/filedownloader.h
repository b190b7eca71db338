#ifndef FILEDOWNLOADER_H
#define FILEDOWNLOADER_H

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

class QNetworkReply;

// Fetches one file from the course's web server into the writable folder.
// It always ends with downloaded(), whether the transfer worked or not; only
// a complete, successful reply with a body replaces the file on disk.
class FileDownloader : public QObject
{
    Q_OBJECT
public:
    FileDownloader(QUrl url, QString dosierNomo, QObject* parent = nullptr);

    QByteArray downloadedData() const;

    // How long a transfer may go without receiving anything.
    static const int atendoMs = 15000;

signals:
    void downloaded();

private slots:
    void fileDownloaded(QNetworkReply* respondo);

private:
    QNetworkAccessManager& reto;   // one for all the program's downloads
    QByteArray datumoj;
    QString dosierNomo;
};

#endif
