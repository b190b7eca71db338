#ifndef LABEL_KLAKEBLA_H
#define LABEL_KLAKEBLA_H

#include <QLabel>

// A marker class kept for the style sheets.
class label_klakebla : public QLabel
{
    Q_OBJECT
public:
    explicit label_klakebla(QWidget* parent = nullptr);
};

#endif
