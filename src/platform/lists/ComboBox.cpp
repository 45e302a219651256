#include "platform/lists/ComboBox.h"

void ComboBox::SetListIndex(int index) {
    index = ValidIndex(index);
    Show(index, List(index));
}

void ComboBox::SetText(const QString &text) {
    Show(text == List(listIndex_) ? listIndex_ : -1, text);
}

void ComboBox::ForgetSelection() {
    Show(-1, {});
}

void ComboBox::Show(int index, const QString &text) {
    const bool sameText = text == text_;
    if (index == listIndex_ && sameText) {
        return;
    }
    listIndex_ = index;
    text_ = text;
    Q_EMIT Updated();
    if (!sameText) {
        Q_EMIT TextChanged();
    }
}
