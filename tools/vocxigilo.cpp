// Makes the course's sound tree: every word, phrase, reading text, spoken
// feedback and greeting, spoken by espeak-ng's Esperanto voices and stored as
// Ogg Vorbis, and the two feedback notes, made with SoX.
//
//   vocxigilo MEDIA_FOLDER
//
// The list of sounds comes from the lessons and the exercise data by the
// program's own naming rules. A file is made again only when it is missing or
// what it says has changed; files that no longer belong to the course go.

#include "funkcioj.h"
#include "sonlisto.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <cstdio>

namespace {

QString linio(const Sono& s)
{
    return s.vojo + QLatin1Char('\t') + s.vocxo + QLatin1Char('\t') + QString::number(s.rapido)
           + QLatin1Char('\t') + s.teksto;
}

QStringList komando(const Sono& s, const QString& celo)
{
    if (s.vocxo == QLatin1String("noto")) {
        const QString tonoj = s.teksto == QLatin1String("jes")
            ? QStringLiteral("synth 0.5 pluck C5 pluck G5 delay 0 0.11 remix - gain -3 fade 0 0.5 0.15")
            : QStringLiteral("synth 0.5 triangle A3 triangle E3 delay 0 0.16 remix - lowpass 900 gain -4 fade 0 0.5 0.12");
        return {QStringLiteral("-c"),
                QStringLiteral("sox -n -r 44100 -c 2 -t ogg \"$1\" ") + tonoj, QStringLiteral("sh"), celo};
    }
    return {QStringLiteral("-c"),
            QStringLiteral("espeak-ng -v \"$1\" -s \"$2\" --stdout -- \"$3\" | oggenc -Q -q 4 -o \"$4\" -"),
            QStringLiteral("sh"), s.vocxo, QString::number(s.rapido), s.teksto, celo};
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: vocxigilo MEDIA_FOLDER\n");
        return 2;
    }
    QTemporaryDir skribebla;
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    savasLoko = skribebla.path() + QLatin1Char('/');
    mrLoko = QDir(QString::fromLocal8Bit(argv[1])).absolutePath() + QLatin1Char('/');

    const QVector<Sono> sonoj = sonlisto::kolektas();
    const QString listoVojo = mrLoko + QStringLiteral("sonoj/.listo");

    QStringList antauaj;
    QFile antaua(listoVojo);
    if (antaua.open(QIODevice::ReadOnly))
        antauaj = QString::fromUtf8(antaua.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QSet<QString> jamFaritaj(antauaj.cbegin(), antauaj.cend());

    QVector<Sono> farotaj;
    QStringList novaj;
    QSet<QString> vojoj;
    for (const Sono& s : sonoj) {
        novaj << linio(s);
        vojoj.insert(s.vojo);
        // The song has its own maker, kantigilo.
        if (s.vocxo != QLatin1String("kanto") && (!jamFaritaj.contains(linio(s)) || !QFile::exists(mrLoko + s.vojo)))
            farotaj << s;
    }
    // Sounds that are no longer part of the course.
    for (const QString& l : antauaj) {
        const QString vojo = l.section(QLatin1Char('\t'), 0, 0);
        if (!vojoj.contains(vojo))
            QFile::remove(mrLoko + vojo);
    }

    QElapsedTimer tempo;
    tempo.start();
    const int samtempe = qMax(1, QThread::idealThreadCount());
    QList<QProcess*> kurantaj;
    int sekva = 0;
    int malsukcesoj = 0;
    while (sekva < farotaj.size() || !kurantaj.isEmpty()) {
        while (sekva < farotaj.size() && kurantaj.size() < samtempe) {
            const Sono& s = farotaj.at(sekva++);
            QDir().mkpath(QFileInfo(mrLoko + s.vojo).absolutePath());
            auto* p = new QProcess;
            p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
            p->start(QStringLiteral("sh"), komando(s, mrLoko + s.vojo));
            kurantaj << p;
        }
        QProcess* unua = kurantaj.takeFirst();
        unua->waitForFinished(-1);
        if (unua->exitStatus() != QProcess::NormalExit || unua->exitCode() != 0)
            ++malsukcesoj;
        delete unua;
    }

    QDir().mkpath(mrLoko + QStringLiteral("sonoj"));
    QFile listo(listoVojo);
    if (malsukcesoj == 0 && listo.open(QIODevice::WriteOnly | QIODevice::Truncate))
        listo.write(novaj.join(QLatin1Char('\n')).toUtf8() + '\n');

    std::printf("Sounds: %d in the course, %d made in %.1f s with %d at a time%s\n",
                int(sonoj.size()), int(farotaj.size()), tempo.elapsed() / 1000.0, samtempe,
                malsukcesoj ? ", some FAILED" : "");
    return malsukcesoj ? 1 : 0;
}
