#pragma once

#include "platform/lists/SelectionControl.h"

/// A text field with a list of rows to choose from. The text may differ from all rows.
class ComboBox : public SelectionControl {
    Q_OBJECT

public:
    explicit ComboBox(const QString &name) : SelectionControl(name) {}

    /// Selects the row and sets the text to that of the row, or clears both if there is no such
    /// row.
    void SetListIndex(int index) override;
    QString Text() const override { return text_; }
    /// Clears the selection if the text differs from that of the selected row.
    void SetText(const QString &text);

Q_SIGNALS:
    void TextChanged();

protected:
    void ClearSelection() override;

private:
    void SetSelection(int index, const QString &text);

    QString text_;
};
