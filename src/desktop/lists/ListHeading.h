#pragma once

#include <QHeaderView>

class Listbox;

/// The headings of a Listbox; a click sorts. A heading that is too long for its column is
/// condensed, and if that is not enough drawn smaller.
class ListHeading : public QHeaderView {
    Q_OBJECT

public:
    ListHeading(Listbox &list, QWidget *parent);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;

private:
    void ShowOrder();

    Listbox &list_;
};
