#ifndef NGINXSERVILO_H
#define NGINXSERVILO_H

// The course's web server as it runs in earnest: nginx serving a site folder
// on 127.0.0.1 with the project's own server rules (tools/nginx), started for
// a test and stopped with it. The paths asked for and the user agents are
// read back from its access log.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>

class NginxServilo
{
public:
    // Serves `radiko`, the folder that holds datumoj/.
    explicit NginxServilo(const QString& radiko)
    {
        QTcpServer libera;   // a port nobody uses now
        libera.listen(QHostAddress::LocalHost, 0);
        haveno = libera.serverPort();
        libera.close();
        const QString u = ujo.path();
        QFile agordo(u + QStringLiteral("/nginx.conf"));
        agordo.open(QIODevice::WriteOnly);
        agordo.write(QStringLiteral(
            "daemon off;\nmaster_process off;\npid %1/nginx.pid;\nerror_log %1/eraroj.log;\nevents {}\n"
            "http {\n"
            "    log_format petoj \"$request_uri\\t$http_user_agent\";\n"
            "    access_log %1/petoj.log petoj;\n"
            "    client_body_temp_path %1/korpoj;\n    proxy_temp_path %1/prokurilo;\n"
            "    fastcgi_temp_path %1/fastcgi;\n    uwsgi_temp_path %1/uwsgi;\n    scgi_temp_path %1/scgi;\n"
            "    server {\n        listen 127.0.0.1:%2;\n        root %3;\n"
            "        include " LERNILO_FONTOJ "/tools/nginx/datumoj.conf;\n    }\n}\n")
                         .arg(u).arg(haveno).arg(radiko).toUtf8());
        agordo.close();
        procezo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        procezo.start(nginx(), {QStringLiteral("-p"), u, QStringLiteral("-c"), u + QStringLiteral("/nginx.conf")});
        // Ready once the port answers.
        for (int i = 0; i < 200 && procezo.state() != QProcess::NotRunning; ++i) {
            QTcpSocket provo;
            provo.connectToHost(QHostAddress::LocalHost, haveno);
            if (provo.waitForConnected(50)) {
                preta = true;
                break;
            }
            QThread::msleep(10);
        }
    }

    ~NginxServilo()
    {
        procezo.terminate();
        if (!procezo.waitForFinished(5000))
            procezo.kill();
        procezo.waitForFinished(1000);
    }

    static QString nginx()
    {
        const QString trovita = QStandardPaths::findExecutable(QStringLiteral("nginx"));
        return trovita.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("nginx"), {QStringLiteral("/usr/sbin")})
                                 : trovita;
    }

    QString adreso() const { return QStringLiteral("http://127.0.0.1:%1").arg(haveno); }

    // The paths asked for so far, in order, and their User-Agent headers.
    QStringList petoj() const { return kolumno(0); }
    QStringList agentoj() const { return kolumno(1); }

    bool preta = false;

private:
    QStringList kolumno(int n) const
    {
        QFile protokolo(ujo.path() + QStringLiteral("/petoj.log"));
        QStringList el;
        if (protokolo.open(QIODevice::ReadOnly)) {
            for (const QByteArray& linio : protokolo.readAll().split('\n')) {
                if (!linio.isEmpty())
                    el << QString::fromUtf8(linio.split('\t').value(n));
            }
        }
        return el;
    }

    QTemporaryDir ujo;
    QProcess procezo;
    quint16 haveno = 0;
};

// A copy of the course's site, made by the build, for a test to change.
inline bool kopiasRetejon(const QString& al)
{
    const QString de = QStringLiteral(LERNILO_MEDIOJ "/retejo");
    QDir radiko(de);
    if (!radiko.exists(QStringLiteral("datumoj/traduklisto.ini")))
        return false;
    QProcess kopio;
    kopio.start(QStringLiteral("cp"), {QStringLiteral("-r"), de + QStringLiteral("/."), al});
    return kopio.waitForFinished(20000) && kopio.exitCode() == 0;
}

#endif
