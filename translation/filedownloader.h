#ifndef FILEDOWNLOADER_H
#define FILEDOWNLOADER_H

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

class QNetworkReply;

// Fetches one file from the course's web server into the writable folder.
// It always ends with downloaded(), whether the transfer worked or not. Only
// a language file (a safe name ending in .trd) or the language list is ever
// asked for; only a complete, successful reply that reads as what it claims
// to be replaces the file on disk, and the old file stays until the new one
// is written whole.
class FileDownloader : public QObject
{
    Q_OBJECT
public:
    FileDownloader(QUrl url, QString dosierNomo, QObject* parent = nullptr);

    QByteArray downloadedData() const;

    // Whether `korpo` reads as the file `nomo`: a language file has its
    // [Traduko] header with a LingvoID, the language list its row [0].
    static bool legebla(const QByteArray& korpo, const QString& nomo);
    // Whether a file of this name may be fetched and written at all.
    static bool akceptebla(const QString& nomo);

    // How long a transfer may go without receiving anything.
    static const int atendoMs = 15000;
    // The most a whole transfer may take, and the largest body taken; tests
    // shorten the time.
    static int templimoMs;
    static const qint64 maksimumo = 2 * 1024 * 1024;

signals:
    void downloaded();

private slots:
    void fileDownloaded(QNetworkReply* respondo);

private:
    void kontrolasGrandon(qint64 ricevitaj, qint64 entute);

    QNetworkAccessManager& reto;   // one for all the program's downloads
    QByteArray datumoj;
    QString dosierNomo;
    QPointer<QNetworkReply> respondo;
    QTimer templimo;
    bool rifuzita = false;
};

#endif
