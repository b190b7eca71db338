#ifndef EKZERCFOLIO_H
#define EKZERCFOLIO_H

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

// The paper sheet of an exercise: the printer chosen by the learner, the
// head that every sheet shares, and the printing of the finished HTML.
class ekzercfolio
{
public:
    // Asks for a printer, then builds the sheet and prints it; nothing
    // happens when the learner cancels.
    static void presas(const QString& nomo, const std::function<QString()>& folio);

    // The opening tag (`komenco` + the direction), the heading with the
    // frame's name, the bold titles and the instruction closed by `fermo`.
    static QString kapo(const QWidget* kadro, const QString& komenco, const QStringList& titoloj,
                        const QString& instrukcio, const QString& fermo);
};

#endif
