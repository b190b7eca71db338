#ifndef TESTSERVILO_H
#define TESTSERVILO_H

// A small HTTP server on 127.0.0.1 for the download tests: each path has a
// status, a body and a delay before the reply. A reply may also trickle one
// byte at a time without end, or break off after part of its body.

#include <QHash>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

class TestServilo : public QObject
{
public:
    struct Respondo
    {
        int stato = 200;
        QByteArray korpo;
        int prokrastoMs = 0;
        int gutoMs = 0;        // > 0: no length, one byte every so often, for ever
        int rompoPost = -1;    // >= 0: the whole length announced, this much sent
    };

    TestServilo()
    {
        servilo.listen(QHostAddress::LocalHost, 0);
        connect(&servilo, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = servilo.nextPendingConnection())
                connect(s, &QTcpSocket::readyRead, this, [this, s] { respondas(s); });
        });
    }

    QString adreso() const { return QStringLiteral("http://127.0.0.1:%1").arg(servilo.serverPort()); }
    void metas(const QString& vojo, const Respondo& r) { respondoj.insert(vojo, r); }
    void metas(const QString& vojo, const QByteArray& korpo) { respondoj.insert(vojo, {200, korpo, 0}); }
    QStringList petoj;          // the paths asked for, in order
    QList<QByteArray> agentoj;  // their User-Agent headers

private:
    void respondas(QTcpSocket* s)
    {
        QByteArray& enirinta = bufroj[s];
        enirinta += s->readAll();
        if (!enirinta.contains("\r\n\r\n"))
            return;
        const QList<QByteArray> linioj = enirinta.split('\n');
        bufroj.remove(s);
        const QString vojo = QString::fromLatin1(linioj.value(0).split(' ').value(1));
        for (const QByteArray& l : linioj) {
            if (l.toLower().startsWith("user-agent:"))
                agentoj << l.mid(11).trimmed();
        }
        petoj << vojo;
        const Respondo r = respondoj.value(vojo, {404, "<html>Not here</html>", 0});
        QPointer<QTcpSocket> ingo(s);
        QTimer::singleShot(r.prokrastoMs, this, [this, ingo, r] {
            if (!ingo)
                return;
            if (r.gutoMs > 0) {
                ingo->write("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nConnection: close\r\n\r\n[Traduko]\r\n");
                gutas(ingo, r.gutoMs);
                return;
            }
            QByteArray teksto = "HTTP/1.1 " + QByteArray::number(r.stato)
                                + (r.stato == 200 ? " OK" : " Error") + "\r\nContent-Type: text/plain\r\nContent-Length: "
                                + QByteArray::number(r.korpo.size()) + "\r\nConnection: close\r\n\r\n"
                + (r.rompoPost >= 0 ? r.korpo.left(r.rompoPost) : r.korpo);
            ingo->write(teksto);
            ingo->disconnectFromHost();
        });
    }

    void gutas(QPointer<QTcpSocket> ingo, int ms)
    {
        QTimer::singleShot(ms, this, [this, ingo, ms] {
            if (ingo && ingo->state() == QAbstractSocket::ConnectedState) {
                ingo->write("x");
                gutas(ingo, ms);
            }
        });
    }

    QTcpServer servilo;
    QHash<QString, Respondo> respondoj;
    QHash<QTcpSocket*, QByteArray> bufroj;
};

#endif
