// Writes the course's web site as static files:
//
//   retejilo SOURCE-FOLDER OUTPUT-FOLDER SERVER
//
// SOURCE-FOLDER is the project's root, whose drawings (resources/bildoj) the
// pages show as they are, in SVG; SERVER is the host the site is served
// from, which the pages name in the place of %SERVILO%. The site has the list of languages with their dates,
// every shipped language file, a page on how to use the course for every
// language that has one in resources/retejo/kiel/, and the advice to
// translators, all under /datumoj/ where the program looks for them.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTextStream>

#include <cstdio>

namespace {

struct Lingvo
{
    QString dosiero;   // angla.trd
    QString id;        // LingvoID of the file
    QString nomo;      // Lingvo of the file
    QString dato;
    bool dekstreMaldekstren = false;
};

QList<Lingvo> lingvojDe(const QString& ujo)
{
    QList<Lingvo> lingvoj;
    for (const QString& dosiero : QDir(ujo, QStringLiteral("*.trd"), QDir::Name, QDir::Files).entryList()) {
        QSettings kapo(ujo + QLatin1Char('/') + dosiero, QSettings::IniFormat);
        kapo.setIniCodec("UTF-8");
        kapo.beginGroup(QStringLiteral("Traduko"));
        lingvoj << Lingvo{dosiero, kapo.value(QStringLiteral("LingvoID")).toString(),
                          kapo.value(QStringLiteral("Lingvo")).toString(), kapo.value(QStringLiteral("Dato")).toString(),
                          kapo.value(QStringLiteral("Direkto")).toString() == QLatin1String("RTL")};
    }
    return lingvoj;
}

bool skribas(const QString& vojo, const QByteArray& enhavo)
{
    QDir().mkpath(QFileInfo(vojo).path());
    QSaveFile f(vojo);
    if (!f.open(QIODevice::WriteOnly) || f.write(enhavo) != enhavo.size() || !f.commit()) {
        std::fprintf(stderr, "retejilo: cannot write %s\n", qPrintable(vojo));
        return false;
    }
    return true;
}

QString servilo;   // the host of the site

QString legas(const QString& vojo)
{
    QFile f(vojo);
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(f.readAll()).replace(QStringLiteral("%SERVILO%"), servilo);
}

// The list the program reads: one group a language, numbered from 0, in the
// order of the file names; CR LF like every file the program reads.
QByteArray traduklisto(const QList<Lingvo>& lingvoj)
{
    QString teksto;
    for (int i = 0; i < lingvoj.size() && i < 200; ++i) {
        const Lingvo& l = lingvoj.at(i);
        teksto += QStringLiteral("[%1]\r\nLingvoID=%2\r\nLingvo=%3\r\nDosierNomo=%4\r\nDato=%5\r\n\r\n")
                      .arg(i).arg(l.id, l.nomo, l.dosiero, l.dato);
    }
    return teksto.toUtf8();
}

QString htmlEskapo(const QString& teksto)
{
    return teksto.toHtmlEscaped();
}

// The language of a page as browsers know it: the course's own codes differ
// from the standard ones for four languages.
QString htmlLingvo(const QString& id)
{
    static const QHash<QString, QString> aliaj = {
        {QStringLiteral("ch"), QStringLiteral("zh")}, {QStringLiteral("jp"), QStringLiteral("ja")},
        {QStringLiteral("la"), QStringLiteral("lv")}, {QStringLiteral("li"), QStringLiteral("lt")}};
    return aliaj.value(id, id);
}

// A page's text in its source form: "# " a title, "## " a heading, "- " an
// item of a list, "[bildo PATH Text of the picture]" a drawing of the course,
// an empty line between paragraphs. The text may hold <b>, <i> and <kbd>.
// PATH is that of a drawing under resources/bildoj.
struct Pagho
{
    QString titolo;
    QString korpo;
    QStringList bildoj;
};

Pagho tradukas(const QString& fonto)
{
    static const QRegularExpression bildo(QStringLiteral("^\\[bildo (\\S+) (.*)\\]$"));
    enum { Nenio, Alineo, Listo } stato = Nenio;
    Pagho p;
    QStringList alineo;
    auto fermas = [&] {
        if (stato == Alineo)
            p.korpo += QStringLiteral("<p>") + alineo.join(QLatin1Char(' ')) + QStringLiteral("</p>\n");
        else if (stato == Listo)
            p.korpo += QStringLiteral("</ul>\n");
        alineo.clear();
        stato = Nenio;
    };
    for (const QString& kruda : fonto.split(QLatin1Char('\n'))) {
        const QString linio = kruda.trimmed();
        const auto m = bildo.match(linio);
        if (linio.isEmpty()) {
            fermas();
        } else if (linio.startsWith(QLatin1String("## "))) {
            fermas();
            p.korpo += QStringLiteral("<h2>") + linio.mid(3) + QStringLiteral("</h2>\n");
        } else if (linio.startsWith(QLatin1String("# "))) {
            fermas();
            p.titolo = linio.mid(2);
        } else if (linio.startsWith(QLatin1String("- "))) {
            if (stato != Listo) {
                fermas();
                p.korpo += QStringLiteral("<ul>\n");
                stato = Listo;
            }
            p.korpo += QStringLiteral("<li>") + linio.mid(2) + QStringLiteral("</li>\n");
        } else if (m.hasMatch()) {
            fermas();
            p.bildoj << m.captured(1);
            p.korpo += QStringLiteral("<figure><img src=\"bildoj/%1\" alt=\"\"><figcaption>%2</figcaption></figure>\n")
                           .arg(QFileInfo(m.captured(1)).fileName(), m.captured(2));
        } else {
            if (stato != Alineo) {
                fermas();
                stato = Alineo;
            }
            alineo << linio;
        }
    }
    fermas();
    return p;
}

QString htmlPagho(const QString& lingvo, bool rtl, const QString& titolo, const QString& navigo,
                  const QString& korpo, const QString& stilo)
{
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\" dir=\"%2\">\n<head>\n<meta charset=\"utf-8\">\n"
                          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                          "<title>%3</title>\n<link rel=\"stylesheet\" href=\"%4\">\n</head>\n<body>\n%5"
                          "<main>\n<h1>%3</h1>\n%6</main>\n</body>\n</html>\n")
        .arg(lingvo, rtl ? QStringLiteral("rtl") : QStringLiteral("ltr"), titolo, stilo, navigo, korpo);
}

