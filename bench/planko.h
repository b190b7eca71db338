#ifndef PLANKO_H
#define PLANKO_H

class QFrame;
class QWidget;
class lecionfonto;

// The floor a lesson's build is compared with: the same widget tree as the
// lesson builder makes, from a source already read, built in plain code in the
// order that styles and lays out each text once. It leaves out what the
// course adds around the widgets: reading the source, relabelling, saved
// answers, the drag gesture, the buddies and connections.
namespace planko {

// Builds the lesson's frame with its tab widget into `pagho`, a page of the
// main window's stack, and returns the frame.
QFrame* konstruas(const lecionfonto& fonto, QWidget* pagho);

}

#endif
