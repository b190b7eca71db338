#ifndef TESTAJ_HELPOJ_H
#define TESTAJ_HELPOJ_H

#include "funkcioj.h"
#include "inidosiero.h"
#include "klasregistro.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTimer>
#include <QFile>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

// Points the program's folders at a fresh temporary folder, as main() would
// on Linux, so that no test reads or writes the user's own files.
inline void preparasLokojn(const QTemporaryDir& ujo)
{
    sSistemo = QStringLiteral("linux");
    Loko = QStringLiteral(":/");
    mrLoko = ujo.path() + QStringLiteral("/media/");
    savasLoko = ujo.path() + QStringLiteral("/skribebla/");
    QDir().mkpath(mrLoko);
    QDir().mkpath(savasLoko);
    sServilo = QStringLiteral("http://127.0.0.1:9");   // nothing listens there
    sTradukoDosiero.clear();
    sLingvo.clear();
}

// A learner who chose English before and whose language list is fresh, so
// that the main window starts without the first-run dialog or a download.
inline void preparasLerninton(const QTemporaryDir& ujo, const QString& dosiero = QStringLiteral("angla.trd"),
                              const QString& lingvo = QString::fromUtf8("English — angla"))
{
    preparasLokojn(ujo);
    inidosiero agordoj(agordoVojo());
    agordoj.setValue(QStringLiteral("Gxenerala/Lingvo"), lingvo);
    agordoj.setValue(QStringLiteral("Gxenerala/Dosiero"), dosiero);
    agordoj.sync();
    QFile listo(savasLoko + QStringLiteral("traduklisto.ini"));
    listo.open(QIODevice::WriteOnly);
}

// Writes a file into the writable folder.
inline bool skribas(const QString& nomo, const QByteArray& enhavo)
{
    QFile f(savasLoko + nomo);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(enhavo) == enhavo.size();
}

// Whether a widget is one of the course's exercises, or lies inside one.
inline bool estasEkzerco(const QWidget* w)
{
    static const QStringList ekzercoj{"ekzerco1", "frazokonstruo", "plenigas_spacon", "vortoludo", "ekznumeraloj",
                                      "kiomahoro", "audkompreno", "akuzativo", "prononco"};
    return ekzercoj.contains(klasregistro::klasoDe(w));
}
inline bool enEkzerco(const QWidget* w)
{
    for (const QWidget* s = w->parentWidget(); s; s = s->parentWidget()) {
        if (estasEkzerco(s))
            return true;
    }
    return false;
}

// Answers the next print dialog: prints into the PDF file `pdf`, or cancels
// where `pdf` is empty; keeps the document's name.
inline void presasAlPdf(const QString& pdf, QString* dokumento = nullptr)
{
    QTimer::singleShot(50, [pdf, dokumento] {
        auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        if (!dialogo)
            return presasAlPdf(pdf, dokumento);
        if (dokumento)
            *dokumento = dialogo->printer()->docName();
        if (pdf.isEmpty())
            return dialogo->reject();
        dialogo->findChild<QLineEdit*>("filename")->setText(pdf);
        dialogo->accept();
    });
}

// What a program of poppler-utils says of a PDF file (pdftotext, pdfinfo).
inline QString pdf(const QString& programo, const QString& dosiero)
{
    QProcess p;
    p.start(programo, programo == QLatin1String("pdftotext") ? QStringList{dosiero, "-"} : QStringList{dosiero});
    p.waitForFinished(20000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// Clicks the named button of the next modal dialog as soon as it shows (the
// dialogs run their own event loop, so the test cannot click them directly).
inline void klakasEnDialogo(const char* butono)
{
    QTimer::singleShot(20, [butono] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QAbstractButton* b = dialogo ? dialogo->findChild<QAbstractButton*>(QLatin1String(butono)) : nullptr;
        if (b)
            b->click();
        else
            klakasEnDialogo(butono);
    });
}

// Closes the next message box as soon as it shows, and keeps its text.
inline void akceptasMesaghon(QString* teksto = nullptr)
{
    QTimer::singleShot(20, [teksto] {
        if (auto* skatolo = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            if (teksto)
                *teksto = skatolo->text();
            skatolo->accept();
        } else {
            akceptasMesaghon(teksto);
        }
    });
}

// Shows a window and makes it the active one, as keys and sounds need.
inline bool aktivigas(QWidget* w)
{
    w->show();
    w->activateWindow();
    return QTest::qWaitForWindowActive(w);
}

// A lesson's exercise as the learner opens it: on its page, the window
// active (keys reach only the active window), and started by its Start button.
template <typename Ekzerco, typename Fenestro>
Ekzerco* komencasEkzercon(Fenestro& fenestro, int leciono, const QString& nomo, const char* ek = "BitBtn1")
{
    fenestro.template findChild<QAbstractButton*>(QStringLiteral("Leciono%1").arg(leciono))->click();
    QWidget* pagho = fenestro.leciono(leciono);
    auto* e = pagho->findChild<Ekzerco*>(nomo);
    pagho->findChild<QTabWidget*>()->setCurrentWidget(e->parentWidget());
    if (!aktivigas(&fenestro))
        qWarning("the window did not become active");
    lNoteto = false;   // the window has read them from the settings
    lSxaltilo = false;
    QTest::mouseClick(e->template findChild<QAbstractButton*>(QLatin1String(ek)), Qt::LeftButton);
    return e;
}

#endif
