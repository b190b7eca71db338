#include "kiomahoro.h"
#include "ui_kiomahoro.h"

#include <QGuiApplication>
#include <QInputMethod>

kiomahoro::kiomahoro(QWidget* parent)
    : tajpekzerco(parent)
    , ui(new Ui::kiomahoro)
{
    ui->setupUi(this);
    identigilo = QStringLiteral("1101");
    linio = QStringLiteral("______:______");
    titolaj = {ui->Lec11_Label3, ui->label};
    instrukcia = ui->Lec11_Label12;
    ui->Edit1->setInputMethodHints(Qt::ImhDigitsOnly);
    preparas();
}

kiomahoro::~kiomahoro()
{
    delete ui;
}

tajpekzerco::Takso kiomahoro::taksas(const QString& teksto, const QString& respondo) const
{
    const QString horo = teksto.trimmed();
    if (horo == QLatin1String(":"))
        return Netaksebla;
    return horo == respondo ? Ghusta : Malghusta;
}

void kiomahoro::pretigasKampon()
{
    ui->Edit1->setCursorPosition(0);
    QGuiApplication::inputMethod()->show();
}
