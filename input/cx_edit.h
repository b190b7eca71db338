#ifndef CX_EDIT_H
#define CX_EDIT_H

#include <QLineEdit>

// A one-line field for Esperanto: x typed after c, g, h, j, s or u turns the
// pair into ĉ, ĝ, ĥ, ĵ, ŝ or ŭ as the learner types.
class cx_edit : public QLineEdit
{
    Q_OBJECT
public:
    explicit cx_edit(QWidget* parent = nullptr);

    // The letter that an x turns the character `antaua` into, or a null QChar.
    static QChar cxapeligita(QChar antaua);
    // Every x pair of a text replaced by its letter.
    static QString anstatauigas(QString teksto);

public slots:
    QString cxteksto(QString teksto);
    void cx_ios(QString teksto);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

#endif