// The languages a help page exists in, each a link to its page.
QString lingvaNavigo(const QList<Lingvo>& kunPagho, const QString& nuna)
{
    QString navigo = QStringLiteral("<nav>\n<ul class=\"lingvoj\">\n");
    for (const Lingvo& l : kunPagho) {
        const QString pagho = QStringLiteral("kiel_") + QFileInfo(l.dosiero).completeBaseName() + QStringLiteral(".html");
        if (l.dosiero == nuna)
            navigo += QStringLiteral("<li><strong lang=\"%1\">%2</strong></li>\n").arg(htmlLingvo(l.id), htmlEskapo(l.nomo));
        else
            navigo += QStringLiteral("<li><a href=\"%1\" lang=\"%2\" hreflang=\"%2\">%3</a></li>\n")
                          .arg(pagho, htmlLingvo(l.id), htmlEskapo(l.nomo));
    }
    return navigo + QStringLiteral("</ul>\n</nav>\n");
}

bool kopias(const QString& de, const QString& al)
{
    QDir().mkpath(QFileInfo(al).path());
    QFile::remove(al);
    if (!QFile::copy(de, al)) {
        std::fprintf(stderr, "retejilo: cannot copy %s\n", qPrintable(de));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4) {
        std::fprintf(stderr, "usage: retejilo SOURCE-FOLDER OUTPUT-FOLDER SERVER\n");
        return 2;
    }
    const QString fonto = args.at(1), celo = args.at(2);
    const QString bildujo = fonto + QStringLiteral("/resources/bildoj");
    servilo = QString(args.at(3)).remove(QRegularExpression(QStringLiteral(":.*")));
    const QString tradukujo = fonto + QStringLiteral("/resources/tradukoj");
    const QString retejujo = fonto + QStringLiteral("/resources/retejo");
    const QString datumoj = celo + QStringLiteral("/datumoj");
    // Written anew each time, so that nothing removed from the sources stays.
    for (const QString& ujo : {datumoj, celo + QStringLiteral("/monitoroj")})
        QDir(ujo).removeRecursively();
    const QList<Lingvo> lingvoj = lingvojDe(tradukujo);
    bool bone = !lingvoj.isEmpty();

    bone &= skribas(datumoj + QStringLiteral("/traduklisto.ini"), traduklisto(lingvoj));
    for (const Lingvo& l : lingvoj)
        bone &= kopias(tradukujo + QLatin1Char('/') + l.dosiero, datumoj + QStringLiteral("/tradukoj/") + l.dosiero);

    const QString stilo = legas(retejujo + QStringLiteral("/stilo.css"));
    bone &= skribas(datumoj + QStringLiteral("/stilo.css"), stilo.toUtf8());

    // The advice to translators, and how to find a course monitor: each in
    // Esperanto and English on one page.
    const std::pair<const char*, QString> duLingvaj[] = {
        {"rekomendoj.txt", datumoj + QStringLiteral("/tradukoj/rekomendoj.html")},
        {"monitoroj.txt", celo + QStringLiteral("/monitoroj/index.html")}};
    for (const auto& [nomo, vojo] : duLingvaj) {
        const Pagho p = tradukas(legas(retejujo + QLatin1Char('/') + QLatin1String(nomo)));
        bone &= !p.titolo.isEmpty();
        const QString stiloVojo = QDir(QFileInfo(vojo).path()).relativeFilePath(datumoj + QStringLiteral("/stilo.css"));
        bone &= skribas(vojo, htmlPagho(QStringLiteral("eo"), false, p.titolo, QString(), p.korpo, stiloVojo).toUtf8());
    }

    QList<Lingvo> kunPagho;
    QStringList mankas;
    for (const Lingvo& l : lingvoj) {
        if (QFile::exists(retejujo + QStringLiteral("/kiel/") + QFileInfo(l.dosiero).completeBaseName() + QStringLiteral(".txt")))
            kunPagho << l;
        else
            mankas << l.dosiero;
    }
    for (const Lingvo& l : kunPagho) {
        const QString baza = QFileInfo(l.dosiero).completeBaseName();
        const Pagho p = tradukas(legas(retejujo + QStringLiteral("/kiel/") + baza + QStringLiteral(".txt")));
        if (p.titolo.isEmpty()) {
            std::fprintf(stderr, "retejilo: kiel/%s.txt has no title line\n", qPrintable(baza));
            bone = false;
        }
        for (const QString& b : p.bildoj)
            bone &= kopias(bildujo + QLatin1Char('/') + b, datumoj + QStringLiteral("/kiel/bildoj/") + QFileInfo(b).fileName());
        bone &= skribas(datumoj + QStringLiteral("/kiel/kiel_") + baza + QStringLiteral(".html"),
                        htmlPagho(htmlLingvo(l.id), l.dekstreMaldekstren, p.titolo, lingvaNavigo(kunPagho, l.dosiero),
                                  p.korpo, QStringLiteral("../stilo.css")).toUtf8());
    }
    if (!mankas.isEmpty())
        std::fprintf(stderr, "retejilo: no page on how to use the course yet for %s\n", qPrintable(mankas.join(QStringLiteral(", "))));
    std::printf("retejilo: %d languages, %d help pages, in %s\n", int(lingvoj.size()), int(kunPagho.size()), qPrintable(celo));
    return bone ? 0 : 1;
}
