#include "cx_edit.h"
#include "funkcioj.h"

#include <QKeyEvent>

cx_edit::cx_edit(QWidget* parent)
    : QLineEdit(parent)
{
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
}

QChar cx_edit::cxapeligita(QChar antaua)
{
    // Taken as Latin-1: a letter made a moment ago (ĉ) matches nothing.
    if (antaua.unicode() > 0xFF)
        return QChar();
    switch (antaua.toLatin1()) {
    case 'C': return QChar(0x0108);
    case 'G': return QChar(0x011C);
    case 'H': return QChar(0x0124);
    case 'J': return QChar(0x0134);
    case 'S': return QChar(0x015C);
    case 'U': return QChar(0x016C);
    case 'c': return QChar(0x0109);
    case 'g': return QChar(0x011D);
    case 'h': return QChar(0x0125);
    case 'j': return QChar(0x0135);
    case 's': return QChar(0x015D);
    case 'u': return QChar(0x016D);
    default: return QChar();
    }
}

void cx_edit::keyPressEvent(QKeyEvent* evento)
{
    // The key, not the character: Shift or Ctrl with X convert all the same.
    if (evento->key() != Qt::Key_X || !lCxapeligo) {
        QLineEdit::keyPressEvent(evento);
        return;
    }
    const int p = cursorPosition() - 1;
    const QChar litero = p >= 0 ? cxapeligita(text().at(p)) : QChar();
    if (litero.isNull()) {
        QLineEdit::keyPressEvent(evento);
        return;
    }
    setSelection(p, 1);
    insert(QString(litero));
}

QString cx_edit::cxteksto(QString teksto)
{
    return anstatauigas(teksto);
}

QString cx_edit::anstatauigas(QString teksto)
{
    static const char* const paroj[][2] = {
        {"Cx", "Ĉ"}, {"CX", "Ĉ"}, {"cx", "ĉ"}, {"cX", "ĉ"},
        {"Gx", "Ĝ"}, {"GX", "Ĝ"}, {"gx", "ĝ"}, {"gX", "ĝ"},
        {"Hx", "Ĥ"}, {"HX", "Ĥ"}, {"hx", "ĥ"}, {"hX", "ĥ"},
        {"Jx", "Ĵ"}, {"JX", "Ĵ"}, {"jx", "ĵ"}, {"jX", "ĵ"},
        // The fourth pair repeats "SX" on purpose: "sX" stays as it is.
        {"Sx", "Ŝ"}, {"SX", "Ŝ"}, {"sx", "ŝ"}, {"SX", "ŝ"},
        {"Ux", "Ŭ"}, {"UX", "Ŭ"}, {"ux", "ŭ"}, {"uX", "ŭ"},
    };
    for (const auto& paro : paroj)
        teksto.replace(QLatin1String(paro[0]), QString::fromUtf8(paro[1]));
    return teksto;
}

void cx_edit::cx_ios(QString teksto)
{
    if (!lCxapeligo)
        return;
    const int p = cursorPosition() - 1;
    const QChar c = p >= 0 && p < teksto.size() ? teksto.at(p) : QChar();
    if (c != QLatin1Char('X') && c != QLatin1Char('x'))
        return;
    setText(cxteksto(teksto));
    setCursorPosition(p);
}
