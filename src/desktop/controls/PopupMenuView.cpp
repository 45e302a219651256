#include "desktop/controls/PopupMenuView.h"

#include "desktop/controls/ControlBinding.h"
#include "platform/controls/PopupMenu.h"

PopupMenuView::PopupMenuView(PopupMenu &menu, QWidget *parent) : QComboBox(parent) {
    setModel(menu.Rows());
    setFocusPolicy(Qt::StrongFocus);
    BindControl(menu, *this);
    connect(&menu, &PopupMenu::Updated, this, [this, &menu] { setCurrentIndex(menu.ListIndex()); });
    connect(this, &QComboBox::activated, &menu, &PopupMenu::SetListIndex);
}

void PopupMenuView::showPopup() {
    ShowWholeRows(*view());
    QComboBox::showPopup();
}
