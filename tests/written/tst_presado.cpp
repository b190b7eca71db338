// Printing a lesson: every page but the exercises, two to a sheet, under the
// lesson's title.

#include "lernilo.h"
#include "testaj_helpoj.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

class tst_presado : public QObject
{
    Q_OBJECT

private slots:
    void presado();
    void nuligita();
};

// Five pages, two of them exercises: three pages on two sheets, under the
// final exam's own title; the learner's page comes back.
void tst_presado::presado()
{
    QTemporaryDir ujo;
    preparasLokojn(ujo);
    QTabWidget langetoj;
    for (const char* nomo : {"tab", "Ekzerco1_Lec13", "tab_2", "Ekzerco2_Lec13", "tab_3"}) {
        auto* pagho = new QLabel(QString::fromLatin1(nomo));
        pagho->setObjectName(QString::fromLatin1(nomo));
        langetoj.addTab(pagho, pagho->text());
    }
    langetoj.resize(400, 500);
    langetoj.show();
    langetoj.setCurrentIndex(1);
    QProgressBar progreso;
    const QString dosiero = ujo.path() + "/leciono.pdf";
    QString dokumento;
    presasAlPdf(dosiero, &dokumento);
    Sendas_Printilo(&langetoj, "Leciono 13", &progreso);
    QCOMPARE(dokumento, QStringLiteral("Fina Ekzameno"));
    QCOMPARE(langetoj.currentIndex(), 1);
    QVERIFY(progreso.isHidden());
    const QString informo = pdf("pdfinfo", dosiero);
    QVERIFY2(informo.contains(QRegularExpression("Pages:\\s+2\\n")), qPrintable(informo));
    QVERIFY(pdf("pdftotext", dosiero).simplified().startsWith("Lernilo - Fina Ekzameno"));
}

// From the main window: the lesson's title, and a cancelled dialog prints nothing.
void tst_presado::nuligita()
{
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QString dokumento;
    presasAlPdf(QString(), &dokumento);
    QSignalSpy montro(fenestro.findChild<QProgressBar*>("prog_printilo"), &QProgressBar::valueChanged);
    QMetaObject::invokeMethod(&fenestro, "on_printilo_clicked");
    QCOMPARE(dokumento, QStringLiteral("Leciono 02"));
    QCOMPARE(montro.count(), 0);
}

QTEST_MAIN(tst_presado)
#include "tst_presado.moc"
