#ifndef SENDUJO_H
#define SENDUJO_H

#include <QFrame>

class korekta_butono;
class sendas_butono;

// The panel at the foot of a written page: show the model answers, and copy
// the page for the course monitor.
class sendujo : public QFrame
{
    Q_OBJECT
public:
    explicit sendujo(QWidget* parent = nullptr);

    korekta_butono* pushButton;
    sendas_butono* pushButton_2;
};

#endif
