#pragma once

#include <QComboBox>

class PopupMenu;

/// Shows a PopupMenu.
class PopupMenuView : public QComboBox {
    Q_OBJECT

public:
    PopupMenuView(PopupMenu &menu, QWidget *parent);

    void showPopup() override;
};
