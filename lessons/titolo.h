#ifndef TITOLO_H
#define TITOLO_H

#include <QLabel>

// Heading of a page or section; always wraps its words.
class titolo : public QLabel
{
    Q_OBJECT
public:
    explicit titolo(QWidget* parent = nullptr);
};

#endif
