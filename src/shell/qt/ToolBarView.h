#pragma once

#include <QToolBar>

#include <functional>

class ToolItem;

/// The tool bar of a window: buttons with their captions below.
class ToolBarView : public QToolBar {
    Q_OBJECT

public:
    ToolBarView(const QString &name, QWidget *parent);

    /// `icon` gives the path of a picture by its file name.
    using IconPath = std::function<QString(const QString &name)>;
    void AddButton(ToolItem &item, const IconPath &icon);
    /// What follows stands at the right end.
    void AddSpace();
};
