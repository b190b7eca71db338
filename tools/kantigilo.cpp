// Makes the course's song from its score (resources/kanto): the tune, chords,
// bass and a light drum kit are written as a MIDI file and played by
// fluidsynth with a General MIDI sound font; espeak-ng sings each syllable on
// its own, at the pitch of its note (a voice variant whose pitch does not move)
// and stretched or pressed by SoX to the note's length; SoX mixes the two and
// oggenc stores the song as Ogg Vorbis.
//
//   kantigilo SCORE SOUND_FONT OUT.oga
//
// With KANTIGILO_GARDU set it keeps its working folder (the MIDI file, the
// accompaniment, each sung syllable and the voice alone) for a closer look.
//
// Before it writes the song it listens to it: the song must sound from start to
// end and the voice must be heard in every sung bar.

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr int kRapido = 44100;       // samples a second
constexpr int kTaktaj = 4;           // crotchets in a bar
constexpr int kTikoj = 480;          // MIDI ticks in a crotchet

struct Noto
{
    double komenco = 0;  // in crotchets from the start of the song
    double dauro = 1;
    int alto = -1;       // MIDI note; -1 is a rest
    QString silabo;      // empty where the tune is only played
};

struct Akordo
{
    double komenco = 0;
    double dauro = kTaktaj;
    QVector<int> tonoj;  // from the root, in semitones
    int radiko = 0;      // 0 = C
};

struct Sekcio
{
    QString muziko;      // the section whose notes and chords these words take
    QStringList notoj, akordoj, silaboj;
};

struct Kanto
{
    double tempo = 100;
    QString lingvo = QStringLiteral("eo"), varianto = QStringLiteral("f2");
    int melodio = 71, akordilo = 24, baso = 32;
    QVector<Noto> notoj;
    QVector<Akordo> akordoj;
    double longo = 0;    // crotchets
};

[[noreturn]] void eraro(const QString& kio)
{
    throw std::runtime_error(kio.toStdString());
}

QStringList eroj(const QString& linio)
{
    return linio.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
}

// "C4", "F#3", "Bb4": the MIDI note; "C" alone (a chord's root) gives 0 to 11.
int tono(const QString& nomo, bool kunOktavo, int* uzitaj = nullptr)
{
    static const QString literoj = QStringLiteral("C D EF G A B");
    const int l = nomo.isEmpty() ? -1 : literoj.indexOf(nomo.at(0).toUpper());
    if (l < 0 || nomo.at(0) == QLatin1Char(' '))
        eraro(QStringLiteral("not a note: ") + nomo);
    int i = 1, t = l;
    if (i < nomo.size() && nomo.at(i) == QLatin1Char('#')) { ++t; ++i; }
    else if (i < nomo.size() && nomo.at(i) == QLatin1Char('b')) { --t; ++i; }
    if (uzitaj)
        *uzitaj = i;
    if (!kunOktavo)
        return (t + 12) % 12;
    bool bone = false;
    const int oktavo = nomo.mid(i).toInt(&bone);
    if (!bone || oktavo < 0 || oktavo > 8)
        eraro(QStringLiteral("a note needs its octave: ") + nomo);
    return 12 * (oktavo + 1) + t;
}

Akordo akordo(const QString& nomo)
{
    Akordo a;
    int i = 0;
    a.radiko = tono(nomo, false, &i);
    const QString resto = nomo.mid(i);
    if (resto == QLatin1String("m")) a.tonoj = {0, 3, 7};
    else if (resto == QLatin1String("m7")) a.tonoj = {0, 3, 7, 10};
    else if (resto == QLatin1String("7")) a.tonoj = {0, 4, 7, 10};
    else if (resto.isEmpty()) a.tonoj = {0, 4, 7};
    else eraro(QStringLiteral("not a chord: ") + nomo);
    return a;
}

