#pragma once

#include <QComboBox>

class PopupMenu;

/// Shows a PopupMenu.
class PopupMenuView : public QComboBox {
    Q_OBJECT

public:
    PopupMenuView(PopupMenu &menu, QWidget *parent);

protected:
    /// The wheel changes nothing while the focus is elsewhere.
    void wheelEvent(QWheelEvent *event) override;
};
