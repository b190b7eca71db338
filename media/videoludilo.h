#ifndef VIDEOLUDILO_H
#define VIDEOLUDILO_H

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

class QLabel;
class QMediaPlayer;
class QScrollArea;
class QVideoWidget;

// The film of lesson 2: a still picture until the learner clicks it, then the
// film; a click pauses and resumes, and the end brings the picture back.
class videoludilo : public QFrame
{
    Q_OBJECT
public:
    explicit videoludilo(QWidget* parent = nullptr);
    ~videoludilo() override;

    static QString filmoVojo();

public slots:
    void finite();

protected:
    void showEvent(QShowEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;

private:
    struct Formo { QLabel* startilo = nullptr; };

    Formo* ui;
    QMediaPlayer* ludilo = nullptr;
    QVBoxLayout vertikala;
    QHBoxLayout horizontala;
    QScrollArea* rulujo = nullptr;
    QVideoWidget* videujo = nullptr;
    QWidget* ujo = nullptr;
};

#endif
