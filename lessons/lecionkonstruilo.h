#ifndef LECIONKONSTRUILO_H
#define LECIONKONSTRUILO_H

class QTabWidget;
class QWidget;
class lecionfonto;

// Turns a lesson source into widgets: the tab widget LecNN with all its pages
// inside the given frame, which gets a vertical layout holding it.
class lecionkonstruilo
{
public:
    static QTabWidget* konstruas(const lecionfonto& fonto, QWidget* kadro);
};

#endif
