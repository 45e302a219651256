#pragma once

#include <QHeaderView>

class Listbox;

/// The headings of a Listbox; a click on one sorts. A heading that would not fit its column is made
/// narrower, and only then smaller.
class ListHeading : public QHeaderView {
    Q_OBJECT

public:
    ListHeading(Listbox &list, QWidget *parent);

protected:
    void paintSection(QPainter *painter, const QRect &place, int column) const override;

private:
    void ShowOrder();

    Listbox &list_;
};