// Esperanto stresses the last but one syllable of a word: in a song it must
// fall on a strong beat, the first or third crotchet of the bar.
void kontrolasAkcentojn(const Kanto& k, const QString& nomo)
{
    QVector<const Noto*> vorto;
    for (const Noto& n : k.notoj) {
        if (n.silabo.isEmpty())
            continue;
        vorto << &n;
        if (n.silabo.endsWith(QLatin1Char('-')))
            continue;
        if (vorto.size() > 1) {
            const double loko = std::fmod(vorto.at(vorto.size() - 2)->komenco, kTaktaj);
            if (qAbs(loko) > 1e-6 && qAbs(loko - 2) > 1e-6) {
                QString teksto;
                for (const Noto* s : vorto)
                    teksto += s->silabo;
                eraro(nomo + QStringLiteral(": the stress of \"%1\" is off the strong beats").arg(teksto));
            }
        }
        vorto.clear();
    }
}

double aldonasSekcion(Kanto& k, const Sekcio& muziko, const Sekcio& vortoj, const QString& nomo)
{
    const double komenco = k.longo;
    double t = komenco;
    QStringList silaboj;
    for (const QString& s : vortoj.silaboj)
        silaboj << eroj(s);
    int sekva = 0;
    for (const QString& linio : muziko.notoj) {
        for (const QString& ero : eroj(linio)) {
            if (ero == QLatin1String("|"))
                continue;
            Noto n;
            n.komenco = t;
            const QString alto = ero.section(QLatin1Char(':'), 0, 0);
            if (ero.contains(QLatin1Char(':'))) {
                bool bone = false;
                n.dauro = ero.section(QLatin1Char(':'), 1).toDouble(&bone);
                if (!bone || n.dauro <= 0 || n.dauro > 16)
                    eraro(nomo + QStringLiteral(": bad length in ") + ero);
            }
            if (alto != QLatin1String("-")) {
                n.alto = tono(alto, true);
                if (!silaboj.isEmpty()) {
                    if (sekva >= silaboj.size())
                        eraro(nomo + QStringLiteral(": more notes than syllables"));
                    n.silabo = silaboj.at(sekva++);
                }
            }
            k.notoj << n;
            t += n.dauro;
        }
    }
    if (sekva != silaboj.size())
        eraro(nomo + QStringLiteral(": %1 syllables on %2 notes").arg(silaboj.size()).arg(sekva));
    kontrolasAkcentojn(k, nomo);

    double a = komenco;
    for (const QString& linio : muziko.akordoj) {
        for (const QString& takto : linio.split(QLatin1Char('|'))) {
            const QStringList nomoj = eroj(takto);
            for (const QString& n : nomoj) {
                Akordo ak = akordo(n);
                ak.komenco = a;
                ak.dauro = double(kTaktaj) / nomoj.size();
                a += ak.dauro;
                k.akordoj << ak;
            }
        }
    }
    if (qAbs(a - t) > 1e-6)
        eraro(nomo + QStringLiteral(": the chords last %1 crotchets, the tune %2").arg(a - komenco).arg(t - komenco));
    return t;
}

