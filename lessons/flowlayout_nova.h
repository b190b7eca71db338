#ifndef FLOWLAYOUT_NOVA_H
#define FLOWLAYOUT_NOVA_H

#include <QLayout>
#include <QList>

// A layout that flows its items from left to right and wraps them into
// lines, each line centred. Spacers never start a line and two spacers in a
// row count as one, so that word buttons separated by spacers read well.
class FlowLayout : public QLayout
{
public:
    FlowLayout(QWidget* parent, int margin, int spacing);
    explicit FlowLayout(int spacing);
    FlowLayout(int horizontal, int vertical);
    ~FlowLayout() override;

    int horizontalSpacing() const;
    void setHorizontalSpacing(int spaco);
    int verticalSpacing() const;
    void setVerticalSpacing(int spaco);
    void addSpacing(int tamano);

    void addItem(QLayoutItem* ero) override;
    Qt::Orientations expandingDirections() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rekt) override;
    QLayoutItem* itemAt(int indekso) const override;
    QLayoutItem* takeAt(int indekso) override;
    int count() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int largho) const override;
    QSize sizeHint() const override;

private:
    int doLayout(const QRect& rekt, bool nurProvo) const;

    QList<QLayoutItem*> itemList;
    int horizontala;
    int vertikala;
};

#endif
