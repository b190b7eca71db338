#ifndef KLAKBUTONO_NOVA_H
#define KLAKBUTONO_NOVA_H

#include <QLabel>

// An Esperanto word or sentence on a lesson page that speaks when clicked.
// The sound file is found from the widget's own text and object name.
class klakbutono_nova : public QLabel
{
    Q_OBJECT
public:
    explicit klakbutono_nova(QWidget* parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());

    // The sound of a text shown by the widget named `objekto`, relative to
    // the media folder: a short word by its x-system spelling, anything
    // longer by the widget's number.
    static QString sonoVojo(const QString& teksto, const QString& objekto);

    // Stops the word's sound if it is the one playing.
    void silentas();

signals:
    void clicked();

public slots:
    void klakita();

protected:
    void mousePressEvent(QMouseEvent* evento) override;
};

#endif
