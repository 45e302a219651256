#pragma once

#include "platform/lists/SelectionControl.h"

/// A pop-up list to choose one row from.
class PopupMenu : public SelectionControl {
    Q_OBJECT

public:
    explicit PopupMenu(const QString &name) : SelectionControl(name) {}

    void SetListIndex(int index) override {
        if (Assign(listIndex_, ValidIndex(index))) {
            Q_EMIT Change();
        }
    }
    /// The selected row's text, empty without a selection.
    QString Text() const override { return List(ListIndex()); }

Q_SIGNALS:
    /// Another row is selected, by the user or by the program. After DeleteAllRows any row is
    /// another.
    void Change();
};
