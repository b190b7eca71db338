#include "sonlisto.h"
#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "klasregistro.h"
#include "lecionkadro.h"

#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QTextDocument>

namespace {

const char* const vortaVocxo = "eo+f3";
const char* const legaVocxo = "eo+m3";

QString ebenaTeksto(const QString& teksto)
{
    QString t = teksto;
    t.remove(QChar(0x200E));
    if (Qt::mightBeRichText(t)) {
        QTextDocument d;
        d.setHtml(t);
        t = d.toPlainText();
    }
    return t.simplified();
}

QStringList datumoj(const QString& id, const QString& kolumno)
{
    QStringList valoroj;
    _Matriz(&valoroj, id, kolumno);
    return valoroj;
}

class Kolektanto
{
public:
    void aldonas(const QString& vojo, const QString& vocxo, int rapido, const QString& teksto)
    {
        if (teksto.isEmpty() || vidite.contains(vojo))
            return;
        vidite.insert(vojo);
        listo.append({vojo, vocxo, rapido, teksto});
    }

    QVector<Sono> listo;
    QSet<QString> vidite;
};

// The rows of a listening or pronunciation exercise: a word, or the number
// of a clickable word of the lesson whose phrase is played.
void ekzercaSonoj(Kolektanto& k, QWidget* kadro, const QString& nomo, bool auh, bool minuskle)
{
    const QString id = nomo.right(4);
    const QString ciferoj = id.left(2);
    for (const QString& vico : datumoj(id, QStringLiteral("D"))) {
        const QString vojo = ekzercaSono(ciferoj, vico, auh);
        if (vico.toInt() >= 1) {
            auto* vorto = kadro->findChild<klakbutono_nova*>(QStringLiteral("Lec") + ciferoj + QStringLiteral("_Button") + vico);
            k.aldonas(vojo, vortaVocxo, 130, vorto ? ebenaTeksto(vorto->text()) : QString());
        } else {
            k.aldonas(minuskle ? vojo.toLower() : vojo, vortaVocxo, 130, vico);
        }
    }
}

} // namespace

QVector<Sono> sonlisto::lecionaj()
{
    Kolektanto k;
    // The sound-to-word exercise of lesson 1 names its words in its data.
    for (const QString& vorto : datumoj(QStringLiteral("0101"), QStringLiteral("D")))
        k.aldonas(vortoSono(QStringLiteral("01"), vorto, true).toLower(), vortaVocxo, 130, vorto);

    for (int n = 1; n <= KiomDaLecionoj; ++n) {
        QWidget pagho;
        lecionkadro kadro(n, &pagho);
        for (klakbutono_nova* vorto : kadro.findChildren<klakbutono_nova*>()) {
            const QString teksto = ebenaTeksto(vorto->text());
            k.aldonas(klakbutono_nova::sonoVojo(vorto->text(), vorto->objectName()).toLower(), vortaVocxo, 130, teksto);
        }
        for (QWidget* w : kadro.findChildren<QWidget*>()) {
            const QString klaso = klasregistro::klasoDe(w);
            if (klaso == QLatin1String("audkompreno"))
                ekzercaSonoj(k, &kadro, w->objectName(), true, true);
            else if (klaso == QLatin1String("prononco"))
                ekzercaSonoj(k, &kadro, w->objectName(), false, false);
            else if (klaso == QLatin1String("mp3ludilo")) {
                // Lec04_memo1 reads the text of the label Memo1_Lec04; the
                // song is made from its score by kantigilo.
                const QString nomo = w->objectName();
                const QString ero = nomo.mid(6);
                const QString vojo = legoSono(nomo);
                if (nomo == QLatin1String("Lec12_fragoj")) {
                    k.aldonas(vojo, "kanto", 0, QStringLiteral("resources/kanto/fragoj.txt"));
                    continue;
                }
                const QString etikedo = ero.left(1).toUpper() + ero.mid(1) + QLatin1Char('_') + nomo.left(5);
                auto* teksto = kadro.findChild<QLabel*>(etikedo);
                k.aldonas(vojo, legaVocxo, 120, teksto ? ebenaTeksto(teksto->text()) : QString());
            }
        }
    }
    return k.listo;
}

