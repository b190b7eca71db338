#include "funkcioj.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QTabWidget>

void Sendas_Printilo(QTabWidget* langetoj, QString titolo, QProgressBar* progreso)
{
    QPrinter printilo(QPrinter::HighResolution);
    if (titolo == QStringLiteral("Leciono %1").arg(KiomDaLecionoj))
        titolo = QStringLiteral("Fina Ekzameno");
    printilo.setDocName(titolo);
    QPrintDialog dialogo(&printilo, langetoj);
    if (dialogo.exec() != QDialog::Accepted)
        return;

    QPainter farbisto;
    if (!farbisto.begin(&printilo))
        return;
    QWidget* montrata = langetoj->currentWidget();
    const int w = montrata->width();
    const int h = montrata->height();
    const QRect pagho = printilo.pageLayout().paintRectPixels(printilo.resolution());
    const double xSkalo = double(pagho.width()) / double(w + 140);
    const double ySkalo = double(pagho.height() / 2) / double(h + 140);
    const double skalo = qMin(xSkalo, ySkalo);
    farbisto.scale(skalo, skalo);
    farbisto.translate(70, 70);
    QFont tiparo = QApplication::font();
    tiparo.setPixelSize(20);
    farbisto.setFont(tiparo);
    farbisto.drawText(0, 0, QStringLiteral("Lernilo  -  ") + titolo + QStringLiteral("   (") + sServilo + QLatin1Char(')'));

    progreso->show();
    progreso->setMaximum(langetoj->count() + 1);
    progreso->reset();
    const int antaua = langetoj->currentIndex();
    bool duaDuono = false;
    for (int i = 0; i < langetoj->count(); ++i) {
        langetoj->setCurrentIndex(i);
        QCoreApplication::processEvents();
        QWidget* langeto = langetoj->widget(i);
        if (langeto->objectName().left(7) != QLatin1String("Ekzerco")) {
            langeto->render(&farbisto, langeto->pos(), QRegion(langeto->rect()), QWidget::DrawChildren);
            if (!duaDuono) {
                farbisto.translate(0, h + 70);
                duaDuono = true;
            } else if (i != langetoj->count() - 1) {
                printilo.newPage();
                farbisto.translate(0, -(h + 70));
                duaDuono = false;
            }
        }
        progreso->setValue(i + 1);
    }
    langetoj->setCurrentIndex(antaua);
    progreso->reset();
    progreso->hide();
    farbisto.end();
}
