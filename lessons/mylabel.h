#ifndef MYLABEL_H
#define MYLABEL_H

#include <QLabel>

// A label that can be clicked like a button: the captions of the home page
// and the words of the accusative exercise.
class myLabel : public QLabel
{
    Q_OBJECT
public:
    explicit myLabel(QWidget* parent = nullptr);

signals:
    void clicked();

public slots:
    void slotClicked();

protected:
    // Any button, wherever the release happens: the label only signals.
    void mouseReleaseEvent(QMouseEvent* evento) override;
};

#endif
