#ifndef SONSERVILO_H
#define SONSERVILO_H

// A sound server of the test's own, for tests that play in real time or
// record: a PulseAudio daemon with no device at all. Its one output is a null
// sink, which consumes sound at the pace of its clock; a sine tone plays into
// it, and its monitor is the default input, so a recording has a real signal.
// A stream of silence with a short latency keeps the sink working in small
// blocks, as a desktop's sound does; without it a recording starts late.
// Playback and recording reach it through GStreamer's pulsesink and pulsesrc,
// as on a learner's desktop. Start it before the first player is made.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

class SonServilo
{
public:
    ~SonServilo()
    {
        if (silento.state() != QProcess::NotRunning) {
            silento.kill();
            silento.waitForFinished(1000);
        }
        if (procezo.state() != QProcess::NotRunning) {
            procezo.terminate();
            if (!procezo.waitForFinished(3000))
                procezo.kill();
            procezo.waitForFinished(1000);
        }
    }

    // Starts the daemon and points the process at it. False, with the reason
    // in `eraro`, when it does not come up.
    bool startas()
    {
        const QString ingo = ujo.path() + QStringLiteral("/pulse.sock");
        QProcessEnvironment medio = QProcessEnvironment::systemEnvironment();
        medio.insert(QStringLiteral("HOME"), ujo.path());
        medio.insert(QStringLiteral("XDG_RUNTIME_DIR"), ujo.path());
        medio.insert(QStringLiteral("XDG_CONFIG_HOME"), ujo.path());
        procezo.setProcessEnvironment(medio);
        procezo.setProcessChannelMode(QProcess::MergedChannels);
        procezo.setStandardOutputFile(ujo.path() + QStringLiteral("/pulse.log"));
        procezo.start(QStringLiteral("pulseaudio"),
                      {QStringLiteral("-n"), QStringLiteral("--daemonize=no"), QStringLiteral("--exit-idle-time=-1"),
                       QStringLiteral("--use-pid-file=no"), QStringLiteral("--disable-shm=yes"),
                       QStringLiteral("-L"), QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + ingo,
                       QStringLiteral("-L"), QStringLiteral("module-null-sink sink_name=nulo"),
                       QStringLiteral("-L"), QStringLiteral("module-sine sink=nulo frequency=440")});
        if (!procezo.waitForStarted(5000)) {
            eraro = QStringLiteral("pulseaudio does not start (tools/dependoj.sh installs it)");
            return false;
        }
        for (int i = 0; i < 100 && !QFile::exists(ingo); ++i) {
            if (procezo.waitForFinished(50))
                break;
        }
        if (!QFile::exists(ingo)) {
            QFile protokolo(ujo.path() + QStringLiteral("/pulse.log"));
            protokolo.open(QIODevice::ReadOnly);
            eraro = QStringLiteral("pulseaudio did not come up: ") + QString::fromLocal8Bit(protokolo.readAll());
            return false;
        }
        qputenv("PULSE_SERVER", ("unix:" + ingo).toLocal8Bit());
        silento.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
        silento.setStandardInputFile(QStringLiteral("/dev/zero"));
        silento.start(QStringLiteral("pacat"), {QStringLiteral("--playback"), QStringLiteral("--latency-msec=20")});
        if (!silento.waitForStarted(5000)) {
            eraro = QStringLiteral("pacat does not start (tools/dependoj.sh installs it)");
            return false;
        }
        return true;
    }

    QString eraro;

private:
    QTemporaryDir ujo;
    QProcess procezo;
    QProcess silento;
};

#endif
