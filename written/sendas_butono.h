#ifndef SENDAS_BUTONO_H
#define SENDAS_BUTONO_H

#include <QPushButton>

// Copies its written page, questions and answers, to the clipboard, to be
// pasted into a message to the course monitor.
class sendas_butono : public QPushButton
{
    Q_OBJECT
public:
    explicit sendas_butono(QWidget* parent = nullptr);

public slots:
    void klakita();
};

#endif
