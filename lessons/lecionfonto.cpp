#include "lecionfonto.h"
#include "klasregistro.h"
#include "funkcioj.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

bool LecionEro::estasAranghilo() const
{
    return klaso == QLatin1String("QVBoxLayout") || klaso == QLatin1String("QHBoxLayout");
}

bool LecionEro::estasSpaco() const
{
    return klaso == QLatin1String("spaco") || klaso == QLatin1String("hspaco");
}

QString LecionEraro::teksto() const
{
    return QStringLiteral("%1:%2: %3").arg(dosiero).arg(linio).arg(kialo);
}

namespace {

// The kinds of line a page holds, with the class each one makes.
struct Speco
{
    const char* nomo;
    const char* klaso;
    char numerado;      // 'L': a bare number means LecNN_LabelM, 'B': LecNN_ButtonM
    bool ujo;           // may hold other lines
    const char* bildo;  // picture it carries by default
};

const Speco specoj[] = {
    {"titolo", "titolo", 'L', false, nullptr},
    {"etikedo", "QLabel", 'L', false, nullptr},
    {"vorto", "klakbutono_nova", 'B', false, nullptr},
    {"silenta", "neklakebla_nova", 'B', false, nullptr},
    {"korekta", "korekta", 'B', false, nullptr},
    {"sago", "label_sago", 0, false, "ikonoj/sago_antauen.png"},
    {"revena", "label_sago_reversa", 0, false, "ikonoj/sago_revena.png"},
    {"egala", "QLabel", 0, false, "ikonoj/egala.png"},
    {"bildo", "QLabel", 0, false, nullptr},
    {"kampo", "cx_edit", 0, false, nullptr},
    {"linio", "QLineEdit", 0, false, nullptr},
    {"plurlinio", "QPlainTextEdit", 0, false, nullptr},
    {"cxplurlinio", "cx_plainedit", 0, false, nullptr},
    {"v", "QVBoxLayout", 0, true, nullptr},
    {"h", "QHBoxLayout", 0, true, nullptr},
    {"kadro", "QFrame", 0, true, nullptr},
    {"rulumo", "QScrollArea", 0, true, nullptr},
    {"spaco", "spaco", 0, false, nullptr},
    {"hspaco", "hspaco", 0, false, nullptr},
};

const Speco* trovasSpecon(const QString& nomo)
{
    for (const Speco& s : specoj) {
        if (nomo == QLatin1String(s.nomo))
            return &s;
    }
    return nullptr;
}

const QStringList atributNomoj = {
    QStringLiteral("tipo"), QStringLiteral("lingvo"), QStringLiteral("bildo"),
    QStringLiteral("amiko"), QStringLiteral("vicigo"), QStringLiteral("faldo"),
    QStringLiteral("skalo"), QStringLiteral("ligilo"), QStringLiteral("arangho"),
    QStringLiteral("kampo"),
};

const QStringList vicigoj = {
    QStringLiteral("maldekstre"), QStringLiteral("dekstre"), QStringLiteral("hcentro"),
    QStringLiteral("supre"), QStringLiteral("sube"), QStringLiteral("vcentro"),
    QStringLiteral("centro"),
};

// One line of the file, cut into its pieces.
struct Linio
{
    int numero = 0;
    int krommargheno = 0;
    QStringList vortoj;     // kind, name, attributes
    QString teksto;
    bool havasTekston = false;
};

QString malkashas(const QString& teksto)
{
    QString rezulto;
    rezulto.reserve(teksto.size());
    for (int i = 0; i < teksto.size(); ++i) {
        const QChar c = teksto.at(i);
        if (c == QLatin1Char('\\') && i + 1 < teksto.size()) {
            const QChar sekva = teksto.at(i + 1);
            if (sekva == QLatin1Char('n')) {
                rezulto += QLatin1Char('\n');
                ++i;
                continue;
            }
            if (sekva == QLatin1Char('\\')) {
                rezulto += QLatin1Char('\\');
                ++i;
                continue;
            }
        }
        rezulto += c;
    }
    return rezulto;
}

class Leganto
{
public:
    Leganto(lecionfonto& fonto) : f(fonto) {}

    void legas(const QString& teksto);

private:
    void eraro(int linio, const QString& kialo)
    {
        f.eraroj.append({f.dosiero, linio, kialo});
    }