QVector<Sono> sonlisto::fiksaj()
{
    Kolektanto k;
    k.aldonas(QStringLiteral("sonoj/noteto_jes") + mp3_finajho, "noto", 0, QStringLiteral("jes"));
    k.aldonas(QStringLiteral("sonoj/noteto_ne") + mp3_finajho, "noto", 0, QStringLiteral("ne"));

    // Each variant in another voice, so that the course does not sound canned.
    static const char* const vocxoj[] = {"eo+f2", "eo+m3", "eo+f4", "eo+m1", "eo+f3", "eo+m7", "eo+f5", "eo+m2"};
    auto variantoj = [&k](const QString& radiko, const QStringList& frazoj, int kiom, bool ciferoj) {
        for (int i = 0; i < kiom; ++i) {
            const QString fino = ciferoj ? QString::number(i + 1) : QString(QChar('a' + i));
            k.aldonas(QStringLiteral("sonoj/") + radiko + fino + mp3_finajho, vocxoj[i % 8], 135,
                      frazoj.at(i % frazoj.size()));
        }
    };

    variantoj(QStringLiteral("gratulo"), {
        QStringLiteral("Gratulon! Vi laboris tre bone."),
        QStringLiteral("Bonege! Via rezulto estas tre bona."),
        QStringLiteral("Gratulon! Vi bone lernas Esperanton."),
        QStringLiteral("Tre bone farite! Daŭrigu tiel."),
        QStringLiteral("Mirinde! Vi faris preskaŭ ĉion ĝuste."),
        QStringLiteral("Gratulon! Vi povas esti fiera."),
        QStringLiteral("Brave! Vi bone komprenis la lecionon."),
        QStringLiteral("Tre bona rezulto! Ni iru plu."),
    }, 8, true);
    variantoj(QStringLiteral("nebona"), {
        QStringLiteral("Ne zorgu. Provu denove, kaj iros pli bone."),
        QStringLiteral("Via rezulto ne estis bona. Provu denove!"),
        QStringLiteral("Ankoraŭ ne. Relegu la lecionon kaj provu denove."),
        QStringLiteral("Preskaŭ! Ekzercu iom pli, kaj provu denove."),
        QStringLiteral("Ne perdu la kuraĝon. Ni provu ankoraŭ unufoje."),
        QStringLiteral("Tio ne sufiĉas. Atente aŭskultu kaj provu denove."),
        QStringLiteral("Paŝon post paŝo. Provu denove!"),
        QStringLiteral("Ne timu erarojn: ili instruas. Provu denove."),
    }, 8, true);

    variantoj(QStringLiteral("jes"), {QStringLiteral("Jes!"), QStringLiteral("Jes, ĝuste!"), QStringLiteral("Jes.")}, 3, false);
    variantoj(QStringLiteral("trebone"), {QStringLiteral("Tre bone!")}, 3, false);
    variantoj(QStringLiteral("bonege"), {QStringLiteral("Bonege!")}, 3, false);
    variantoj(QStringLiteral("prave"), {QStringLiteral("Prave!"), QStringLiteral("Tute prave!")}, 3, false);
    variantoj(QStringLiteral("trafe"), {QStringLiteral("Trafe!")}, 3, false);
    variantoj(QStringLiteral("korekte"), {QStringLiteral("Korekte!"), QStringLiteral("Tute korekte!")}, 3, false);
    variantoj(QStringLiteral("ne"), {QStringLiteral("Ne."), QStringLiteral("Ne, ne tiel."), QStringLiteral("Ne ĝuste.")}, 3, false);

    variantoj(QStringLiteral("saluton"), {QStringLiteral("Saluton!"), QStringLiteral("Saluton! Ni lernu kune.")}, 4, false);
    variantoj(QStringLiteral("matenon"), {QStringLiteral("Bonan matenon!")}, 4, false);
    variantoj(QStringLiteral("tagon"), {QStringLiteral("Bonan tagon!")}, 4, false);
    variantoj(QStringLiteral("vespero"), {QStringLiteral("Bonan vesperon!")}, 4, false);
    variantoj(QStringLiteral("nokton"), {QStringLiteral("Saluton! Vi lernas malfrue hodiaŭ."), QStringLiteral("Bonan vesperon! Estas jam nokto.")}, 4, false);
    variantoj(QStringLiteral("ghis"), {QStringLiteral("Ĝis!"), QStringLiteral("Ĝis la revido!")}, 4, false);
    variantoj(QStringLiteral("revido"), {QStringLiteral("Ĝis revido!")}, 4, false);
    variantoj(QStringLiteral("baldau"), {QStringLiteral("Ĝis baldaŭ!")}, 4, false);
    variantoj(QStringLiteral("adiau"), {QStringLiteral("Adiaŭ!"), QStringLiteral("Adiaŭ, kaj ĝis la sekva leciono!")}, 4, false);
    return k.listo;
}

QVector<Sono> sonlisto::kolektas()
{
    QVector<Sono> listo = fiksaj();
    listo += lecionaj();
    return listo;
}
