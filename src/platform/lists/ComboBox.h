#pragma once

#include "platform/lists/SelectionControl.h"

/// A text field with rows to choose from; the text may be one that no row has.
class ComboBox : public SelectionControl {
    Q_OBJECT

public:
    explicit ComboBox(const QString &name) : SelectionControl(name) {}

    /// Shows the row's text; without a row the text is emptied.
    void SetListIndex(int index) override;
    QString Text() const override { return text_; }
    /// As soon as the text is not the selected row's any more, no row is selected.
    void SetText(const QString &text);

Q_SIGNALS:
    void TextChanged();

protected:
    void ForgetSelection() override;

private:
    void Show(int index, const QString &text);

    QString text_;
};
