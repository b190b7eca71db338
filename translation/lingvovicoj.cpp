#include "funkcioj.h"
#include "inidosiero.h"

#include <QFile>
#include <QSettings>

QStringList listaVico(QSettings& listo, int grupo)
{
    const QString demando = QStringLiteral("?????????");
    listo.beginGroup(QString::number(grupo));
    const QStringList vico = {listo.value(QStringLiteral("LingvoID"), QStringLiteral("??")).toString(),
                              listo.value(QStringLiteral("Lingvo"), demando).toString(),
                              listo.value(QStringLiteral("DosierNomo"), demando).toString(),
                              listo.value(QStringLiteral("Dato"), demando).toString()};
    listo.endGroup();
    return vico;
}

QStringList dosieraVico(const QString& nomo, const QString& datoDefaulto)
{
    const QHash<QString, QString> kapo = legasKapon(QStringLiteral(":/tradukoj/") + nomo);
    return {kapo.value(QStringLiteral("LingvoID"), QStringLiteral("??")),
            kapo.value(QStringLiteral("Lingvo"), QStringLiteral("?????????")),
            nomo,
            kapo.value(QStringLiteral("Dato"), datoDefaulto)};
}

namespace {

// The reading below follows QSettings' INI format closely enough that a
// group reads the same either way: a language file is 170 KB, and QSettings
// goes through all of it when only a header or a few groups are wanted.

// One logical line: a quoted value may run over line ends, a backslash
// escapes the next character (a line end too), and ';' outside quotes begins
// a comment that lasts to the end of the line.
struct Linio {
    int komenco = 0, fino = 0, egaleco = -1;
};

bool legasLinion(const QByteArray& d, int& i, Linio& l)
{
    const int n = d.size();
    for (;;) {
        while (i < n && (d.at(i) == '\n' || d.at(i) == '\r'))
            ++i;
        if (i >= n)
            return false;
        if (d.at(i) != ';')
            break;
        while (i < n && d.at(i) != '\n' && d.at(i) != '\r')
            ++i;
    }
    l = Linio();
    l.komenco = i;
    bool citajho = false;
    for (; i < n; ++i) {
        const char c = d.at(i);
        if (c == '=') {
            if (l.egaleco < 0)
                l.egaleco = i;
        } else if (c == '\n' || c == '\r') {
            if (!citajho)
                break;
        } else if (c == '\\') {
            if (++i < n && i + 1 < n) {
                const char c1 = d.at(i), c2 = d.at(i + 1);
                if ((c1 == '\n' && c2 == '\r') || (c1 == '\r' && c2 == '\n'))
                    ++i;
            }
        } else if (c == '"') {
            citajho = !citajho;
        } else if (c == ';' && !citajho) {
            break;
        }
    }
    l.fino = qMin(i, n);
    return true;
}

int deksesuma(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// A key or group name: %XX and %UXXXX stand for one character each.
QString malfermasNomon(const QByteArray& d, int de, int ghis)
{
    QString nomo;
    for (int i = de; i < ghis; ++i) {
        const char c = d.at(i);
        if (c == '%' && i + 5 < ghis && d.at(i + 1) == 'U') {
            int kodo = 0, j = i + 2;
            for (; j < i + 6 && deksesuma(d.at(j)) >= 0; ++j)
                kodo = kodo * 16 + deksesuma(d.at(j));
            if (j == i + 6) {
                nomo += QChar(kodo);
                i = j - 1;
                continue;
            }
        } else if (c == '%' && i + 2 < ghis && deksesuma(d.at(i + 1)) >= 0 && deksesuma(d.at(i + 2)) >= 0) {
            nomo += QChar(deksesuma(d.at(i + 1)) * 16 + deksesuma(d.at(i + 2)));
            i += 2;
            continue;
        }
        nomo += c == '\\' ? QChar('/') : QChar(QLatin1Char(c));
    }
    return nomo;
}

// A group name as it stands in the file: letters outside the plain set
// percent-escaped as QSettings writes them.
QByteArray fermasNomon(const QString& nomo)
{
    QByteArray rezulto;
    for (const QChar c : nomo) {
        const ushort u = c.unicode();
        if ((u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_' || u == '-' || u == '.')
            rezulto += char(u);
        else if (u <= 0xFF)
            rezulto += '%' + QByteArray::number(u, 16).toUpper().rightJustified(2, '0');
        else
            rezulto += "%U" + QByteArray::number(u, 16).toUpper().rightJustified(4, '0');
    }
    return rezulto;
}

void detranchasSpacojn(QString& s, int limo)
{
    int fino = s.size();
    while (fino > limo && (s.at(fino - 1) == QLatin1Char(' ') || s.at(fino - 1) == QLatin1Char('\t')))
        --fino;
    s.truncate(fino);
}

// A value as QSettings gives it as text: quotes and escapes resolved, and a
// list (a comma outside quotes) read as an empty text.
QString malfermasValoron(const QByteArray& d, int i, int ghis)
{
    static const char kodoj[][2] = {{'a', '\a'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'},
                                    {'v', '\v'}, {'"', '"'}, {'?', '?'}, {'\'', '\''}, {'\\', '\\'}};
    QString rezulto;
    bool citajho = false, citita = false, listo = false;
    auto preterSpacoj = [&] {
        while (i < ghis && (d.at(i) == ' ' || d.at(i) == '\t'))
            ++i;
    };
    preterSpacoj();
    int limo = 0;
    while (i < ghis) {
        const char c = d.at(i);
        if (c == '\\') {
            if (++i >= ghis)
                break;
            const char e = d.at(i++);
            bool trovita = false;
            for (const auto& k : kodoj) {
                if (e == k[0]) {
                    rezulto += QLatin1Char(k[1]);
                    trovita = true;
                    break;
                }
            }
            if (!trovita && e == 'x') {
                int kodo = 0;
                while (i < ghis && deksesuma(d.at(i)) >= 0)
                    kodo = kodo * 16 + deksesuma(d.at(i++));
                rezulto += QChar(kodo);
            } else if (!trovita && e >= '0' && e <= '7') {
                int kodo = e - '0';
                while (i < ghis && d.at(i) >= '0' && d.at(i) <= '7')
                    kodo = kodo * 8 + (d.at(i++) - '0');
                rezulto += QChar(kodo);
            } else if (!trovita && (e == '\n' || e == '\r')) {
                if (i < ghis && (d.at(i) == '\n' || d.at(i) == '\r') && d.at(i) != e)
                    ++i;
            }
            limo = rezulto.size();
        } else if (c == '"') {
            ++i;
            citita = true;
            citajho = !citajho;
            if (!citajho) {
                preterSpacoj();
                limo = rezulto.size();
            }
        } else if (c == ',' && !citajho) {
            listo = true;
            break;
        } else {
            int j = i + 1;
            while (j < ghis && d.at(j) != '\\' && d.at(j) != '"' && d.at(j) != ',')
                ++j;
            rezulto += QString::fromUtf8(d.constData() + i, j - i);
            i = j;
        }
    }
    if (listo)
        return QString();
    if (!citita)
        detranchasSpacojn(rezulto, limo);
    if (rezulto.startsWith(QLatin1String("@@")))
        rezulto.remove(0, 1);
    else if (rezulto.startsWith(QLatin1String("@String(")) && rezulto.endsWith(QLatin1Char(')')))
        rezulto = rezulto.mid(8, rezulto.size() - 9);
    return rezulto;
}

} // namespace

QHash<QString, QHash<QString, QString>> legasGrupojn(const QString& vojo, const QStringList& grupoj)
{
    QHash<QString, QHash<QString, QString>> rezulto;
    QFile dosiero(vojo);
    if (!dosiero.open(QIODevice::ReadOnly))
        return rezulto;
    const QByteArray d = dosiero.readAll();
    QHash<QByteArray, QString> serchataj;
    for (const QString& grupo : grupoj)
        serchataj.insert(fermasNomon(grupo), grupo);
    // From group line to group line, reading only the wanted groups, and
    // done when the last of them has been read: the header and the main
    // window's groups stand near the top, the lessons' bulk below them. A
    // group is read where it first stands (QSettings would also merge in a
    // second copy, which no file written by QSettings has).
    for (int de = d.indexOf('['); de >= 0 && !serchataj.isEmpty();) {
        if (de > 0 && d.at(de - 1) != '\n' && d.at(de - 1) != '\r') {
            de = d.indexOf('[', de + 1);
            continue;
        }
        int i = de;
        Linio l;
        legasLinion(d, i, l);   // the group's own line
        int fino = d.indexOf(']', l.komenco);
        if (fino < 0 || fino >= l.fino)
            fino = l.fino;
        const QString grupo = serchataj.take(d.mid(l.komenco + 1, fino - l.komenco - 1).trimmed());
        QHash<QString, QString>* shlosiloj = grupo.isEmpty() ? nullptr : &rezulto[grupo];
        de = -1;
        while (legasLinion(d, i, l)) {
            if (d.at(l.komenco) == '[') {
                de = l.komenco;
                break;
            }
            if (!shlosiloj || l.egaleco < 0)
                continue;
            int shlosFino = l.egaleco;
            while (shlosFino > l.komenco && (d.at(shlosFino - 1) == ' ' || d.at(shlosFino - 1) == '\t'))
                --shlosFino;
            shlosiloj->insert(malfermasNomon(d, l.komenco, shlosFino), malfermasValoron(d, l.egaleco + 1, l.fino));
        }
    }
    return rezulto;
}

QHash<QString, QString> legasKapon(const QString& vojo)
{
    return legasGrupojn(vojo, {QStringLiteral("Traduko")}).value(QStringLiteral("Traduko"));
}
