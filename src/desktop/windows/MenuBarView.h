#pragma once

#include <QMenuBar>

class EditActions;
class MenuItem;

/// Shows a menu bar and hands its items what the user chooses. The editing entries act on the
/// focused text field, and the quit entry closes the windows, without a handler of the program.
class MenuBarView : public QMenuBar {
    Q_OBJECT

public:
    MenuBarView(MenuItem &bar, QWidget *parent);

private:
    void AddItem(QMenu &menu, MenuItem &item);

    EditActions *editActions_;
};
