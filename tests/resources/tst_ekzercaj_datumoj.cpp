// The exercise data: columns of one length in each group, every number
// naming a widget of the right class in its lesson, answers written as the
// exercises compare them, and translations as long as their data.

#include "funkcioj.h"
#include "klakbutono_nova.h"
#include "klasregistro.h"
#include "korekta.h"
#include "lecionkadro.h"
#include "neklakebla_nova.h"
#include "testaj_helpoj.h"

#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QtTest>

namespace {

QString dosiero(const QString& ciferoj)
{
    return QStringLiteral(":/ekzercoj/ekz") + ciferoj + QStringLiteral(".dat");
}

QStringList kolumno(const QString& id, const QString& litero)
{
    QStringList l;
    _Matriz(&l, id, litero);
    return l;
}

template <typename... T>
bool estas(QWidget* w)
{
    return (... || (qobject_cast<T*>(w) != nullptr));
}

} // namespace

class tst_ekzercaj_datumoj : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dosieroj();
    void numerojTrovas_data();
    void numerojTrovas();
    void akuzativoKajPlenigo_data();
    void akuzativoKajPlenigo();
    void tradukojSamLongaj_data();
    void tradukojSamLongaj();

private:
    QTemporaryDir ujo;
};

void tst_ekzercaj_datumoj::initTestCase()
{
    preparasLokojn(ujo);
}

