#pragma once

#include <QToolBar>

class FolderItem;
class MainToolbar;
class ToolItem;

/// Shows the tool bar: buttons with captions below, separators and spaces. Tab reaches the buttons,
/// Space and Return press them. A click does not move the focus, so that the list keeps its
/// commands enabled.
class ToolBarView : public QToolBar {
    Q_OBJECT

public:
    /// The icons are in the folder.
    ToolBarView(const MainToolbar &bar, const FolderItem &icons, QWidget *parent);

    /// Makes Return press a button.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void AddButton(ToolItem &item, const FolderItem &icons);
    void AddSpace(QSizePolicy::Policy width);
};
