#include "desktop/windows/ToolBarView.h"

#include "platform/outside/FolderItem.h"
#include "shell/MainToolbar.h"

#include <QAction>
#include <QIcon>
#include <QKeyEvent>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int spaceWidth = 16;

} // namespace

ToolBarView::ToolBarView(const MainToolbar &bar, const FolderItem &icons, QWidget *parent)
    : QToolBar(parent) {
    setObjectName(u"MainWindowToolbar"_s);
    setAccessibleName(u"Symbolleiste"_s);
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize({32, 32});
    for (int index = 0; index < bar.Count(); ++index) {
        ToolItem &item = bar.Item(index);
        switch (item.ItemStyle()) {
        case ToolItem::Style::PushButton:
            AddButton(item, icons);
            break;
        case ToolItem::Style::Separator:
            addSeparator();
            break;
        case ToolItem::Style::FlexibleSpace:
            AddSpace(QSizePolicy::Expanding);
            break;
        case ToolItem::Style::FixedSpace:
            AddSpace(QSizePolicy::Fixed);
            break;
        }
    }
}

void ToolBarView::AddButton(ToolItem &item, const FolderItem &icons) {
    QAction *action = addAction(QIcon(icons.Child(item.Icon()).Path()), item.Caption());
    action->setObjectName(item.objectName());
    auto *button = static_cast<QToolButton *>(widgetForAction(action));
    const auto show = [action, button, &item] {
        action->setText(item.Caption());
        action->setEnabled(item.Enabled());
        // A screen reader would read a tool tip after the equal caption.
        button->setToolTip({});
    };
    show();
    connect(&item, &ToolItem::Updated, action, show);
    connect(action, &QAction::triggered, &item, &ToolItem::Action);
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
}

void ToolBarView::AddSpace(QSizePolicy::Policy width) {
    auto *space = new QWidget(this);
    space->setMinimumWidth(width == QSizePolicy::Fixed ? spaceWidth : 0);
    space->setSizePolicy(width, QSizePolicy::Preferred);
    addWidget(space);
}

bool ToolBarView::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            static_cast<QToolButton *>(watched)->click();
            return true;
        }
    }
    return QToolBar::eventFilter(watched, event);
}
