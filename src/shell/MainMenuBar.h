#pragma once

#include "platform/MenuItem.h"

/// The menu bar: its items are the menus, in their order from the left. A window answers the
/// entries that it has a handler for; the others stay disabled, but for the editing entries and
/// &Quit, which the platform answers.
class MainMenuBar : public MenuItem {
public:
    MainMenuBar();

    MenuItem &FileMenu;
    MenuItem &EditMenu;
    MenuItem &DataMenu;
    MenuItem &HilfeMenu;
};
