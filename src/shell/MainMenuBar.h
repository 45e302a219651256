#pragma once

#include "platform/menus/MenuItem.h"

/// The menu bar. Its items are the menus, from left to right. Entries without a handler in the
/// window are disabled, except the editing entries and &Quit, which the platform handles.
class MainMenuBar : public MenuItem {
public:
    MainMenuBar();

    MenuItem &FileMenu() { return Item(0); }
    MenuItem &EditMenu() { return Item(1); }
    MenuItem &DataMenu() { return Item(2); }
    MenuItem &HilfeMenu() { return Item(3); }
};
