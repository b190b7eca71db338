#ifndef LABEL_SAGO_H
#define LABEL_SAGO_H

#include <QLabel>

// The forward arrow between a word and its meaning or a derived form.
class label_sago : public QLabel
{
    Q_OBJECT
public:
    explicit label_sago(QWidget* parent = nullptr);
};

#endif
