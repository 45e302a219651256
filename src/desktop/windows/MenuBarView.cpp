#include "desktop/windows/MenuBarView.h"

#include "desktop/windows/EditActions.h"
#include "platform/menus/MenuItem.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

QAction::MenuRole RoleOf(MenuItem::Kind kind) {
    switch (kind) {
    case MenuItem::Kind::Apple:
        return QAction::AboutRole;
    case MenuItem::Kind::Prefs:
        return QAction::PreferencesRole;
    case MenuItem::Kind::Quit:
        return QAction::QuitRole;
    case MenuItem::Kind::Plain:
        break;
    }
    return QAction::NoRole;
}

/// Qt calls the command key Ctrl on every platform.
QKeySequence KeysOf(const MenuItem &item) {
    return {item.KeyboardShortcut().replace(u"Cmd+"_s, u"Ctrl+"_s)};
}

} // namespace

MenuBarView::MenuBarView(MenuItem &bar, QWidget *parent)
    : QMenuBar(parent), editActions_(new EditActions(this)) {
    setAccessibleName(u"Menüleiste"_s);
    for (int menu = 0; menu < bar.Count(); ++menu) {
        MenuItem &item = bar.Item(menu);
        QMenu &view = *addMenu(item.Text());
        view.setObjectName(item.objectName());
        connect(&view, &QMenu::aboutToShow, editActions_, &EditActions::Update);
        for (int entry = 0; entry < item.Count(); ++entry) {
            AddItem(view, item.Item(entry));
        }
    }
    editActions_->Update();
}

void MenuBarView::AddItem(QMenu &menu, MenuItem &item) {
    const bool isSeparator = item.Text() == u'-';
    QAction &action = isSeparator ? *menu.addSeparator() : *menu.addAction(item.Text());
    action.setObjectName(item.objectName());
    action.setMenuRole(RoleOf(item.ItemKind()));
    action.setShortcut(KeysOf(item));
    action.setVisible(item.Visible());
    connect(&item, &MenuItem::Updated, &action,
            [&action, &item] { action.setVisible(item.Visible()); });
    if (item.ItemKind() == MenuItem::Kind::Quit) {
        connect(&action, &QAction::triggered, qApp, &QApplication::closeAllWindows);
        return;
    }
    if (editActions_->Connect(action)) {
        return;
    }
    action.setEnabled(item.Enabled());
    connect(&item, &MenuItem::Updated, &action,
            [&action, &item] { action.setEnabled(item.Enabled()); });
    connect(&action, &QAction::triggered, &item, &MenuItem::Action);
}