Kanto legas(const QString& vojo)
{
    QFile f(vojo);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        eraro(QStringLiteral("cannot read ") + vojo);
    Kanto k;
    QHash<QString, Sekcio> sekcioj;
    QStringList ordo;
    Sekcio* nuna = nullptr;
    QTextStream in(&f);
    in.setCodec("UTF-8");
    while (!in.atEnd()) {
        const QString linio = in.readLine().section(QLatin1Char('#'), 0, 0).trimmed();
        if (linio.isEmpty())
            continue;
        const QStringList e = eroj(linio);
        if (linio.startsWith(QLatin1Char('[')) && linio.endsWith(QLatin1Char(']'))) {
            const QStringList nomoj = linio.mid(1, linio.size() - 2).split(QLatin1Char('='));
            nuna = &sekcioj[nomoj.first().trimmed()];
            nuna->muziko = nomoj.value(1, nomoj.first()).trimmed();
        } else if (linio.startsWith(QLatin1String("ordo:"))) {
            ordo = eroj(linio.mid(5));
        } else if (nuna && linio.size() > 2 && linio.at(1) == QLatin1Char(':')) {
            const QString resto = linio.mid(2);
            switch (linio.at(0).unicode()) {
            case 'n': nuna->notoj << resto; break;
            case 'a': nuna->akordoj << resto; break;
            case 's': nuna->silaboj << resto; break;
            default: eraro(QStringLiteral("unknown line: ") + linio);
            }
        } else if (e.size() == 2 && e.at(0) == QLatin1String("tempo")) {
            k.tempo = e.at(1).toDouble();
        } else if (e.size() == 2 && e.at(0) == QStringLiteral("voĉo")) {
            k.lingvo = e.at(1).section(QLatin1Char('+'), 0, 0);
            k.varianto = e.at(1).section(QLatin1Char('+'), 1);
        } else if (e.size() == 3 && e.at(0) == QLatin1String("instrumento")) {
            const int programo = qBound(0, e.at(2).toInt(), 127);
            if (e.at(1) == QLatin1String("melodio")) k.melodio = programo;
            else if (e.at(1) == QLatin1String("akordoj")) k.akordilo = programo;
            else if (e.at(1) == QLatin1String("baso")) k.baso = programo;
            else eraro(QStringLiteral("unknown part: ") + e.at(1));
        } else {
            eraro(QStringLiteral("unknown line: ") + linio);
        }
    }
    if (k.tempo < 30 || k.tempo > 300)
        eraro(QStringLiteral("the tempo must be 30 to 300 crotchets a minute"));
    if (ordo.isEmpty())
        eraro(QStringLiteral("the score has no order of sections (ordo:)"));
    for (const QString& nomo : ordo) {
        if (!sekcioj.contains(nomo))
            eraro(QStringLiteral("no section ") + nomo);
        const Sekcio& vortoj = sekcioj.value(nomo);
        if (!sekcioj.contains(vortoj.muziko))
            eraro(QStringLiteral("no section ") + vortoj.muziko);
        k.longo = aldonasSekcion(k, sekcioj.value(vortoj.muziko), vortoj, nomo);
    }
    return k;
}

// ---- the accompaniment as a MIDI file ---------------------------------------

QByteArray bajtoj(std::initializer_list<int> b)
{
    QByteArray r;
    for (int v : b)
        r += char(v);
    return r;
}

struct Evento
{
    int tiko;
    int ordo;            // at the same tick: note-offs first
    QByteArray datumoj;
};

void aldonasNoton(QVector<Evento>& ev, int kanalo, int alto, double komenco, double dauro, int forto)
{
    const int de = qRound(komenco * kTikoj), ghis = qRound((komenco + dauro) * kTikoj);
    ev.push_back({de, 1, bajtoj({0x90 | kanalo, alto, forto})});
    ev.push_back({ghis, 0, bajtoj({0x80 | kanalo, alto, 0})});
}

void variabla(QByteArray& b, quint32 v)
{
    QByteArray inversa;
    inversa.prepend(char(v & 0x7F));
    while (v >>= 7)
        inversa.prepend(char((v & 0x7F) | 0x80));
    b += inversa;
}

