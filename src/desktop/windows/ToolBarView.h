#pragma once

#include <QToolBar>

class FolderItem;
class MainToolbar;
class ToolItem;

/// Shows the tool bar: buttons with their captions below, lines and spaces between them. The keys
/// reach the buttons with Tab and press them with Space or Return; a click never takes the focus,
/// so the list keeps it.
class ToolBarView : public QToolBar {
    Q_OBJECT

public:
    /// The icons are in the folder.
    ToolBarView(const MainToolbar &bar, const FolderItem &icons, QWidget *parent);

    /// Return presses a button.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void AddButton(ToolItem &item, const FolderItem &icons);
    void AddSpace(QSizePolicy::Policy width);
};
