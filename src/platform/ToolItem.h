#pragma once

#include "platform/Control.h"

/// A button of the tool bar: a picture with a caption below.
class ToolItem : public Control {
    Q_OBJECT

public:
    ToolItem(const QString &name, const QString &caption, const QString &icon)
        : Control(name), caption_(caption), icon_(icon) {}

    QString Caption() const { return caption_; }
    void SetCaption(const QString &caption);
    /// The file name of its picture among the program's resources.
    QString Icon() const { return icon_; }

Q_SIGNALS:
    void Action();

private:
    QString caption_;
    QString icon_;
};
