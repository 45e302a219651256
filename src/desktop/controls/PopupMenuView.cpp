#include "desktop/controls/PopupMenuView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/PopupMenu.h"

PopupMenuView::PopupMenuView(PopupMenu &menu, QWidget *parent) : QComboBox(parent) {
    setModel(menu.Rows());
    setFocusPolicy(Qt::StrongFocus);
    BindControl(menu, *this);
    const auto show = [this, &menu] { setCurrentIndex(menu.ListIndex()); };
    show();
    connect(&menu, &PopupMenu::Updated, this, show);
    connect(this, &QComboBox::activated, &menu, &PopupMenu::SetListIndex);
}
