#pragma once

#include "platform/controls/Control.h"

/// An item of the tool bar: a button, which is a picture with a caption below it, or a separator or
/// space between the buttons.
class ToolItem : public Control {
    Q_OBJECT

public:
    enum class Style { PushButton = 0, Separator = 1, FlexibleSpace = 5, FixedSpace = 6 };
    struct Properties {
        QStringView name;
        QStringView caption = u"Untitled";
        QStringView icon = {};
        /// The command that the button runs, empty for other items.
        QStringView command = {};
        Style style = Style::PushButton;
        bool enabled = true;
    };

    explicit ToolItem(const Properties &properties)
        : Control(properties.name.toString()), style_(properties.style),
          caption_(properties.caption.toString()), icon_(properties.icon.toString()),
          command_(properties.command.toString()) {
        SetEnabled(properties.enabled);
    }

    Style ItemStyle() const { return style_; }
    QString Caption() const { return caption_; }
    void SetCaption(const QString &caption) { Assign(caption_, caption); }
    /// Returns the file name of the picture in the program's resources folder.
    QString Icon() const { return icon_; }
    QString Command() const { return command_; }

Q_SIGNALS:
    void Action();

private:
    Style style_;
    QString caption_;
    QString icon_;
    QString command_;
};
