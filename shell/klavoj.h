#ifndef KLAVOJ_H
#define KLAVOJ_H

#include <QKeySequence>
#include <QList>
#include <QStringList>

class QAbstractButton;
class QSettings;
class QWidget;

// Keys that work the buttons of the navigator and of the exercises, and the
// tooltips that name them. A key works while its button is visible and
// enabled, so the same key can serve the Start of an exercise and, once the
// exercise runs, its Check.
class klavoj
{
public:
    // Gives the button its keys, in place of any it had. `ago` names what the
    // button does: its key in the group [Klavoj] of the translation files.
    static void donas(QAbstractButton* butono, const char* ago, const QList<QKeySequence>& klavaro);

    // Writes the tooltip of every button under `radiko` that has keys: what
    // it does in the learner's language, and its keys.
    static void konsiletoj(QWidget* radiko, QSettings& traduko);

    // The keys of the exercises: Return starts an exercise and, while it
    // runs, checks the answer or goes on to the next item; Ctrl+L says the
    // item again; the digits choose among numbered answers.
    static void komenco(QAbstractButton* butono);
    static void kontrolo(QAbstractButton* butono);
    static void sekva(QAbstractButton* butono);
    static void reaudo(QAbstractButton* butono);
    static void elekto(QAbstractButton* butono, int numero);

    // The translation keys of the tooltips, for the list of things to translate.
    static QStringList agoj();
};

#endif
