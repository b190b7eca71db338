#include "flowlayout_nova.h"

#include <QMap>
#include <QSpacerItem>
#include <QWidget>

FlowLayout::FlowLayout(QWidget* parent, int margin, int spacing)
    : QLayout(parent), horizontala(spacing), vertikala(spacing)
{
    setMargin(margin);
}

FlowLayout::FlowLayout(int spacing)
    : horizontala(spacing), vertikala(spacing)
{
}

FlowLayout::FlowLayout(int horizontal, int vertical)
    : horizontala(horizontal), vertikala(vertical)
{
}

FlowLayout::~FlowLayout()
{
    while (QLayoutItem* ero = takeAt(0))
        delete ero;
}

int FlowLayout::horizontalSpacing() const { return horizontala; }
void FlowLayout::setHorizontalSpacing(int spaco) { horizontala = spaco; }
int FlowLayout::verticalSpacing() const { return vertikala; }
void FlowLayout::setVerticalSpacing(int spaco) { vertikala = spaco; }

void FlowLayout::addSpacing(int tamano)
{
    addItem(new QSpacerItem(tamano, 0, QSizePolicy::Fixed, QSizePolicy::Minimum));
}

void FlowLayout::addItem(QLayoutItem* ero)
{
    itemList.append(ero);
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

QSize FlowLayout::minimumSize() const
{
    QSize grando;
    for (QLayoutItem* ero : itemList)
        grando = grando.expandedTo(ero->minimumSize());
    return grando + QSize(2 * margin(), 2 * margin());
}

void FlowLayout::setGeometry(const QRect& rekt)
{
    QLayout::setGeometry(rekt);
    doLayout(rekt, false);
}

QLayoutItem* FlowLayout::itemAt(int indekso) const
{
    return itemList.value(indekso);
}

QLayoutItem* FlowLayout::takeAt(int indekso)
{
    if (indekso < 0 || indekso >= itemList.size())
        return nullptr;
    return itemList.takeAt(indekso);
}

int FlowLayout::count() const
{
    return itemList.size();
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int largho) const
{
    return doLayout(QRect(0, 0, largho, 0), true);
}

QSize FlowLayout::sizeHint() const
{
    return minimumSize();
}

int FlowLayout::doLayout(const QRect& rekt, bool nurProvo) const
{
    const int maldekstro = rekt.x() + margin();
    int x = maldekstro;
    int y = rekt.y() + margin();
    int linioAlto = 0;
    bool antauaSpaco = false;
    QMap<int, int> linioFino;   // top of a line -> where its last word ends

    for (QLayoutItem* ero : itemList) {
        const bool spaco = ero->spacerItem() != nullptr;
        const QSize hint = ero->sizeHint();
        if (hint.width() == 0)
            continue;   // hidden words take no place
        if (spaco && antauaSpaco)
            continue;

        int sekvaX = x + hint.width() + horizontala;
        bool linioKomenco;
        if (sekvaX - horizontala > rekt.right() - margin() && linioAlto != 0) {
            y += linioAlto + vertikala;
            sekvaX = maldekstro + hint.width() + horizontala;
            x = maldekstro;
            linioAlto = 0;
            linioKomenco = true;
        } else {
            linioKomenco = x == maldekstro;
        }
        if (spaco && linioKomenco)
            continue;

        if (!nurProvo)
            ero->setGeometry(QRect(QPoint(x, y), hint));
        if (!spaco)
            linioFino[y] = sekvaX - margin();

        linioAlto = qMax(linioAlto, hint.height());
        antauaSpaco = spaco;
        x = sekvaX;
    }

    if (!nurProvo) {
        // Centre every line. The stored end still holds the trailing spacing,
        // so lines sit a little left of the true centre.
        const int disponebla = rekt.width() - 2 * margin();
        for (QLayoutItem* ero : itemList) {
            QRect g = ero->geometry();
            if (linioFino.contains(g.top()))
                g.translate((disponebla - linioFino.value(g.top())) / 2, 0);
            if (alignment() & Qt::AlignVCenter)
                g.translate(0, (linioAlto - g.height()) / 2);
            ero->setGeometry(g);
        }
    }
    return y + linioAlto - rekt.y() + margin();
}
