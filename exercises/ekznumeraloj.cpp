#include "ekznumeraloj.h"
#include "ui_ekznumeraloj.h"

#include "funkcioj.h"

ekznumeraloj::ekznumeraloj(QWidget* parent)
    : tajpekzerco(parent)
    , ui(new Ui::ekznumeraloj)
{
    ui->setupUi(this);
    identigilo = QStringLiteral("0301");
    linio = QStringLiteral("____________");
    titolaj = {ui->Lec03_Label11};
    instrukcia = ui->Lec03_Label12;
    ui->Edit1->setInputMethodHints(Qt::ImhDigitsOnly);
    preparas();
}

ekznumeraloj::~ekznumeraloj()
{
    delete ui;
}

tajpekzerco::Takso ekznumeraloj::taksas(const QString& teksto, const QString& respondo) const
{
    const QString nombro = purigas(teksto, false);
    if (nombro.isEmpty())
        return Netaksebla;
    return nombro.toInt() == respondo.toInt() ? Ghusta : Malghusta;
}
