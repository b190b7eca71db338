#include "ekzercfolio.h"

#include "funkcioj.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <QWidget>

void ekzercfolio::presas(const QString& nomo, const std::function<QString()>& folio)
{
    QPrinter printilo(QPrinter::HighResolution);
    printilo.setDocName(nomo);
    QPrintDialog dialogo(&printilo);
    if (dialogo.exec() != QDialog::Accepted)
        return;
    QTextDocument dokumento;
    dokumento.setHtml(folio());
    dokumento.adjustSize();
    dokumento.print(&printilo);
}

QString ekzercfolio::kapo(const QWidget* kadro, const QString& komenco, const QStringList& titoloj,
                          const QString& instrukcio, const QString& fermo)
{
    const QChar LRM(0x200E);
    const QFont tiparo = kadro->parentWidget() ? kadro->parentWidget()->font() : kadro->font();
    // Style sheets set fonts in pixels; a font in points is taken as it is.
    const int grando = tiparo.pixelSize() > 0 ? qRound(tiparo.pixelSize() / 1.33333) : tiparo.pointSize();
    QString kapo = komenco + Direkto + QStringLiteral(" style=\" font-family:'") + tiparo.family()
                   + QStringLiteral("'; font-size:") + QString::number(grando)
                   + QStringLiteral("pt; font-weight:400; font-style:normal;\">");
    kapo += QStringLiteral("<P><h2>Lernilo   -   ") + kadro->objectName() + QStringLiteral("   (") + sServilo
            + QLatin1Char(')') + LRM + QStringLiteral("</h2></P>");
    for (const QString& titolo : titoloj)
        kapo += QStringLiteral("<P><B>") + titolo + QStringLiteral("</B></P>");
    return kapo + QStringLiteral("<P>") + instrukcio + fermo;
}