QByteArray midi(const Kanto& k)
{
    enum { Melodio = 0, Akordoj = 1, Baso = 2, Tamburoj = 9 };
    QVector<Evento> ev;
    const quint32 mikrosekundoj = quint32(60000000.0 / k.tempo);
    ev.push_back({0, 0, QByteArray("\xFF\x51\x03", 3) + char(mikrosekundoj >> 16) + char(mikrosekundoj >> 8)
                            + char(mikrosekundoj)});
    ev.push_back({0, 0, bajtoj({0xC0 | Melodio, k.melodio})});
    ev.push_back({0, 0, bajtoj({0xC0 | Akordoj, k.akordilo})});
    ev.push_back({0, 0, bajtoj({0xC0 | Baso, k.baso})});
    // Reverb a little lower than the sound font's default, chorus off.
    for (int kanalo : {Melodio, Akordoj, Baso}) {
        ev.push_back({0, 0, bajtoj({0xB0 | kanalo, 91, 30})});
        ev.push_back({0, 0, bajtoj({0xB0 | kanalo, 93, 0})});
    }

    // The tune leads where nobody sings, and follows the voice softly where one does.
    for (const Noto& n : k.notoj) {
        if (n.alto >= 0)
            aldonasNoton(ev, Melodio, n.alto, n.komenco, n.dauro * 0.95, n.silabo.isEmpty() ? 88 : 52);
    }

    for (const Akordo& a : k.akordoj) {
        QVector<int> tonoj;
        const int radiko = 48 + a.radiko;  // from C3
        for (int t : a.tonoj)
            tonoj << (radiko + t > 64 ? radiko + t - 12 : radiko + t);
        const int basa = 36 + a.radiko;
        // Bass: the root on the chord's first beat, the fifth on its third.
        aldonasNoton(ev, Baso, basa, a.komenco, qMin(a.dauro, 2.0) * 0.9, 84);
        if (a.dauro > 2)
            aldonasNoton(ev, Baso, basa + 7 > 52 ? basa - 5 : basa + 7, a.komenco + 2, a.dauro - 2.1, 72);
        // Guitar: a broken chord in quavers.
        for (int i = 0; i * 0.5 < a.dauro - 1e-6; ++i) {
            const int alto = i == 0 ? tonoj.first()
                                    : tonoj.at(1 + (i - 1) % (tonoj.size() - 1)) + (i % 4 == 2 ? 12 : 0);
            aldonasNoton(ev, Akordoj, alto, a.komenco + i * 0.5, 0.5, i % 2 ? 48 : 62);
        }
    }

    // Drums: bass drum on 1 and 3, a side stick on 2 and 4, a soft closed hi-hat on the quavers.
    const int taktoj = int(k.longo / kTaktaj);
    for (int t = 0; t < taktoj; ++t) {
        const double b = t * kTaktaj;
        const bool lasta = t == taktoj - 1;
        aldonasNoton(ev, Tamburoj, lasta ? 49 : 36, b, 0.5, 70);
        if (lasta)
            continue;
        aldonasNoton(ev, Tamburoj, 36, b + 2, 0.5, 58);
        aldonasNoton(ev, Tamburoj, 37, b + 1, 0.5, 44);
        aldonasNoton(ev, Tamburoj, 37, b + 3, 0.5, 44);
        for (int i = 0; i < 8; ++i)
            aldonasNoton(ev, Tamburoj, 42, b + i * 0.5, 0.25, i % 2 ? 26 : 36);
    }

    std::stable_sort(ev.begin(), ev.end(), [](const Evento& a, const Evento& b) {
        return a.tiko != b.tiko ? a.tiko < b.tiko : a.ordo < b.ordo;
    });
    QByteArray trako;
    int antaua = 0;
    for (const Evento& e : ev) {
        variabla(trako, quint32(e.tiko - antaua));
        trako += e.datumoj;
        antaua = e.tiko;
    }
    variabla(trako, 0);
    trako += QByteArray("\xFF\x2F\x00", 3);

    auto granda = [](quint32 v, int bajtoj) {
        QByteArray b;
        for (int i = bajtoj - 1; i >= 0; --i)
            b += char((v >> (8 * i)) & 0xFF);
        return b;
    };
    return QByteArray("MThd") + granda(6, 4) + granda(0, 2) + granda(1, 2) + granda(kTikoj, 2)
           + QByteArray("MTrk") + granda(quint32(trako.size()), 4) + trako;
}

// ---- the voice --------------------------------------------------------------

void lanchas(const QString& programo, const QStringList& argumentoj)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.start(programo, argumentoj);
    if (!p.waitForFinished(-1) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        eraro(programo + QStringLiteral(" failed: ") + argumentoj.join(QLatin1Char(' ')));
}

