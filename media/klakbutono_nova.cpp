#include "klakbutono_nova.h"
#include "funkcioj.h"
#include "lernilo.h"

#include <QApplication>
#include <QMediaPlayer>

klakbutono_nova::klakbutono_nova(QWidget* parent, Qt::WindowFlags f)
    : QLabel(parent, f)
{
    connect(this, &klakbutono_nova::clicked, this, &klakbutono_nova::klakita);
}

QString klakbutono_nova::sonoVojo(const QString& teksto, const QString& objekto)
{
    QString vorto = teksto;
    vorto.remove(QChar(0x200E));   // the mark a right-to-left translation adds
    const QString x = CxSist(vorto, 1);
    const QString ciferoj = objekto.mid(3, 2);
    const bool estasVorto = x.size() <= 8 && !x.contains(QLatin1Char(' ')) && !x.contains(QLatin1Char('!'));
    return estasVorto ? vortoSono(ciferoj, vorto, true) : frazoSono(ciferoj, objekto.mid(12));
}

void klakbutono_nova::klakita()
{
    mp3(sonoVojo(text(), objectName()));
}

void klakbutono_nova::mousePressEvent(QMouseEvent*)
{
    emit clicked();
}

void klakbutono_nova::silentas()
{
    auto* fenestro = qobject_cast<lernilo*>(QApplication::activeWindow());
    if (!fenestro)
        return;
    const QString vojo = mrLoko + sonoVojo(text(), objectName()).toLower();
    if (fenestro->ludilo->media().request().url() == QUrl::fromLocalFile(vojo))
        fenestro->ludilo->stop();
}
