#ifndef LECIONKADRO_H
#define LECIONKADRO_H

#include <QFrame>

class QTabWidget;

// The frame of one lesson, lec01 to lec13: it holds the lesson's tab widget
// LecNN built from the lesson source, makes its pages scroll by dragging, and
// keeps the resume point when the page changes.
class lecionkadro : public QFrame
{
    Q_OBJECT
public:
    lecionkadro(int numero, QWidget* parent);

    QTabWidget* langetoj() const { return langetujo; }

public slots:
    void langetoShanghita(int indekso);

private:
    void aldonasFilmon();

    QTabWidget* langetujo;
};

#endif