qint64 sonpunkto(const Kanto& k, double krocxeto)
{
    return qRound64(krocxeto * 60.0 / k.tempo * kRapido);
}

// espeak-ng takes its voice variants only from its data folder, so the singer
// gets a folder of its own: links to the installed data, and beside the chosen
// variant one copy of it per pitch, whose pitch stays on that note.
QString kantistaDosierujo(const Kanto& k, const QString& loko)
{
    QProcess versio;
    versio.start(QStringLiteral("espeak-ng"), {QStringLiteral("--version")});
    versio.waitForFinished(-1);
    const QString datumoj =
        QString::fromLocal8Bit(versio.readAllStandardOutput()).section(QStringLiteral("Data at:"), 1).trimmed();
    if (datumoj.isEmpty() || !QFile::exists(datumoj + QStringLiteral("/phontab")))
        eraro(QStringLiteral("espeak-ng's data folder was not found"));
    const QString nova = loko + QStringLiteral("/espeak-ng-data");
    QDir().mkpath(nova + QStringLiteral("/voices/!v"));
    for (const QFileInfo& i : QDir(datumoj).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (i.fileName() != QLatin1String("voices"))
            QFile::link(i.absoluteFilePath(), nova + QLatin1Char('/') + i.fileName());
    }
    const QDir vocxoj(datumoj + QStringLiteral("/voices"));
    for (const QFileInfo& i : vocxoj.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        if (i.fileName() != QLatin1String("!v"))
            QFile::link(i.absoluteFilePath(), nova + QStringLiteral("/voices/") + i.fileName());
    }

    QFile varianto(datumoj + QStringLiteral("/voices/!v/") + k.varianto);
    if (!varianto.open(QIODevice::ReadOnly))
        eraro(QStringLiteral("no espeak-ng variant ") + k.varianto);
    QStringList linioj;
    for (const QString& l : QString::fromUtf8(varianto.readAll()).split(QLatin1Char('\n'))) {
        const QString vorto = l.section(QLatin1Char(' '), 0, 0);
        if (vorto != QLatin1String("pitch") && vorto != QLatin1String("name"))
            linioj << l;
    }
    QSet<int> altoj;
    for (const Noto& n : k.notoj) {
        if (!n.silabo.isEmpty())
            altoj.insert(n.alto);
    }
    for (int alto : altoj) {
        // espeak-ng sounds about 9 Hz below the base pitch it is given.
        const int herco = qRound(440.0 * qPow(2.0, (alto - 69) / 12.0)) + 9;
        QFile f(nova + QStringLiteral("/voices/!v/k%1").arg(alto));
        if (!f.open(QIODevice::WriteOnly))
            eraro(QStringLiteral("cannot write ") + f.fileName());
        f.write(QStringLiteral("name k%1\npitch %2 %2\n").arg(alto).arg(herco).toUtf8()
                + linioj.join(QLatin1Char('\n')).toUtf8());
    }
    return loko;
}

// Runs shell commands, a few at a time.
void paralele(const QVector<QStringList>& komandoj)
{
    const int samtempe = qMax(2, QThread::idealThreadCount());
    QList<QProcess*> kurantaj;
    QString malsukcesa;
    auto atendas = [&](int ghis) {
        while (kurantaj.size() > ghis) {
            QProcess* p = kurantaj.takeFirst();
            p->waitForFinished(-1);
            if (p->exitStatus() != QProcess::NormalExit || p->exitCode() != 0)
                malsukcesa = p->arguments().join(QLatin1Char(' '));
            delete p;
        }
    };
    for (const QStringList& argumentoj : komandoj) {
        atendas(samtempe - 1);
        auto* p = new QProcess;
        p->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p->start(QStringLiteral("sh"), QStringList{QStringLiteral("-c")} + argumentoj);
        kurantaj << p;
    }
    atendas(0);
    if (!malsukcesa.isEmpty())
        eraro(QStringLiteral("failed: ") + malsukcesa);
}

