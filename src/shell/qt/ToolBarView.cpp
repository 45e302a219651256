#include "shell/qt/ToolBarView.h"

#include "platform/ToolItem.h"

#include <QAction>
#include <QIcon>

ToolBarView::ToolBarView(const QString &name, QWidget *parent) : QToolBar(parent) {
    setObjectName(name);
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({32, 32});
}

void ToolBarView::AddButton(ToolItem &item, const IconPath &icon) {
    QAction *action = addAction(QIcon(icon(item.Icon())), item.Caption());
    action->setObjectName(item.objectName());
    const auto show = [action, &item] {
        action->setText(item.Caption());
        action->setEnabled(item.Enabled());
    };
    connect(&item, &ToolItem::Updated, action, show);
    connect(action, &QAction::triggered, &item, &ToolItem::Action);
}

void ToolBarView::AddSpace() {
    auto *space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(space);
}
