#include "cx_plainedit.h"
#include "cx_edit.h"
#include "funkcioj.h"

#include <QKeyEvent>
#include <QTextBlock>

cx_plainedit::cx_plainedit(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhPreferLatin | Qt::ImhMultiLine);
}

void cx_plainedit::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() != Qt::Key_X || !lCxapeligo) {
        QPlainTextEdit::keyPressEvent(evento);
        return;
    }
    const int p = textCursor().position() - 1;
    const QChar antaua = p >= 0 ? document()->characterAt(p) : QChar();
    const QChar litero = antaua.unicode() < 256 ? cx_edit::cxapeligita(antaua) : QChar();
    if (litero.isNull()) {
        QPlainTextEdit::keyPressEvent(evento);
        return;
    }
    textCursor().deletePreviousChar();
    textCursor().insertText(QString(litero));
}

QString cx_plainedit::cxteksto(QString teksto)
{
    return cx_edit::anstatauigas(teksto);
}

void cx_plainedit::cx_ios()
{
    if (!lCxapeligo)
        return;
    const QString teksto = document()->toPlainText();
    QTextCursor kursoro = textCursor();
    const int p = kursoro.position() - 1;
    const QChar c = p >= 0 && p < teksto.size() ? teksto.at(p) : QChar();
    if (c != QLatin1Char('X') && c != QLatin1Char('x'))
        return;
    setPlainText(cxteksto(teksto));
    kursoro.setPosition(p);
    setTextCursor(kursoro);
}
