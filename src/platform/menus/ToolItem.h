#pragma once

#include "platform/controls/Control.h"

/// An item of the tool bar: a button, which is a picture with a caption below, or what stands
/// between the buttons.
class ToolItem : public Control {
    Q_OBJECT

public:
    enum class Style { PushButton = 0, Separator = 1, FlexibleSpace = 5, FixedSpace = 6 };
    struct Properties {
        QStringView name;
        QStringView caption = u"Untitled";
        QStringView icon = {};
        /// The command that it runs, empty for what is no button.
        QStringView word = {};
        Style style = Style::PushButton;
        bool enabled = true;
    };

    explicit ToolItem(const Properties &properties)
        : Control(properties.name.toString()), style_(properties.style),
          caption_(properties.caption.toString()), icon_(properties.icon.toString()),
          word_(properties.word.toString()) {
        SetEnabled(properties.enabled);
    }

    Style ItemStyle() const { return style_; }
    QString Caption() const { return caption_; }
    void SetCaption(const QString &caption) { Assign(caption_, caption); }
    /// The file name of its picture among the program's resources.
    QString Icon() const { return icon_; }
    QString Word() const { return word_; }

Q_SIGNALS:
    void Action();

private:
    Style style_;
    QString caption_;
    QString icon_;
    QString word_;
};