// Where the vowel of a spoken syllable is: the stretch from the first to the
// last 10 ms that reach half the loudest, in samples.
QPair<qint64, qint64> vokalo(const QString& kruda)
{
    QFile f(kruda);
    if (!f.open(QIODevice::ReadOnly))
        eraro(QStringLiteral("cannot read ") + kruda);
    const QByteArray b = f.readAll();
    const auto* s = reinterpret_cast<const qint16*>(b.constData());
    const int fenestro = kRapido / 100;
    QVector<double> fortoj;
    for (int i = 0; i + fenestro <= b.size() / 2; i += fenestro) {
        double sumo = 0;
        for (int j = i; j < i + fenestro; ++j)
            sumo += double(s[j]) * s[j];
        fortoj << sumo;
    }
    if (fortoj.isEmpty())
        eraro(QStringLiteral("a syllable came out silent: ") + kruda);
    const double sojlo = *std::max_element(fortoj.cbegin(), fortoj.cend()) * 0.25;  // half in amplitude
    int de = 0, ghis = fortoj.size() - 1;
    while (fortoj.at(de) < sojlo)
        ++de;
    while (fortoj.at(ghis) < sojlo)
        --ghis;
    return {qint64(de) * fenestro, qint64(ghis + 1) * fenestro};
}

// SoX's tempo effect, as many times as it takes to stretch by a factor it
// does not take at once.
QString tempo(double faktoro)
{
    QString efikoj;
    for (; faktoro < 0.3; faktoro /= 0.5)
        efikoj += QStringLiteral(" tempo -s 0.5 30");
    return efikoj + QStringLiteral(" tempo -s %1 30").arg(faktoro, 0, 'f', 4);
}

