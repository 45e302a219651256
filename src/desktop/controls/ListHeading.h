#pragma once

#include <QHeaderView>

class Listbox;

/// The headings of a Listbox; a click on one sorts. Where a heading would not fit its column, the
/// font of them all becomes smaller.
class ListHeading : public QHeaderView {
    Q_OBJECT

public:
    ListHeading(Listbox &list, QWidget *parent);

    /// To be called when the list's font is another.
    void Fit();

private:
    void ShowOrder();
    bool HasRoom() const;

    Listbox &list_;
};
