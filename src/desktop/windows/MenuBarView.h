#pragma once

#include <QMenuBar>

class EditActions;
class MenuItem;

/// Shows a menu bar; an item emits Action when the user selects it. The editing items act on the
/// focused text field and the quit item closes the windows, without a handler of the program.
class MenuBarView : public QMenuBar {
    Q_OBJECT

public:
    MenuBarView(MenuItem &bar, QWidget *parent);

private:
    void AddItem(QMenu &menu, MenuItem &item);

    EditActions *editActions_;
};