// Each syllable sung on its note: spoken, cut to its sound, brought to 90 % of
// the note (the rest is the breath before the next one) and padded to the
// note's exact length, so that the pieces joined keep time. A syllable longer
// than that is pressed as a whole; a shorter one keeps its consonants as
// spoken and holds its vowel, as a singer does.
QString vocxo(const Kanto& k, const QString& loko)
{
    const QString kantisto = kantistaDosierujo(k, loko);
    const QString kruda = QStringLiteral("-t raw -r 44100 -e signed -b 16 -c 1");
    QVector<QStringList> parolas;
    QStringList pecoj;
    QVector<int> kantataj;
    for (int i = 0; i < k.notoj.size(); ++i) {
        const Noto& n = k.notoj.at(i);
        const QString peco = QStringLiteral("%1/p%2").arg(loko).arg(i, 4, 10, QLatin1Char('0'));
        pecoj << peco;
        if (n.silabo.isEmpty())
            continue;
        QString teksto = n.silabo.toLower();
        teksto.remove(QRegularExpression(QStringLiteral("[^\\w]")));
        kantataj << i;
        parolas.push_back({QStringLiteral("espeak-ng --path=\"$1\" -v \"$2\" -s 130 -w \"$3.e.wav\" -- \"$4\" && "
                                          "sox -v 0.7 \"$3.e.wav\" ") + kruda + QStringLiteral(" \"$3.raw\" "
                                          "silence 1 0.005 -38d reverse silence 1 0.005 -38d reverse"),
                           QStringLiteral("sh"), kantisto, k.lingvo + QStringLiteral("+k%1").arg(n.alto), peco,
                           teksto});
    }
    paralele(parolas);

    QVector<QStringList> kantas;
    qint64 konsonantoj = 0;
    for (int i = 0; i < k.notoj.size(); ++i) {
        const Noto& n = k.notoj.at(i);
        const qint64 longo = sonpunkto(k, n.komenco + n.dauro) - sonpunkto(k, n.komenco);
        const QString& peco = pecoj.at(i);
        if (n.silabo.isEmpty()) {
            kantas.push_back({QStringLiteral("sox -r 44100 -c 1 -n -b 16 \"$1.wav\" trim 0 \"$2\"s"),
                              QStringLiteral("sh"),
                              peco, QString::number(longo)});
            continue;
        }
        const qint64 celo = qRound64(longo * 0.9);
        const qint64 tuta = QFileInfo(peco + QStringLiteral(".raw")).size() / 2;
        QPair<qint64, qint64> v = vokalo(peco + QStringLiteral(".raw"));
        v.first = qMax<qint64>(v.first, kRapido / 100);
        v.second = qMin<qint64>(v.second, tuta - kRapido / 100);
        konsonantoj += v.first;
        const qint64 vokala = v.second - v.first;
        const qint64 aliaj = tuta - vokala;
        QString sono, efikoj;
        if (celo <= tuta || vokala < kRapido * 3 / 100 || celo - aliaj < vokala) {
            sono = kruda + QStringLiteral(" \"$1.raw\"");
            efikoj = tempo(double(tuta) / celo);
        } else {
            const QString el = QStringLiteral("\"|sox %1 $1.raw -p trim ").arg(kruda);
            sono = el + QStringLiteral("0 %1s\" ").arg(v.first)
                   + el + QStringLiteral("%1s =%2s").arg(v.first).arg(v.second) + tempo(double(vokala) / (celo - aliaj))
                   + QStringLiteral("\" ") + el + QStringLiteral("%1s\"").arg(v.second);
        }
        kantas.push_back({QStringLiteral("sox -V1 ") + sono
                              + QStringLiteral(" \"$1.wav\"") + efikoj
                              + QStringLiteral(" fade t 0.008 %1s 0.05 pad 0 2 trim 0 \"$2\"s").arg(celo),
                          QStringLiteral("sh"), peco, QString::number(longo)});
    }
    paralele(kantas);

    QStringList dosieroj;
    for (const QString& peco : pecoj)
        dosieroj << peco + QStringLiteral(".wav");
    const QString celo = loko + QStringLiteral("/vocxo.wav");
    // A singer starts the consonants before the beat so that the vowel is on
    // it: the voice comes earlier by the syllables' mean onset.
    const qint64 frue = qMin<qint64>(konsonantoj / qMax(1, kantataj.size()), kRapido * 6 / 100);
    // A little room around the voice, as around the instruments.
    lanchas(QStringLiteral("sox"), dosieroj + QStringList{celo, QStringLiteral("channels"), QStringLiteral("2"),
                                                          QStringLiteral("trim"), QStringLiteral("%1s").arg(frue),
                                                          QStringLiteral("reverb"), QStringLiteral("20")});
    return celo;
}

// ---- listening --------------------------------------------------------------

// Loudness in dB of each second of a sound file, taken from its first channel.
QVector<double> sekundoj(const QString& dosiero)
{
    QProcess p;
    p.start(QStringLiteral("sox"), {dosiero, QStringLiteral("-t"), QStringLiteral("raw"), QStringLiteral("-r"),
                                    QStringLiteral("8000"), QStringLiteral("-e"), QStringLiteral("signed"),
                                    QStringLiteral("-b"), QStringLiteral("16"), QStringLiteral("-"),
                                    QStringLiteral("remix"), QStringLiteral("1")});
    p.waitForFinished(-1);
    const QByteArray b = p.readAllStandardOutput();
    const auto* s = reinterpret_cast<const qint16*>(b.constData());
    const int n = b.size() / 2;
    QVector<double> dB;
    for (int i = 0; i + 8000 <= n; i += 8000) {
        double sumo = 0;
        for (int j = i; j < i + 8000; ++j)
            sumo += double(s[j]) * s[j];
        dB << 10 * std::log10(sumo / 8000 / (32768.0 * 32768.0) + 1e-12);
    }
    return dB;
}

