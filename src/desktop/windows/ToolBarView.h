#pragma once

#include <QToolBar>

#include <functional>

class MainToolbar;
class ToolItem;

/// Shows the tool bar: buttons with their captions below, lines and spaces between them. The keys
/// reach the buttons with Tab and press them with Space or Return; a click never takes the focus,
/// so the list keeps it.
class ToolBarView : public QToolBar {
    Q_OBJECT

public:
    /// Gives the path of a picture by its file name.
    using IconPath = std::function<QString(const QString &name)>;
    ToolBarView(const MainToolbar &bar, const IconPath &icon, QWidget *parent);

    /// Return presses a button.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void AddButton(ToolItem &item, const IconPath &icon);
    void AddSpace(QSizePolicy::Policy width);
};
