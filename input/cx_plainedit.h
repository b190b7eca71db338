#ifndef CX_PLAINEDIT_H
#define CX_PLAINEDIT_H

#include <QPlainTextEdit>

// The longer Esperanto answer: like cx_edit, over several lines.
class cx_plainedit : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit cx_plainedit(QWidget* parent = nullptr);

public slots:
    QString cxteksto(QString teksto);
    void cx_ios();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

#endif
