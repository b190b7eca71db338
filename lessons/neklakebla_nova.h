#ifndef NEKLAKEBLA_NOVA_H
#define NEKLAKEBLA_NOVA_H

#include <QLabel>

// An Esperanto word or phrase that does not speak when clicked.
class neklakebla_nova : public QLabel
{
    Q_OBJECT
public:
    explicit neklakebla_nova(QWidget* parent = nullptr);
};

#endif
