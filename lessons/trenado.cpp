#include "funkcioj.h"
#include "klakbutono_nova.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScroller>
#include <QScrollerProperties>

namespace {

// Notes the widget that each left press went to: the deepest one, not the
// parents it may travel on to.
class PremoNotilo : public QObject
{
public:
    QPointer<QWidget> celo;
    ulong tempo = 0;

    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() != QEvent::MouseButtonPress || !o->isWidgetType())
            return false;
        auto* premo = static_cast<QMouseEvent*>(e);
        auto* w = static_cast<QWidget*>(o);
        if (premo->button() != Qt::LeftButton)
            return false;
        if (!(premo->timestamp() == tempo && celo && w->isAncestorOf(celo)))
            celo = w;
        tempo = premo->timestamp();
        return false;
    }
};

PremoNotilo* premoNotilo()
{
    static PremoNotilo* notilo = nullptr;
    if (!notilo) {
        notilo = new PremoNotilo;
        notilo->setParent(qApp);
        qApp->installEventFilter(notilo);
    }
    return notilo;
}

// A press that became a drag ends for the widget that had it, without a
// click: a word falls silent, a button comes up again.
void finasPremon(QWidget* vidujo)
{
    QWidget* celo = premoNotilo()->celo;
    premoNotilo()->celo = nullptr;
    if (!celo || !vidujo->isAncestorOf(celo))
        return;
    if (auto* vorto = qobject_cast<klakbutono_nova*>(celo))
        vorto->silentas();
    // Straight to the widget, not through the application, where the
    // scroller would take it for the end of its drag.
    const QPointF malproksime(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX);
    QMouseEvent malpremo(QEvent::MouseButtonRelease, malproksime, malproksime, malproksime, Qt::LeftButton,
                         Qt::NoButton, Qt::NoModifier);
    static_cast<QObject*>(celo)->event(&malpremo);
}

} // namespace

void ebligasTrenon(QScrollArea* rulumo)
{
    QWidget* vidujo = rulumo->viewport();
    premoNotilo();
    QScroller::grabGesture(vidujo, QScroller::LeftMouseButtonGesture);
    QScroller* rulilo = QScroller::scroller(vidujo);
    // The scroller would hold a press back for a quarter of a second to see
    // whether a drag follows; a word must speak the moment it is pressed.
    QScrollerProperties ecoj = rulilo->scrollerProperties();
    ecoj.setScrollMetric(QScrollerProperties::MousePressEventDelay, 0.0);
    rulilo->setScrollerProperties(ecoj);
    // A drag that starts on a word moves the page: the word has begun to
    // speak, and falls silent as soon as the page moves.
    QObject::connect(rulilo, &QScroller::stateChanged, vidujo, [vidujo](QScroller::State stato) {
        if (stato == QScroller::Dragging)
            finasPremon(vidujo);
    });
}
