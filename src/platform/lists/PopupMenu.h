#pragma once

#include "platform/lists/SelectionControl.h"

/// A button that opens a list to choose one row from.
class PopupMenu : public SelectionControl {
    Q_OBJECT

public:
    explicit PopupMenu(const QString &name) : SelectionControl(name) {}

    void SetListIndex(int index) override {
        if (Assign(listIndex_, ValidIndex(index))) {
            Q_EMIT Change();
        }
    }
    /// Returns the text of the selected row, empty if there is none.
    QString Text() const override { return List(ListIndex()); }

Q_SIGNALS:
    /// Emitted when the user or the program selects a different row. After DeleteAllRows every row
    /// is different.
    void Change();
};
