#include "platform/lists/ComboBox.h"

void ComboBox::SetListIndex(int index) {
    index = ValidIndex(index);
    SetSelection(index, List(index));
}

void ComboBox::SetText(const QString &text) {
    SetSelection(text == List(listIndex_) ? listIndex_ : -1, text);
}

void ComboBox::ClearSelection() {
    SetSelection(-1, {});
}

void ComboBox::SetSelection(int index, const QString &text) {
    const bool isSameText = text == text_;
    if (index == listIndex_ && isSameText) {
        return;
    }
    listIndex_ = index;
    text_ = text;
    Q_EMIT Updated();
    if (!isSameText) {
        Q_EMIT TextChanged();
    }
}