    bool disigas(const QString& kruda, int numero, Linio& linio);
    void legasKapon(const Linio& l);
    void legasIdojn(int& i, int gepatra, QVector<LecionEro>& idoj);
    void preterlasas(int& i, int nivelo);
    bool faras(const Linio& l, QVector<LecionEro>& idoj, bool& ujo);
    bool legasNomonKajAtributojn(const Linio& l, int de, const Speco* speco,
                                 QString& nomo, QHash<QString, QString>& atributoj);
    QString kompletigas(const QString& nomo, char numerado) const;
    void donasNomojn(QVector<LecionEro>& eroj);
    QString novaNomo(const QString& bazo);
    void kolektasNomojn(const QVector<LecionEro>& eroj);
    void kontrolasAmikojn(const QVector<LecionEro>& eroj);

    void kontrolasNumeron();

    lecionfonto& f;
    QVector<Linio> linioj;
    QSet<QString> uzataj;
    int numeroLinio = 0;
    QHash<QString, int> nombriloj;
};

bool Leganto::disigas(const QString& kruda, int numero, Linio& linio)
{
    QString l = kruda;
    while (l.endsWith(QLatin1Char('\r')) || l.endsWith(QLatin1Char(' ')))
        l.chop(1);
    int k = 0;
    while (k < l.size() && (l.at(k) == QLatin1Char(' ') || l.at(k) == QLatin1Char('\t'))) {
        if (l.at(k) == QLatin1Char('\t')) {
            eraro(numero, QStringLiteral("a tab in the indentation; indent with blanks"));
            return false;
        }
        ++k;
    }
    if (k == l.size() || l.at(k) == QLatin1Char('#'))
        return false;

    linio.numero = numero;
    linio.krommargheno = k;
    QString kapo = l.mid(k);
    const int egala = kapo.indexOf(QLatin1String(" = "));
    if (egala >= 0) {
        linio.teksto = malkashas(kapo.mid(egala + 3));
        linio.havasTekston = true;
        kapo.truncate(egala);
    } else if (kapo.endsWith(QLatin1String(" ="))) {
        linio.havasTekston = true;
        kapo.chop(2);
    }
    linio.vortoj = kapo.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return true;
}

void Leganto::legas(const QString& teksto)
{
    const QStringList krudaj = teksto.split(QLatin1Char('\n'));
    for (int n = 0; n < krudaj.size(); ++n) {
        Linio l;
        if (disigas(krudaj.at(n), n + 1, l))
            linioj.append(l);
    }

    int i = 0;
    while (i < linioj.size()) {
        const Linio& l = linioj.at(i);
        if (l.krommargheno > 0) {
            eraro(l.numero, QStringLiteral("this line stands inside nothing; begin the page with a 'pagho' line"));
            ++i;
            continue;
        }
        if (l.vortoj.value(0) != QLatin1String("pagho")) {
            legasKapon(l);
            ++i;
            continue;
        }
        if (l.vortoj.size() != 4 || l.havasTekston) {
            eraro(l.numero, QStringLiteral("a page is written 'pagho NAME TEXT ICON'"));
            ++i;
            preterlasas(i, 0);
            continue;
        }
        LecionPagho pagho;
        pagho.linio = l.numero;
        pagho.nomo = l.vortoj.at(1);
        pagho.teksto = l.vortoj.at(2);
        const QString ikono = l.vortoj.at(3);
        if (ikono != QLatin1String("-"))
            pagho.ikono = ikono.contains(QLatin1Char('/')) ? QStringLiteral(":/") + ikono
                                                            : QStringLiteral(":/ikonoj/") + ikono;
        ++i;
        legasIdojn(i, 0, pagho.idoj);
        f.paghoj.append(pagho);
    }

    if (f.numero.isEmpty())
        eraro(1, QStringLiteral("the file does not say which lesson it is: 'leciono NN' is missing"));
    kontrolasNumeron();

    // Names: first every name the author wrote, then names for the rest.
    uzataj.insert(f.langetujo());
    for (const LecionPagho& p : qAsConst(f.paghoj)) {
        if (uzataj.contains(p.nomo))
            eraro(p.linio, QStringLiteral("the name %1 is used twice").arg(p.nomo));
        uzataj.insert(p.nomo);
        kolektasNomojn(p.idoj);
    }
    for (LecionPagho& p : f.paghoj) {
        p.aranghilo = novaNomo(QStringLiteral("verticalLayout"));
        donasNomojn(p.idoj);
    }
    for (const LecionPagho& p : qAsConst(f.paghoj))
        kontrolasAmikojn(p.idoj);
}

// The lesson's number names the groups of its saved answers and its
// translations: a source that claims another lesson than its file name says
// would put them into another lesson's groups, so it is refused whole.
void Leganto::kontrolasNumeron()
{
    static const QRegularExpression nomo(QStringLiteral("(?:^|/)lec(\\d\\d)\\.lec$"));
    const QString laNomo = nomo.match(f.dosiero).captured(1);
    if (laNomo.isEmpty() || f.numero.isEmpty() || laNomo == f.numero)
        return;
    eraro(numeroLinio, QStringLiteral("the file is lesson %1 by its name but says 'leciono %2'; nothing of it is built")
                           .arg(laNomo, f.numero));
    f.numero = laNomo;
    f.paghoj.clear();
    f.konektoj.clear();
}

void Leganto::kontrolasAmikojn(const QVector<LecionEro>& eroj)
{
    for (const LecionEro& e : eroj) {
        const QString amiko = e.atributoj.value(QStringLiteral("amiko"));
        if (!amiko.isEmpty() && !uzataj.contains(amiko))
            eraro(e.linio, QStringLiteral("the buddy %1 names no widget of this lesson").arg(amiko));
        kontrolasAmikojn(e.idoj);
    }
}

void Leganto::legasKapon(const Linio& l)
{
    const QString vorto = l.vortoj.value(0);
    if (vorto == QLatin1String("leciono")) {
        static const QRegularExpression du(QStringLiteral("^\\d\\d$"));
        if (l.vortoj.size() != 2 || !du.match(l.vortoj.at(1)).hasMatch())
            eraro(l.numero, QStringLiteral("the lesson is written 'leciono NN' with two digits"));
        else
            f.numero = l.vortoj.at(1), numeroLinio = l.numero;
    } else if (vorto == QLatin1String("nuna")) {
        bool bone = false;
        const int n = l.vortoj.value(1).toInt(&bone);
        if (l.vortoj.size() != 2 || !bone || n < 0)
            eraro(l.numero, QStringLiteral("the stored tab is written 'nuna N'"));
        else
            f.nuna = n;
    } else if (vorto == QLatin1String("konekto")) {
        if (l.vortoj.size() != 5)
            eraro(l.numero, QStringLiteral("a connection is written 'konekto SENDER SIGNAL RECEIVER SLOT'"));
        else
            f.konektoj.append({l.numero, l.vortoj.at(1), l.vortoj.at(2), l.vortoj.at(3), l.vortoj.at(4)});
    } else {
        eraro(l.numero, QStringLiteral("'%1' cannot stand at the left margin; only leciono, nuna, konekto and pagho can").arg(vorto));
    }
}

void Leganto::preterlasas(int& i, int nivelo)
{
    while (i < linioj.size() && linioj.at(i).krommargheno > nivelo)
        ++i;
}

void Leganto::legasIdojn(int& i, int gepatra, QVector<LecionEro>& idoj)
{
    int nivelo = -1;
    while (i < linioj.size() && linioj.at(i).krommargheno > gepatra) {
        const Linio& l = linioj.at(i);
        if (nivelo < 0)
            nivelo = l.krommargheno;
        if (l.krommargheno != nivelo) {
            eraro(l.numero, QStringLiteral("the indentation matches no line above it"));
            ++i;
            preterlasas(i, l.krommargheno);
            continue;
        }
        bool ujo = false;
        const int antaue = idoj.size();
        const bool bone = faras(l, idoj, ujo);
        ++i;
        if (i < linioj.size() && linioj.at(i).krommargheno > nivelo) {
            if (bone && ujo) {
                legasIdojn(i, nivelo, idoj.last().idoj);
            } else {
                if (bone)
                    eraro(linioj.at(i).numero, QStringLiteral("'%1' cannot hold other lines").arg(l.vortoj.value(0)));
                preterlasas(i, nivelo);
            }
        }
        if (bone && ujo && idoj.size() > antaue) {
            const LecionEro& e = idoj.last();
            if (e.klaso == QLatin1String("QScrollArea") || e.klaso == QLatin1String("QFrame")) {
                if (e.atributoj.value(QStringLiteral("arangho")) == QLatin1String("neniu")) {
                    for (const LecionEro& ido : e.idoj) {
                        if (ido.estasAranghilo() || ido.estasSpaco())
                            eraro(ido.linio, QStringLiteral("a box without layout cannot hold rows, columns or stretch"));
                    }
                }
            }
        }
    }
}

QString Leganto::kompletigas(const QString& nomo, char numerado) const
{
    static const QRegularExpression cifereca(QStringLiteral("^\\d+$"));
    if (!numerado || !cifereca.match(nomo).hasMatch())
        return nomo;
    return QStringLiteral("Lec") + f.numero
           + (numerado == 'L' ? QStringLiteral("_Label") : QStringLiteral("_Button")) + nomo;
}

bool Leganto::legasNomonKajAtributojn(const Linio& l, int de, const Speco* speco,
                                      QString& nomo, QHash<QString, QString>& atributoj)
{
    static const QRegularExpression cifereca(QStringLiteral("^\\d+$"));
    static const QRegularExpression bonaNomo(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    for (int k = de; k < l.vortoj.size(); ++k) {
        const QString& v = l.vortoj.at(k);
        const int egala = v.indexOf(QLatin1Char('='));
        if (egala < 0) {
            if (!nomo.isEmpty() || k != de) {
                eraro(l.numero, QStringLiteral("'%1' is neither the name nor an attribute (key=value); is ' = ' missing before the text?").arg(v));
                return false;
            }
            const char numerado = speco ? speco->numerado : 0;
            if (cifereca.match(v).hasMatch() && !numerado) {
                eraro(l.numero, QStringLiteral("a bare number names only titolo, etikedo, vorto, silenta and korekta"));
                return false;
            }
            nomo = kompletigas(v, numerado);
            if (!bonaNomo.match(nomo).hasMatch()) {
                eraro(l.numero, QStringLiteral("'%1' is not a valid object name").arg(v));
                return false;
            }
            continue;
        }
        const QString sh = v.left(egala);
        const QString valoro = v.mid(egala + 1);
        if (!atributNomoj.contains(sh)) {
            eraro(l.numero, QStringLiteral("unknown attribute '%1'").arg(sh));
            return false;
        }
        if (valoro.isEmpty()) {
            eraro(l.numero, QStringLiteral("the attribute '%1' has no value").arg(sh));
            return false;
        }
        if (sh == QLatin1String("vicigo")) {
            for (const QString& parto : valoro.split(QLatin1Char('+'))) {
                if (!vicigoj.contains(parto)) {
                    eraro(l.numero, QStringLiteral("unknown alignment '%1'").arg(parto));
                    return false;
                }
            }
        }
        if ((sh == QLatin1String("faldo") || sh == QLatin1String("skalo") || sh == QLatin1String("ligilo"))
            && valoro != QLatin1String("jes") && valoro != QLatin1String("ne")) {
            eraro(l.numero, QStringLiteral("'%1' is 'jes' or 'ne'").arg(sh));
            return false;
        }
        if (sh == QLatin1String("arangho") && valoro != QLatin1String("neniu")) {
            eraro(l.numero, QStringLiteral("'arangho' knows only the value 'neniu'"));
            return false;
        }
        atributoj.insert(sh, valoro);
    }
    return true;
}

bool Leganto::faras(const Linio& l, QVector<LecionEro>& idoj, bool& ujo)
{
    const QString speco = l.vortoj.value(0);
    const bool duobla = speco == QLatin1String("par") || speco == QLatin1String("sub")
                        || speco == QLatin1String("spar") || speco == QLatin1String("ssub");

    if (duobla || speco == QLatin1String("demando")) {
        const int bezonataj = duobla ? 3 : 4;
        if (l.vortoj.size() < bezonataj || (duobla && !l.havasTekston)) {
            eraro(l.numero, duobla
                ? QStringLiteral("write '%1 WORD MEANING = word | meaning'").arg(speco)
                : QStringLiteral("write 'demando LABEL FIELD ANSWER = question | answer'"));
            return false;
        }
        // A question may still lack its texts; a word never lacks its meaning.
        const int streko = l.teksto.indexOf(QLatin1String(" | "));
        if (duobla && streko < 0) {
            eraro(l.numero, QStringLiteral("the two texts are separated by ' | '"));
            return false;
        }
        const QString unua = streko < 0 ? l.teksto : l.teksto.left(streko);
        const QString dua = streko < 0 ? QString() : l.teksto.mid(streko + 3);
        QHash<QString, QString> atributoj;
        QString nenio;
        Linio resto = l;
        resto.vortoj = l.vortoj.mid(bezonataj);
        if (!legasNomonKajAtributojn(resto, 0, nullptr, nenio, atributoj))
            return false;
        if (duobla && atributoj.contains(QStringLiteral("kampo"))) {
            eraro(l.numero, QStringLiteral("only a question (demando) chooses its field with kampo="));
            return false;
        }
        if (!nenio.isEmpty()) {
            eraro(l.numero, QStringLiteral("'%1' is neither a name nor an attribute").arg(nenio));
            return false;
        }

        LecionEro grupo;
        grupo.linio = l.numero;
        if (duobla) {
            const bool sube = speco.endsWith(QLatin1String("sub"));
            const bool silenta = speco.startsWith(QLatin1Char('s')) && speco != QLatin1String("sub");
            grupo.klaso = sube ? QStringLiteral("QVBoxLayout") : QStringLiteral("QHBoxLayout");
            LecionEro vorto;
            vorto.linio = l.numero;
            vorto.klaso = silenta ? QStringLiteral("neklakebla_nova") : QStringLiteral("klakbutono_nova");
            vorto.nomo = kompletigas(l.vortoj.at(1), 'B');
            vorto.teksto = unua;
            vorto.havasTekston = true;
            LecionEro signifo;
            signifo.linio = l.numero;
            signifo.klaso = QStringLiteral("QLabel");
            signifo.nomo = kompletigas(l.vortoj.at(2), 'L');
            signifo.teksto = dua;
            signifo.havasTekston = true;
            signifo.atributoj = atributoj;
            if (!signifo.atributoj.contains(QStringLiteral("faldo")))
                signifo.atributoj.insert(QStringLiteral("faldo"), QStringLiteral("jes"));
            grupo.idoj << vorto << signifo;
        } else {
            const QString kampoKlaso = atributoj.take(QStringLiteral("kampo"));
            const QString lingvo = atributoj.take(QStringLiteral("lingvo"));
            if (!atributoj.isEmpty()) {
                eraro(l.numero, QStringLiteral("a question takes only the attributes kampo and lingvo"));
                return false;
            }
            grupo.klaso = QStringLiteral("QVBoxLayout");
            LecionEro demando;
            demando.linio = l.numero;
            demando.klaso = QStringLiteral("QLabel");
            demando.nomo = kompletigas(l.vortoj.at(1), 'L');
            demando.teksto = unua;
            demando.havasTekston = true;
            demando.atributoj.insert(QStringLiteral("faldo"), QStringLiteral("jes"));
            demando.atributoj.insert(QStringLiteral("amiko"), l.vortoj.at(2));
            LecionEro kampo;
            kampo.linio = l.numero;
            kampo.nomo = l.vortoj.at(2);
            const Speco* ks = trovasSpecon(kampoKlaso.isEmpty() ? QStringLiteral("kampo") : kampoKlaso);
            if (!ks || !QByteArray("kampo linio plurlinio cxplurlinio").contains(ks->nomo)) {
                eraro(l.numero, QStringLiteral("a question's field is kampo, linio, plurlinio or cxplurlinio"));
                return false;
            }
            kampo.klaso = QString::fromLatin1(ks->klaso);
            if (!lingvo.isEmpty())
                kampo.atributoj.insert(QStringLiteral("lingvo"), lingvo);
            grupo.idoj << demando << kampo;
            if (l.vortoj.at(3) != QLatin1String("-")) {
                LecionEro respondo;
                respondo.linio = l.numero;
                respondo.klaso = QStringLiteral("korekta");
                respondo.nomo = kompletigas(l.vortoj.at(3), 'B');
                respondo.teksto = dua;
                respondo.havasTekston = true;
                grupo.idoj << respondo;
            }
        }
        idoj.append(grupo);
        ujo = false;
        return true;
    }

    const Speco* s = trovasSpecon(speco);
    LecionEro ero;
    ero.linio = l.numero;
    if (s) {
        ero.klaso = QString::fromLatin1(s->klaso);
        ujo = s->ujo;
        if (s->bildo)
            ero.atributoj.insert(QStringLiteral("bildo"), QString::fromLatin1(s->bildo));
        if (speco == QLatin1String("egala"))
            ero.atributoj.insert(QStringLiteral("tipo"), QStringLiteral("egala"));
        if (speco == QLatin1String("etikedo"))
            ero.atributoj.insert(QStringLiteral("faldo"), QStringLiteral("jes"));
    } else if (klasregistro::konas(speco)) {
        ero.klaso = speco;
        ujo = speco == QLatin1String("QFrame") || speco == QLatin1String("QWidget");
    } else {
        eraro(l.numero, QStringLiteral("unknown kind '%1'").arg(speco));
        return false;
    }
    if (!legasNomonKajAtributojn(l, 1, s, ero.nomo, ero.atributoj))
        return false;
    if (ero.atributoj.contains(QStringLiteral("kampo"))) {
        eraro(l.numero, QStringLiteral("only a question (demando) chooses its field with kampo="));
        return false;
    }
    if ((ero.estasAranghilo() || ero.estasSpaco()) && l.havasTekston) {
        eraro(l.numero, QStringLiteral("'%1' has no text").arg(speco));
        return false;
    }
    if (ero.estasSpaco() && !ero.nomo.isEmpty()) {
        eraro(l.numero, QStringLiteral("stretch has no name"));
        return false;
    }
    if (speco == QLatin1String("bildo") && !ero.atributoj.contains(QStringLiteral("bildo"))) {
        eraro(l.numero, QStringLiteral("a picture needs bildo=PATH"));
        return false;
    }
    ero.teksto = l.teksto;
    ero.havasTekston = l.havasTekston;
    idoj.append(ero);
    return true;
}

void Leganto::kolektasNomojn(const QVector<LecionEro>& eroj)
{
    for (const LecionEro& e : eroj) {
        if (!e.nomo.isEmpty()) {
            if (uzataj.contains(e.nomo))
                eraro(e.linio, QStringLiteral("the name %1 is used twice").arg(e.nomo));
            uzataj.insert(e.nomo);
        }
        kolektasNomojn(e.idoj);
    }
}

QString Leganto::novaNomo(const QString& bazo)
{
    int& n = nombriloj[bazo];
    QString nomo;
    do {
        ++n;
        nomo = n == 1 ? bazo : bazo + QLatin1Char('_') + QString::number(n);
    } while (uzataj.contains(nomo));
    uzataj.insert(nomo);
    return nomo;
}

void Leganto::donasNomojn(QVector<LecionEro>& eroj)
{
    for (LecionEro& e : eroj) {
        if (e.nomo.isEmpty() && !e.estasSpaco()) {
            QString bazo = e.klaso;
            if (e.klaso == QLatin1String("QVBoxLayout"))
                bazo = QStringLiteral("verticalLayout");
            else if (e.klaso == QLatin1String("QHBoxLayout"))
                bazo = QStringLiteral("horizontalLayout");
            else if (e.klaso == QLatin1String("QScrollArea"))
                bazo = QStringLiteral("scrollArea");
            else if (e.klaso == QLatin1String("QFrame"))
                bazo = QStringLiteral("frame");
            else if (e.klaso.contains(QLatin1String("edit"), Qt::CaseInsensitive) && !e.klaso.contains(QLatin1String("plain"), Qt::CaseInsensitive))
                bazo = QStringLiteral("lineEdit");
            else if (e.klaso.contains(QLatin1String("plain"), Qt::CaseInsensitive))
                bazo = QStringLiteral("plainTextEdit");
            else if (e.klaso.contains(QLatin1String("label"), Qt::CaseInsensitive) || e.klaso == QLatin1String("titolo"))
                bazo = QStringLiteral("label");
            e.nomo = novaNomo(bazo);
        }
        donasNomojn(e.idoj);
    }
}

} // namespace

lecionfonto lecionfonto::legas(const QString& teksto, const QString& dosiero)
{
    lecionfonto f;
    f.dosiero = dosiero;
    Leganto(f).legas(teksto);
    return f;
}

QString lecionfonto::rimedoVojo(int numero)
{
    return QStringLiteral(":/lecionoj/lec%1.lec").arg(numero, 2, 10, QLatin1Char('0'));
}

lecionfonto lecionfonto::deRimedoj(int numero)
{
    QFile dosiero(rimedoVojo(numero));
    if (!dosiero.open(QIODevice::ReadOnly)) {
        lecionfonto f;
        f.dosiero = dosiero.fileName();
        f.numero = QStringLiteral("%1").arg(numero, 2, 10, QLatin1Char('0'));
        f.eraroj.append({f.dosiero, 0, QStringLiteral("the lesson source is missing")});
        return f;
    }
    return legas(QString::fromUtf8(dosiero.readAll()), dosiero.fileName());
}

int lecionfonto::kiomDaPaghoj(int numero)
{
    QFile dosiero(rimedoVojo(numero));
    if (numero < 1 || numero > KiomDaLecionoj || !dosiero.open(QIODevice::ReadOnly))
        return 0;
    int paghoj = 0;
    while (!dosiero.atEnd()) {
        if (dosiero.readLine().startsWith("pagho "))
            ++paghoj;
    }
    return paghoj;
}
