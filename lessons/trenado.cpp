#include "funkcioj.h"
#include "klakbutono_nova.h"

#include <QScrollArea>
#include <QScroller>
#include <QScrollerProperties>

void ebligasTrenon(QScrollArea* rulumo)
{
    QWidget* vidujo = rulumo->viewport();
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
        if (stato != QScroller::Dragging)
            return;
        klakbutono_nova* vorto = klakbutono_nova::premata();
        if (vorto && vidujo->isAncestorOf(vorto))
            vorto->silentas();
    });
}
