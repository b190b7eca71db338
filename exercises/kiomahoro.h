#ifndef KIOMAHORO_H
#define KIOMAHORO_H

#include "tajpekzerco.h"

namespace Ui {
class kiomahoro;
}

// The clock of lesson 11: a time of day in Esperanto words, typed as hours
// and minutes in a field that holds the colon. Both come from the data.
class kiomahoro : public tajpekzerco
{
    Q_OBJECT

public:
    explicit kiomahoro(QWidget* parent = nullptr);
    ~kiomahoro() override;

protected:
    // Exactly as the data writes it: two digits for the hours, and midnight
    // as 24:00. The bare colon of an empty field is not judged.
    Takso taksas(const QString& teksto, const QString& respondo) const override;
    void pretigasKampon() override;

private:
    Ui::kiomahoro* ui;
};

#endif
