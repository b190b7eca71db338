#ifndef KOREKTA_H
#define KOREKTA_H

#include <QLabel>

// The model answer under an answer field: hidden until the learner asks for
// the answers of the page.
class korekta : public QLabel
{
    Q_OBJECT
public:
    explicit korekta(QWidget* parent = nullptr);
};

#endif
