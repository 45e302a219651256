#pragma once

#include "platform/menus/ToolItem.h"

#include <memory>
#include <vector>

/// The tool bar of the main window.
class MainToolbar : public QObject {
    Q_OBJECT

public:
    MainToolbar();

    /// The indexes of the buttons among the items.
    enum Index {
        NewButton = 0,
        EditButton = 1,
        CopyButton = 2,
        DeleteButton = 3,
        PrintButton = 6,
        PreferencesButton = 12
    };

    int Count() const { return static_cast<int>(items_.size()); }
    ToolItem &Item(int index) const { return *items_[static_cast<size_t>(index)]; }

Q_SIGNALS:
    /// Emitted when a button is pressed.
    void Action(const ToolItem &item);

private:
    std::vector<std::unique_ptr<ToolItem>> items_;
};
