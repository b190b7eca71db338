#include "klakbutono_nova.h"
#include "funkcioj.h"

klakbutono_nova::klakbutono_nova(QWidget* parent, Qt::WindowFlags f)
    : QLabel(parent, f)
{
    connect(this, &klakbutono_nova::clicked, this, &klakbutono_nova::klakita);
}

QString klakbutono_nova::sonoVojo(const QString& teksto, const QString& objekto)
{
    QString vorto = teksto;
    vorto.remove(QChar(0x200E));   // the mark a right-to-left translation adds
    vorto = CxSist(vorto, 1);
    const QString ujo = QStringLiteral("sonoj/lec") + objekto.mid(3, 2) + QLatin1Char('/');
    const bool estasVorto = vorto.size() <= 8 && !vorto.contains(QLatin1Char(' '))
                            && !vorto.contains(QLatin1Char('!'));
    if (!estasVorto)
        return ujo + QStringLiteral("btn") + objekto.mid(12) + mp3_finajho;
    if (vorto == QLatin1String("aux"))
        vorto = QStringLiteral("auh");   // that one word's file has another name
    return ujo + vorto + mp3_finajho;
}

void klakbutono_nova::klakita()
{
    mp3(sonoVojo(text(), objectName()));
}

void klakbutono_nova::mousePressEvent(QMouseEvent*)
{
    emit clicked();
}