void auskultas(const Kanto& k, const QString& miksajho, const QString& vocxa, double& plejMalforta)
{
    const QVector<double> tuta = sekundoj(miksajho);
    const QVector<double> vocxo = sekundoj(vocxa);
    plejMalforta = 0;
    for (int s = 0; s + 1 < tuta.size(); ++s) {
        plejMalforta = qMin(plejMalforta, tuta.at(s));
        if (tuta.at(s) < -40)
            eraro(QStringLiteral("the song is silent in second %1").arg(s));
    }
    // Each sung bar: the voice must be there.
    for (double t = 0; t < k.longo; t += kTaktaj) {
        bool kantata = false;
        for (const Noto& n : k.notoj)
            kantata |= !n.silabo.isEmpty() && n.komenco >= t && n.komenco < t + kTaktaj;
        const int s = int(t * 60.0 / k.tempo);
        if (kantata && s < vocxo.size() && vocxo.at(s) < -45 && vocxo.value(s + 1, -99) < -45)
            eraro(QStringLiteral("no voice in the bar at second %1").arg(s));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: kantigilo SCORE SOUND_FONT OUT.oga\n");
        return 2;
    }
    const QString partituro = QString::fromLocal8Bit(argv[1]);
    const QString sonfonto = QString::fromLocal8Bit(argv[2]);
    const QString eligo = QString::fromLocal8Bit(argv[3]);
    QElapsedTimer tempo;
    tempo.start();
    try {
        const Kanto k = legas(partituro);
        QTemporaryDir loko;
        loko.setAutoRemove(qEnvironmentVariableIsEmpty("KANTIGILO_GARDU"));
        const QString l = loko.path();

        QFile m(l + QStringLiteral("/kanto.mid"));
        if (!m.open(QIODevice::WriteOnly) || m.write(midi(k)) < 0)
            eraro(QStringLiteral("cannot write the MIDI file"));
        m.close();
        lanchas(QStringLiteral("fluidsynth"), {QStringLiteral("-n"), QStringLiteral("-i"), QStringLiteral("-q"),
                                               QStringLiteral("-g"), QStringLiteral("0.5"), QStringLiteral("-r"),
                                               QString::number(kRapido), QStringLiteral("-F"),
                                               l + QStringLiteral("/akompano.wav"), sonfonto, m.fileName()});
        const QString vocxa = vocxo(k, l);

        // The song ends two seconds after its last bar, fading out its echo.
        const double sekundojEntute = k.longo * 60.0 / k.tempo + 2;
        const QString miksajho = l + QStringLiteral("/kanto.wav");
        lanchas(QStringLiteral("sox"), {QStringLiteral("-V1"), QStringLiteral("-m"), QStringLiteral("-v"),
                                        QStringLiteral("1.0"),
                                        l + QStringLiteral("/akompano.wav"), QStringLiteral("-v"),
                                        QStringLiteral("0.4"), vocxa, miksajho, QStringLiteral("pad"),
                                        QStringLiteral("0"), QStringLiteral("3"), QStringLiteral("trim"),
                                        QStringLiteral("0"), QString::number(sekundojEntute), QStringLiteral("fade"),
                                        QStringLiteral("t"), QStringLiteral("0"), QStringLiteral("0"),
                                        QStringLiteral("2"), QStringLiteral("gain"), QStringLiteral("-n"),
                                        QStringLiteral("-1")});
        double plejMalforta = 0;
        auskultas(k, miksajho, vocxa, plejMalforta);

        QDir().mkpath(QFileInfo(eligo).absolutePath());
        const QString nova = eligo + QStringLiteral(".nova");
        lanchas(QStringLiteral("oggenc"), {QStringLiteral("-Q"), QStringLiteral("-q"), QStringLiteral("4"),
                                           QStringLiteral("-o"), nova, miksajho});
        QFile::remove(eligo);
        if (!QFile::rename(nova, eligo))
            eraro(QStringLiteral("cannot write ") + eligo);
        if (loko.autoRemove() == false)
            std::printf("Kept %s\n", qPrintable(l));
        std::printf("Song: %.1f s, %lld kB, quietest second %.0f dB, made in %.1f s\n", sekundojEntute,
                    QFileInfo(eligo).size() / 1024, plejMalforta, tempo.elapsed() / 1000.0);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kantigilo: %s\n", e.what());
        return 1;
    }
    return 0;
}
