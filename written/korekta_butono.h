#ifndef KOREKTA_BUTONO_H
#define KOREKTA_BUTONO_H

#include <QPushButton>

// Shows or hides all model answers of its written page.
class korekta_butono : public QPushButton
{
    Q_OBJECT
public:
    explicit korekta_butono(QWidget* parent = nullptr);

public slots:
    void klakita();
};

#endif
