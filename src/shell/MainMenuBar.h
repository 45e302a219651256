#pragma once

#include "platform/menus/MenuItem.h"

/// The menu bar: its items are the menus, in their order from the left. A window answers the
/// entries that it has a handler for; the others stay disabled, but for the editing entries and
/// &Quit, which the platform answers.
class MainMenuBar : public MenuItem {
public:
    MainMenuBar();

    MenuItem &FileMenu() { return Item(0); }
    MenuItem &EditMenu() { return Item(1); }
    MenuItem &DataMenu() { return Item(2); }
    MenuItem &HilfeMenu() { return Item(3); }
};