void tst_ekzercaj_datumoj::dosieroj()
{
    // Shipped files: CR LF line ends, UTF-8 without a byte-order mark, groups
    // of the file's own lesson, and the columns of an exercise of one length,
    // keys 0 to n-1, no value lost to a comma outside quotes.
    for (int n = 1; n < KiomDaLecionoj; ++n) {   // the final exam has no exercises
        QFile f(dosiero(QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'))));
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray enhavo = f.readAll();
        QVERIFY2(!enhavo.startsWith("\xEF\xBB\xBF"), qPrintable(f.fileName()));
        QVERIFY2(enhavo.count('\n') == enhavo.count("\r\n"), qPrintable(f.fileName() + " has bare line ends"));
        inidosiero s(f.fileName());
        for (const QString& g : s.childGroups()) {
            QCOMPARE(g.left(2).toInt(), n);
            s.beginGroup(g);
            const QStringList sh = s.childKeys();
            s.endGroup();
            QCOMPARE(sh.size(), kolumno(g.left(4), "D").size());
            for (int i = 0; i < sh.size(); ++i)
                QVERIFY2(sh.contains(QString::number(i)), qPrintable(QStringLiteral("%1: key %2 missing").arg(g).arg(i)));
            for (const QString& v : kolumno(g.left(4), g.mid(4)))
                QVERIFY2(!v.isEmpty() || g.endsWith('T'), qPrintable(g + ": an empty value"));
        }
    }
}

void tst_ekzercaj_datumoj::numerojTrovas_data()
{
    QTest::addColumn<int>("leciono");
    for (int n = 1; n <= 12; ++n)
        QTest::newRow(qPrintable(QStringLiteral("lesson %1").arg(n))) << n;
}

void tst_ekzercaj_datumoj::numerojTrovas()
{
    QFETCH(int, leciono);
    QWidget pagho;
    lecionkadro kadro(leciono, &pagho);
    QStringList problemoj;
    auto trovas = [&kadro](const QString& nomo) { return kadro.findChild<QWidget*>(nomo); };

    for (QWidget* w : kadro.findChildren<QWidget*>()) {
        const QString klaso = klasregistro::klasoDe(w);
        const QString nomo = w->objectName();
        const QString id = nomo.right(4);
        const QString prefikso = nomo.left(6);
        if (klaso == QLatin1String("frazokonstruo")) {
            const QStringList D = kolumno(id, "D"), R = kolumno(id, "R");
            for (int i = 0; i < D.size(); ++i) {
                QWidget* frazo = trovas(prefikso + "Button" + D.at(i));
                if (!estas<klakbutono_nova, neklakebla_nova, korekta>(frazo))
                    problemoj << QStringLiteral("%1D %2: no sentence %3").arg(id).arg(i).arg(D.at(i));
                else if (static_cast<QLabel*>(frazo)->text().trimmed().split(' ').size() > 17)
                    problemoj << QStringLiteral("%1D %2: a sentence too long for the word buttons").arg(id).arg(i);
                if (!qobject_cast<QLabel*>(trovas(prefikso + "Label" + R.value(i))))
                    problemoj << QStringLiteral("%1R %2: no label %3").arg(id).arg(i).arg(R.value(i));
            }
        } else if (klaso == QLatin1String("vortoludo")) {
            const QStringList D = kolumno(id, "D"), R = kolumno(id, "R");
            QStringList signifoj;
            for (int i = 0; i < D.size(); ++i) {
                if (D.at(i).toInt() >= 1 && !estas<klakbutono_nova, neklakebla_nova>(trovas(prefikso + "Button" + D.at(i))))
                    problemoj << QStringLiteral("%1D %2: no word %3").arg(id).arg(i).arg(D.at(i));
                auto* signifo = qobject_cast<QLabel*>(trovas(prefikso + "Label" + R.value(i)));
                if (!signifo)
                    problemoj << QStringLiteral("%1R %2: no label %3").arg(id).arg(i).arg(R.value(i));
                else if (signifoj.contains(signifo->text()))
                    problemoj << QStringLiteral("%1R %2: the same meaning twice").arg(id).arg(i);
                else
                    signifoj << signifo->text();
            }
        } else if (klaso == QLatin1String("audkompreno") || klaso == QLatin1String("prononco")) {
            const QString lecionaPrefikso = QStringLiteral("Lec") + id.left(2) + QStringLiteral("_Button");
            const QStringList D = kolumno(id, "D");
            for (int i = 0; i < D.size(); ++i) {
                if (D.at(i).toInt() >= 1 && !qobject_cast<klakbutono_nova*>(trovas(lecionaPrefikso + D.at(i))))
                    problemoj << QStringLiteral("%1D %2: no clickable word %3").arg(id).arg(i).arg(D.at(i));
                if (D.at(i).toInt() < 1 && D.at(i) != D.at(i).toLower())
                    problemoj << QStringLiteral("%1D %2: a word's sound file is named in lower case").arg(id).arg(i);
            }
        } else if (klaso == QLatin1String("kiomahoro")) {
            // The clock compares the typed "hh:mm" as text: two-digit hours,
            // and midnight is 24:00, never 00:00.
            static const QRegularExpression horo(QStringLiteral("^(([01][0-9]|2[0-3]):[0-5][0-9]|24:00)$"));
            const QStringList R = kolumno(QStringLiteral("1101"), "R");
            for (int i = 0; i < R.size(); ++i) {
                if (!horo.match(R.at(i)).hasMatch() || R.at(i) == QLatin1String("00:00"))
                    problemoj << QStringLiteral("1101R %1: '%2' is not a time as typed").arg(i).arg(R.at(i));
            }
        } else if (klaso == QLatin1String("plenigas_spacon")) {
            QList<QStringList> D, R;
            _Matriz2(&D, id, "D", 6);
            _Matriz2(&R, id, "R", 6);
            for (int i = 0; i < R.size(); ++i) {
                for (const QString& r : R.at(i)) {
                    if (purigas(r, true) != r)
                        problemoj << QStringLiteral("%1R %2: '%3' is not compared as typed").arg(id).arg(i).arg(r);
                }
                if (R.at(i).value(0).isEmpty())
                    problemoj << QStringLiteral("%1R %2: the first gap is empty").arg(id).arg(i);
            }
        }
    }
    QVERIFY2(problemoj.isEmpty(), qPrintable(problemoj.join('\n')));
}

void tst_ekzercaj_datumoj::akuzativoKajPlenigo_data()
{
    QTest::addColumn<QString>("akuzativo");
    QTest::addColumn<QString>("plenigo");
    const QPair<const char*, const char*> paroj[] = {
        {"0202", "0204"}, {"0605", ""}, {"0805", "0802"}, {"1005", "1001"}, {"1202", ""}};
    for (const auto& p : paroj)
        QTest::newRow(p.first) << p.first << p.second;
}

void tst_ekzercaj_datumoj::akuzativoKajPlenigo()
{
    // Each word has its explanation and its mark, and where the accusative
    // exercise shares its sentences with a gap exercise, they are the same
    // sentences, with the ending where the mark is.
    QFETCH(QString, akuzativo);
    QFETCH(QString, plenigo);
    QList<QStringList> D, K, R;
    _Matriz2(&D, akuzativo, "D", 11);
    _Matriz2(&K, akuzativo, "K", 11);
    _Matriz2(&R, akuzativo, "R", 11);
    QList<QStringList> fragmentoj, respondoj;
    if (!plenigo.isEmpty()) {
        _Matriz2(&fragmentoj, plenigo, "D", 6);
        _Matriz2(&respondoj, plenigo, "R", 6);
        QCOMPARE(fragmentoj.size(), D.size());
    }
    for (int i = 0; i < D.size(); ++i) {
        QStringList vortoj;
        for (int k = 0; k < 11; ++k) {
            const QString vorto = D.at(i).value(k);
            const QString marko = R.at(i).value(k);
            QVERIFY2(marko.isEmpty() || marko == QLatin1String("1"), qPrintable(QStringLiteral("%1R %2").arg(akuzativo).arg(i)));
            if (vorto.isEmpty()) {
                QVERIFY2(marko.isEmpty(), qPrintable(QStringLiteral("%1R %2: a mark without a word").arg(akuzativo).arg(i)));
                continue;
            }
            bool nombro = false;
            const int klarigo = K.at(i).value(k).toInt(&nombro);
            QVERIFY2(nombro && klarigo >= 0 && klarigo <= 12, qPrintable(QStringLiteral("%1K %2").arg(akuzativo).arg(i)));
            QCOMPARE(klarigo == 4 || klarigo == 5, marko == QLatin1String("1"));
            vortoj << vorto + (marko.isEmpty() ? QString() : QStringLiteral("n"));
        }
        QVERIFY2(D.at(i).size() <= 11 && D.at(i).mid(10).join(QString()).isEmpty(),
                 qPrintable(QStringLiteral("%1D %2: more than ten words").arg(akuzativo).arg(i)));
        if (plenigo.isEmpty())
            continue;
        QString plena;
        for (int k = 0; k < 6; ++k)
            plena += fragmentoj.at(i).value(k) + respondoj.at(i).value(k);
        const QString atendo = purigas(vortoj.join(' '), true).remove('?').remove('!');
        QCOMPARE(purigas(plena, true).remove('?').remove('!'), atendo);
    }
}

// The exercises translated: those with a column T of their own, and those
// the English file translates.
void tst_ekzercaj_datumoj::tradukojSamLongaj_data()
{
    QTest::addColumn<QString>("dosiero");
    QTest::addColumn<QString>("id");
    QSet<QString> ids;
    for (const QString& g : inidosiero(":/tradukoj/angla.trd").childGroups()) {
        if (g.startsWith("Ekzerco-") && g.mid(8).toInt() > 0)
            ids << g.mid(8);
    }
    for (int n = 1; n <= KiomDaLecionoj; ++n) {
        for (const QString& g : inidosiero(dosiero(QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')))).childGroups()) {
            if (g.endsWith('T'))
                ids << g.left(4);
        }
    }
    for (const char* d : {"angla.trd", "esperanto.trd", "portugala.trd"}) {
        for (const QString& id : ids)
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(d, id))) << d << id;
    }
}

void tst_ekzercaj_datumoj::tradukojSamLongaj()
{
    QFETCH(QString, dosiero);
    QFETCH(QString, id);
    sTradukoDosiero = dosiero;
    QStringList tradukoj;
    const int kiom = _Matriz(&tradukoj, id, "T");
    QCOMPARE(kiom, kolumno(id, "D").size());
    QVERIFY(!tradukoj.contains("Ne tradukita"));
    QVERIFY(!tradukoj.contains(QString()));
}

QTEST_MAIN(tst_ekzercaj_datumoj)
#include "tst_ekzercaj_datumoj.moc"
