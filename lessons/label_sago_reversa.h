#ifndef LABEL_SAGO_REVERSA_H
#define LABEL_SAGO_REVERSA_H

#include <QLabel>

// The return arrow at the start of an indented example line.
class label_sago_reversa : public QLabel
{
    Q_OBJECT
public:
    explicit label_sago_reversa(QWidget* parent = nullptr);
};

#endif
