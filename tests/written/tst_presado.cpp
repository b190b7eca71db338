// Printing a lesson: every page but the exercises, two to a sheet, under the
// lesson's title; the learner's page comes back, and a cancelled dialog
// prints nothing.

#include "lernilo.h"
#include "testaj_helpoj.h"

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

// Lesson 2: six of its twelve tabs are exercises; the other six share three sheets.
void tst_presado::presado()
{
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    fenestro.resize(569, 770);
    fenestro.show();
    fenestro.findChild<QAbstractButton*>("Leciono2")->click();
    QTabWidget* langetoj = lecionLangetoj(fenestro.leciono(2));
    langetoj->setCurrentIndex(1);
    const QString dosiero = ujo.path() + "/leciono.pdf";
    QString dokumento;
    presasAlPdf(dosiero, &dokumento);
    QMetaObject::invokeMethod(&fenestro, "on_printilo_clicked");
    QCOMPARE(dokumento, QStringLiteral("Leciono 02"));
    QCOMPARE(langetoj->currentIndex(), 1);   // the learner's page comes back
    QVERIFY(fenestro.findChild<QProgressBar*>("prog_printilo")->isHidden());
    const QString informo = pdf("pdfinfo", dosiero);
    QVERIFY2(informo.contains(QRegularExpression("Pages:\\s+3\\n")), qPrintable(informo));
    const QString teksto = pdf("pdftotext", dosiero).simplified();
    QVERIFY2(teksto.startsWith("Lernilo - Leciono 02"), qPrintable(teksto.left(200)));
}

// The final exam prints under its own title; a cancelled dialog prints nothing.
void tst_presado::nuligita()
{
    QTemporaryDir ujo;
    preparasLerninton(ujo);
    lernilo fenestro;
    fenestro.findChild<QAbstractButton*>("Leciono13")->click();
    QString dokumento;
    presasAlPdf(QString(), &dokumento);
    QSignalSpy montro(fenestro.findChild<QProgressBar*>("prog_printilo"), &QProgressBar::valueChanged);
    QMetaObject::invokeMethod(&fenestro, "on_printilo_clicked");
    QCOMPARE(dokumento, QStringLiteral("Fina Ekzameno"));
    QCOMPARE(montro.count(), 0);
}

QTEST_MAIN(tst_presado)
#include "tst_presado.moc"
