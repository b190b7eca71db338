#ifndef EKZNUMERALOJ_H
#define EKZNUMERALOJ_H

#include "tajpekzerco.h"

namespace Ui {
class ekznumeraloj;
}

// The numbers of lesson 3: a number in Esperanto words, typed in digits.
// Words and digits both come from the data; nothing is spelled here.
class ekznumeraloj : public tajpekzerco
{
    Q_OBJECT

public:
    explicit ekznumeraloj(QWidget* parent = nullptr);
    ~ekznumeraloj() override;

protected:
    // As numbers: a full stop or a comma between thousands and a leading
    // zero make no difference, and a text that is no number reads as 0.
    Takso taksas(const QString& teksto, const QString& respondo) const override;

private:
    Ui::ekznumeraloj* ui;
};

#endif
